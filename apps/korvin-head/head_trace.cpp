#include "korvin-head/head_trace.h"

#include <array>
#include <cstdio>
#include <string>

namespace korvin::head {

namespace {

constexpr std::size_t kReadingColumns = 28;

std::string quoted(char c) {
  const bool printable = c >= ' ' && c <= '~';
  return printable ? std::string{'\'', c, '\''} : "0x" + hexText({&c, 1});
}

/// A raw count with its length from the centre: "250012 (+0.0012 mm)".
std::string explainCount(std::string_view digits) {
  std::array<char, 48> text{};
  const double mm = (std::stod(std::string(digits)) - 250000) / 10000;
  std::snprintf(text.data(), text.size(), "%.6s (%+.4f mm)", std::string(digits).c_str(), mm);
  return text.data();
}

}  // namespace

std::string hexText(std::string_view bytes) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string text;
  for (const char c : bytes) {
    const auto value = static_cast<unsigned char>(c);
    if (!text.empty()) text += ' ';
    text += kDigits[value >> 4U];
    text += kDigits[value & 15U];
  }
  return text;
}

std::string explainHeard(const HeardFrame& frame) {
  switch (frame.verdict) {
    case Verdict::wrongCheck:
      return "wrong check character, not answered";
    case Verdict::malformed:
      return "no request, not answered";
    case Verdict::request:
      break;
  }
  const Request& request = frame.request;
  return std::string("request ") + request.command + ", id " + quoted(request.id) + ", level " +
         quoted(request.level);
}

std::string explainAnswer(std::string_view columns) {
  if (columns.size() < 5) return "no answer";
  std::string text = std::string("answer ") + quoted(columns[4]) + ", class " + quoted(columns[0]) +
                     ", key " + quoted(columns[2]) + ", status " + quoted(columns[3]);
  if (columns.size() < kReadingColumns) return text;
  return text + ", X " + explainCount(columns.substr(6, 6)) + ", Y " + explainCount(columns.substr(13, 6)) +
         ", intensity " + std::string(columns.substr(26, 2)) + " %";
}

std::string faultNames(const std::vector<Fault>& faults) {
  std::string text;
  for (const Fault fault : faults) {
    if (!text.empty()) text += ", ";
    text += faultName(fault);
  }
  return text;
}

}  // namespace korvin::head
