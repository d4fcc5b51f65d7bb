#include "frame/ui/image_surface.h"

#include <algorithm>
#include <cmath>

#include "frame/ui/qt_colour.h"

namespace korvin {
namespace {

/// Larger marks are few; they are drawn where they belong to the fraction of a pixel.
constexpr double largestStamp = 24;
constexpr std::size_t stampsKept = 16;

/// Sizes in sixteenths of a pixel: what differs by less looks the same.
double inSteps(double pixels) {
  return std::round(pixels * 16) / 16;
}

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

void ImageSurface::press(const MarkStamp& stamp, DataPoint centre) {
  const QPointF middle = place(centre);
  constexpr int margin = static_cast<int>(largestStamp) + 2;
  const bool seen = middle.x() > -margin && middle.y() > -margin && middle.x() < pixels_.width + margin &&
                    middle.y() < pixels_.height + margin;
  if (!seen) return;
  // Rounded down: what is cut off here is positive.
  const int x = static_cast<int>(middle.x() + margin) - margin;
  const int y = static_cast<int>(middle.y() + margin) - margin;
  stamp.press(pixels_, x, y);
  const int reach = stamp.reach();
  if (pressed_.isNull()) pressed_ = QRect(x, y, 1, 1);
  pressed_.setCoords(std::min(pressed_.left(), x - reach), std::min(pressed_.top(), y - reach),
                     std::max(pressed_.right(), x + reach), std::max(pressed_.bottom(), y + reach));
}

void ImageSurface::circle(DataPoint centre, double radius, const Stroke& stroke) {
  if (!std::isfinite(radius)) return;
  const MarkStamp* stamp =
      stroke.style == LineStyle::solid ? stampOf({radius, stroke.width, stroke.colour}) : nullptr;
  if (stamp != nullptr) {
    press(*stamp, centre);
  } else {
    PainterSurface::circle(centre, radius, stroke);
  }
}

void ImageSurface::disc(DataPoint centre, double radius, Farbe colour) {
  if (!std::isfinite(radius)) return;
  if (const MarkStamp* stamp = stampOf({radius, 0, colour})) {
    press(*stamp, centre);
  } else {
    PainterSurface::disc(centre, radius, colour);
  }
}

}  // namespace korvin
