#pragma once

#include <optional>

#include "frame/drawing_surface.h"
#include "reports/diagramm_skala.h"

namespace korvin {

/// A rectangle of a report's page as the surface of a diagram. The ground stays that of the paper, so `clear`
/// draws nothing. Diagrams draw in their data coordinates, which it makes the printer's user scale; after the
/// diagram, `millimeterSkala` and `schriftSetzen` bring back what texts need.
class PageSurface : public DrawingSurface {
 public:
  /// `textGroesse` in points is the size of texts whose look has the factor 1.
  PageSurface(Drucker& drucker, const SeitenRechteck& rechteck, double textGroesse);

  void setWindow(const DataWindow& window) override;
  void clear(Farbe /*ground*/) override {}
  void line(DataPoint from, DataPoint to, const Stroke& stroke) override;
  void polyline(std::span<const DataPoint> points, const Stroke& stroke) override;
  void circle(DataPoint centre, double radius, const Stroke& stroke) override;
  void disc(DataPoint centre, double radius, Farbe colour) override;
  void fill(DataPoint corner, DataPoint opposite, Farbe colour) override;
  void text(DataPoint at, std::string_view utf8, const TextLook& look, Anchor anchor) override;
  DataSize textSize(std::string_view utf8, const TextLook& look) override;
  DataSize lineWidth() override;

 private:
  struct Box {
    double xLow;
    double xHigh;
    double yLow;
    double yHigh;
  };
  struct Segment {
    DataPoint from;
    DataPoint to;
  };
  Box box() const;
  double lengthInMm(DataPoint from, DataPoint to) const;
  bool circleIsInside(DataPoint centre, double radius) const;
  void arcs(DataPoint centre, double radius, const Stroke& stroke);
  /// What of a line lies inside the window.
  std::optional<Segment> clipped(DataPoint from, DataPoint to) const;
  /// Draws a line from `dashed` mm into the pattern on; how far into it the line's end is.
  double dashes(const Segment& segment, const Stroke& stroke, double dashed);
  void drawn(const Segment& segment, Farbe colour);
  void setLook(const TextLook& look);
  void setWidth(double width);

  Drucker& drucker_;
  SeitenRechteck rechteck_;
  double textGroesse_;
  DataWindow window_;
  DataSize einMm_{1, 1};  // data units in a mm
  std::optional<double> width_;
};

}  // namespace korvin
