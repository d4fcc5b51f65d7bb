#include "frame/messart.h"

#include <array>

namespace korvin {
namespace {

struct Art {
  std::string_view endung;
  std::string_view suffix;
  std::int16_t textName;
  std::int16_t textTitel;
};

/// By `Messart`. To add a kind: its row here, its sections in kor_registry.cpp, its letter in
/// datei_verteilung.cpp.
constexpr std::array<Art, 4> Arten{{
    {"*.G", "_G", 501, 5500},
    {"*.O", "_O", 505, 5502},
    {"*.P", "_P", 502, 5501},
    {"*.R", "_R", 503, 5503},
}};

constexpr const char* Undefiniert = "Undef.";

const Art* art(std::int16_t messart) {
  const bool known = messart >= 0 && static_cast<std::size_t>(messart) < Arten.size();
  return known ? &Arten.at(static_cast<std::size_t>(messart)) : nullptr;
}

}  // namespace

std::string_view MessartEndung(std::int16_t messart) {
  const Art* known = art(messart);
  return known != nullptr ? known->endung : "*.???";
}

std::string_view MessartSuffix(std::int16_t messart) {
  const Art* known = art(messart);
  return known != nullptr ? known->suffix : "";
}

std::string MessartName(Dictionary& dictionary, std::int16_t messart) {
  const Art* known = art(messart);
  return known != nullptr ? dictionary.DicText(known->textName) : Undefiniert;
}

std::string MessartTitel(Dictionary& dictionary, std::int16_t messart) {
  const Art* known = art(messart);
  return known != nullptr ? dictionary.DicText(known->textTitel) : Undefiniert;
}

}  // namespace korvin
