#include "reports/page_surface.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "reports/druck_hilfen.h"

namespace korvin {
namespace {

constexpr double thinnestLine = 0.1;  // mm
constexpr int circleCorners = 72;     // of a circle that the edge cuts
constexpr double discStep = 0.05;     // mm between the strips that fill a disc

/// Lengths of a line pattern in mm: drawn, then left out.
struct Pattern {
  double on;
  double off;
};

Pattern patternOf(LineStyle style) {
  return style == LineStyle::dotted ? Pattern{0.3, 0.7} : Pattern{2, 1};
}

DataPoint between(DataPoint from, DataPoint to, double part) {
  return {from.x + (to.x - from.x) * part, from.y + (to.y - from.y) * part};
}

/// Narrows the part of a line that lies on the good side of one edge (Liang and Barsky, 1984): `run` is how
/// fast the line goes outward, `room` how far inside it begins. False if nothing is left.
bool narrow(double run, double room, double& begin, double& end) {
  if (run == 0) return room >= 0;
  const double part = room / run;
  if (run < 0) {
    begin = std::max(begin, part);
  } else {
    end = std::min(end, part);
  }
  return begin < end;
}

double fraction(HorizontalAnchor anchor) {
  if (anchor == HorizontalAnchor::left) return 0;
  return anchor == HorizontalAnchor::centre ? 0.5 : 1;
}

double fraction(VerticalAnchor anchor) {
  if (anchor == VerticalAnchor::top) return 0;
  return anchor == VerticalAnchor::middle ? 0.5 : 1;
}

bool finite(DataPoint p) {
  return std::isfinite(p.x) && std::isfinite(p.y);
}

}  // namespace

PageSurface::PageSurface(Drucker& drucker, const SeitenRechteck& rechteck, double textGroesse)
    : drucker_(drucker), rechteck_(rechteck), textGroesse_(textGroesse) {
  setWindow(window_);
}

void PageSurface::setWindow(const DataWindow& window) {
  window_ = window;
  einMm_ = {std::fabs(window.right - window.left) / rechteck_.width,
            std::fabs(window.bottom - window.top) / rechteck_.height};
  DiagrammSkala(drucker_, rechteck_, window);
}

PageSurface::Box PageSurface::box() const {
  return {std::min(window_.left, window_.right), std::max(window_.left, window_.right),
          std::min(window_.top, window_.bottom), std::max(window_.top, window_.bottom)};
}

double PageSurface::lengthInMm(DataPoint from, DataPoint to) const {
  return std::hypot((to.x - from.x) / einMm_.width, (to.y - from.y) / einMm_.height);
}

void PageSurface::line(DataPoint from, DataPoint to, const Stroke& stroke) {
  const std::array<DataPoint, 2> ends{from, to};
  polyline(ends, stroke);
}

void PageSurface::polyline(std::span<const DataPoint> points, const Stroke& stroke) {
  setWidth(stroke.width);
  double dashed = 0;
  for (std::size_t i = 1; i < points.size(); ++i) {
    if (!finite(points[i - 1]) || !finite(points[i])) continue;
    const auto segment = clipped(points[i - 1], points[i]);
    if (!segment) continue;
    if (stroke.style == LineStyle::solid) {
      drawn(*segment, stroke.colour);
    } else {
      dashed = dashes(*segment, stroke, dashed);
    }
  }
}

std::optional<PageSurface::Segment> PageSurface::clipped(DataPoint from, DataPoint to) const {
  const Box b = box();
  const double dx = to.x - from.x;
  const double dy = to.y - from.y;
  double begin = 0;
  double end = 1;
  if (!narrow(-dx, from.x - b.xLow, begin, end) || !narrow(dx, b.xHigh - from.x, begin, end) ||
      !narrow(-dy, from.y - b.yLow, begin, end) || !narrow(dy, b.yHigh - from.y, begin, end))
    return std::nullopt;
  return Segment{begin > 0 ? between(from, to, begin) : from, end < 1 ? between(from, to, end) : to};
}

double PageSurface::dashes(const Segment& segment, const Stroke& stroke, double dashed) {
  const Pattern pattern = patternOf(stroke.style);
  const double period = pattern.on + pattern.off;
  const double length = lengthInMm(segment.from, segment.to);
  for (double begin = -dashed; begin < length; begin += period) {
    const double on = std::max(begin, 0.0);
    const double off = std::min(begin + pattern.on, length);
    if (off <= on) continue;
    drawn({between(segment.from, segment.to, on / length), between(segment.from, segment.to, off / length)},
          stroke.colour);
  }
  return std::fmod(dashed + length, period);
}

void PageSurface::drawn(const Segment& segment, Farbe colour) {
  drucker_.linie(segment.from.x, segment.from.y, segment.to.x, segment.to.y, colour);
}

bool PageSurface::circleIsInside(DataPoint centre, double radius) const {
  const Box b = box();
  const double radiusY = radius / einMm_.width * einMm_.height;
  return centre.x - radius >= b.xLow && centre.x + radius <= b.xHigh && centre.y - radiusY >= b.yLow &&
         centre.y + radiusY <= b.yHigh;
}

void PageSurface::circle(DataPoint centre, double radius, const Stroke& stroke) {
  if (!finite(centre) || !(radius > 0)) return;
  if (stroke.style != LineStyle::solid || !circleIsInside(centre, radius)) {
    arcs(centre, radius, stroke);
    return;
  }
  setWidth(stroke.width);
  drucker_.kreis(centre.x, centre.y, radius, stroke.colour);
}

/// A circle in short pieces, which the edge can cut.
void PageSurface::arcs(DataPoint centre, double radius, const Stroke& stroke) {
  std::array<DataPoint, circleCorners + 1> corners;
  const double radiusY = radius / einMm_.width * einMm_.height;
  for (int i = 0; i <= circleCorners; ++i) {
    const double angle = 2 * std::acos(-1.0) * i / circleCorners;
    corners.at(static_cast<std::size_t>(i)) = {centre.x + radius * std::cos(angle),
                                               centre.y + radiusY * std::sin(angle)};
  }
  polyline(corners, stroke);
}

void PageSurface::disc(DataPoint centre, double radius, Farbe colour) {
  if (!finite(centre) || !(radius > 0)) return;
  const double radiusY = radius / einMm_.width * einMm_.height;
  const int strips = std::clamp(static_cast<int>(std::ceil(2 * radius / einMm_.width / discStep)), 4, 400);
  for (int i = 0; i < strips; ++i) {
    const double middle = (2 * i + 1.0) / strips - 1;  // of the strip, in radii
    const double half = radius * std::sqrt(1 - middle * middle);
    const double low = centre.y + radiusY * (2.0 * i / strips - 1);
    const double high = centre.y + radiusY * (2.0 * (i + 1) / strips - 1);
    fill({centre.x - half, low}, {centre.x + half, high}, colour);
  }
}

void PageSurface::fill(DataPoint corner, DataPoint opposite, Farbe colour) {
  if (!finite(corner) || !finite(opposite)) return;
  const Box b = box();
  const double x1 = std::max(std::min(corner.x, opposite.x), b.xLow);
  const double x2 = std::min(std::max(corner.x, opposite.x), b.xHigh);
  const double y1 = std::max(std::min(corner.y, opposite.y), b.yLow);
  const double y2 = std::min(std::max(corner.y, opposite.y), b.yHigh);
  if (x1 >= x2 || y1 >= y2) return;
  drucker_.flaeche(x1, y1, x2, y2, colour);
}

void PageSurface::text(DataPoint at, std::string_view utf8, const TextLook& look, Anchor anchor) {
  if (!finite(at)) return;
  const DataSize size = textSize(utf8, look);
  const double right = window_.right > window_.left ? 1 : -1;
  const double down = window_.bottom > window_.top ? 1 : -1;
  drucker_.setX(at.x - right * size.width * fraction(anchor.horizontal));
  drucker_.setY(at.y - down * size.height * fraction(anchor.vertical));
  drucker_.drucke(utf8);
}

DataSize PageSurface::textSize(std::string_view utf8, const TextLook& look) {
  setLook(look);
  // Along an axis that runs the other way a printer may count sizes below zero.
  return {std::fabs(drucker_.textBreite(utf8)), std::fabs(drucker_.textHoehe(utf8))};
}

DataSize PageSurface::lineWidth() {
  return {thinnestLine * einMm_.width, thinnestLine * einMm_.height};
}

void PageSurface::setLook(const TextLook& look) {
  drucker_.setSchrift(BerichtSchrift);
  drucker_.setSchriftGroesse(textGroesse_ * look.size);
  drucker_.setFett(look.bold);
  drucker_.setFarbe(look.colour);
}

void PageSurface::setWidth(double width) {
  if (width_ == width) return;
  drucker_.setLinienBreite(width);
  width_ = width;
}

}  // namespace korvin
