#pragma once

#include <QImage>
#include <QRect>
#include <deque>
#include <span>
#include <vector>

#include "frame/ui/line_brush.h"
#include "frame/ui/mark_stamp.h"
#include "frame/ui/painter_surface.h"

namespace korvin {

/// What pixels are drawn with, kept from drawing to drawing: the stamps in use, and the brush.
class StampBox {
 public:
  const MarkStamp& get(const MarkStamp::Shape& shape);
  LineBrush& brush() { return brush_; }

 private:
  LineBrush brush_;
  std::deque<MarkStamp> stamps_;
};

/// Draws a diagram into a picture of pixels: lines crisp, thin curves with a brush of its own, small circles
/// and discs by ready stamps at whole pixels, so that ten thousands of points take a moment.
///
/// The picture is opaque with 32 bits a pixel (`QImage::Format_RGB32`); `StampBox` and picture have to
/// outlive the surface, and nothing else may paint on the picture meanwhile.
class ImageSurface : public PainterSurface {
 public:
  ImageSurface(QImage& picture, const PictureMetrics& metrics, StampBox& stamps);

  void setWindow(const DataWindow& window) override;
  void polyline(std::span<const DataPoint> points, const Stroke& stroke) override;
  void circle(DataPoint centre, double radius, const Stroke& stroke) override;
  void circles(std::span<const DataPoint> centres, double radius, const Stroke& stroke) override;
  void disc(DataPoint centre, double radius, Farbe colour) override;

  /// All pixels that were drawn on; empty if there are none.
  QRect changed() const { return changed_ & picture_.rect(); }

 protected:
  QPainter& painter() override;
  void touched(const QRectF& area) override;

 private:
  /// The stamp of the last circle or disc, for the next one that looks the same.
  struct Marker {
    double radius = -1;
    double width = 0;  ///< of the line; 0 for a disc
    Farbe colour = 0;
    friend bool operator==(const Marker&, const Marker&) = default;
  };

  /// Null for a marker that is too large to be stamped.
  const MarkStamp* stampOf(const Marker& marker);
  /// Null for a circle that the painter has to draw.
  const MarkStamp* stampOfCircle(double radius, const Stroke& stroke);
  void press(const MarkStamp& stamp, std::span<const DataPoint> centres);

  QImage& picture_;
  StampBox& stamps_;
  QPainter painter_;  ///< begun with the first thing that needs it
  Pixels pixels_;
  QRect changed_;
  Marker marker_;
  const MarkStamp* stamp_ = nullptr;
  std::vector<QPointF> places_;
};

}  // namespace korvin
