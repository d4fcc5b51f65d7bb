#pragma once

namespace korvin {

/// Range and start position of the three sliders of the service panel.
inline constexpr int SliderKleinster = 1;
inline constexpr int SliderGroesster = 50;
inline constexpr int SliderStart = 10;

/// Interval in ms that a slider at `position` gives to a timer which starts with `startMs`: in proportion, so
/// that the start position gives the start interval; halves are rounded away from zero.
constexpr int sliderIntervall(int position, int startMs) {
  return (2 * position * startMs + SliderStart) / (2 * SliderStart);
}

}  // namespace korvin
