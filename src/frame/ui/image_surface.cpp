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

MarkStamp& StampBox::get(const MarkStamp::Shape& shape) {
  if (last_ != nullptr && last_->shape() == shape) return *last_;
  const auto found = std::find_if(stamps_.begin(), stamps_.end(),
                                  [&](const MarkStamp& stamp) { return stamp.shape() == shape; });
  if (found != stamps_.end()) {
    last_ = &*found;
  } else {
    if (stamps_.size() == stampsKept) stamps_.pop_front();
    last_ = &stamps_.emplace_back(shape);
  }
  return *last_;
}

ImageSurface::ImageSurface(QImage& picture, const PictureMetrics& metrics, StampBox& stamps)
    : PainterSurface(metrics, Edges::crisp), picture_(picture), stamps_(stamps) {}

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

bool ImageSurface::press(DataPoint centre, const MarkStamp::Shape& shape) {
  if (!(shape.outer <= largestStamp)) return false;
  const QPointF middle = place(centre);
  const double margin = largestStamp + 1;
  const bool seen = middle.x() > -margin && middle.y() > -margin && middle.x() < picture_.width() + margin &&
                    middle.y() < picture_.height() + margin;
  if (seen) {
    changed_ |= stamps_.get(shape).press(picture_, static_cast<int>(std::floor(middle.x())),
                                         static_cast<int>(std::floor(middle.y())));
  }
  return true;
}

void ImageSurface::circle(DataPoint centre, double radius, const Stroke& stroke) {
  if (!std::isfinite(radius)) return;
  const double r = radiusOnPicture(radius);
  const double half = widthOnPicture(stroke) / 2;
  const bool stamped = stroke.style == LineStyle::solid &&
                       press(centre, {inSteps(r + half), inSteps(r - half), qColour(stroke.colour).rgb()});
  if (!stamped) PainterSurface::circle(centre, radius, stroke);
}

void ImageSurface::disc(DataPoint centre, double radius, Farbe colour) {
  if (!std::isfinite(radius)) return;
  const double r = std::max(0.5, inSteps(radiusOnPicture(radius)));
  if (!press(centre, {r, 0, qColour(colour).rgb()})) PainterSurface::disc(centre, radius, colour);
}

}  // namespace korvin
