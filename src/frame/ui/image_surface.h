#pragma once

#include <QImage>
#include <QRect>
#include <deque>

#include "frame/ui/mark_stamp.h"
#include "frame/ui/painter_surface.h"

namespace korvin {

/// The stamps in use, kept from drawing to drawing.
class StampBox {
 public:
  MarkStamp& get(const MarkStamp::Shape& shape);

 private:
  std::deque<MarkStamp> stamps_;
  MarkStamp* last_ = nullptr;
};

/// Draws a diagram into a picture of pixels: lines crisp, small circles and discs by ready stamps at whole
/// pixels, so that ten thousands of points take a moment.
///
/// The picture is opaque with 32 bits a pixel (`QImage::Format_RGB32`); `StampBox` and picture have to
/// outlive the surface, and nothing else may paint on the picture meanwhile.
class ImageSurface : public PainterSurface {
 public:
  ImageSurface(QImage& picture, const PictureMetrics& metrics, StampBox& stamps);

  void circle(DataPoint centre, double radius, const Stroke& stroke) override;
  void disc(DataPoint centre, double radius, Farbe colour) override;

  /// All pixels that were drawn on; empty if there are none.
  QRect changed() const { return changed_ & picture_.rect(); }

 protected:
  QPainter& painter() override;
  void touched(const QRectF& area) override;

 private:
  bool press(DataPoint centre, const MarkStamp::Shape& shape);

  QImage& picture_;
  StampBox& stamps_;
  QPainter painter_;  ///< begun with the first thing that needs it
  QRect changed_;
};

}  // namespace korvin
