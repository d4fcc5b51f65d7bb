#include "reports/page_surface.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>

#include "support/recording_drucker.h"

namespace korvin {
namespace {

using test::DruckMarke;
using test::RecordingDrucker;

constexpr double mmJePunkt = 25.4 / 72;

/// A square of 100 mm at (50, 60); 1 data unit is 10 mm, y runs upward.
class PageSurfaceTest : public ::testing::Test {
 protected:
  PageSurfaceTest() { surface.setWindow({-5, 5, 5, -5}); }
  const DruckMarke& only() {
    EXPECT_EQ(paper.alle.size(), 1U);
    return paper.alle.at(0);
  }
  void expectLine(const DruckMarke& line, double x1, double y1, double x2, double y2) {
    EXPECT_NEAR(line.x, x1, 1e-9);
    EXPECT_NEAR(line.y, y1, 1e-9);
    EXPECT_NEAR(line.x2, x2, 1e-9);
    EXPECT_NEAR(line.y2, y2, 1e-9);
  }

  RecordingDrucker paper;
  PageSurface surface{paper, {50, 60, 100, 100}, 8};
};

TEST_F(PageSurfaceTest, LinesFallOnTheRectangle) {
  surface.line({-5, 5}, {5, -5}, {0x112233, 2});
  expectLine(only(), 50, 60, 150, 160);
  EXPECT_EQ(only().farbe, 0x112233);
  EXPECT_EQ(only().breite, 2);
}

TEST_F(PageSurfaceTest, EachLineHasItsWidth) {
  surface.line({0, 0}, {1, 0}, {0, 3});
  surface.line({0, 0}, {1, 0}, {0, 1});
  surface.line({0, 0}, {1, 0}, {0, 1});
  EXPECT_EQ(paper.alle.at(0).breite, 3);
  EXPECT_EQ(paper.alle.at(1).breite, 1);
  EXPECT_EQ(paper.alle.at(2).breite, 1);
}

TEST_F(PageSurfaceTest, LinesAreCutAtTheEdge) {
  surface.line({-10, 0}, {10, 0}, {});
  surface.line({0, -10}, {0, 20}, {});
  surface.line({4, 4}, {8, 8}, {});
  expectLine(paper.alle.at(0), 50, 110, 150, 110);
  expectLine(paper.alle.at(1), 100, 160, 100, 60);
  expectLine(paper.alle.at(2), 140, 70, 150, 60);
  surface.line({6, 0}, {9, 0}, {});
  surface.line({-9, 4}, {-4, 9}, {});
  EXPECT_EQ(paper.alle.size(), 3U) << "what lies outside makes no mark";
}

TEST_F(PageSurfaceTest, PolylineGoesThroughItsPoints) {
  const std::array<DataPoint, 3> points{DataPoint{0, 0}, DataPoint{1, 1}, DataPoint{2, 0}};
  surface.polyline(points, {});
  ASSERT_EQ(paper.alle.size(), 2U);
  expectLine(paper.alle[0], 100, 110, 110, 100);
  expectLine(paper.alle[1], 110, 100, 120, 110);
  surface.polyline(std::span(points).first(1), {});
  EXPECT_EQ(paper.alle.size(), 2U);
}

TEST_F(PageSurfaceTest, WhatIsNotFiniteDrawsNothing) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const double inf = std::numeric_limits<double>::infinity();
  surface.line({nan, 0}, {1, 0}, {});
  surface.line({0, 0}, {inf, 0}, {});
  surface.circle({nan, 0}, 1, {});
  surface.circle({0, 0}, nan, {});
  surface.disc({0, inf}, 1, 0);
  surface.fill({0, 0}, {nan, 1}, 0);
  surface.fill({0, nan}, {1, 1}, 0);
  surface.text({0, nan}, "a", {}, {});
  EXPECT_TRUE(paper.alle.empty());
}

TEST_F(PageSurfaceTest, DashesAndDotsAreMeasuredOnPaper) {
  surface.line({-5, 0}, {5, 0}, {0, 1, LineStyle::dashed});
  ASSERT_EQ(paper.alle.size(), 34U);
  expectLine(paper.alle[0], 50, 110, 52, 110);
  expectLine(paper.alle[1], 53, 110, 55, 110);
  expectLine(paper.alle[33], 149, 110, 150, 110);
  paper.alle.clear();
  surface.line({0, 5}, {0, -5}, {0, 1, LineStyle::dotted});
  EXPECT_EQ(paper.alle.size(), 100U);
  expectLine(paper.alle[0], 100, 60, 100, 60.3);
}

TEST_F(PageSurfaceTest, ThePatternGoesOnRoundCorners) {
  // Ten lines of half a millimetre: the first four lie in the first dash, then comes the gap.
  std::array<DataPoint, 11> points;
  for (std::size_t i = 0; i < points.size(); ++i) points.at(i) = {0.05 * static_cast<double>(i), 0};
  surface.polyline(points, {0, 1, LineStyle::dashed});
  double drawn = 0;
  for (const DruckMarke& line : paper.alle) drawn += line.x2 - line.x;
  EXPECT_NEAR(drawn, 4, 1e-6);
}

TEST_F(PageSurfaceTest, ALineFromFarAwayIsDashedInsideOnly) {
  surface.line({-1e9, 0}, {1e9, 0}, {0, 1, LineStyle::dashed});
  EXPECT_EQ(paper.alle.size(), 34U);
}

TEST_F(PageSurfaceTest, CirclesAreMeasuredAlongX) {
  surface.circle({1, 2}, 0.5, {0x0000FF, 2});
  EXPECT_EQ(only().art, DruckMarke::Art::kreis);
  EXPECT_NEAR(only().x, 110, 1e-9);
  EXPECT_NEAR(only().y, 90, 1e-9);
  EXPECT_NEAR(only().radius, 5, 1e-9);
  EXPECT_EQ(only().farbe, 0x0000FF);
  EXPECT_EQ(only().breite, 2);
}

TEST_F(PageSurfaceTest, ACircleIsRoundUnderUnequalScales) {
  surface.setWindow({-5, 0.05, 5, -0.05});
  surface.circle({5, 0}, 1, {});
  ASSERT_FALSE(paper.alle.empty());
  for (const DruckMarke& line : paper.alle) {
    EXPECT_NEAR(std::hypot(line.x - 150, line.y - 110), 10, 0.02);
    EXPECT_LE(line.x, 150.0001) << "the half beyond the edge is cut off";
    EXPECT_LE(line.x2, 150.0001);
  }
  EXPECT_EQ(paper.alle.size(), 36U);
}

TEST_F(PageSurfaceTest, ACircleIsCutAtEachEdge) {
  for (const DataPoint centre :
       {DataPoint{-4.5, 0}, DataPoint{4.5, 0}, DataPoint{0, -4.5}, DataPoint{0, 4.5}}) {
    paper.alle.clear();
    surface.circle(centre, 1, {});
    EXPECT_GT(paper.alle.size(), 20U);
    for (const DruckMarke& mark : paper.alle) {
      EXPECT_EQ(mark.art, DruckMarke::Art::linie);
      EXPECT_TRUE(mark.x > 49.999 && mark.x < 150.001 && mark.y > 59.999 && mark.y < 160.001);
    }
  }
}

TEST_F(PageSurfaceTest, ACircleOutsideMakesNoMark) {
  surface.circle({7, 0}, 1, {});
  EXPECT_TRUE(paper.alle.empty());
}

TEST_F(PageSurfaceTest, DiscsAreFilledRound) {
  surface.disc({1, 2}, 0.2, 0x00FF00);
  double area = 0;
  for (const DruckMarke& mark : paper.alle) {
    EXPECT_EQ(mark.farbe, 0x00FF00);
    ASSERT_EQ(mark.art, DruckMarke::Art::flaeche);
    area += std::fabs((mark.x2 - mark.x) * (mark.y2 - mark.y));
    EXPECT_LE(std::hypot(mark.x - 110, (mark.y + mark.y2) / 2 - 90), 2.001);
  }
  EXPECT_NEAR(area, std::acos(-1.0) * 4, 0.02);
  EXPECT_EQ(paper.alle.size(), 80U) << "strips of a twentieth of a millimetre";
  surface.disc({0, 0}, 0, 0);
  EXPECT_EQ(paper.alle.size(), 80U);
}

TEST_F(PageSurfaceTest, FilledRectanglesAreCutAtTheEdge) {
  surface.fill({4, -4}, {9, 9}, 0x808080);
  EXPECT_EQ(only().art, DruckMarke::Art::flaeche);
  EXPECT_NEAR(std::min(only().x, only().x2), 140, 1e-9);
  EXPECT_NEAR(std::max(only().x, only().x2), 150, 1e-9);
  EXPECT_NEAR(std::min(only().y, only().y2), 60, 1e-9);
  EXPECT_NEAR(std::max(only().y, only().y2), 150, 1e-9);
  surface.fill({6, 6}, {9, 9}, 0);
  EXPECT_EQ(paper.alle.size(), 1U);
}

TEST_F(PageSurfaceTest, ThePaperIsItsOwnGround) {
  surface.clear(0xFFFFFF);
  EXPECT_TRUE(paper.alle.empty());
}

TEST_F(PageSurfaceTest, TextsHangOnTheirAnchor) {
  const double width = 2 * 4 * mmJePunkt;
  const double height = 8 * 1.2 * mmJePunkt;
  surface.text({0, 0}, "ab", {}, {HorizontalAnchor::left, VerticalAnchor::top});
  surface.text({0, 0}, "ab", {}, {HorizontalAnchor::centre, VerticalAnchor::middle});
  surface.text({0, 0}, "ab", {}, {HorizontalAnchor::right, VerticalAnchor::bottom});
  EXPECT_NEAR(paper.alle.at(0).x, 100, 1e-9);
  EXPECT_NEAR(paper.alle.at(0).y, 110, 1e-9);
  EXPECT_NEAR(paper.alle.at(1).x, 100 - width / 2, 1e-9);
  EXPECT_NEAR(paper.alle.at(1).y, 110 - height / 2, 1e-9);
  EXPECT_NEAR(paper.alle.at(2).x2, 100, 1e-9);
  EXPECT_NEAR(paper.alle.at(2).y2, 110, 1e-9);
}

TEST_F(PageSurfaceTest, AnchorsHoldUnderAScaleThatRunsLikeThePage) {
  surface.setWindow({5, -5, -5, 5});
  surface.text({0, 0}, "ab", {}, {HorizontalAnchor::right, VerticalAnchor::bottom});
  EXPECT_NEAR(only().y2, 110, 1e-9);
  // Data run to the left here, letters don't.
  EXPECT_NEAR(only().x2, 100, 1e-9);
}

TEST_F(PageSurfaceTest, LookOfTexts) {
  surface.text({0, 0}, "ab", {0xFF0000, 1.5, true}, {});
  EXPECT_EQ(only().farbe, 0xFF0000);
  EXPECT_EQ(only().groesse, 12);
  EXPECT_TRUE(only().fett);
  EXPECT_EQ(only().schrift, "ARIAL");
  surface.text({0, 0}, "ab", {}, {});
  EXPECT_EQ(paper.alle.back().groesse, 8);
  EXPECT_FALSE(paper.alle.back().fett);
}

TEST_F(PageSurfaceTest, SizesAreInDataUnits) {
  const DataSize size = surface.textSize("abc", {0, 2});
  EXPECT_NEAR(size.width, 3 * 8 * mmJePunkt / 10, 1e-9);
  EXPECT_NEAR(size.height, 16 * 1.2 * mmJePunkt / 10, 1e-9);
  const DataSize line = surface.lineWidth();
  EXPECT_GT(line.width, 0);
  EXPECT_EQ(line.width, line.height);
  surface.setWindow({-5, 0.5, 5, -0.5});
  EXPECT_NEAR(surface.lineWidth().height, line.height / 10, 1e-12);
}

}  // namespace
}  // namespace korvin
