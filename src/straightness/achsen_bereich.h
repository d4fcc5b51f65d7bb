#pragma once

#include <cstdint>
#include <string_view>

#include "frame/bereich.h"
#include "straightness/auswertung.h"

namespace korvin {

/// What the diagram of an axis takes its range from: `AchsenAnzeige::Bereichsart`.
inline constexpr std::int16_t BereichsartAUTO = 0;  ///< from the values
inline constexpr std::int16_t BereichsartHAND = 1;  ///< set by the keys "PLUS" and "MINUS"
inline constexpr std::int16_t BereichsartTOL = 2;   ///< from the whole tolerance

/// The half range that an axis needs, in the unit shown, before it is brought onto the ladder. `reihe` are
/// the readings, `ausgewertet` the values that belong to them; open readings are skipped.
///
/// The lowest one is 0.002 mm, but 0.01 / 0.0254 mil, some five times as much: kept. With TOL it is half the
/// whole tolerance as long as no value exceeds the whole tolerance itself, so values between the two lie
/// outside.
double Halbbereich(const AchsenAnzeige& anzeige, const AchsenToleranz& toleranz, const Messreihe& reihe,
                   const Auswertefeld& ausgewertet, std::int16_t Masssystem);

/// The same on the ladder; stored in `Bereich`.
DiagrammBereich bereichBestimmen(AchsenAnzeige& anzeige, const AchsenToleranz& toleranz,
                                 const Messreihe& reihe, const Auswertefeld& ausgewertet,
                                 std::int16_t Masssystem);

/// True if the frame has to be drawn anew, since the range differs from that of the last drawing;
/// `BereichAlt` then tells the new one.
bool rahmenVeraltet(AchsenAnzeige& anzeige);

/// Carries out a key of a range bar: "AUTO", "HAND" and "TOL" set `Bereichsart`; "PLUS" and "MINUS" change
/// `Bereich` by a rung of the ladder. False for another key, and for the last two unless the range is set by
/// hand.
///
/// Kept: PLUS goes from the top rung on to the second one, 0.002 mm or 0.05 mil, where MINUS ends.
bool bereichsTaste(AchsenAnzeige& anzeige, std::string_view taste, std::int16_t Masssystem);

}  // namespace korvin
