#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace korvin {

/// The columns of the table `DIC`, one for each language, in the order of the setting `Sprache`.
///
/// To add a language: append its column here, give every row of texts/*.tsv its wording, and name the
/// language in the menu's texts (texts/frame.tsv).
inline constexpr std::array<const char*, 8> Sprachspalten = {
    "Deutsch", "Englisch", "Franzoesisch", "Italienisch", "Spanisch", "Schwedisch", "Chinese", "Japanese"};

/// The column that holds every text; it stands in where a language has none.
inline constexpr const char* SpalteDeutsch = Sprachspalten[0];

/// The column of language `index` (0 to 7); `Deutsch` for any other index.
constexpr const char* SpalteVonSprache(std::int16_t index) {
  const auto place = static_cast<std::size_t>(index);  // huge for a negative one
  return place < Sprachspalten.size() ? Sprachspalten.at(place) : SpalteDeutsch;
}

}  // namespace korvin
