#include "frame/ui/image_surface.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "frame/ui/qt_colour.h"
#include "frame/ui/vector_registers.h"

namespace korvin {
namespace {

/// Larger marks are few; they are drawn where they belong to the fraction of a pixel.
constexpr double largestStamp = 24;
constexpr std::size_t stampsKept = 16;

/// Sizes in sixteenths of a pixel: what differs by less looks the same.
double inSteps(double pixels) {
  return std::round(pixels * 16) / 16;
}

/// The smallest rectangle of pixels that holds all that were added.
class Extent {
 public:
  void add(int x, int y) {
    left_ = std::min(left_, x);
    right_ = std::max(right_, x);
    top_ = std::min(top_, y);
    bottom_ = std::max(bottom_, y);
  }
  /// With `reach` pixels more on each side; empty if nothing was added.
  QRect grown(int reach) const {
    if (left_ > right_) return {};
    return QRect(QPoint(left_, top_), QPoint(right_, bottom_)).adjusted(-reach, -reach, reach, reach);
  }

 private:
  int left_ = std::numeric_limits<int>::max();
  int top_ = std::numeric_limits<int>::max();
  int right_ = std::numeric_limits<int>::min();
  int bottom_ = std::numeric_limits<int>::min();
};

}  // namespace

const MarkStamp& StampBox::get(const MarkStamp::Shape& shape) {
  const auto found = std::find_if(stamps_.begin(), stamps_.end(),
                                  [&](const MarkStamp& stamp) { return stamp.shape() == shape; });
  if (found != stamps_.end()) return *found;
  if (stamps_.size() == stampsKept) stamps_.pop_front();
  return stamps_.emplace_back(shape);
}

ImageSurface::ImageSurface(QImage& picture, const PictureMetrics& metrics, StampBox& stamps)
    : PainterSurface(metrics, Edges::crisp), picture_(picture), stamps_(stamps), pixels_(picture) {}

QPainter& ImageSurface::painter() {
  if (!painter_.isActive()) {
    painter_.begin(&picture_);
    painter_.resetTransform();  // in device pixels, whatever the picture's pixel ratio
  }
  return painter_;
}

void ImageSurface::touched(const QRectF& area) {
  changed_ |= area.toAlignedRect();
}

void ImageSurface::setWindow(const DataWindow& window) {
  PainterSurface::setWindow(window);
  marker_ = {};
}

void ImageSurface::polyline(std::span<const DataPoint> points, const Stroke& stroke) {
  constexpr double farthest = 1e6;
  if (points.size() < 2) return;
  const double width = widthOnPicture(stroke);
  const Mapping map = mapping();
  places_.clear();
  bool fit = stroke.style == LineStyle::solid && width <= LineBrush::widest;
  for (const DataPoint point : points) {
    places_.push_back(map.place(point));
    // Also false where a number is none.
    fit = fit && std::fabs(places_.back().x()) < farthest && std::fabs(places_.back().y()) < farthest;
  }
  if (!fit) {
    PainterSurface::polyline(points, stroke);
    return;
  }
  stamps_.brush().draw(pixels_, places_, width, qColour(stroke.colour).rgb());
  Extent extent;
  for (const QPointF place : places_) extent.add(static_cast<int>(place.x()), static_cast<int>(place.y()));
  changed_ |= extent.grown(static_cast<int>(LineBrush::widest));
}

const MarkStamp* ImageSurface::stampOf(const Marker& marker) {
  if (marker == marker_) return stamp_;
  marker_ = marker;
  stamp_ = nullptr;
  const double r = radiusOnPicture(marker.radius);
  const double half = marker.width * metrics().lineWidth / 2;
  if (!(r + half <= largestStamp)) return nullptr;
  const QRgb colour = qColour(marker.colour).rgb();
  const MarkStamp::Shape disc{std::max(0.5, inSteps(r)), 0, colour};
  const MarkStamp::Shape ring{std::max(0.5, inSteps(r + half)), inSteps(r - half), colour};
  stamp_ = &stamps_.get(marker.width > 0 ? ring : disc);
  return stamp_;
}

const MarkStamp* ImageSurface::stampOfCircle(double radius, const Stroke& stroke) {
  return stroke.style == LineStyle::solid ? stampOf({radius, stroke.width, stroke.colour}) : nullptr;
}

void ImageSurface::press(const MarkStamp& stamp, std::span<const DataPoint> centres) {
  releaseVectorRegisters();
  constexpr int margin = static_cast<int>(largestStamp) + 2;
  // Copies: to the compiler, a pixel that is written could be any member.
  const Mapping map = mapping();
  const Pixels pixels = pixels_;
  const double width = pixels.width + margin;
  const double height = pixels.height + margin;
  Extent extent;
  for (const DataPoint centre : centres) {
    const QPointF middle = map.place(centre);
    const bool seen =
        middle.x() > -margin && middle.y() > -margin && middle.x() < width && middle.y() < height;
    if (!seen) continue;
    // Rounded down: what is cut off here is positive.
    const int x = static_cast<int>(middle.x() + margin) - margin;
    const int y = static_cast<int>(middle.y() + margin) - margin;
    stamp.press(pixels, x, y);
    extent.add(x, y);
  }
  changed_ |= extent.grown(stamp.reach());
}

void ImageSurface::circle(DataPoint centre, double radius, const Stroke& stroke) {
  circles({&centre, 1}, radius, stroke);
}

void ImageSurface::circles(std::span<const DataPoint> centres, double radius, const Stroke& stroke) {
  if (!std::isfinite(radius)) return;
  if (const MarkStamp* stamp = stampOfCircle(radius, stroke)) {
    press(*stamp, centres);
  } else {
    for (const DataPoint centre : centres) PainterSurface::circle(centre, radius, stroke);
  }
}

void ImageSurface::disc(DataPoint centre, double radius, Farbe colour) {
  if (!std::isfinite(radius)) return;
  if (const MarkStamp* stamp = stampOf({radius, 0, colour})) {
    press(*stamp, {&centre, 1});
  } else {
    PainterSurface::disc(centre, radius, colour);
  }
}

}  // namespace korvin
