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

/// How the frame is labelled. As it stands it is the screen's way; paper's is `xyPapierBeschriftung`.
struct XYBeschriftung {
  std::string X = "X";  ///< name of the axis, before the label of its range
  std::string Y = "Y";
  /// Tick values are in the unit of the range's label, the um of "±50um", with one decimal at least; else in
  /// that of the data.
  bool inBereichsEinheit = false;
};

/// The unit of a range's label: "um", "mm", "mil" or "in".
std::string xyBereichsEinheit(const DiagrammBereich& bereich);

/// The labels of paper: axes named with the unit of their tick values, "X [um]".
XYBeschriftung xyPapierBeschriftung(const DiagrammBereich& X, const DiagrammBereich& Y);

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

/// Text of tick `i`: its value with "+" before positive ones and as many decimals as the step needs, in the
/// unit of the data; or in the unit of the range's label, then with one decimal at least.
std::string xyTeilungsText(const DiagrammBereich& bereich, int i, bool inBereichsEinheit = false);

/// Clears the picture, sets its window and draws grid, axes and labels. Tick values stand left of and below
/// the square, the labels of the ranges under them. They never overlap: where the picture is small for its
/// text, the text gets smaller down to three quarters, then labels move into the square, and ticks are
/// labelled by twos, by fours, or not at all.
void xyRahmenZeichnen(DrawingSurface& surface, const XYRahmen& rahmen, const XYBeschriftung& beschriftung);

}  // namespace korvin
