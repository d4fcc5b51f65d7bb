#include "straightness/achsen_diagramm.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "straightness/achsen_beschriftung.h"
#include "straightness/axis_stand.h"

namespace korvin {
namespace {

using test::DrawingOp;
using Kind = DrawingOp::Kind;
using Lines = std::vector<std::string>;

bool contains(const Lines& lines, const std::string& wanted) {
  return std::find(lines.begin(), lines.end(), wanted) != lines.end();
}

TEST(AchsenFenster, LeavesRoomRoundThePlot) {
  AchsenRahmen frame;
  frame.R = 5;
  frame.Distanz = 100;
  EXPECT_EQ(achsenFenster(frame), (DataWindow{-6, 5.3, 104, -6.5}));
}

TEST(AchsenRahmenZeichnen, DrawsGridPointsAndLabels) {
  AxisStand axis({0.1, -0.9, 0.5});
  axis.draw();
  const Lines drawn = axis.frameSurface.lines();
  const auto grid = [&](double colour) {
    const auto all = axis.frameSurface.all(Kind::line);
    return std::count_if(all.begin(), all.end(), [&](const DrawingOp& op) { return op.colour == colour; });
  };
  EXPECT_EQ(grid(0xC0C0C0), 11 + 3);
  EXPECT_EQ(grid(0x808080), 2);
  EXPECT_TRUE(contains(drawn, "line (0, 1) (1000, 1) C0C0C0"));
  EXPECT_TRUE(contains(drawn, "line (0, -1) (1000, -1) C0C0C0"));
  EXPECT_TRUE(contains(drawn, "line (500, -1) (500, 1) C0C0C0"));
  EXPECT_TRUE(contains(drawn, "line (1000, -1) (1000, 1) 808080"));
  EXPECT_TRUE(contains(drawn, "line (0, 0) (1000, 0) 808080"));
  EXPECT_EQ(axis.frameSurface.texts(),
            (Lines{"1", "2", "3 [MP]", "+ 0.8", "+ 0.4", "+ 0.0", "- 0.4", "- 0.8", "[mm]"}));
}

TEST(AchsenRahmenZeichnen, KeepsTheVerticalLinesWithoutAGrid) {
  AxisStand axis({0.1, -0.9, 0.5});
  axis.series.Info.Gitter = false;
  axis.draw();
  EXPECT_EQ(axis.frameSurface.all(Kind::line).size(), 3U + 2U);
}

TEST(AchsenRahmenZeichnen, DrawsAnEmptySeries) {
  AxisStand axis({Leerwert, Leerwert});
  axis.draw();
  EXPECT_EQ(axis.data.bereich.bereich, 0.002);
  EXPECT_TRUE(contains(axis.frameSurface.texts(), "+ 0.0016"));
  EXPECT_TRUE(axis.content.all(Kind::polyline).empty());
}

TEST(AchsenRahmenZeichnen, DrawsASeriesWithoutPoints) {
  AchsenRahmen frame;
  frame.einheit = "mil";
  test::RecordingSurface surface;
  achsenRahmenZeichnen(surface, frame);
  achsenInhaltZeichnen(surface, frame, {});
  EXPECT_TRUE(contains(surface.texts(), "[mil]"));
}

TEST(AchsenRahmenZeichnen, StandsAtTheTrueHeightOfEachLabel) {
  AxisStand axis({0.1, -0.9, 0.5});
  axis.draw();
  for (const DrawingOp& op : axis.frameSurface.all(Kind::text)) {
    if (op.text == "+ 0.8") {
      EXPECT_NEAR(op.points[0].y, 0.8, 1e-12);
    }
    if (op.text == "- 0.4") {
      EXPECT_NEAR(op.points[0].y, -0.4, 1e-12);
    }
  }
}

TEST(HoehenText, HasOneDecimalWhereTheStepIsAFifth) {
  EXPECT_EQ(hoehenText(0.8, 1), "+ 0.8");
  EXPECT_EQ(hoehenText(0, 1), "+ 0.0");
  EXPECT_EQ(hoehenText(-1.6, 2), "- 1.6");
  EXPECT_EQ(hoehenText(0, 2), "+ 0");
  EXPECT_EQ(hoehenText(-0.00004 * 4, 0.0002), "- 0.00016");
}

TEST(Schritte, ThinOutLinesAndNumbers) {
  EXPECT_EQ(linienSchritt(50), 1);
  EXPECT_EQ(linienSchritt(51), 2);
  EXPECT_EQ(linienSchritt(100), 2);
  EXPECT_EQ(linienSchritt(101), 5);
  EXPECT_EQ(nummernSchritt(20), 1);
  EXPECT_EQ(nummernSchritt(21), 2);
  EXPECT_EQ(nummernSchritt(50), 2);
  EXPECT_EQ(nummernSchritt(51), 5);
  EXPECT_EQ(nummernSchritt(100), 5);
  EXPECT_EQ(nummernSchritt(101), 10);
}

AchsenRahmen frameOf(int points, std::vector<double>& z) {
  z.assign(static_cast<std::size_t>(points) + 1, 0);
  for (std::size_t i = 1; i < z.size(); ++i) z[i] = static_cast<double>(i - 1) * 1000 / (points - 1);
  AchsenRahmen frame;
  frame.Distanz = 1000;
  frame.AnzMPs = static_cast<std::int16_t>(points);
  frame.z = z;
  return frame;
}

struct Box {
  double left, right;
};
Box boxOf(test::RecordingSurface& surface, const AchsenText& text) {
  const double width = surface.textSize(text.text, text.look).width;
  return {text.ort.x - width / 2, text.ort.x + width / 2};
}

TEST(PunktNummern, NeverTouchEachOtherOrTheEdge) {
  for (const double width : {120.0, 300.0, 700.0, 1900.0}) {
    for (const int points : {2, 3, 6, 20, 21, 50, 51, 100, 101, 201}) {
      std::vector<double> z;
      const AchsenRahmen frame = frameOf(points, z);
      test::RecordingSurface surface(width, 300);
      surface.setWindow(achsenFenster(frame));
      const auto numbers = punktZeilen(surface, frame);
      ASSERT_FALSE(numbers.empty());
      EXPECT_NE(numbers.back().text.find(" [MP]"), std::string::npos);
      for (std::size_t i = 0; i < numbers.size(); ++i) {
        const Box box = boxOf(surface, numbers[i]);
        EXPECT_LE(box.right, achsenFenster(frame).right + 1e-9);
        if (i > 0) {
          EXPECT_LT(boxOf(surface, numbers[i - 1]).right, box.left) << points << " at " << width;
        }
      }
    }
  }
}

TEST(PunktNummern, StandUnderTheirPointsWhereThereIsRoom) {
  std::vector<double> z;
  const AchsenRahmen frame = frameOf(11, z);
  test::RecordingSurface surface(1900, 300);
  surface.setWindow(achsenFenster(frame));
  const auto numbers = punktZeilen(surface, frame);
  ASSERT_EQ(numbers.size(), 11U);
  for (std::size_t i = 0; i + 1 < numbers.size(); ++i) EXPECT_NEAR(numbers[i].ort.x, z[i + 1], 1e-9);
}

TEST(Hoehen, ShrinkToTheMarginAsFarAsTheyStayLegible) {
  std::vector<double> z;
  const AchsenRahmen frame = frameOf(11, z);
  const auto sizeAt = [&](double width) {
    test::RecordingSurface surface(width, 300);
    surface.setWindow(achsenFenster(frame));
    return hoehen(surface, frame).front().look.size;
  };
  EXPECT_EQ(sizeAt(1900), 1);
  EXPECT_LT(sizeAt(550), 1);
  EXPECT_EQ(sizeAt(100), 0.8);
}

bool overlap(const DataWindow& a, const DataWindow& b) {
  return a.left < b.right - 1e-9 && b.left < a.right - 1e-9 && a.bottom < b.top - 1e-9 &&
         b.bottom < a.top - 1e-9;
}

TEST(AchsenRahmenZeichnen, ItsLabelsNeverCoverEachOther) {
  for (const auto& [width, height] : {std::pair{260.0, 130.0}, std::pair{480.0, 170.0},
                                      std::pair{700.0, 330.0}, std::pair{1900.0, 800.0}}) {
    for (const double R : {0.002, 1.0, 20.0, 1000.0}) {
      std::vector<double> z;
      AchsenRahmen frame = frameOf(201, z);
      frame.R = R;
      frame.einheit = "mil";
      test::RecordingSurface surface(width, height);
      surface.setWindow(achsenFenster(frame));
      std::vector<AchsenText> all = punktZeilen(surface, frame);
      const std::vector<AchsenText> left = hoehen(surface, frame);
      all.insert(all.end(), left.begin(), left.end());
      all.push_back(einheitenText(surface, frame, left));
      for (std::size_t a = 0; a < all.size(); ++a) {
        const DataWindow box = raum(surface, all[a]);
        EXPECT_LE(box.top, achsenFenster(frame).top + 1e-9);
        EXPECT_GE(box.left, achsenFenster(frame).left - 1e-9);
        for (std::size_t b = 0; b < a; ++b) {
          EXPECT_FALSE(overlap(box, raum(surface, all[b])))
              << all[a].text << " and " << all[b].text << " at " << width << ", " << R;
        }
      }
    }
  }
}

TEST(AchsenRahmenZeichnen, CoversTheGridUnderALabelThatReachesIntoThePlot) {
  const auto covered = [](double width) {
    std::vector<double> z;
    AchsenRahmen frame = frameOf(6, z);
    frame.R = 0.002;
    frame.einheit = "mm";
    test::RecordingSurface surface(width, 400);
    achsenRahmenZeichnen(surface, frame);
    return surface.all(Kind::fill).size();
  };
  EXPECT_EQ(covered(1900), 0U);
  EXPECT_EQ(covered(500), 5U);  // all but the short "+ 0"
  EXPECT_EQ(covered(250), 6U);
}

TEST(AchsenRahmenZeichnen, TheUnitStandsBesideTheHighestHeightInALowPicture) {
  std::vector<double> z;
  const AchsenRahmen frame = frameOf(6, z);
  const auto unitAt = [&](double height) {
    test::RecordingSurface surface(700, height);
    surface.setWindow(achsenFenster(frame));
    return einheitenText(surface, frame, hoehen(surface, frame)).ort.x;
  };
  EXPECT_LT(unitAt(330), achsenFenster(frame).left * 0.9);
  EXPECT_GT(unitAt(140), 0);
}

TEST(AchsenFenster, HasALengthWithoutALine) {
  AchsenRahmen frame;
  frame.Distanz = 0;
  EXPECT_EQ(achsenFenster(frame).right - achsenFenster(frame).left, 1.1);
}

Lines paperTexts(const DiagrammBereich& range, bool withZ, int system) {
  std::vector<double> z;
  AchsenRahmen frame = frameOf(5, z);
  frame.R = range.bereich;
  achsenPapierRahmen(frame, range, withZ, system);
  test::RecordingSurface surface(1900, 900);
  achsenRahmenZeichnen(surface, frame);
  return surface.texts();
}

TEST(AchsenPapierRahmen, TellsHeightsInTheUnitOfTheRange) {
  EXPECT_EQ(paperTexts(bereichAnpassen(0.02, 0), false, 0),
            (Lines{"1", "2", "3", "4", "5 [MP]", "+ 16.0", "+ 8.0", "+ 0.0", "- 8.0", "- 16.0", "[um]"}));
  EXPECT_EQ(paperTexts(bereichAnpassen(1000, 1), false, 1),
            (Lines{"1", "2", "3", "4", "5 [MP]", "+ 0.8", "+ 0.4", "+ 0.0", "- 0.4", "- 0.8", "[in]"}));
  EXPECT_EQ(paperTexts(bereichAnpassen(0.02, 1), false, 1)[5], "+ 0.016");
}

TEST(AchsenPapierRahmen, SetsTheRowOfZOneLineBelowTheNumbers) {
  const std::vector<double> z = {0, 0, 500, 1000};
  AchsenRahmen frame{.R = 1, .Distanz = 1000, .z = z, .AnzMPs = 3, .einheit = {}};
  achsenPapierRahmen(frame, bereichAnpassen(1, 0), true, 0);
  test::RecordingSurface surface;
  achsenRahmenZeichnen(surface, frame);
  const auto height = [&](const std::string& wanted) {
    for (const DrawingOp& op : surface.all(Kind::text))
      if (op.text == wanted) return op.points[0].y;
    return 0.0;
  };
  EXPECT_EQ(height("2"), -1);
  EXPECT_DOUBLE_EQ(height("500.0"), -1 - surface.textSize("0", {}).height);
}

TEST(AchsenPapierRahmen, ShowsZBelowTheNumbers) {
  const Lines mm = paperTexts(bereichAnpassen(0.02, 0), true, 0);
  EXPECT_EQ(Lines(mm.begin(), mm.begin() + 12), (Lines{"[ MP]", "1", "2", "3", "4", "5 [MP]", "z[mm]", "0.0",
                                                       "250.0", "500.0", "750.0", "1000.0 [mm]"}));
  const Lines inch = paperTexts(bereichAnpassen(0.02, 1), true, 1);
  EXPECT_EQ(inch[6], "z[in]");
  EXPECT_EQ(inch[11], "39.4 [in]");
}

/// Texts of the height 1 with room enough.
std::vector<double> apart(std::vector<double> middles) {
  return auseinander(std::move(middles), 1, -100, 100);
}

TEST(Auseinander, MovesTextsAsLittleAsNeeded) {
  EXPECT_EQ(apart({0, 5}), (std::vector<double>{0, 5}));
  EXPECT_EQ(apart({5, 0}), (std::vector<double>{5, 0}));
  EXPECT_EQ(apart({0, 0}), (std::vector<double>{-0.5, 0.5}));
  EXPECT_EQ(apart({2, 0, 2.5}), (std::vector<double>{1.75, 0, 2.75}));
  EXPECT_TRUE(apart({}).empty());
}

TEST(Auseinander, MovesChainsAsAWhole) {
  const auto placed = apart({0, 0.1, 0.2, 1.6});
  std::vector<double> sorted = placed;
  std::sort(sorted.begin(), sorted.end());
  for (std::size_t i = 1; i < sorted.size(); ++i) EXPECT_GE(sorted[i] - sorted[i - 1], 1 - 1e-12);
}

TEST(Auseinander, KeepsWithinItsLimits) {
  EXPECT_EQ(auseinander({-2, 0}, 1, -2, 2), (std::vector<double>{-1.5, 0}));
  EXPECT_EQ(auseinander({1.9, 1.9}, 1, -2, 2), (std::vector<double>{0.5, 1.5}));
  // The lower group is pushed up against the next text, which joins it.
  EXPECT_EQ(auseinander({-2, -2, -0.4}, 1, -2, 2), (std::vector<double>{-1.5, -0.5, 0.5}));
  EXPECT_EQ(auseinander({0, 0, 0}, 1, -1, 1), (std::vector<double>{-0.5, 0.5, 1.5}));
}

TEST(AchsenInhaltZeichnen, DrawsTheCurveRedAndBridgesYellow) {
  AxisStand axis({0.1, 0.2, Leerwert, 0.4, 0.1});
  axis.draw();
  const auto curves = axis.content.all(Kind::polyline);
  ASSERT_EQ(curves.size(), 3U);
  EXPECT_EQ(curves[0].colour, 0x0000FF);
  EXPECT_EQ(curves[0].points, (std::vector<DataPoint>{{0, 0.1}, {250, 0.2}}));
  EXPECT_EQ(curves[1].colour, 0x00FFFF);
  EXPECT_EQ(curves[1].points, (std::vector<DataPoint>{{250, 0.2}, {750, 0.4}}));
  EXPECT_EQ(curves[2].colour, 0x0000FF);
}

TEST(AchsenInhaltZeichnen, DrawsOneLineThroughAllPointsOfAFullSeries) {
  AxisStand axis({});
  axis.series.Linie.AnzMPs = 201;
  ReiheLeeren(axis.series);
  for (std::size_t i = 1; i <= 201; ++i) axis.series.X.Wert.at(i) = static_cast<double>(i) * 0.001;
  axis.series.Info.Auswertung = AuswertungROH;
  axis.draw();
  const auto curves = axis.content.all(Kind::polyline);
  ASSERT_EQ(curves.size(), 1U);
  EXPECT_EQ(curves[0].points.size(), 201U);
}

TEST(AchsenInhaltZeichnen, RunsDottedAlongTheEdgeOfARangeByHand) {
  AxisStand axis({0, 2, 0});
  axis.series.X.Bereichsart = 1;
  axis.series.X.Bereich = 1;
  axis.draw();
  const auto curves = axis.content.all(Kind::polyline);
  ASSERT_EQ(curves.size(), 3U);
  EXPECT_EQ(curves[0].style, LineStyle::solid);
  EXPECT_EQ(curves[1].style, LineStyle::dotted);
  EXPECT_EQ(curves[1].points, (std::vector<DataPoint>{{250, 1}, {500, 1}, {750, 1}}));
  EXPECT_EQ(curves[2].style, LineStyle::solid);
}

TEST(AchsenInhaltZeichnen, ClipsInTOLBetweenHalfAndWholeTolerance) {
  AxisStand axis({0, 0.08});
  axis.series.X.Bereichsart = 2;
  axis.series.X.Gesamt = 0.1;
  axis.draw();
  EXPECT_EQ(axis.data.bereich.bereich, 0.05);
  EXPECT_EQ(axis.content.all(Kind::polyline).back().style, LineStyle::dotted);
}

TEST(AchsenInhaltZeichnen, DrawsTheCursorBlackFromEdgeToEdge) {
  AxisStand axis({0, 0.8});
  axis.series.Linie.AktMP = 2;
  axis.draw();
  EXPECT_TRUE(contains(axis.content.lines(), "line (1000, -1) (1000, 1) 000000"));
}

TEST(AchsenInhaltZeichnen, DrawsStatisticsWithTheirLetters) {
  AxisStand axis({0.1, 0.4, -0.3});
  axis.series.Info.SFak = 1;
  axis.series.Info.ZeigeMittel = axis.series.Info.ZeigeStreuung = axis.series.Info.ZeigeSpanne = true;
  axis.draw();
  EXPECT_EQ(axis.content.texts(), (Lines{"x", "s", "s", "R", "R"}));
  for (const DrawingOp& op : axis.content.all(Kind::line)) {
    if (op.style == LineStyle::dashed) {
      EXPECT_EQ(op.colour, 0x808080);
      EXPECT_EQ(op.points[0].x, 0);
      EXPECT_EQ(op.points[1].x, 1000);
    }
  }
}

TEST(AchsenInhaltZeichnen, SetsTheLettersBesideTheirLines) {
  AxisStand axis({0.001, 0.02, 0.028, 0.004});
  axis.series.Info.ZeigeMittel = axis.series.Info.ZeigeSpanne = true;
  axis.tolerance(0.04, BezugMinimum);
  axis.draw();
  const auto texts = axis.content.all(Kind::text);
  ASSERT_EQ(axis.content.texts(), (Lines{"t", "t", "x", "R", "R"}));
  for (const DrawingOp& op : texts) {
    if (op.text == "t") {
      EXPECT_GT(op.points[0].x, 0) << "by the first point";
      EXPECT_LT(op.points[0].x, 20);
    } else {
      EXPECT_GT(op.points[0].x, 1000) << "behind the last point";
      EXPECT_LT(op.points[0].x, achsenFenster({.R = 1, .Distanz = 1000, .z = {}, .einheit = {}}).right);
    }
  }
}

TEST(AchsenRahmenZeichnen, BeginsOnACleanGround) {
  AxisStand axis({0.1, 0.5});
  axis.draw();
  const auto& cleared = axis.frameSurface.all(Kind::clear);
  ASSERT_EQ(cleared.size(), 1U);
  EXPECT_EQ(cleared[0].colour, FarbeAchsenGrund);
}

TEST(AchsenInhaltZeichnen, SetsDiscsOnTheValuesInsideTheRangeWhereACurveHasThem) {
  const std::vector<double> values = {4, 0.5, Leerwert, 2, -1};
  const std::vector<double> z = {0, 0, 100, 200, 300};
  AchsenRahmen frame{.R = 1, .Distanz = 300, .z = z, .AnzMPs = 4, .einheit = "mm"};
  AchsenInhalt content;
  content.kurven.push_back({.werte = {values, z}, .farbe = 0x123456, .punkte = true});
  test::RecordingSurface surface;
  achsenInhaltZeichnen(surface, frame, content);
  const auto discs = surface.all(Kind::disc);
  ASSERT_EQ(discs.size(), 2U) << "not on an open value, nor on one beyond the range";
  EXPECT_EQ(discs[0].points[0], (DataPoint{0, 0.5}));
  EXPECT_EQ(discs[1].points[0], (DataPoint{300, -1}));
  EXPECT_EQ(discs[0].colour, 0x123456);
  EXPECT_DOUBLE_EQ(discs[0].radius, 6 * surface.lineWidth().width);
  content.kurven[0].punkte = false;
  test::RecordingSurface without;
  achsenInhaltZeichnen(without, frame, content);
  EXPECT_TRUE(without.all(Kind::disc).empty());
}

TEST(AchsenInhaltZeichnen, DiscsAreSmallerWherePointsStandClose) {
  const auto radius = [](std::size_t points) {
    std::vector<double> values(points + 1, 0.5);
    values[0] = static_cast<double>(points);
    const std::vector<double> z(points + 1, 100);
    AchsenRahmen frame{
        .R = 1, .Distanz = 300, .z = z, .AnzMPs = static_cast<std::int16_t>(points), .einheit = "mm"};
    AchsenInhalt content;
    content.kurven.push_back({.werte = {values, z}, .punkte = true});
    test::RecordingSurface surface(1100, 900);
    achsenInhaltZeichnen(surface, frame, content);
    return surface.all(Kind::disc).at(0).radius / surface.lineWidth().width;
  };
  EXPECT_DOUBLE_EQ(radius(20), 6);
  EXPECT_DOUBLE_EQ(radius(80), 1000 / 80.0 / 3) << "a third of their distance";
  EXPECT_DOUBLE_EQ(radius(200), 3);
}

TEST(AchsenInhaltZeichnen, CurvesAreTwiceAsWideAsLines) {
  AxisStand axis({0.1, 0.4, -0.3});
  axis.series.Info.ZeigeMittel = true;
  axis.draw();
  for (const DrawingOp& op : axis.content.all(Kind::polyline)) EXPECT_EQ(op.width, 2);
  for (const DrawingOp& op : axis.content.all(Kind::line)) EXPECT_EQ(op.width, 1);
}

TEST(AchsenInhaltZeichnen, DrawsTheBandDottedAndItsLetterOnlyInsideTheRange) {
  for (const auto& [reference, letters] :
       {std::pair{BezugMinimum, 1}, std::pair{BezugNull, 0}, std::pair{BezugMaximum, 1}}) {
    AxisStand axis({0.001, 0.006});
    axis.tolerance(0.03, reference);
    axis.draw();
    const auto all = axis.content.all(Kind::line);
    EXPECT_EQ(std::count_if(all.begin(), all.end(),
                            [](const DrawingOp& op) { return op.style == LineStyle::dotted; }),
              2);
    const Lines texts = axis.content.texts();
    EXPECT_EQ(std::count(texts.begin(), texts.end(), "t"), letters);
  }
}

TEST(AchsenInhaltZeichnen, MarksTheReferencePointsOnTheZeroLine) {
  AxisStand axis({0.1, 0.5, -0.3});
  axis.series.Info.Auswertung = AuswertungREF;
  axis.series.Info.Ref2 = 3;
  axis.draw();
  const auto circles = axis.content.all(Kind::circle);
  ASSERT_EQ(circles.size(), 2U);
  EXPECT_EQ(circles[0].points[0], (DataPoint{0, 0}));
  EXPECT_EQ(circles[0].radius, 5);
  EXPECT_EQ(circles[1].points[0], (DataPoint{1000, 0}));
  EXPECT_TRUE(contains(axis.content.texts(), "Ref1") && contains(axis.content.texts(), "Ref2"));
}

TEST(AchsenInhaltZeichnen, KeepsTheMarksInsideThePicture) {
  AxisStand axis({0.1, 0.5, -0.3});
  axis.series.Info.Auswertung = AuswertungREF;
  axis.draw();
  for (const DrawingOp& op : axis.content.all(Kind::text)) {
    if (op.text == "Ref1") {
      EXPECT_EQ(op.horizontal, HorizontalAnchor::left);
      EXPECT_EQ(op.points[0], (DataPoint{10, 0})) << "as far off the circle as it is wide";
    }
    if (op.text == "Ref2") {
      EXPECT_EQ(op.horizontal, HorizontalAnchor::right);
      EXPECT_EQ(op.points[0], (DataPoint{990, 0}));
    }
  }
}

TEST(AchsenInhaltZeichnen, KeepsMarksAndLettersOfLinesApart) {
  // On a large screen the margin would hold the word of the last mark, too.
  for (const double pixels : {600.0, 2400.0}) {
    AxisStand axis({0, 0.5, -0.3, 0});
    axis.series.Info.Auswertung = AuswertungREF;
    axis.series.Info.SFak = 1;
    axis.series.Info.ZeigeMittel = axis.series.Info.ZeigeStreuung = axis.series.Info.ZeigeSpanne = true;
    axis.tolerance(0.01, BezugNull);
    axis.content = test::RecordingSurface(pixels, pixels / 2);
    axis.draw();
    const auto circles = axis.content.all(Kind::circle);
    ASSERT_EQ(circles.size(), 2U);
    int letters = 0;
    for (const DrawingOp& op : axis.content.all(Kind::text)) {
      if (op.text == "Ref2") {
        EXPECT_LE(op.points[0].x, 1000 - circles[1].radius);
        EXPECT_EQ(op.horizontal, HorizontalAnchor::right);
      } else if (op.text != "Ref1") {
        ++letters;
        const double end = op.text == "t" ? 0 : 1000;
        EXPECT_GT(op.points[0].x, end + circles[1].radius) << op.text;
      }
    }
    EXPECT_EQ(letters, 7);
  }
}

TEST(AchsenInhaltZeichnen, SetsTheWordOfAMarkOffTheCurve) {
  const auto anchors = [](std::initializer_list<double> readings) {
    AxisStand axis(readings);
    axis.series.Info.Auswertung = AuswertungREF;
    axis.draw();
    std::vector<VerticalAnchor> found;
    for (const DrawingOp& op : axis.content.all(Kind::text)) found.push_back(op.vertical);
    return found;
  };
  using enum VerticalAnchor;
  EXPECT_EQ(anchors({0, 0.5, -0.3, 0}), (std::vector{top, bottom}));
  EXPECT_EQ(anchors({0, -0.5, 0.3, 0}), (std::vector{bottom, top}));
  EXPECT_EQ(anchors({0, 0, 0, 0}), (std::vector{bottom, bottom}));
}

TEST(AchsenInhaltZeichnen, DrawsTheRangeOnTheEdgeWithItsLetter) {
  AxisStand axis({-0.5, 0.5});
  axis.series.Info.ZeigeSpanne = true;
  axis.draw();
  ASSERT_EQ(axis.data.bereich.bereich, 0.5);
  EXPECT_EQ(axis.content.texts(), (Lines{"R", "R"}));
}

}  // namespace
}  // namespace korvin
