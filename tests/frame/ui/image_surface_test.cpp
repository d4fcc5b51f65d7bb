// Drawing into pictures of pixels: crisp lines, stamps, texts.
#include <gtest/gtest.h>

#include <QImage>
#include <cmath>
#include <limits>
#include <set>
#include <utility>
#include <vector>

#include "frame/ui/image_surface.h"

namespace korvin {
namespace {

constexpr QRgb white = 0xffffffff;
constexpr QRgb black = 0xff000000;
constexpr Farbe blue = 0xC06010;  // 0xBBGGRR
constexpr QRgb blueRgb = 0xff1060c0;

class Picture {
 public:
  explicit Picture(QSize size = {100, 80}, double pixelRatio = 1) : image(size, QImage::Format_RGB32) {
    image.fill(Qt::white);
    surface.emplace(image, pictureMetrics(size, pixelRatio), stamps);
    // One data unit is one pixel; y upward.
    surface->setWindow({0, double(size.height()), double(size.width()), 0});
  }
  int count(QRgb colour) const {
    int found = 0;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) found += image.pixel(x, y) == colour ? 1 : 0;
    }
    return found;
  }
  bool blank() const { return count(white) == image.width() * image.height(); }

  QImage image;
  StampBox stamps;
  std::optional<ImageSurface> surface;
};

// ---- Lines ----

TEST(ImageSurfaceLines, AlongTheAxesAreOnePixelOfTheFullColourAtAnyFraction) {
  for (const double fraction : {0.0, 0.2, 0.49, 0.5, 0.51, 0.99}) {
    Picture p;
    p.surface->line({10, 20 + fraction}, {90, 20 + fraction}, {blue});
    p.surface->line({30 + fraction, 5}, {30 + fraction, 15}, {blue});
    EXPECT_EQ(p.count(blueRgb) + p.count(white), 100 * 80) << "no third colour at " << fraction;
    EXPECT_EQ(p.count(blueRgb), 81 + 11) << fraction;
  }
}

TEST(ImageSurfaceLines, AreWiderOnADenseScreenAndStillCrisp) {
  Picture p({200, 160}, 2);
  p.surface->line({20, 40.3}, {180, 40.3}, {0});
  EXPECT_EQ(p.count(black), 162 * 2);
  EXPECT_EQ(p.count(black) + p.count(white), 200 * 160);
}

TEST(ImageSurfaceLines, MeetInClosedCorners) {
  Picture p;
  const DataPoint corners[] = {{10.4, 10.6}, {60.7, 10.6}, {60.7, 50.2}, {10.4, 50.2}};
  for (int i = 0; i < 4; ++i) p.surface->line(corners[i], corners[(i + 1) % 4], {0});
  // The outline of a rectangle has as many pixels in each of its four outermost rows as it is long.
  int left = 100, right = -1, top = 80, bottom = -1;
  for (int y = 0; y < 80; ++y) {
    for (int x = 0; x < 100; ++x) {
      if (p.image.pixel(x, y) != black) continue;
      left = std::min(left, x), right = std::max(right, x);
      top = std::min(top, y), bottom = std::max(bottom, y);
    }
  }
  EXPECT_EQ(p.image.pixel(left, top), black);
  EXPECT_EQ(p.image.pixel(right, top), black);
  EXPECT_EQ(p.image.pixel(left, bottom), black);
  EXPECT_EQ(p.image.pixel(right, bottom), black);
  EXPECT_EQ(p.count(black), 2 * (right - left + 1) + 2 * (bottom - top - 1));
}

TEST(ImageSurfaceLines, FromFarOutsideAreCutAtTheEdge) {
  Picture p;
  p.surface->line({-1e300, 40}, {1e300, 40}, {0});
  EXPECT_EQ(p.count(black), 100);
  p.surface->line({-1e9, -1e9}, {1e9, 1e9}, {blue});
  EXPECT_NE(p.image.pixel(40, 79 - 40), white) << "the diagonal goes through the picture";
}

TEST(ImageSurfaceLines, BesideThePictureDrawNothing) {
  Picture p;
  p.surface->line({1e6, 0}, {1e9, 80}, {0});
  p.surface->line({-5, -5}, {-5, 100}, {0});
  EXPECT_TRUE(p.blank());
}

TEST(ImageSurfaceLines, OfValuesThatAreNotFiniteDrawNothing) {
  constexpr double nan = std::numeric_limits<double>::quiet_NaN();
  constexpr double infinite = std::numeric_limits<double>::infinity();
  Picture p;
  for (const double bad : {nan, infinite, -infinite}) {
    p.surface->line({bad, 0}, {10, 10}, {0});
    p.surface->circle({bad, 10}, 3, {0});
    p.surface->circle({10, 10}, bad, {0});
    p.surface->disc({10, bad}, 3, 0);
    p.surface->disc({10, 10}, bad, 0);
    p.surface->fill({0, bad}, {10, 10}, 0);
    p.surface->text({bad, 10}, "a", {}, {});
    const DataPoint points[] = {{0, 0}, {bad, 5}, {10, 10}};
    p.surface->polyline(points, {0});
  }
  EXPECT_TRUE(p.blank());
}

TEST(ImageSurfaceLines, DashesLeaveGaps) {
  Picture p;
  p.surface->line({0, 40}, {100, 40}, {0, 1, LineStyle::dashed});
  int gaps = 0;
  for (int x = 1; x < 100; ++x) gaps += p.image.pixel(x, 39) == white && p.image.pixel(x, 40) == white;
  EXPECT_GT(gaps, 10);
  EXPECT_FALSE(p.blank());
}

TEST(ImageSurfaceLines, APolylineGoesThroughAllPointsAlsoFarOnes) {
  Picture p;
  const DataPoint points[] = {{10, 10}, {50, 70}, {1e8, 70}};
  p.surface->polyline(points, {0, 3});
  EXPECT_NE(p.image.pixel(30, 80 - 40), white);
  EXPECT_EQ(p.image.pixel(90, 80 - 70), black);
  Picture alone;
  alone.surface->polyline(std::span(points, 1), {0, 3});
  EXPECT_TRUE(alone.blank());
}

// ---- Areas ----

TEST(ImageSurfaceAreas, AreFilledToWholePixels) {
  Picture p;
  p.surface->fill({10.4, 20.4}, {30.4, 5.4}, blue);
  EXPECT_EQ(p.count(blueRgb), 20 * 15);
  EXPECT_EQ(p.count(white), 100 * 80 - 20 * 15);
  p.surface->fill({-1e12, -1e12}, {1e12, 1e12}, 0);
  EXPECT_EQ(p.count(black), 100 * 80);
}

TEST(ImageSurfaceAreas, ClearFillsAll) {
  Picture p;
  p.surface->clear(blue);
  EXPECT_EQ(p.count(blueRgb), 100 * 80);
  EXPECT_EQ(p.surface->changed(), p.image.rect());
}

// ---- Stamps ----

/// The picture around the pixel (x, y).
QImage cut(const QImage& image, int x, int y) {
  return image.copy(x - 8, y - 8, 17, 17);
}

TEST(ImageSurfaceStamps, LookTheSameAtAnyFractionOfAPixel) {
  Picture p({400, 80});
  for (int i = 0; i < 10; ++i) p.surface->disc({20.0 + 30 * i + i * 0.1, 40.05 + i * 0.09}, 3.3, blue);
  const QImage first = cut(p.image, 20, 39);
  EXPECT_EQ(first.pixel(8, 8), blueRgb);
  for (int i = 1; i < 10; ++i) EXPECT_EQ(cut(p.image, 20 + 30 * i, 39), first) << i;
}

TEST(ImageSurfaceStamps, AreRoundAndSmooth) {
  Picture p;
  p.surface->disc({50.5, 40.5}, 5, 0);
  double ink = 0;
  for (int y = 0; y < 80; ++y) {
    for (int x = 0; x < 100; ++x) ink += (255 - qRed(p.image.pixel(x, y))) / 255.0;
  }
  EXPECT_NEAR(ink, M_PI * 25, 1);
  const QImage mark = cut(p.image, 50, 39);
  EXPECT_EQ(mark, mark.mirrored(true, false));
  EXPECT_EQ(mark, mark.mirrored(false, true));
  EXPECT_EQ(mark, mark.transformed(QTransform().rotate(90)));
  EXPECT_GT(p.count(white) + p.count(black), 0);
  EXPECT_LT(p.count(white) + p.count(black), 100 * 80) << "an edge in between";
}

TEST(ImageSurfaceStamps, OfACircleAreOpenInTheMiddle) {
  Picture p;
  p.surface->circle({50.5, 40.5}, 6, {0, 1});
  EXPECT_EQ(p.image.pixel(50, 39), white);
  EXPECT_LT(qRed(p.image.pixel(56, 39)), 60);
  EXPECT_LT(qRed(p.image.pixel(50, 33)), 60);
  EXPECT_EQ(p.image.pixel(58, 39), white);
}

TEST(ImageSurfaceStamps, AreAsLargeAsADrawnCircle) {
  // Just beyond the size that is stamped the painter draws: no jump between the two.
  Picture stamped({200, 200});
  Picture drawn({200, 200});
  stamped.surface->disc({100.5, 100.5}, 23.9, 0);
  drawn.surface->disc({100.5, 100.5}, 24.4, 0);
  EXPECT_NEAR(stamped.count(black), M_PI * 23.4 * 23.4, 40);
  EXPECT_NEAR(drawn.count(black), M_PI * 23.9 * 23.9, 40);
}

TEST(ImageSurfaceStamps, AtTheEdgeAreCut) {
  Picture p;
  for (const DataPoint corner : {DataPoint{0, 0}, {100, 0}, {0, 80}, {100, 80}, {50, 0}, {0, 40}}) {
    p.surface->disc(corner, 4, 0);
    p.surface->circle(corner, 4, {0});
  }
  EXPECT_EQ(p.image.pixel(0, 79), black);
  EXPECT_EQ(p.image.pixel(0, 0), black);
  EXPECT_EQ(p.image.pixel(50, 79), black);
  EXPECT_TRUE(p.image.rect().contains(p.surface->changed()));
}

TEST(ImageSurfaceStamps, FarOutsideDrawNothing) {
  Picture p;
  for (const double far : {-1e300, -200.0, 400.0, 1e18, 1e300}) {
    p.surface->disc({far, 40}, 4, 0);
    p.surface->circle({50, far}, 4, {0});
  }
  EXPECT_TRUE(p.blank());
}

TEST(ImageSurfaceStamps, OfManyKindsKeepTheirColours) {
  Picture p({800, 80});
  for (int i = 0; i < 40; ++i) p.surface->disc({10.5 + 19 * i, 40.5}, 2 + i % 3, 0x010000 * (5 * i));
  for (int i = 0; i < 40; ++i) EXPECT_EQ(p.image.pixel(10 + 19 * i, 39), qRgb(0, 0, 5 * i)) << i;
}

TEST(ImageSurfaceStamps, TooSmallAMarkIsStillSeen) {
  Picture p;
  p.surface->disc({50.5, 40.5}, 0.01, 0);
  EXPECT_LT(qRed(p.image.pixel(50, 39)), 128);
}

TEST(ImageSurfaceStamps, OfManyCirclesAtOnceAreThoseOfSingleOnes) {
  constexpr double nan = std::numeric_limits<double>::quiet_NaN();
  std::vector<DataPoint> centres = {{nan, 40}, {1e300, 40}, {-30, 5}, {0, 0}, {100, 80}};
  for (int i = 0; i < 300; ++i) centres.push_back({50 + 55 * std::sin(i), 40 + 45 * std::cos(i * 1.7)});
  // Stamps, circles too large for one, and dashed ones.
  for (const auto& [radius, style] :
       {std::pair{2.0, LineStyle::solid}, {40.0, LineStyle::solid}, {2.0, LineStyle::dashed}}) {
    Picture one;
    Picture all;
    for (const DataPoint centre : centres) one.surface->circle(centre, radius, {blue, 1, style});
    all.surface->circles(centres, radius, {blue, 1, style});
    EXPECT_FALSE(one.blank());
    EXPECT_EQ(all.image, one.image);
    EXPECT_EQ(all.surface->changed(), one.surface->changed());
  }
}

TEST(ImageSurfaceStamps, OfNoCirclesAreNone) {
  Picture p;
  p.surface->circles({}, 2, {blue});
  EXPECT_TRUE(p.blank());
  EXPECT_TRUE(p.surface->changed().isEmpty());
}

// ---- What has changed ----

TEST(ImageSurfaceChanged, CoversAllThatWasDrawnAndLittleMore) {
  Picture p;
  EXPECT_TRUE(p.surface->changed().isEmpty());
  p.surface->disc({30.5, 40.5}, 3, 0);
  EXPECT_TRUE(QRect(26, 35, 9, 9).contains(p.surface->changed()));
  p.surface->line({60, 10}, {70, 20}, {0});
  p.surface->text({40, 60}, "Xg", {}, {});
  const QRect changed = p.surface->changed();
  for (int y = 0; y < 80; ++y) {
    for (int x = 0; x < 100; ++x) {
      if (!changed.contains(x, y)) {
        EXPECT_EQ(p.image.pixel(x, y), white) << x << ", " << y;
      }
    }
  }
}

// ---- Texts ----

QRect inkOf(const QImage& image) {
  QRect ink;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (image.pixel(x, y) != white) ink |= QRect(x, y, 1, 1);
    }
  }
  return ink;
}

TEST(ImageSurfaceTexts, StandAtTheirAnchor) {
  const auto ink = [](HorizontalAnchor across, VerticalAnchor down) {
    Picture p;
    p.surface->text({50, 40}, "000", {}, {across, down});
    return inkOf(p.image);
  };
  EXPECT_GE(ink(HorizontalAnchor::left, VerticalAnchor::top).left(), 50);
  EXPECT_GE(ink(HorizontalAnchor::left, VerticalAnchor::top).top(), 40);
  EXPECT_LE(ink(HorizontalAnchor::right, VerticalAnchor::bottom).right(), 50);
  EXPECT_LE(ink(HorizontalAnchor::right, VerticalAnchor::bottom).bottom(), 40);
  const QRect middle = ink(HorizontalAnchor::centre, VerticalAnchor::middle);
  EXPECT_NEAR(QRectF(middle).center().x(), 50, 1);
  EXPECT_NEAR(QRectF(middle).center().y(), 40, 1.6);
}

TEST(ImageSurfaceTexts, GrowWithThePictureAndStayLegible) {
  const double small = pictureMetrics({200, 150}, 1).textPixels;
  EXPECT_GE(small, 9);
  EXPECT_GT(pictureMetrics({1600, 1500}, 1).textPixels, 2 * small);
  EXPECT_GE(pictureMetrics({400, 300}, 2).textPixels, 2 * small);
}

TEST(ImageSurfaceTexts, HaveTheSizeThatIsTold) {
  Picture p;
  const DataSize told = p.surface->textSize("+0.002", {});
  p.surface->text({20, 60}, "+0.002", {}, {});
  const QRect ink = inkOf(p.image);
  EXPECT_NEAR(ink.width(), told.width, 3);
  EXPECT_LT(ink.height(), told.height);
  EXPECT_EQ(p.surface->textSize("+0.002", {}).width, told.width) << "measured before";
  EXPECT_LT(p.surface->textSize("+0.0", {}).width, told.width) << "another text of the same look";
  const DataSize larger = p.surface->textSize("+0.002", {0, 2, true});
  EXPECT_GT(larger.width, 1.8 * told.width);
  EXPECT_GT(larger.height, 1.8 * told.height);
}

TEST(ImageSurfaceTexts, HaveNoColouredEdges) {
  Picture p;
  p.surface->text({10, 60}, "MWg%", {}, {});
  for (int y = 0; y < 80; ++y) {
    for (int x = 0; x < 100; ++x) {
      const QRgb c = p.image.pixel(x, y);
      EXPECT_TRUE(qRed(c) == qGreen(c) && qGreen(c) == qBlue(c));
    }
  }
}

TEST(ImageSurface, TellsTheWidthOfALineInDataUnits) {
  Picture p({200, 100});
  p.surface->setWindow({-1, 4, 1, -4});
  EXPECT_DOUBLE_EQ(p.surface->lineWidth().width, 2.0 / 200);
  EXPECT_DOUBLE_EQ(p.surface->lineWidth().height, 8.0 / 100);
}

}  // namespace
}  // namespace korvin
