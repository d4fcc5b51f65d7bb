#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "frame/dictionary.h"
#include "reports/statistik_block.h"
#include "straightness/achsen_anzeige.h"

/// What the reports of lines tell of an axis: its statistics block, and the mark behind a value.
namespace korvin {

/// What the block of an axis of a line says; all texts are UTF-8, empty ones are left out.
struct AchsenBlockTexte {
  std::string titel;
  std::string mittel;
  std::string streuung;
  std::string spanne;
  std::string gesamtName;
  std::string gesamt;            ///< the whole tolerance
  std::string abschnittVorgabe;  ///< the tolerance of a section
  std::string ist;               ///< in front of what was measured
  std::string extreme;
  std::string abschnitt;  ///< the worst section
};

/// The block: two rows, 10 mm high, rules from x 20 to 176.5. Below the statistics it tells the allowed
/// beside the measured.
Block achsenBlock(const AchsenBlockTexte& texte);

/// What the values are taken off from: the words for `ROH`, `ISO` with the number of the standard, `REF`.
std::string auswertungsText(Dictionary& dictionary, std::int16_t Auswertung);

/// The axis a block is of.
struct BlockAchse {
  const AchsenAnzeigeDaten& daten;  ///< with all switches on
  const AchsenErgebnis& ergebnis;   ///< as the evaluation left it
  const LinienGeometrie& linie;
  const AchsenSchalter& schalter;  ///< decimals, factor, unit
};

/// All cells but the title, for the axis called `name` ("X").
AchsenBlockTexte achsenBlockTexte(Dictionary& dictionary, std::string_view name, const BlockAchse& achse);

/// What stands behind a value beyond the whole tolerance: " *0", " *1" or " *2", by what the tolerance refers
/// to; nothing for a value that keeps it, or without a tolerance. `wert` and the extremes of `block` are in
/// the unit shown.
std::string_view ToleranzMarke(double wert, const AchsenErgebnis& block, std::int16_t Masssystem);

}  // namespace korvin
