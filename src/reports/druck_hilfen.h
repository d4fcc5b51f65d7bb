#pragma once

#include <string_view>

#include "frame/drucker.h"

/// What all reports print with. Lengths are millimetres from the page's top left corner.
namespace korvin {

inline constexpr double LinkerRand = 20;    ///< where texts and rules begin
inline constexpr double RechterRand = 190;  ///< where rules end, and texts at the latest
inline constexpr double SeitenBreite = 210;
inline constexpr double SeitenHoehe = 292;  ///< of the user scale; A4 goes on for 5 mm

inline constexpr std::string_view BerichtSchrift = "ARIAL";
inline constexpr Farbe FarbeSchwarz = 0x000000;

/// One unit is a millimetre again, after a diagram.
void millimeterSkala(Drucker& drucker);

/// Font of the reports in `groesse` points, black and not bold.
void schriftSetzen(Drucker& drucker, double groesse);

/// Makes (x, y) the current position. Positions are 32-bit floats, as on all paper that was printed before.
void PositionSetzen(Drucker& drucker, double x, double y);

/// A black rule.
void regel(Drucker& drucker, double x1, double y1, double x2, double y2);

/// Prints `text` so that it ends at the current x, which stays. A text that would begin left of `links` is
/// printed in a font as much smaller as it takes; the former size comes back.
void RechtsDruck(Drucker& drucker, std::string_view text, double links = LinkerRand);

/// Prints `text` from the current position on, in a smaller font if it would end right of `rechts`.
void LinksDruck(Drucker& drucker, std::string_view text, double rechts = RechterRand);

}  // namespace korvin
