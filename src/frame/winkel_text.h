#pragma once

#include <cstdint>
#include <string>

namespace korvin {

/// `grad` degrees as degrees, minutes and seconds, the seconds with the decimals of `ZahlMuster`: `12°
/// 30' 1.50"`. Without whole degrees it begins at the minutes, without whole minutes it is the seconds alone.
/// The sign stands on the first number only. The angle is rounded before it is split, so 60 seconds never
/// appear.
std::string WinkelText(double grad, int NKStellen);

/// The angle in degrees that lies nominally between a measuring line and the reference: for squareness 90
/// minus the prism's error `PentaFehler` (arc seconds), for all other kinds 0.
double SollWinkel(std::int16_t messart, double PentaFehler);

}  // namespace korvin
