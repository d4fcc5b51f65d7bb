#include "position/xy_diagram.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "frame/leerwert.h"
#include "position/formpos.h"
#include "position/xy_ranges.h"
#include "support/recording_surface.h"

namespace korvin {
namespace {

using test::DrawingOp;
using test::RecordingSurface;
using Kind = DrawingOp::Kind;

class XYDiagrammTest : public ::testing::Test {
 protected:
  XYDiagrammTest() {
    formpos.messungLoeschen();
    formpos.Info().RestMP = -1;
    formpos.Info().Gitter = true;
  }

  void point(double x, double y) {
    X().Aktuell = x;
    Y().Aktuell = y;
    formpos.punktHinzufuegen(45000);
  }
  /// 40 points on a line, the fifth of which is the offset.
  void fortyPointsWithOffset() {
    for (int i = 1; i <= 40; ++i) point(0.001 * i, 0.05 - 0.002 * i);
    X().Offset = 0.005;
    Y().Offset = 0.04;
    formpos.Info().OffsetAktiv = true;
    formpos.Info().OffsetMP = 5;
    formpos.statistikNeu();
    rahmenVerwerfen(formpos.arbeit());
  }
  void byHand(double rangeX, double rangeY) {
    bereichHand(formpos.arbeit());
    X().Bereich = rangeX;
    Y().Bereich = rangeY;
  }
  XYDiagramm diagram(int unitSystem = 0) { return {formpos.arbeit(), formpos.punkte(), unitSystem}; }
  /// What a whole drawing leaves on a surface.
  RecordingSurface drawn(int unitSystem = 0) {
    RecordingSurface surface(1000, 1000);
    XYDiagramm diagramm = diagram(unitSystem);
    diagramm.bereicheErmitteln();
    diagramm.zeichnen(surface);
    return surface;
  }
  AchsenInfo& X() { return formpos.arbeit().X; }
  AchsenInfo& Y() { return formpos.arbeit().Y; }
  PositionsInfo& info() { return formpos.Info(); }

  FORMPOS formpos;
};

std::vector<DrawingOp> circlesOf(const RecordingSurface& surface, Farbe colour) {
  std::vector<DrawingOp> circles = surface.all(Kind::circle);
  std::erase_if(circles, [&](const DrawingOp& op) { return op.colour != colour; });
  return circles;
}

int drawnPoints(const RecordingSurface& surface) {
  return static_cast<int>(circlesOf(surface, FarbeMesspunkt).size());
}

// ---- Ranges ----

TEST_F(XYDiagrammTest, WithoutPointsTheSmallestRangeOfTheLadder) {
  EXPECT_TRUE(diagram(0).bereicheErmitteln());
  EXPECT_EQ(X().Bereich, 0.001);
  EXPECT_EQ(Y().Bereich, 0.001);
  EXPECT_TRUE(diagram(1).bereicheErmitteln());
  EXPECT_EQ(X().Bereich, 0.02);
  EXPECT_EQ(Y().Bereich, 0.02);
}

TEST_F(XYDiagrammTest, FrameIsDrawnAnewOnlyWhenARangeChanges) {
  XYDiagramm d = diagram();
  EXPECT_TRUE(d.bereicheErmitteln());
  EXPECT_EQ(X().BereichAlt, 0.001);
  EXPECT_FALSE(d.bereicheErmitteln());
  point(0.0005, 0);
  EXPECT_FALSE(d.bereicheErmitteln());
  point(0.0015, 0);
  EXPECT_TRUE(d.bereicheErmitteln()) << "X alone";
  EXPECT_EQ(X().Bereich, 0.002);
  EXPECT_EQ(X().BereichAlt, 0.002);
  EXPECT_EQ(Y().BereichAlt, 0.001);
  point(0, -0.009);
  EXPECT_TRUE(d.bereicheErmitteln()) << "Y alone";
  EXPECT_EQ(Y().BereichAlt, 0.01);
  EXPECT_FALSE(d.bereicheErmitteln());
  Y().Offset = -0.009;
  formpos.statistikNeu();
  byHand(0.002, 0.005);
  EXPECT_TRUE(d.bereicheErmitteln()) << "a smaller one";
  EXPECT_EQ(Y().BereichAlt, 0.005);
}

TEST_F(XYDiagrammTest, BereichAltZeroOfEitherAxisHasTheFrameDrawnAnew) {
  XYDiagramm d = diagram();
  d.bereicheErmitteln();
  X().BereichAlt = 0;
  EXPECT_TRUE(d.bereicheErmitteln());
  Y().BereichAlt = 0;
  EXPECT_TRUE(d.bereicheErmitteln());
  EXPECT_FALSE(d.bereicheErmitteln());
}

TEST_F(XYDiagrammTest, SwitchingTheGridHasTheFrameDrawnAnew) {
  XYDiagramm d = diagram();
  d.bereicheErmitteln();
  gitterUmschalten(formpos.arbeit());
  EXPECT_FALSE(info().Gitter);
  EXPECT_EQ(X().BereichAlt, 0);
  EXPECT_EQ(Y().BereichAlt, 0);
  EXPECT_TRUE(d.bereicheErmitteln());
  gitterUmschalten(formpos.arbeit());
  EXPECT_TRUE(info().Gitter);
}

TEST_F(XYDiagrammTest, RangeByHandHoldsAndIsBroughtOntoTheLadder) {
  point(5, 5);
  byHand(0.003, 0.01);
  XYDiagramm d = diagram();
  EXPECT_TRUE(d.bereicheErmitteln());
  EXPECT_EQ(X().Bereich, 0.005);
  EXPECT_EQ(Y().Bereich, 0.01);
  bereichsTaste(formpos.arbeit(), "XPLUS", 0);
  EXPECT_TRUE(d.bereicheErmitteln());
  EXPECT_EQ(X().Bereich, 0.01);
  bereichsTaste(formpos.arbeit(), "AUTO", 0);
  EXPECT_TRUE(d.bereicheErmitteln());
  EXPECT_EQ(X().Bereich, 5);
}

TEST_F(XYDiagrammTest, PointBeyondTheLadderLiesOutsideTheDiagram) {
  point(25, 0);
  const RecordingSurface surface = drawn();
  EXPECT_EQ(X().Bereich, 20);
  EXPECT_EQ(drawnPoints(surface), 0);
  EXPECT_TRUE(surface.all(Kind::disc).empty());
}

TEST_F(XYDiagrammTest, PointsWithoutValueCountForNoRange) {
  point(0.003, 0.003);
  point(Leerwert, Leerwert);
  drawn();
  EXPECT_EQ(X().Bereich, 0.005);
  EXPECT_EQ(Y().Bereich, 0.005);
}

// ---- The four drawings ----

TEST_F(XYDiagrammTest, EmptyMeasurementDrawsItsFrameOnly) {
  const RecordingSurface surface = drawn();
  const std::vector<std::string> lines = surface.lines();
  EXPECT_EQ(lines.at(0), "clear FFFFFF");
  EXPECT_EQ(lines.at(1), "window (-0.00124, 0.00106) (0.0011, -0.00114)");
  EXPECT_EQ(lines.at(2), "line (-0.001, -0.001) (0.001, -0.001) C0C0C0");
  EXPECT_EQ(lines.at(24), "line (-0.001, 0) (0.001, 0) 808080");
  EXPECT_EQ(surface.all(Kind::line).size(), 22U + 18U);
  const auto texts = surface.texts();
  EXPECT_EQ(texts.size(), 22U);
  EXPECT_EQ(std::count(texts.begin(), texts.end(), "±1um"), 2);
  EXPECT_EQ(std::count(texts.begin(), texts.end(), "+0.0008"), 2);
  EXPECT_TRUE(surface.all(Kind::circle).empty());
  EXPECT_TRUE(surface.all(Kind::disc).empty());
}

TEST_F(XYDiagrammTest, OnePointIsACircleWithItsMark) {
  point(0.004, -0.0015);
  const RecordingSurface surface = drawn();
  EXPECT_EQ(surface.ops.at(1).window, (DataWindow{-0.005 - 12 * 0.0001, 0.002 + 3 * 0.00004,
                                                  0.005 + 5 * 0.0001, -0.002 - 7 * 0.00004}));
  const auto lines = surface.lines();
  const std::vector<std::string> last(lines.end() - 4, lines.end());
  EXPECT_EQ(last, (std::vector<std::string>{"circle (0.004, -0.0015) r 4E-05 8B0000",
                                            "disc (0.004, -0.0015) r 4E-05 2828D0",
                                            "circle (0.004, -0.0015) r 4E-05 2828D0",
                                            "circle (0.004, -0.0015) r 6.66666666666667E-05 808080"}));
  const auto texts = surface.texts();
  EXPECT_EQ(std::count(texts.begin(), texts.end(), "±5um"), 1);
  EXPECT_EQ(std::count(texts.begin(), texts.end(), "±2um"), 1);
}

TEST_F(XYDiagrammTest, FortyPointsStandLessTheirOffset) {
  fortyPointsWithOffset();
  const RecordingSurface surface = drawn();
  EXPECT_EQ(X().Bereich, 0.05) << "35 um from the offset";
  EXPECT_EQ(Y().Bereich, 0.1) << "70 um from the offset";
  const auto points = circlesOf(surface, FarbeMesspunkt);
  ASSERT_EQ(points.size(), 40U);
  for (int i = 1; i <= 40; ++i) {
    const DrawingOp& op = points.at(static_cast<std::size_t>(i - 1));
    EXPECT_NEAR(op.points.at(0).x, 0.001 * i - 0.005, 1e-15);
    EXPECT_NEAR(op.points.at(0).y, 0.01 - 0.002 * i, 1e-15);
    EXPECT_EQ(op.radius, 0.05 / 125);
    EXPECT_EQ(op.width, 1);
  }
  const auto mark = circlesOf(surface, 0x808080);
  ASSERT_EQ(mark.size(), 1U);
  EXPECT_NEAR(mark.at(0).points.at(0).x, 0.035, 1e-15);
  EXPECT_EQ(mark.at(0).radius, 0.05 / 75);
}

TEST_F(XYDiagrammTest, PointsOutsideARangeByHandAreNotDrawn) {
  for (const auto& [x, y] : {std::pair{0.002, 0.0},
                             {0.0020001, 0.0},
                             {0.0, -0.005},
                             {0.0, -0.0050001},
                             {-0.002, 0.005},
                             {-0.0021, 0.0},
                             {0.0, 0.0051}})
    point(x, y);
  byHand(0.002, 0.005);
  const RecordingSurface surface = drawn();
  std::vector<DataPoint> places;
  for (const DrawingOp& op : circlesOf(surface, FarbeMesspunkt)) places.push_back(op.points.at(0));
  EXPECT_EQ(places, (std::vector<DataPoint>{{0.002, 0}, {0, -0.005}, {-0.002, 0.005}}));
  EXPECT_TRUE(circlesOf(surface, 0x808080).empty()) << "the cursor's point lies outside, too";
  info().MPAktuell = 3;
  EXPECT_EQ(circlesOf(drawn(), 0x808080).size(), 1U);
}

TEST_F(XYDiagrammTest, MilHaveTheirOwnLadderAndLabels) {
  point(0.15, -0.03);
  const RecordingSurface surface = drawn(1);
  const auto texts = surface.texts();
  EXPECT_EQ(std::count(texts.begin(), texts.end(), "±0.2mil"), 1);
  EXPECT_EQ(std::count(texts.begin(), texts.end(), "±0.05mil"), 1);
  EXPECT_EQ(std::count(texts.begin(), texts.end(), "+0.16"), 1);
  EXPECT_EQ(drawnPoints(surface), 1);
}

TEST_F(XYDiagrammTest, PaperNamesTheAxesWithTheUnitOfTheirTicks) {
  point(0.04, 3);
  RecordingSurface surface(1000, 1000);
  XYDiagramm d = diagram();
  d.bereicheErmitteln();
  const XYRahmen frame = d.rahmen();
  d.zeichnen(surface, xyPapierBeschriftung(frame.X, frame.Y));
  const auto texts = surface.texts();
  for (const char* text : {"X [um]", "Y [mm]", "±50um", "±5mm", "+40.0", "+4.0"})
    EXPECT_EQ(std::count(texts.begin(), texts.end(), text), 1) << text;
  EXPECT_EQ(drawnPoints(surface), 1);
  EXPECT_EQ(circlesOf(surface, 0x808080).size(), 1U);
}

// ---- Some of the points ----

TEST_F(XYDiagrammTest, OneNewPointIsOneCircle) {
  XYDiagramm d = diagram();
  for (int i = 0; i < 20; ++i) point(0.0001 * (i % 7), 0.0001);
  d.bereicheErmitteln();
  RecordingSurface surface;
  d.punkteZeichnen(surface, 20, 20);
  ASSERT_EQ(surface.ops.size(), 1U);
  EXPECT_EQ(surface.ops.at(0).kind, Kind::circle);
  EXPECT_EQ(surface.ops.at(0).points.at(0), (DataPoint{0.0001 * 5, 0.0001}));
}

TEST_F(XYDiagrammTest, ManyPointsAreDrawnOnceEachInTheirOrder) {
  // About as many as are handed to the surface at once, and more.
  for (const int count : {255, 256, 257, 512, 700}) {
    formpos.messungLoeschen();
    std::vector<DataPoint> seen;
    for (int i = 0; i < count; ++i) {
      point(0.001 * i, -0.002 * i);
      seen.push_back({0.001 * i, -0.002 * i});
      if (i % 50 == 7) point(Leerwert, 0);
    }
    RecordingSurface surface = drawn();
    std::vector<DataPoint> circles;
    for (const DrawingOp& op : circlesOf(surface, FarbeMesspunkt)) circles.push_back(op.points.at(0));
    EXPECT_EQ(circles, seen) << count;
  }
}

TEST_F(XYDiagrammTest, NumbersOutsideThePointsDrawNothing) {
  XYDiagramm d = diagram();
  point(0, 0);
  point(0, 0);
  d.bereicheErmitteln();
  RecordingSurface surface;
  d.punkteZeichnen(surface, 3, 10);
  d.punkteZeichnen(surface, -5, 0);
  d.punkteZeichnen(surface, 2, 1);
  EXPECT_TRUE(surface.ops.empty());
  d.punkteZeichnen(surface, -100000, 100000);
  EXPECT_EQ(surface.ops.size(), 2U);
}

TEST_F(XYDiagrammTest, OnlyTheCurrentPointWithItsMark) {
  fortyPointsWithOffset();
  info().NurAktuell = true;
  info().MPAktuell = 7;
  const RecordingSurface surface = drawn();
  EXPECT_EQ(drawnPoints(surface), 0);
  ASSERT_EQ(surface.all(Kind::disc).size(), 1U);
  const DrawingOp disc = surface.all(Kind::disc).at(0);
  EXPECT_NEAR(disc.points.at(0).x, 0.002, 1e-15);
  EXPECT_NEAR(disc.points.at(0).y, -0.004, 1e-15);
  EXPECT_EQ(disc.radius, 0.05 / 125);
  EXPECT_EQ(circlesOf(surface, 0x808080).size(), 1U);
  EXPECT_EQ(X().Bereich, 0.05) << "the range is that of all points still";
}

TEST_F(XYDiagrammTest, PointsWithoutAValueAreNotDrawnEvenInsideTheRange) {
  point(Leerwert, 0);
  point(0, Leerwert);
  point(999.5, 0);
  X().Offset = 999.1;
  Y().Offset = 998.9;
  byHand(1000, 1000);
  const RecordingSurface surface = drawn(1);
  EXPECT_EQ(drawnPoints(surface), 1);
  info().MPAktuell = 1;
  EXPECT_TRUE(circlesOf(drawn(1), 0x808080).empty());
}

TEST_F(XYDiagrammTest, ACursorOutsideThePointsHasNoMark) {
  point(0, 0);
  for (const int cursor : {-1, 0, 2, 30000, 32767}) {
    info().MPAktuell = static_cast<std::int16_t>(cursor);
    EXPECT_TRUE(drawn().all(Kind::disc).empty()) << cursor;
  }
}

TEST_F(XYDiagrammTest, ACountThatAFileBroughtAlongIsHeldWithinTheStore) {
  point(0, 0);
  for (const int count : {-1, 32767}) {
    info().AnzahlMP = static_cast<std::int16_t>(count);
    EXPECT_EQ(drawnPoints(drawn()), count < 0 ? 0 : 1) << count;
    EXPECT_FALSE(diagram().treffer({5, 5}));
  }
}

TEST_F(XYDiagrammTest, TheLastOf29999Points) {
  for (int i = 0; i < 29999; ++i) point(0, 0);
  point(0, 0);  // one too many
  XYDiagramm d = diagram();
  EXPECT_TRUE(d.bereicheErmitteln());
  EXPECT_TRUE(d.ort(29999));
  EXPECT_FALSE(d.ort(30000));
  RecordingSurface surface;
  d.punkteZeichnen(surface);
  EXPECT_EQ(surface.ops.size(), 29999U);
}

// ---- Hits ----

TEST_F(XYDiagrammTest, PressTakesTheFirstPointInReachBeItNotTheNearest) {
  point(0.9, 0.9);
  point(0.019, 0.019);
  point(0, 0);
  byHand(1, 1);
  XYDiagramm d = diagram();
  d.bereicheErmitteln();
  EXPECT_EQ(d.treffer({0, 0}), 2);
  EXPECT_EQ(d.treffer({-0.01, 0}), 3) << "out of reach of the second";
  EXPECT_EQ(d.treffer({0.9, 0.9}), 1);
}

TEST_F(XYDiagrammTest, ReachIsAFiftiethOfEachRange) {
  point(0, 0);
  byHand(50, 0.5);  // one unit along X, a hundredth along Y
  X().Bereich = 20;
  Y().Bereich = 0.5;
  XYDiagramm d = diagram();
  d.bereicheErmitteln();
  EXPECT_EQ(d.treffer({0.4, 0}), 1);
  EXPECT_EQ(d.treffer({-0.4, 0.01}), 1);
  EXPECT_FALSE(d.treffer({0.4001, 0}));
  EXPECT_FALSE(d.treffer({-0.4001, 0}));
  EXPECT_FALSE(d.treffer({0, 0.0101}));
  EXPECT_FALSE(d.treffer({0, -0.0101}));
}

TEST_F(XYDiagrammTest, PressIsInTheDiagramsCoordinatesSoTheOffsetIsAdded) {
  fortyPointsWithOffset();
  XYDiagramm d = diagram();
  d.bereicheErmitteln();
  EXPECT_EQ(d.treffer({0.0301, -0.0601}), 35) << "reach 1 um along X, 2 um along Y";
  EXPECT_EQ(d.treffer({-0.0001, 0.0002}), 4) << "the fifth, which gave the offset, is nearer";
}

TEST_F(XYDiagrammTest, PressBesideAllPointsMeansNone) {
  EXPECT_FALSE(diagram().treffer({0, 0})) << "no points at all";
  fortyPointsWithOffset();
  XYDiagramm d = diagram();
  d.bereicheErmitteln();
  EXPECT_FALSE(d.treffer({0.02, 0.05}));
  EXPECT_FALSE(d.treffer({0, 0.09}));
}

TEST_F(XYDiagrammTest, PressFindsAPointJustOutsideTheRangeToo) {
  point(1.01, 0);
  byHand(1, 1);
  XYDiagramm d = diagram();
  d.bereicheErmitteln();
  EXPECT_EQ(d.treffer({1, 0}), 1);
  EXPECT_FALSE(d.naechster({1, 0})) << "a hint is for what is seen";
}

TEST_F(XYDiagrammTest, PressMeansNoPointWithoutAValue) {
  point(Leerwert, 0);
  byHand(1000, 1000);
  XYDiagramm d = diagram(1);
  d.bereicheErmitteln();
  EXPECT_FALSE(d.treffer({999, 0}));
}

TEST_F(XYDiagrammTest, HintIsForTheNearestPointAndOfEqualsForTheLast) {
  point(0.019, 0);
  point(0.005, 0);
  point(-0.005, 0);
  byHand(1, 1);
  XYDiagramm d = diagram();
  d.bereicheErmitteln();
  EXPECT_EQ(d.naechster({0.02, 0}), 1);
  EXPECT_EQ(d.naechster({0.0049, 0}), 2);
  EXPECT_EQ(d.naechster({0, 0}), 3);
  EXPECT_FALSE(d.naechster({-0.0251, 0}));
  EXPECT_FALSE(d.naechster({0.02, 0.02}));
}

TEST_F(XYDiagrammTest, HintMeasuresEachAxisByItsRange) {
  point(0.1, 0);
  point(0, 0.02);
  byHand(10, 1);
  XYDiagramm d = diagram();
  d.bereicheErmitteln();
  EXPECT_EQ(d.naechster({0, 0}), 1) << "half a reach along X, a whole one along Y";
}

TEST_F(XYDiagrammTest, HintIsForTheCurrentPointOnlyIfNoOtherIsDrawn) {
  point(0, 0);
  point(0.01, 0);
  point(0.5, 0);
  byHand(1, 1);
  info().NurAktuell = true;
  info().MPAktuell = 2;
  XYDiagramm d = diagram();
  d.bereicheErmitteln();
  EXPECT_EQ(d.naechster({0, 0}), 2);
  EXPECT_FALSE(d.naechster({0.5, 0}));
  info().MPAktuell = 0;
  EXPECT_FALSE(d.naechster({0, 0}));
  info().MPAktuell = 32767;
  EXPECT_FALSE(d.naechster({0, 0}));
}

}  // namespace
}  // namespace korvin
