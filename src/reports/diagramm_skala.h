#pragma once

#include "frame/drawing_surface.h"
#include "frame/drucker.h"

namespace korvin {

/// A rectangle of the page in mm from its top left corner.
struct SeitenRechteck {
  double left;
  double top;
  double width;
  double height;
};

/// Sets the user scale so that the data coordinates `fenster` fall onto `rechteck`. The page remains the same
/// paper: what lies outside the rectangle has coordinates beyond those of the window. `millimeterSkala` ends
/// it.
void DiagrammSkala(Drucker& drucker, const SeitenRechteck& rechteck, const DataWindow& fenster);

}  // namespace korvin
