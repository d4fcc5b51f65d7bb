#include "korvin-head/fault_injector.h"

#include <algorithm>
#include <charconv>
#include <set>

#include "korvin-head/head_protocol.h"

namespace korvin::head {

namespace {

constexpr std::array<FaultInfo, kFaults> kTable{{
    {Fault::hangUp, "hang-up", "hang up instead of answering; come back after a while"},
    {Fault::silence, "silence", "give no answer"},
    {Fault::late, "late", "answer later than due"},
    {Fault::previous, "previous", "give the answer to the previous question"},
    {Fault::split, "split", "send the bytes in two to five pieces, with pauses"},
    {Fault::join, "join", "send the previous answer and this one joined"},
    {Fault::noiseBefore, "noise-before", "send one to eight random bytes before the frame"},
    {Fault::noiseAfter, "noise-after", "send one to eight random bytes behind the frame"},
    {Fault::drop, "drop", "lose one byte"},
    {Fault::flip, "flip", "turn over one bit of one byte"},
    {Fault::insert, "insert", "insert one random byte"},
    {Fault::doubled, "double", "send one byte twice"},
    {Fault::wrongCheck, "wrong-check", "send another check character"},
    {Fault::noEnd, "no-end", "leave out the end byte"},
    {Fault::unknownKind, "unknown-kind", "answer with an unknown kind, rightly framed"},
}};

constexpr std::size_t kKindColumn = 4;
constexpr char kUnknownKind = 'x';

bool has(const Delivery& delivery, Fault fault) {
  return std::find(delivery.faults.begin(), delivery.faults.end(), fault) != delivery.faults.end();
}

template <class Number>
bool wholeNumber(std::string_view text, Number& value) {
  const char* end = text.data() + text.size();
  const auto result = std::from_chars(text.data(), end, value);
  return result.ec == std::errc() && result.ptr == end;
}

}  // namespace

const std::array<FaultInfo, kFaults>& faultTable() {
  return kTable;
}

std::string_view faultName(Fault fault) {
  return kTable.at(static_cast<std::size_t>(fault)).name;
}

std::optional<Dose> parseDose(std::string_view text) {
  Dose dose;
  if (const auto at = text.find('@'); at != std::string_view::npos) {
    if (!wholeNumber(text.substr(at + 1), dose.skip) || dose.skip < 0) return std::nullopt;
    text = text.substr(0, at);
  }
  if (text.ends_with('x')) {
    text.remove_suffix(1);
    if (!wholeNumber(text, dose.count) || dose.count < 0) return std::nullopt;
    return dose;
  }
  if (!wholeNumber(text, dose.rate) || !(dose.rate >= 0 && dose.rate <= 1)) return std::nullopt;
  return dose;
}

FaultInjector::FaultInjector(const FaultSettings& settings) : settings_(settings) {
  for (std::size_t i = 0; i < kFaults; ++i) {
    std::seed_seq seeds{static_cast<std::uint32_t>(settings.seed),
                        static_cast<std::uint32_t>(settings.seed >> 32), static_cast<std::uint32_t>(i)};
    generators_.at(i).seed(seeds);
  }
}

Delivery FaultInjector::deliver(std::string columns, int modulus) {
  Delivery delivery;
  delivery.faults = drawAll();
  delivery.hangUp = has(delivery, Fault::hangUp);
  if (has(delivery, Fault::unknownKind)) columns.at(kKindColumn) = kUnknownKind;
  const std::string bytes = spoiledFrame(columns, modulus, delivery);
  if (delivery.hangUp || has(delivery, Fault::silence)) return delivery;

  delivery.pieces = has(delivery, Fault::split) ? cut(bytes) : std::vector<Piece>{{0, bytes}};
  if (has(delivery, Fault::late)) {
    for (Piece& piece : delivery.pieces) piece.afterSeconds += settings_.times.late;
  }
  return delivery;
}

std::vector<Fault> FaultInjector::drawAll() {
  std::vector<Fault> struck;
  for (const FaultInfo& info : kTable) {
    if (!strikes(info.fault)) continue;
    struck.push_back(info.fault);
    ++struck_.at(static_cast<std::size_t>(info.fault));
  }
  ++answers_;
  return struck;
}

bool FaultInjector::strikes(Fault fault) {
  const Dose& dose = settings_.dose(fault);
  if (answers_ < dose.skip) return false;
  if (dose.count > 0) return answers_ - dose.skip < dose.count;
  if (dose.rate <= 0) return false;
  return static_cast<double>(generator(fault)() >> 11U) * 0x1p-53 < dose.rate;
}

std::size_t FaultInjector::below(Fault fault, std::size_t limit) {
  return generator(fault)() % limit;
}

std::string FaultInjector::randomBytes(Fault fault, std::size_t count) {
  std::string bytes;
  while (bytes.size() < count) bytes += static_cast<char>(below(fault, 256));
  return bytes;
}

std::string FaultInjector::spoiledFrame(const std::string& columns, int modulus, const Delivery& delivery) {
  const std::string right = answerFrame(columns, modulus);
  const std::string before = previousFrame_.empty() ? right : previousFrame_;
  previousFrame_ = right;

  std::string frame = has(delivery, Fault::previous) ? before : right;
  if (has(delivery, Fault::wrongCheck)) {
    char& check = frame.at(frame.size() - 2);
    const auto place = static_cast<std::size_t>(static_cast<unsigned char>(check)) - 32;
    const std::size_t step = 1 + below(Fault::wrongCheck, static_cast<std::size_t>(modulus) - 1);
    check = static_cast<char>((place + step) % static_cast<std::size_t>(modulus) + 32);
  }
  if (has(delivery, Fault::noEnd)) frame.pop_back();
  spoilBytes(frame, delivery);
  if (has(delivery, Fault::join)) frame.insert(0, before);
  if (has(delivery, Fault::noiseBefore)) {
    frame.insert(0, randomBytes(Fault::noiseBefore, 1 + below(Fault::noiseBefore, 8)));
  }
  if (has(delivery, Fault::noiseAfter))
    frame += randomBytes(Fault::noiseAfter, 1 + below(Fault::noiseAfter, 8));
  return frame;
}

void FaultInjector::spoilBytes(std::string& frame, const Delivery& delivery) {
  if (has(delivery, Fault::drop)) frame.erase(below(Fault::drop, frame.size()), 1);
  if (has(delivery, Fault::flip)) {
    const auto bit = static_cast<unsigned char>(1U << below(Fault::flip, 8));
    char& byte = frame.at(below(Fault::flip, frame.size()));
    byte = static_cast<char>(static_cast<unsigned char>(byte) ^ bit);
  }
  if (has(delivery, Fault::insert)) {
    const std::string extra = randomBytes(Fault::insert, 1);
    frame.insert(below(Fault::insert, frame.size() + 1), extra);
  }
  if (has(delivery, Fault::doubled)) {
    const std::size_t place = below(Fault::doubled, frame.size());
    frame.insert(place, 1, frame.at(place));
  }
}

std::vector<Piece> FaultInjector::cut(const std::string& bytes) {
  std::set<std::size_t> cuts;
  const std::size_t wanted = std::min<std::size_t>(1 + below(Fault::split, 4), bytes.size() - 1);
  while (cuts.size() < wanted) cuts.insert(1 + below(Fault::split, bytes.size() - 1));
  cuts.insert(bytes.size());

  std::vector<Piece> pieces;
  std::size_t start = 0;
  for (const std::size_t end : cuts) {
    const double after = static_cast<double>(pieces.size()) * settings_.times.splitPause;
    pieces.push_back({after, bytes.substr(start, end - start)});
    start = end;
  }
  return pieces;
}

}  // namespace korvin::head
