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
};

/// How many points lie from one vertical line to the next: 1 below 51 points, 2 below 101, else 5.
int linienSchritt(std::int16_t AnzMPs);
/// How many points lie from one number to the next: 1 to 20 points, 2 to 50, 5 to 100, else 10.
int nummernSchritt(std::int16_t AnzMPs);

/// Text at the left edge for a height: "+ 0.8", "- 0.4", "+ 0". `R` is the half range.
std::string hoehenText(double hoehe, double R);

/// The numbers of the points below the diagram, the last one with " [MP]". Numbers that would touch another
/// are left out; the last one stays.
std::vector<AchsenText> punktNummern(DrawingSurface& surface, const AchsenRahmen& rahmen);
/// The heights at the left edge.
std::vector<AchsenText> hoehen(DrawingSurface& surface, const AchsenRahmen& rahmen);

/// Heights of texts of the height `hoch`, moved as little as needed so that none covers another; `mitten` are
/// the wanted middles in any order, and the answer has theirs.
std::vector<double> auseinander(std::vector<double> mitten, double hoch);

}  // namespace korvin
