#pragma once

#include <span>
#include <string_view>

#include "frame/farbe.h"

namespace korvin {

/// A point of a diagram, in data coordinates (mm or mil, point numbers, z in mm: the diagram's own matter).
struct DataPoint {
  double x = 0;
  double y = 0;
  friend bool operator==(const DataPoint&, const DataPoint&) = default;
};

/// The data coordinates of a picture's corners. `top` may lie above or below `bottom`, `left` left or right
/// of `right`; neither pair may be equal.
struct DataWindow {
  double left = 0;
  double top = 1;
  double right = 1;
  double bottom = 0;
  friend bool operator==(const DataWindow&, const DataWindow&) = default;
};

enum class LineStyle { solid, dashed, dotted };

/// How a line is drawn. Width 1 is the thinnest line that the medium shows crisply, other widths its
/// multiples.
struct Stroke {
  Farbe colour = 0;
  double width = 1;
  LineStyle style = LineStyle::solid;
};

enum class HorizontalAnchor { left, centre, right };
enum class VerticalAnchor { top, middle, bottom };

/// Which point of a text's box lies at the told place.
struct Anchor {
  HorizontalAnchor horizontal = HorizontalAnchor::left;
  VerticalAnchor vertical = VerticalAnchor::top;
};

/// How a text looks. `size` is a factor of the medium's own text size for diagrams.
struct TextLook {
  Farbe colour = 0;
  double size = 1;
  bool bold = false;
};

/// Width and height in data units, both positive.
struct DataSize {
  double width = 0;
  double height = 0;
};

/// What diagrams are drawn on: a picture on the screen, a page, a recording. A port. It knows no diagram, and
/// diagrams know no medium: they compute in data coordinates, and the surface brings them onto its own.
///
/// What lies outside the window is cut off at the picture's edge. Values that are not finite are the caller's
/// fault and draw nothing.
class DrawingSurface {
 public:
  virtual ~DrawingSurface() = default;

  /// From here on `window` fills the whole picture.
  virtual void setWindow(const DataWindow& window) = 0;
  /// Fills the whole picture with the ground.
  virtual void clear(Farbe ground) = 0;

  virtual void line(DataPoint from, DataPoint to, const Stroke& stroke) = 0;
  /// A line through all points in turn; fewer than two draw nothing.
  virtual void polyline(std::span<const DataPoint> points, const Stroke& stroke) = 0;
  /// A round circle on every medium; `radius` is measured along x.
  virtual void circle(DataPoint centre, double radius, const Stroke& stroke) = 0;
  /// The same circle around each of `centres`, in turn; a medium that can do many at once quicker than one by
  /// one does so.
  virtual void circles(std::span<const DataPoint> centres, double radius, const Stroke& stroke) {
    for (const DataPoint centre : centres) circle(centre, radius, stroke);
  }
  /// A circle, filled.
  virtual void disc(DataPoint centre, double radius, Farbe colour) = 0;
  /// A filled rectangle between two opposite corners.
  virtual void fill(DataPoint corner, DataPoint opposite, Farbe colour) = 0;
  /// One line of text, UTF-8.
  virtual void text(DataPoint at, std::string_view utf8, const TextLook& look, Anchor anchor) = 0;

  /// Room that a text takes on this medium.
  virtual DataSize textSize(std::string_view utf8, const TextLook& look) = 0;
  /// Data units that one width of `Stroke` takes along x and y: what has to be kept apart to be told apart.
  virtual DataSize lineWidth() = 0;
};

}  // namespace korvin
