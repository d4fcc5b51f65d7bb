#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "frame/drawing_surface.h"
#include "straightness/achsen_diagramm.h"

namespace korvin {

/// A text of the frame and its place.
struct AchsenText {
  std::string text;
  DataPoint ort;
  Anchor anker;
  TextLook look;
  bool imFeld = false;  ///< reaches into the plot: what lies under it is covered
};

/// How many points lie from one vertical line to the next: 1 below 51 points, 2 below 101, else 5.
int linienSchritt(std::int16_t AnzMPs);
/// How many points lie from one number to the next: 1 to 20 points, 2 to 50, 5 to 100, else 10.
int nummernSchritt(std::int16_t AnzMPs);

/// Text at the left edge for a height: "+ 0.8", "- 0.4", "+ 0". `R` is the half range.
std::string hoehenText(double hoehe, double R);

/// The numbers of the points below the diagram, the last one with " [MP]"; on paper the row of their z below
/// it, too. A value that would touch another is left out; the last one stays.
std::vector<AchsenText> punktZeilen(DrawingSurface& surface, const AchsenRahmen& rahmen);
/// The heights at the left edge, smaller where the margin is narrow, but not below four fifths.
std::vector<AchsenText> hoehen(DrawingSurface& surface, const AchsenRahmen& rahmen);
/// The unit above the heights; in a low picture beside the highest one.
AchsenText einheitenText(DrawingSurface& surface, const AchsenRahmen& rahmen,
                         const std::vector<AchsenText>& hoehen);

/// Room of a text: its left lower and its right upper corner, in data coordinates.
DataWindow raum(DrawingSurface& surface, const AchsenText& text);

/// Heights of texts of the height `hoch`, moved as little as needed so that none covers another and all lie
/// between `unten` and `oben`; `mitten` are the wanted middles in any order, and the answer has theirs. More
/// than there is room for go on above.
std::vector<double> auseinander(std::vector<double> mitten, double hoch, double unten, double oben);

}  // namespace korvin
