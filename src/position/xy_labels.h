#pragma once

#include <string>
#include <vector>

#include "frame/drawing_surface.h"
#include "position/xy_frame.h"

namespace korvin {

/// A label of the frame with the room that it takes, in data coordinates: `right` and `top` are the higher
/// ones.
struct XYText {
  std::string text;
  DataPoint at;
  Anchor anchor;
  TextLook look;
  DataWindow box;
  bool imFeld = false;  ///< reaches into the square of the points: what lies under it is covered
};

/// All labels of the frame, none of which overlaps another or the picture's edge on this surface. The surface
/// already has the frame's window; it is only asked for sizes.
std::vector<XYText> xyBeschriften(DrawingSurface& surface, const XYRahmen& rahmen,
                                  const XYBeschriftung& beschriftung);

}  // namespace korvin
