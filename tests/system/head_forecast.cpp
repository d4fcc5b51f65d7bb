#include "system/head_forecast.h"

#include "korvin-head/head_options.h"
#include "korvin-head/head_protocol.h"

namespace korvin::test {
namespace {

constexpr head::Request quickMeasurement{'0', '2', 'J'};
constexpr std::size_t kindColumn = 4;

head::HeadModel modelOf(const head::HeadConfig& config) {
  return {config.head, head::beamOf(config)};
}

}  // namespace

bool checkFits(const std::string& body, int modulus) {
  return !body.empty() && head::checkCharacter(body.substr(0, body.size() - 1), modulus) == body.back();
}

HeadForecast::HeadForecast(const std::vector<std::string>& options)
    : headModulus_(head::parseOptions(options).config.line.modulus),
      model_(modelOf(head::parseOptions(options).config)),
      faults_(head::parseOptions(options).config.faults) {
  const std::string columns = model_.answer(quickMeasurement, 'K', 0);
  trueBody_ = columns + head::checkCharacter(columns, headModulus_);
}

void HeadForecast::ask() {
  for (const int modulus : {programModulus_, 95, 223}) {
    programModulus_ = modulus;
    ++sent;
    if (modulus == headModulus_ && question() == Verdict::right) return;
  }
  ++failed;
}

HeadForecast::Verdict HeadForecast::question() {
  for (const head::Piece& piece :
       faults_.deliver(model_.answer(quickMeasurement, 'K', 0), headModulus_).pieces)
    waiting_ += piece.bytes;
  return judge();
}

HeadForecast::Verdict HeadForecast::judge() {
  const auto end = waiting_.rfind(head::kFrameEnd);
  if (end == std::string::npos) return Verdict::nothing;
  const auto start = waiting_.rfind(head::kFrameStart, end);
  const std::string body =
      start == std::string::npos ? std::string() : waiting_.substr(start + 1, end - start - 1);
  waiting_.clear();
  return start == std::string::npos ? Verdict::nothing : judgeBody(body);
}

HeadForecast::Verdict HeadForecast::judgeBody(const std::string& body) {
  if (!checkFits(body, headModulus_)) {
    ++wrongFrames;
    return Verdict::wrong;
  }
  const bool known =
      body.size() > kindColumn && std::string("mjLRT").find(body[kindColumn]) != std::string::npos;
  if (known && body != trueBody_) ++undetected;
  return known ? Verdict::right : Verdict::nothing;
}

}  // namespace korvin::test
