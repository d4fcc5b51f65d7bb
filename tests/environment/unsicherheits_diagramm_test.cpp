#include "environment/unsicherheits_diagramm.h"

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

// Seconds and lengths that are products of small numbers.
constexpr double Rounding = 1e-9;

class UnsicherheitsDiagramm : public ::testing::Test {
 protected:
  UnsicherheitsDiagramm() {
    // 10 samples in 31 s, and 8 positions beyond.
    for (int i = 0; i <= 18; ++i) {
      Fx.push_back(i == 0 ? 0 : 0.019 - 0.001 * i);
      Fy.push_back(i == 0 ? 0 : (0.019 - 0.001 * i) / 2);
    }
    bild.Fx = Fx;
    bild.Fy = Fy;
    bild.N = 10;
    bild.maximum = 18;
    bild.wert = 10;
    bild.sekundenJePosition = 3.1;
    bild.hinaus = "beyond";
  }
  void draw() {
    surface.ops.clear();
    unsicherheitRahmenZeichnen(surface, bild);
    unsicherheitWahlZeichnen(surface, bild);
  }
  std::vector<DrawingOp> curves(Farbe farbe) const {
    std::vector<DrawingOp> found;
    for (const DrawingOp& op : surface.all(Kind::polyline)) {
      if (op.colour == farbe) found.push_back(op);
    }
    return found;
  }
  DrawingOp textOp(const std::string& words) const {
    for (const DrawingOp& op : surface.all(Kind::text)) {
      if (op.text == words) return op;
    }
    ADD_FAILURE() << words;
    return {};
  }
  bool shows(const std::string& words) const {
    const auto texts = surface.texts();
    return std::find(texts.begin(), texts.end(), words) != texts.end();
  }

  std::vector<double> Fx;
  std::vector<double> Fy;
  UnsicherheitsBild bild;
  RecordingSurface surface{400, 200};
};

TEST_F(UnsicherheitsDiagramm, TheRunsPartIsSolidAndTheRestDashed) {
  draw();
  for (const auto& [farbe, tabelle] : {std::pair(FarbeAnalyseFX, &Fx), std::pair(FarbeAnalyseFY, &Fy)}) {
    const auto parts = curves(farbe);
    ASSERT_EQ(parts.size(), 2u);
    EXPECT_EQ(parts[0].style, LineStyle::solid);
    EXPECT_EQ(parts[1].style, LineStyle::dashed);
    EXPECT_EQ(parts[0].points.front(), (DataPoint{3.1, tabelle->at(1)}));
    EXPECT_EQ(parts[0].points.back(), (DataPoint{31, tabelle->at(10)}));
    EXPECT_EQ(parts[0].points.size(), 10u);
    EXPECT_EQ(parts[1].points.front(), (DataPoint{31, tabelle->at(10)}));
    EXPECT_EQ(parts[1].points.back(), (DataPoint{18 * 3.1, tabelle->at(18)}));
    EXPECT_EQ(parts[1].points.size(), 9u);
  }
}

TEST_F(UnsicherheitsDiagramm, TheTimeBeyondTheRunHasAGroundAndAWord) {
  draw();
  const DrawingOp ground = surface.all(Kind::fill).front();
  EXPECT_EQ(ground.colour, FarbeAnalyseHinaus);
  EXPECT_NEAR(ground.points[0].x, 31, Rounding);
  EXPECT_NEAR(ground.points[1].x, 55.8, Rounding);
  const DrawingOp word = textOp("beyond");
  EXPECT_GE(word.points[0].x - word.room.width / 2, 31);
  EXPECT_LE(word.points[0].x + word.room.width / 2, 55.8);
}

TEST_F(UnsicherheitsDiagramm, AWordWithoutRoomIsLeftOut) {
  bild.hinaus = std::string(60, 'w');
  draw();
  EXPECT_FALSE(shows(bild.hinaus));
}

TEST_F(UnsicherheitsDiagramm, NothingLiesBeyondWhereTheSliderEndsWithTheRun) {
  bild.maximum = 10;
  draw();
  EXPECT_TRUE(surface.all(Kind::fill).empty());
  EXPECT_FALSE(shows("beyond"));
  EXPECT_EQ(curves(FarbeAnalyseFX).size(), 1u);
}

TEST_F(UnsicherheitsDiagramm, TheChosenTimeIsMarkedOnBothCurves) {
  bild.wert = 5;
  draw();
  const auto discs = surface.all(Kind::disc);
  ASSERT_EQ(discs.size(), 2u);
  EXPECT_EQ(discs[0].points[0], (DataPoint{15.5, Fx.at(5)}));
  EXPECT_EQ(discs[0].colour, FarbeAnalyseFX);
  EXPECT_EQ(discs[1].points[0], (DataPoint{15.5, Fy.at(5)}));
  EXPECT_EQ(discs[1].colour, FarbeAnalyseFY);
  const DrawingOp mark = surface.all(Kind::line).back();
  EXPECT_EQ(mark.colour, FarbeAnalyseZeit);
  EXPECT_EQ(mark.points[0], (DataPoint{15.5, 0}));
  EXPECT_EQ(mark.points[1].x, 15.5);
  EXPECT_GE(mark.points[1].y, Fx.at(1));
}

TEST_F(UnsicherheitsDiagramm, PositionZeroMarksTheTimeOnly) {
  bild.wert = 0;
  draw();
  EXPECT_TRUE(surface.all(Kind::disc).empty());
  EXPECT_EQ(surface.all(Kind::line).back().points[0].x, 0);
}

TEST_F(UnsicherheitsDiagramm, AllValuesAndNumbersLieInThePicture) {
  // From the lowest uncertainty to far beyond what any head reports.
  for (const double highest : {0.0002, 0.00021, 0.001, 0.0099, 0.5, 3.0, 49.9, 123.4}) {
    for (std::size_t i = 1; i < Fx.size(); ++i) Fx[i] = highest;
    Fy = Fx;
    draw();
    const DataWindow window = surface.window;
    EXPECT_LT(highest, window.top);
    double numberAbove = 0;
    for (const DrawingOp& op : surface.all(Kind::text)) {
      if (op.horizontal == HorizontalAnchor::right && op.points[0].x < 0) {
        EXPECT_GE(op.points[0].x - op.room.width, window.left) << op.text;
        numberAbove = std::max(numberAbove, op.points[0].y);
        EXPECT_NEAR(std::stod(op.text), op.points[0].y, highest * 1e-6);
      }
    }
    EXPECT_GE(numberAbove, highest * (1 - 1e-6)) << "the scale reaches the curve";
    EXPECT_LE(numberAbove, highest * 2.5) << "and not far beyond";
  }
}

TEST_F(UnsicherheitsDiagramm, TheScaleReachesTheHigherOfTheCurves) {
  for (double& value : Fx) value /= 100;
  draw();
  EXPECT_GT(surface.window.top, Fy.at(1));
}

TEST_F(UnsicherheitsDiagramm, TimesAreTellingWithTheUnitAtTheLast) {
  draw();
  for (const char* words : {"0", "10", "20", "30", "40", "50 s"}) EXPECT_TRUE(shows(words)) << words;
  EXPECT_NEAR(textOp("20").points[0].x, 20, Rounding);
}

TEST_F(UnsicherheitsDiagramm, TimesKeepApartInANarrowPicture) {
  surface.width = 120;
  draw();
  std::vector<DrawingOp> times;
  for (const DrawingOp& op : surface.all(Kind::text)) {
    if (op.vertical == VerticalAnchor::top && op.points[0].y < 0) times.push_back(op);
  }
  ASSERT_GE(times.size(), 2u);
  for (std::size_t i = 1; i < times.size(); ++i) {
    EXPECT_LT(times[i - 1].points[0].x + times[i - 1].room.width / 2,
              times[i].points[0].x - times[i].room.width / 2);
  }
}

TEST_F(UnsicherheitsDiagramm, NamesUnitAndCurves) {
  draw();
  EXPECT_TRUE(shows("[mm]"));
  EXPECT_EQ(textOp("FX").colour, FarbeAnalyseFX);
  EXPECT_EQ(textOp("FY").colour, FarbeAnalyseFY);
  EXPECT_LT(textOp("FX").points[0].x, textOp("FY").points[0].x - textOp("FY").room.width);
  bild.inch = true;
  draw();
  EXPECT_TRUE(shows("[mil]"));
}

TEST_F(UnsicherheitsDiagramm, TimeAxisIsWhereItIsSaidToBe) {
  draw();
  const ZeitAchse achse = unsicherheitZeitAchse();
  const double width = surface.window.right - surface.window.left;
  EXPECT_NEAR((0 - surface.window.left) / width, achse.anfang, Rounding);
  EXPECT_NEAR((55.8 - surface.window.left) / width, achse.ende, Rounding);
}

TEST_F(UnsicherheitsDiagramm, WithoutARunThereIsAnEmptyGround) {
  for (const auto& [maximum, seconds] : {std::pair(0, 3.1), std::pair(18, 0.0), std::pair(18, -0.1)}) {
    bild.maximum = maximum;
    bild.sekundenJePosition = seconds;
    draw();
    EXPECT_EQ(surface.all(Kind::clear).size(), 1u);
    EXPECT_EQ(surface.ops.back().kind, Kind::clear);
  }
}

}  // namespace
}  // namespace korvin
