#include "frame/montage.h"

#include <array>
#include <cstddef>

namespace korvin {
namespace {

constexpr std::array<std::string_view, 4> pictures = {"ICON54", "ICON55", "ICON56", "ICON57"};
constexpr std::int16_t firstText = 3029;

bool isKnown(std::int16_t Montage) {
  return Montage >= 0 && Montage < static_cast<std::int16_t>(pictures.size());
}

}  // namespace

std::string_view MontageBild(std::int16_t Montage) {
  return pictures.at(isKnown(Montage) ? static_cast<std::size_t>(Montage) : 0);
}

std::string MontageText(Dictionary& dictionary, std::int16_t Montage) {
  return isKnown(Montage) ? dictionary.DicText(static_cast<std::int16_t>(firstText + Montage)) : "?";
}

}  // namespace korvin
