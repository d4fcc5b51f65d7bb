#pragma once

#include <string>

#include "frame/bereich.h"
#include "frame/drawing_surface.h"

namespace korvin {

// Colours of the frame. The ground is light in a dark desktop, too.
inline constexpr Farbe FarbeGrund = 0xFFFFFF;
inline constexpr Farbe FarbeGitter = 0xC0C0C0;
inline constexpr Farbe FarbeAchsen = 0x808080;
inline constexpr Farbe FarbeBeschriftung = 0x303030;

/// How the frame is labelled where screen and paper differ.
struct XYBeschriftung {
  std::string X = "X";  ///< name of the axis, before the label of its range; on paper with the unit, "X [mm]"
  std::string Y = "Y";
  std::string teilung;  ///< pattern of the tick values ("0.0"); empty: as many decimals as the step needs
};

/// The frame of the XY diagram: half ranges of the axes, which also tell tick steps and range labels.
struct XYRahmen {
  DiagrammBereich X;
  DiagrammBereich Y;
  bool gitter = true;
};

/// Data coordinates of the picture's corners for two half ranges: room for labels left and below.
DataWindow xyFenster(double Rx, double Ry);

/// Value of tick `i` (−5 to 5, ±5 being the ends of the range); `i` × a fifth of the half range.
double xyTeilstrich(double bereich, int i);

/// Text of tick `i`: its value with "+" before positive ones, by `muster` or, if that is empty, with as many
/// decimals as the step needs.
std::string xyTeilungsText(const DiagrammBereich& bereich, int i, const std::string& muster = {});

/// Clears the picture, sets its window and draws grid, axes and labels. Tick values stand left of and below
/// the square, the labels of the ranges under them. They never overlap: where the picture is small for its
/// text, the text gets smaller down to three quarters, then labels move into the square, and ticks are
/// labelled by twos, by fours, or not at all.
void xyRahmenZeichnen(DrawingSurface& surface, const XYRahmen& rahmen, const XYBeschriftung& beschriftung);

}  // namespace korvin
