// The convergence diagram as marks on a recording surface: data coordinates are seconds and decimal
// logarithms.
#include "straightness/konvergenz_diagramm.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "support/recording_surface.h"

namespace korvin {
namespace {

using test::DrawingOp;
using test::RecordingSurface;
using Kind = DrawingOp::Kind;

class KonvergenzDiagramm : public testing::Test {
 protected:
  KonvergenzDiagramm() {
    frame.unten = 0.002;
    frame.oben = 0.1;
    frame.ende = 12.5;
    frame.genauigkeit = {0.01, 0.01};
    frame.MinEnde = 10;
    frame.MaxEnde = 12;
    frame.einheit = "mm";
    frame.gefordert = "required";
    content.muster = "0.0000";
  }

  void draw(double width = 380, double height = 230) {
    surface = RecordingSurface(width, height);
    surface.charWidth = 6;
    surface.lineHeight = 14;
    konvergenzRahmenZeichnen(surface, frame);
    frameOps = surface.ops;
    surface.ops.clear();
    konvergenzInhaltZeichnen(surface, frame, content);
  }
  /// Lines of the frame with a colour.
  std::vector<DrawingOp> lines(Farbe colour) const {
    std::vector<DrawingOp> found;
    std::copy_if(frameOps.begin(), frameOps.end(), std::back_inserter(found),
                 [&](const DrawingOp& op) { return op.kind == Kind::line && op.colour == colour; });
    return found;
  }
  const DrawingOp* text(const std::string& words) const {
    for (const auto* ops : {&frameOps, &surface.ops}) {
      const auto found = std::find_if(ops->begin(), ops->end(), [&](const DrawingOp& op) {
        return op.kind == Kind::text && op.text == words;
      });
      if (found != ops->end()) return &*found;
    }
    return nullptr;
  }
  /// The room that a text takes: left, top, right, bottom.
  static DataWindow roomOf(const DrawingOp& op) {
    const double wide = op.room.width;
    const double high = op.room.height;
    const double left = op.points[0].x - (op.horizontal == HorizontalAnchor::left     ? 0
                                          : op.horizontal == HorizontalAnchor::centre ? wide / 2
                                                                                      : wide);
    const double top = op.points[0].y + (op.vertical == VerticalAnchor::top      ? 0
                                         : op.vertical == VerticalAnchor::middle ? high / 2
                                                                                 : high);
    return {left, top, left + wide, top - high};
  }
  std::vector<DrawingOp> allTexts() const {
    std::vector<DrawingOp> found;
    for (const auto* ops : {&frameOps, &surface.ops})
      std::copy_if(ops->begin(), ops->end(), std::back_inserter(found),
                   [](const DrawingOp& op) { return op.kind == Kind::text; });
    return found;
  }
  void expectTextsApartAndInside() const {
    const std::vector<DrawingOp> texts = allTexts();
    constexpr double rounded = 1e-9;
    for (std::size_t i = 0; i < texts.size(); ++i) {
      const DataWindow a = roomOf(texts[i]);
      EXPECT_GE(a.left, surface.window.left - rounded) << texts[i].text;
      EXPECT_LE(a.right, surface.window.right + rounded) << texts[i].text;
      EXPECT_LE(a.top, surface.window.top + rounded) << texts[i].text;
      EXPECT_GE(a.bottom, surface.window.bottom - rounded) << texts[i].text;
      for (std::size_t k = i + 1; k < texts.size(); ++k) {
        const DataWindow b = roomOf(texts[k]);
        const bool apart = a.right <= b.left + rounded || b.right <= a.left + rounded ||
                           a.bottom >= b.top - rounded || b.bottom >= a.top - rounded;
        EXPECT_TRUE(apart) << texts[i].text << " and " << texts[k].text;
      }
    }
  }

  KonvergenzRahmen frame;
  KonvergenzInhalt content;
  RecordingSurface surface;
  std::vector<DrawingOp> frameOps;
};

TEST_F(KonvergenzDiagramm, PlotLiesInItsRangesWithRoomForTheTexts) {
  draw();
  EXPECT_LT(surface.window.left, 0);
  EXPECT_GT(surface.window.right, 12.5);
  EXPECT_GT(surface.window.top, std::log10(0.1));
  EXPECT_LT(surface.window.bottom, std::log10(0.002));
  for (const DrawingOp& op : lines(FarbeKonvergenzGitter)) {
    for (const DataPoint& point : op.points) {
      EXPECT_GE(point.x, 0);
      EXPECT_LE(point.x, 12.5);
      EXPECT_GE(point.y, std::log10(0.002) - 1e-12);
      EXPECT_LE(point.y, std::log10(0.1) + 1e-12);
    }
  }
}

TEST_F(KonvergenzDiagramm, HeightsStandAtTheirLogarithms) {
  draw();
  for (const double height : {0.002, 0.005, 0.01, 0.02, 0.05}) {
    const DrawingOp* label = text(height == 0.002   ? "0.002"
                                  : height == 0.005 ? "0.005"
                                  : height == 0.01  ? "0.01"
                                  : height == 0.02  ? "0.02"
                                                    : "0.05");
    ASSERT_NE(label, nullptr) << height;
    EXPECT_NEAR(label->points[0].y, std::log10(height), 1e-12);
  }
  EXPECT_EQ(text("0.1"), nullptr) << "the unit stands there";
  EXPECT_NE(text("[mm]"), nullptr);
  EXPECT_NE(text("[s]"), nullptr);
}

TEST_F(KonvergenzDiagramm, TimesStandBelowThePlot) {
  draw();
  for (const char* each : {"0", "5", "10", "[s]"}) {
    ASSERT_NE(text(each), nullptr) << each;
    EXPECT_LT(roomOf(*text(each)).top, std::log10(frame.unten)) << each;
  }
  EXPECT_EQ(text("5")->points[0].x, 5);
}

TEST_F(KonvergenzDiagramm, EqualRequirementsAreOneLineWithTheFieldWhereThePointIsAccepted) {
  draw();
  const auto aim = lines(FarbeKonvergenzZiel);
  ASSERT_EQ(aim.size(), 1U);
  EXPECT_EQ(aim[0].points, (std::vector<DataPoint>{{0, -2}, {12.5, -2}}));
  EXPECT_EQ(aim[0].style, LineStyle::dashed);
  EXPECT_TRUE(lines(FarbeKonvergenzX).empty());
  const auto fills = [&] {
    std::vector<DrawingOp> found;
    std::copy_if(frameOps.begin(), frameOps.end(), std::back_inserter(found),
                 [](const DrawingOp& op) { return op.kind == Kind::fill; });
    return found;
  }();
  ASSERT_EQ(fills.size(), 1U);
  EXPECT_EQ(fills[0].points, (std::vector<DataPoint>{{10, -2}, {12, std::log10(0.002)}}));
}

TEST_F(KonvergenzDiagramm, TwoRequirementsAreALineOfTheColourOfEachAxis) {
  frame.genauigkeit = {0.01, 0.05};
  draw();
  ASSERT_EQ(lines(FarbeKonvergenzX).size(), 1U);
  ASSERT_EQ(lines(FarbeKonvergenzY).size(), 1U);
  EXPECT_EQ(lines(FarbeKonvergenzX)[0].points[0].y, -2);
  EXPECT_EQ(lines(FarbeKonvergenzY)[0].points[0].y, std::log10(0.05));
  EXPECT_TRUE(lines(FarbeKonvergenzZiel).empty());
  EXPECT_EQ(std::count_if(frameOps.begin(), frameOps.end(),
                          [](const DrawingOp& op) { return op.kind == Kind::fill; }),
            0);
}

TEST_F(KonvergenzDiagramm, WithoutARequirementThereIsNoLineAndNoWordOfIt) {
  frame.genauigkeit = {0, 0};
  draw();
  for (const Farbe colour : {FarbeKonvergenzX, FarbeKonvergenzY, FarbeKonvergenzZiel})
    EXPECT_TRUE(lines(colour).empty());
  EXPECT_EQ(text("required"), nullptr);
  frame.genauigkeit = {0.01, 0};
  draw();
  EXPECT_EQ(lines(FarbeKonvergenzX).size(), 1U);
  EXPECT_TRUE(lines(FarbeKonvergenzY).empty());
  EXPECT_NE(text("required"), nullptr);
}

TEST_F(KonvergenzDiagramm, TimesAreMarkedAndMoveWithAnExtension) {
  draw();
  const auto xs = [&] {
    std::vector<double> found;
    for (const DrawingOp& op : lines(FarbeKonvergenzZeit)) found.push_back(op.points[0].x);
    std::sort(found.begin(), found.end());
    return found;
  };
  EXPECT_EQ(xs(), (std::vector<double>{10, 12}));
  EXPECT_NE(text("\u2265 10 s"), nullptr);
  EXPECT_NE(text("\u2264 12 s"), nullptr);
  frame.MaxEnde = 18;
  frame.ende = 19;
  draw();
  EXPECT_EQ(xs(), (std::vector<double>{10, 18}));
  EXPECT_NE(text("\u2264 18 s"), nullptr);
}

TEST_F(KonvergenzDiagramm, CurvesRunFromSampleToSampleWithADiscOnTheLast) {
  content.sekunden = {1, 2, 3};
  content.K = {std::vector<double>{0.1, 0.05, 0.01}, std::vector<double>{0.02, 0.01, 0.005}};
  draw();
  const auto curves = surface.all(Kind::polyline);
  ASSERT_EQ(curves.size(), 2U);
  EXPECT_EQ(curves[0].colour, FarbeKonvergenzX);
  EXPECT_EQ(curves[0].points, (std::vector<DataPoint>{{1, std::log10(0.1)}, {2, std::log10(0.05)}, {3, -2}}));
  EXPECT_EQ(curves[1].colour, FarbeKonvergenzY);
  EXPECT_EQ(curves[1].points[1], (DataPoint{2, -2}));
  const auto discs = surface.all(Kind::disc);
  ASSERT_EQ(discs.size(), 2U);
  EXPECT_EQ(discs[0].points[0], (DataPoint{3, -2}));
  EXPECT_NE(text("X \u00B10.0100"), nullptr);
  EXPECT_NE(text("Y \u00B10.0050"), nullptr);
}

TEST_F(KonvergenzDiagramm, ALineStandsAtThePresentTime) {
  const auto atNow = [&] {
    const auto all = surface.all(Kind::line);
    return std::count_if(all.begin(), all.end(), [&](const DrawingOp& op) {
      return op.colour == FarbeKonvergenzJetzt && op.points[0].x == content.jetzt &&
             op.points[0].x == op.points[1].x && op.points[0].y == std::log10(frame.unten) &&
             op.points[1].y == std::log10(frame.oben);
    });
  };
  draw();
  EXPECT_EQ(atNow(), 0) << "before the first answer";
  content.jetzt = 4.5;
  draw();
  EXPECT_EQ(atNow(), 1);
}

TEST_F(KonvergenzDiagramm, AHalfWidthBeyondTheRangeLiesOnItsEdge) {
  content.sekunden = {1, 2, 20};
  content.K = {std::vector<double>{5, 0, 0.01}, std::vector<double>{0.02, 0.01, 0.005}};
  draw();
  const auto curve = surface.all(Kind::polyline)[0];
  EXPECT_EQ(curve.points[0].y, std::log10(0.1));
  EXPECT_EQ(curve.points[1].y, std::log10(0.002));
  EXPECT_EQ(curve.points[2].x, 12.5);
}

TEST_F(KonvergenzDiagramm, LegendLiesBelowThePlotAndCoversNoCurve) {
  content.sekunden = {1, 2};
  content.K = {std::vector<double>{0.1, 0.05}, std::vector<double>{0.02, 0.01}};
  draw();
  const double bottom = std::log10(frame.unten);
  for (const DrawingOp& op : surface.all(Kind::text)) EXPECT_LT(roomOf(op).top, bottom) << op.text;
  for (const DrawingOp& op : surface.all(Kind::line)) EXPECT_LT(op.points[0].y, bottom);
  EXPECT_EQ(surface.all(Kind::line).size(), 3U);
}

TEST_F(KonvergenzDiagramm, LegendKeepsItsPlacesWhileTheNumbersChange) {
  content.sekunden = {1, 2};
  content.K = {std::vector<double>{0.1, 0.05}, std::vector<double>{0.02, 0.01}};
  draw();
  const auto placesOf = [&] {
    std::vector<double> places;
    for (const DrawingOp& op : surface.all(Kind::text)) places.push_back(op.points[0].x);
    return places;
  };
  const std::vector<double> before = placesOf();
  content.K[0].back() = 0.0001;
  draw();
  EXPECT_EQ(placesOf(), before);
  content = {};
  content.muster = "0.0000";
  draw();
  EXPECT_EQ(placesOf(), before) << "before the second sample";
  EXPECT_NE(text("X"), nullptr);
}

TEST_F(KonvergenzDiagramm, TextsNeverTouchEachOtherNorLeaveThePicture) {
  content.sekunden = {1, 2};
  content.K = {std::vector<double>{0.1, 0.05}, std::vector<double>{0.02, 0.01}};
  for (const double width : {200.0, 300.0, 380.0, 700.0}) {
    for (const double height : {110.0, 180.0, 230.0, 400.0}) {
      for (const auto& [least, longest] :
           {std::pair{5.0, 5.0}, {5.0, 99.0}, {10.0, 12.0}, {10.0, 148.5}, {98.0, 99.0}}) {
        SCOPED_TRACE(std::to_string(width) + "x" + std::to_string(height) + ", " + std::to_string(least) +
                     " to " + std::to_string(longest));
        frame.MinEnde = least;
        frame.MaxEnde = longest;
        frame.ende = longest * 1.06;
        draw(width, height);
        expectTextsApartAndInside();
      }
    }
  }
}

TEST_F(KonvergenzDiagramm, ALongWordOfTheRequirementMakesTheLegendSmallerAndThenGivesWay) {
  frame.gefordert = "a rather long word of it";
  draw(360);
  const DrawingOp* smaller = text(frame.gefordert);
  ASSERT_NE(smaller, nullptr);
  EXPECT_LT(smaller->textSize, 1);
  EXPECT_GE(smaller->textSize, 0.75);
  draw(230);
  EXPECT_EQ(text(frame.gefordert), nullptr);
  EXPECT_NE(text("X"), nullptr);
}

TEST(KonvergenzHoehen, AreOneTwoFiveOrPowersOfTenAlone) {
  EXPECT_EQ(konvergenzHoehen(0.5, 20, 0.1), (std::vector<double>{0.5, 1, 2, 5, 10, 20}));
  EXPECT_EQ(konvergenzHoehen(0.5, 20, 0.31), (std::vector<double>{1, 10}));
  const auto small = konvergenzHoehen(0.002, 0.1, 0.1);
  EXPECT_EQ(small.size(), 6U) << "the bounds belong to it";
}

TEST(KonvergenzZeitschritt, IsTheNextOfTheSeriesAndAWholeSecondAtLeast) {
  EXPECT_EQ(konvergenzZeitschritt(0), 1);
  EXPECT_EQ(konvergenzZeitschritt(0.3), 1);
  EXPECT_EQ(konvergenzZeitschritt(1), 1);
  EXPECT_EQ(konvergenzZeitschritt(1.2), 2);
  EXPECT_EQ(konvergenzZeitschritt(4), 5);
  EXPECT_EQ(konvergenzZeitschritt(7), 10);
  EXPECT_EQ(konvergenzZeitschritt(12), 20);
}

}  // namespace
}  // namespace korvin
