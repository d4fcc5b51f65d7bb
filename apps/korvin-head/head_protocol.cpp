#include "korvin-head/head_protocol.h"

#include <string>

namespace korvin::head {

namespace {

std::string payloadOf(const Request& request) {
  return {request.id, request.level, '-', '-', request.command};
}

bool isCommand(char letter) {
  return letter == 'T' || letter == 'M' || letter == 'J';
}

}  // namespace

char checkCharacter(std::string_view text, int modulus) {
  int sum = 0;
  for (const char c : text) sum += static_cast<unsigned char>(c);
  return static_cast<char>(sum % modulus + 32);
}

std::vector<HeardFrame> RequestParser::feed(std::string_view bytes) {
  std::vector<HeardFrame> heard;
  for (const char byte : bytes) {
    if (byte == kFrameStart) {
      inFrame_ = true;
      body_.clear();
    } else if (inFrame_ && byte == kFrameEnd) {
      heard.push_back(judged());
      reset();
    } else if (inFrame_) {
      body_ += byte;
      if (body_.size() > kRequestBody) {  // an end may never come: no request is that long
        heard.push_back({Verdict::malformed, {}, body_});
        reset();
      }
    }
  }
  return heard;
}

void RequestParser::reset() {
  inFrame_ = false;
  body_.clear();
}

HeardFrame RequestParser::judged() const {
  if (body_.size() != kRequestBody) return {Verdict::malformed, {}, body_};
  const std::string_view payload = std::string_view(body_).substr(0, kRequestBody - 1);
  if (checkCharacter(payload, modulus_) != body_.back()) return {Verdict::wrongCheck, {}, body_};
  // The fillers are looked at too: with echo on, the head hears its own T answers, which are as long as a
  // request.
  const Request request{payload[0], payload[1], payload[4]};
  if (payload[2] != '-' || payload[3] != '-' || !isCommand(request.command))
    return {Verdict::malformed, {}, body_};
  return {Verdict::request, request, body_};
}

std::string answerFrame(std::string_view columns, int modulus) {
  std::string frame(1, kFrameStart);
  frame += columns;
  frame += checkCharacter(columns, modulus);
  frame += kFrameEnd;
  return frame;
}

std::string requestFrame(const Request& request, int modulus) {
  return "\xAA\xAA\xAA\xAA\xAA\xAA\xFF\xFF\x17" + answerFrame(payloadOf(request), modulus);
}

}  // namespace korvin::head
