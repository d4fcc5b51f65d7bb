#include "reports/ui/page_painter.h"

#include <gtest/gtest.h>

#include <QImage>

#include "reports/ui/qt_drucker.h"

namespace korvin {
namespace {

class Painted : public ::testing::Test, public PageSink {
 protected:
  void page(PageMarks&& page) override { marks = std::move(page); }

  /// What `print` prints, in a picture with so many pixels in a millimetre.
  QImage picture(double pixelsPerMm, const std::function<void(Drucker&)>& print) {
    TextShaper shaper(0);
    QtDrucker drucker(shaper, *this);
    print(drucker);
    drucker.dokumentEnde();
    QImage image(int(210 * pixelsPerMm), int(297 * pixelsPerMm), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    PagePainter(painter, shaper, {0, 0, pixelsPerMm, pixelsPerMm}).paint(marks);
    return image;
  }
  /// Rows of pixels that are not white in column `x`, and how many of them are quite black.
  static std::pair<int, int> column(const QImage& image, int x) {
    std::pair<int, int> found{0, 0};
    for (int y = 0; y < image.height(); ++y) {
      found.first += image.pixelColor(x, y) != QColor(Qt::white);
      found.second += image.pixelColor(x, y) == QColor(Qt::black);
    }
    return found;
  }

  PageMarks marks;
};

TEST_F(Painted, AThinRuleIsOneBlackPixelAtAnyZoom) {
  for (const double zoom : {1.3, 2.0, 2.71, 3.77, 5.01}) {
    const QImage image = picture(zoom, [](Drucker& d) { d.linie(20, 20.3, 190, 20.3, 0); });
    EXPECT_EQ(column(image, int(100 * zoom)), (std::pair{1, 1})) << zoom;
  }
}

TEST_F(Painted, AThickRuleIsThreeTimesAsThick) {
  const QImage image = picture(10, [](Drucker& d) {
    d.setLinienBreite(3);
    d.linie(20, 20.3, 190, 20.3, 0);
  });
  EXPECT_EQ(column(image, 1000), (std::pair{3, 3}));
}

TEST_F(Painted, RulesBeginAndEndAtTheirPlaces) {
  const QImage image = picture(10, [](Drucker& d) { d.linie(20, 20, 190, 20, 0); });
  int black = 0;
  for (int x = 0; x < image.width(); ++x)
    black += image.pixelColor(x, 199) == QColor(Qt::black) || image.pixelColor(x, 200) == QColor(Qt::black);
  EXPECT_NEAR(black, 1700, 1);
}

TEST_F(Painted, EachTextHasItsColour) {
  const QImage image = picture(8, [](Drucker& d) {
    d.setSchrift("ARIAL");
    d.setSchriftGroesse(40);
    for (const Farbe colour : {0x000000, 0x0000FF, 0xFF0000, 0x000000}) {
      d.setX(20);
      d.setY(colour == 0x0000FF ? 60 : (colour == 0xFF0000 ? 100 : 20));
      d.setFarbe(colour);
      d.drucke("I");
    }
  });
  const auto has = [&image](double yMm, const QColor& colour) {
    for (int y = int(yMm * 8); y < int((yMm + 20) * 8); ++y)
      for (int x = 20 * 8; x < 30 * 8; ++x)
        if (image.pixelColor(x, y) == colour) return true;
    return false;
  };
  EXPECT_TRUE(has(20, Qt::black));
  EXPECT_TRUE(has(60, Qt::red));
  EXPECT_TRUE(has(100, Qt::blue));
  EXPECT_FALSE(has(60, Qt::black));
  EXPECT_FALSE(has(100, Qt::red));
}

TEST_F(Painted, FillsAndColoursAreAsAskedFor) {
  const QImage image = picture(4, [](Drucker& d) { d.flaeche(30, 40, 20, 10, 0x102030); });
  EXPECT_EQ(image.pixelColor(100, 100), QColor(0x30, 0x20, 0x10));
  EXPECT_EQ(image.pixelColor(79, 100), QColor(Qt::white));
  EXPECT_EQ(image.pixelColor(121, 100), QColor(Qt::white));
}

TEST_F(Painted, CirclesAreRoundInAStretchedScale) {
  const QImage image = picture(4, [](Drucker& d) {
    d.setSkala(0, 0, 21, 1460);
    d.kreis(10, 500, 1, FarbeRot);
  });
  // Centre at (100, 100) mm, radius 10 mm.
  for (const QPoint at : {QPoint(440, 400), QPoint(360, 400), QPoint(400, 440), QPoint(400, 360)}) {
    int best = 255;
    for (int dx = -1; dx <= 1; ++dx) {
      for (int dy = -1; dy <= 1; ++dy) best = std::min(best, image.pixelColor(at + QPoint(dx, dy)).green());
    }
    EXPECT_LT(best, 128) << at.x() << " " << at.y();
  }
  EXPECT_EQ(image.pixelColor(400, 400), QColor(Qt::white));
}

TEST_F(Painted, TextsLieWhereTheyAreMeasured) {
  double width = 0;
  const QImage image = picture(8, [&width](Drucker& d) {
    d.setSchrift("ARIAL");
    d.setSchriftGroesse(18);
    d.setX(50);
    d.setY(60);
    width = d.textBreite("HHHH");
    d.drucke("HHHH");
  });
  int left = image.width();
  int right = 0;
  int top = image.height();
  int bottom = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (qGray(image.pixel(x, y)) > 128) continue;
      left = std::min(left, x);
      right = std::max(right, x);
      top = std::min(top, y);
      bottom = std::max(bottom, y);
    }
  }
  // A capital H keeps 0.08 of the size free on both sides; it stands on the base line and is 0.72 high.
  const double size = 18 * 25.4 / 72;
  EXPECT_NEAR(left / 8.0, 50 + 0.08 * size, 0.25);
  EXPECT_NEAR(right / 8.0, 50 + width - 0.08 * size, 0.25);
  EXPECT_NEAR(bottom / 8.0, 60 + 0.905 * size, 0.25);
  EXPECT_NEAR(top / 8.0, 60 + (0.905 - 0.69) * size, 0.35);
}

}  // namespace
}  // namespace korvin
