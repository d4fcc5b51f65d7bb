#include "korvin-head/head_keys.h"

#include <charconv>
#include <cmath>

namespace korvin::head {

namespace {

constexpr std::string_view kBlanks = " \t\r";

std::string_view trimmed(std::string_view text) {
  const auto first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

[[noreturn]] void refuse(std::size_t line, const std::string& why) {
  throw ScriptError("line " + std::to_string(line) + ": " + why);
}

ScriptedKey parseLine(std::string_view text, double before, std::size_t line) {
  const bool relative = text.front() == '+';
  if (relative) text.remove_prefix(1);
  ScriptedKey key;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), key.seconds);
  if (error != std::errc() || !std::isfinite(key.seconds) || key.seconds < 0)
    refuse(line, "no time in seconds");
  const std::string_view letter = trimmed(text.substr(static_cast<std::size_t>(end - text.data())));
  key.key = letter.size() == 1 ? keyOf(letter.front()) : '\0';
  if (key.key == '\0') refuse(line, "no key: after the time stands one of M, J, L, R");
  if (relative) key.seconds += before;
  if (key.seconds < before) refuse(line, "the time lies before that of the press above");
  return key;
}

}  // namespace

char keyOf(char letter) {
  switch (letter) {
    case 'm':
    case 'M':
      return 'M';
    case 'j':
    case 'J':
      return 'J';
    case 'l':
    case 'L':
      return 'L';
    case 'r':
    case 'R':
      return 'R';
    default:
      return '\0';
  }
}

std::vector<ScriptedKey> parseKeyScript(std::string_view text) {
  std::vector<ScriptedKey> script;
  double before = 0;
  for (std::size_t line = 1; !text.empty(); ++line) {
    const auto end = text.find('\n');
    const std::string_view whole = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    const std::string_view content = trimmed(whole.substr(0, whole.find('#')));
    if (content.empty()) continue;
    script.push_back(parseLine(content, before, line));
    before = script.back().seconds;
  }
  return script;
}

KeyPad::KeyPad(std::vector<ScriptedKey> script, double holdSeconds)
    : script_(script.begin(), script.end()), holdSeconds_(holdSeconds) {}

char KeyPad::report(double now) {
  takeFromScript(now);
  if (now < heldUntil_) return held_;
  if (waiting_.empty()) return 'K';
  held_ = waiting_.front();
  waiting_.pop_front();
  heldUntil_ = now + holdSeconds_;
  return held_;
}

void KeyPad::takeFromScript(double now) {
  while (!script_.empty() && script_.front().seconds <= now) {
    waiting_.push_back(script_.front().key);
    script_.pop_front();
  }
}

}  // namespace korvin::head
