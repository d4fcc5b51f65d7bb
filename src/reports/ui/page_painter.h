#pragma once

#include <QPainter>

#include "reports/ui/page_marks.h"
#include "reports/ui/text_shaper.h"

namespace korvin {

/// Thickness in mm of a line of width 1.
inline constexpr double thinnestLineMm = 0.1;

/// Where the paper lies on a painter: pixels of its top left corner, pixels in a millimetre.
struct PaperPlace {
  double left = 0;
  double top = 0;
  double pixelsPerMmX = 1;
  double pixelsPerMmY = 1;
};

/// Paints the marks of pages. On a picture made of pixels, upright and level lines fall on whole pixels, so
/// that they stay crisp at any zoom; everywhere else all places are exact.
class PagePainter {
 public:
  /// All outlive it. The painter's transformation is this class's until it is gone.
  PagePainter(QPainter& painter, TextShaper& shaper, const PaperPlace& place);

  void paint(const PageMarks& page);

 private:
  void paintText(const PageMarks& page, const PageMark& mark);
  void paintLine(const PageMark& mark);
  void paintCircle(const PageMark& mark);
  void paintFill(const PageMark& mark);
  void setPen(const PageMark& mark, Qt::PenCapStyle cap);
  void fillPixels(double left, double top, double right, double bottom, Farbe colour);

  QPainter& painter_;
  TextShaper& shaper_;
  QTransform layout_;  ///< layout units to the painter's pixels
  bool pixels_;
  /// What the pen was set to last: setting it costs more than most marks.
  double penWidth_ = -1;
  Farbe penColour_ = 0;
  Qt::PenCapStyle penCap_ = Qt::FlatCap;
};

}  // namespace korvin
