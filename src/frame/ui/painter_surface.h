#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QRectF>
#include <QSizeF>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "frame/drawing_surface.h"

namespace korvin {

/// How large things are on a picture. All in units of its painter: device pixels of an image, units of an
/// SVG.
struct PictureMetrics {
  QSizeF size;             ///< of the whole picture
  double lineWidth = 1;    ///< of the thinnest line
  double textPixels = 12;  ///< text of the size 1
};

/// The metrics that fit a picture of `size` pixels on a screen with `pixelRatio`: lines of whole pixels, and
/// a text that grows with the picture, but never gets too small to be read.
PictureMetrics pictureMetrics(const QSizeF& size, double pixelRatio);

/// Draws a diagram with a QPainter. A port's implementation: see `DrawingSurface`.
///
/// `Edges::crisp` lays lines along the axes and edges of rectangles on whole units, so that they neither blur
/// nor differ in width; for pictures of pixels. `Edges::exact` leaves all where it is; for SVG and paper.
class PainterSurface : public DrawingSurface {
 public:
  enum class Edges { crisp, exact };

  /// The painter's origin is the picture's top left corner. It has to outlive the surface.
  PainterSurface(QPainter& painter, const PictureMetrics& metrics, Edges edges);

  void setWindow(const DataWindow& window) override;
  const DataWindow& window() const { return mapping_.window; }

  void clear(Farbe ground) override;
  void line(DataPoint from, DataPoint to, const Stroke& stroke) override;
  void polyline(std::span<const DataPoint> points, const Stroke& stroke) override;
  void circle(DataPoint centre, double radius, const Stroke& stroke) override;
  void disc(DataPoint centre, double radius, Farbe colour) override;
  void fill(DataPoint corner, DataPoint opposite, Farbe colour) override;
  void text(DataPoint at, std::string_view utf8, const TextLook& look, Anchor anchor) override;
  DataSize textSize(std::string_view utf8, const TextLook& look) override;
  DataSize lineWidth() override;

  /// Where a data point lies, in units of the painter.
  QPointF place(DataPoint point) const { return mapping_.place(point); }

 protected:
  /// From data coordinates to units of the painter.
  struct Mapping {
    QPointF place(DataPoint point) const {
      return {(point.x - window.left) * scaleX, (point.y - window.top) * scaleY};
    }
    DataWindow window;
    double scaleX = 1;
    double scaleY = 1;
  };

  /// For a surface that makes its painter when one is needed first; see `painter()`.
  PainterSurface(const PictureMetrics& metrics, Edges edges) : metrics_(metrics), edges_(edges) {}

  virtual QPainter& painter() { return *painter_; }
  /// Something was drawn within `area`.
  virtual void touched(const QRectF& area) { static_cast<void>(area); }

  const Mapping& mapping() const { return mapping_; }
  double radiusOnPicture(double radius) const;
  double widthOnPicture(const Stroke& stroke) const { return stroke.width * metrics_.lineWidth; }
  const PictureMetrics& metrics() const { return metrics_; }

 private:
  bool alongAxis(QPointF from, QPointF to, const Stroke& stroke) const;
  void crispLine(QPointF from, QPointF to, const Stroke& stroke);
  struct Letters {
    int pixels = 0;
    bool bold = false;
    QFont font;
    QFontMetricsF metrics;
    std::map<std::string, double, std::less<>> widths{};
    /// Measured once: labels are measured several times before they have their place.
    double width(std::string_view utf8);
  };
  /// Font and its measures, kept for the next text that looks the same.
  Letters& letters(const TextLook& look);

  QPainter* painter_ = nullptr;
  PictureMetrics metrics_;
  Edges edges_;
  Mapping mapping_;
  std::optional<Letters> letters_;
};

}  // namespace korvin
