#pragma once

#include <span>
#include <string>

#include "frame/drawing_surface.h"

namespace korvin {

// Colours of the diagram; those of the axes can be told apart in every kind of colour vision.
inline constexpr Farbe FarbeAnalyseGrund = 0xFFFFFF;   ///< light, also on a dark desktop
inline constexpr Farbe FarbeAnalyseHinaus = 0xF0F0F0;  ///< ground of the time beyond the run
inline constexpr Farbe FarbeAnalyseGitter = 0xD0D0D0;
inline constexpr Farbe FarbeAnalyseRand = 0x808080;  ///< axes, end of the run
inline constexpr Farbe FarbeAnalyseText = 0x404040;
inline constexpr Farbe FarbeAnalyseFX = 0xB45A00;    ///< blue
inline constexpr Farbe FarbeAnalyseFY = 0x0055D4;    ///< orange
inline constexpr Farbe FarbeAnalyseZeit = 0x000000;  ///< the chosen time

/// The reachable uncertainty of both axes over the observation time, with the chosen time marked. It is
/// handed values in the unit shown and evaluates nothing.
struct UnsicherheitsBild {
  std::span<const double> Fx;  ///< by position, from index 1 to `maximum`
  std::span<const double> Fy;
  int N = 0;        ///< the position that stands for the run; beyond it the curves are extrapolated
  int maximum = 0;  ///< last position that is drawn
  int wert = 0;     ///< the chosen position, at most `maximum`; below 1 only the time is marked
  double sekundenJePosition = 1;
  bool inch = false;   ///< heights are mil, else mm
  std::string hinaus;  ///< word for the time beyond the run; left out where it has no room
};

// Drawn in two layers. The window's left and right are seconds, its heights uncertainties. Without a
// position, or with a time that does not run forward, there is an empty ground.

/// Where the time axis begins and ends, in parts of the picture's width from its left edge.
struct ZeitAchse {
  double anfang = 0;
  double ende = 1;
};
ZeitAchse unsicherheitZeitAchse();

/// Sets the window, clears the picture and draws all that stays as the slider moves: grid, numbers, both
/// curves. The run's part of them is solid; what lies beyond it is dashed, on a ground of its own.
void unsicherheitRahmenZeichnen(DrawingSurface& surface, const UnsicherheitsBild& bild);
/// Draws the chosen time: a line across, and a disc on each curve.
void unsicherheitWahlZeichnen(DrawingSurface& surface, const UnsicherheitsBild& bild);

}  // namespace korvin
