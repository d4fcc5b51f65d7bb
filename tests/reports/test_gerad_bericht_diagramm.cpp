#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "frame/leerwert.h"
#include "reports/gerad_stand.h"
#include "reports/paper_texts.h"
#include "straightness/achsen_bereich.h"
#include "straightness/achsen_diagramm.h"
#include "straightness/toleranz.h"

namespace korvin {
namespace {

using test::DruckMarke;
using test::PaperText;

constexpr double charWidth = 8 * 0.5 * 25.4 / 72;   // of a diagram's text, mm
constexpr double textHeight = 8 * 1.2 * 25.4 / 72;  // mm

/// Places on the page of a diagram whose rectangle begins at `top`, over a line of `length` mm with the half
/// range `R`.
struct Places {
  double top;
  double length;
  double R;

  double x(double z) const { return 20 + (z / length * 50 + 3) / 55 * 172; }
  double y(double height) const { return top + (53 - height / R * 50) / 118 * 85; }
};

class GeradDiagramm : public test::GeradStand {
 protected:
  /// Texts of the page within the rectangle of a diagram.
  static bool inside(const DruckMarke& mark, double top) {
    return mark.x >= 20 - 1e-6 && mark.x2 <= 192 + 1e-6 && mark.y >= top - 1e-6 && mark.y2 <= top + 85 + 1e-6;
  }
  std::vector<std::string> textsOf(double top) const {
    std::vector<std::string> texts;
    for (const DruckMarke& mark : paper.texte(1))
      if (inside(mark, top) && mark.groesse <= 8) texts.push_back(mark.text);
    return texts;
  }
  bool has(double top, const std::string& text) const {
    const auto texts = textsOf(top);
    return std::find(texts.begin(), texts.end(), text) != texts.end();
  }
  std::vector<DruckMarke> lines(Farbe colour) const {
    std::vector<DruckMarke> found;
    for (const DruckMarke& line : paper.linien(1))
      if (line.farbe == colour) found.push_back(line);
    return found;
  }
  bool line(Farbe colour, double x1, double y1, double x2, double y2) const {
    const auto near = [](double a, double b) { return std::abs(a - b) < 1e-6; };
    const auto found = lines(colour);
    return std::any_of(found.begin(), found.end(), [&](const DruckMarke& l) {
      return (near(l.x, x1) && near(l.y, y1) && near(l.x2, x2) && near(l.y2, y2)) ||
             (near(l.x, x2) && near(l.y, y2) && near(l.x2, x1) && near(l.y2, y1));
    });
  }
  /// Where a disc was printed, by its strips.
  std::vector<DataPoint> discs() const {
    std::vector<DataPoint> centres;
    const auto strips = paper.marken(1, DruckMarke::Art::flaeche);
    double top = 0;
    for (std::size_t i = 0; i < strips.size(); ++i) {
      if (strips[i].farbe != FarbeKurve) continue;
      const bool first =
          i == 0 || strips[i - 1].farbe != FarbeKurve || std::abs(strips[i].y - strips[i - 1].y2) > 1e-6;
      const bool last = i + 1 == strips.size() || std::abs(strips[i + 1].y - strips[i].y2) > 1e-6;
      if (first) top = strips[i].y;
      if (last) centres.push_back({(strips[i].x + strips[i].x2) / 2, (top + strips[i].y2) / 2});
    }
    return centres;
  }

  static constexpr double topX = 78;
  static constexpr double topY = 180;
  static constexpr GeradBerichtTeile onlyX{true, false, false, false};
  static constexpr GeradBerichtTeile onlyY{false, true, false, false};
};

// ---- Where it stands ----

TEST_F(GeradDiagramm, XStandsAboveY) {
  readings({0.004, -0.002, 0.003});
  print(bothDiagrams);
  EXPECT_EQ(paper.seite(), 1);
  EXPECT_EQ(paper.enden, 1);
  EXPECT_EQ(at(1, 37.4, 69.8), "X-D3017:  D3060");
  EXPECT_EQ(at(1, 37.4, 171.8), "Y-D3017:  D3060");
  EXPECT_TRUE(has(topX, "+ 4.0")) << "5 um";
  EXPECT_TRUE(has(topY, "+ 1.6")) << "2 um";
}

TEST_F(GeradDiagramm, ASingleYStandsWhereXStands) {
  readings({0.004, -0.002, 0.003});
  print(onlyY);
  EXPECT_EQ(at(1, 37.4, 69.8), "Y-D3017:  D3060");
  EXPECT_EQ(at(1, 33.4, 74.8), "Y t");
  EXPECT_EQ(at(1, 37.4, 171.8), "");
  EXPECT_TRUE(has(topX, "+ 1.6"));
  EXPECT_TRUE(textsOf(topY).empty());
}

TEST_F(GeradDiagramm, XAloneLeavesTheLowerPlaceFree) {
  readings({0.004, -0.002, 0.003});
  print(onlyX);
  EXPECT_TRUE(has(topX, "+ 4.0"));
  EXPECT_TRUE(textsOf(topY).empty());
  EXPECT_EQ(at(1, 37.4, 171.8), "");
}

TEST_F(GeradDiagramm, ItsWindowFillsTheRectangleWithItsMargins) {
  series.Info.ZeigeMittel = true;
  series.Info.ZeigeSpanne = true;
  readings({0.02, -0.02, 0.003});
  series.Info.ZeigeMittel = true;
  series.Info.ZeigeSpanne = true;
  print(onlyX);
  double left = 210;
  double right = 0;
  for (const DruckMarke& mark : paper.alle) {
    if (mark.y < 79 || mark.y2 > 270) continue;
    EXPECT_GE(std::min(mark.x, mark.x2), 20 - 1e-6) << mark.text;
    EXPECT_LE(mark.x2, 192 + 1e-6) << mark.text;
    EXPECT_LE(mark.y2, 163 + 1e-6) << mark.text;
    if (mark.art != DruckMarke::Art::linie) continue;
    left = std::min(left, mark.x);
    right = std::max(right, mark.x2);
  }
  const Places places{topX, 1000, 0.02};
  EXPECT_NEAR(left, places.x(0), 1e-6);
  EXPECT_NEAR(right, places.x(1000), 1e-6);
}

// ---- Its texts ----

TEST_F(GeradDiagramm, EveryTextOfTheReferenceAtItsPlace) {
  reference("six.G");
  print(onlyX);
  const Places places{topX, 2500, 0.05};
  std::vector<PaperText> expected;
  const double numbers = places.y(-0.05);
  const auto centred = [&](double z, double y, const std::string& text) {
    expected.push_back({places.x(z) - static_cast<double>(text.size()) * charWidth / 2, y, text, 8});
  };
  expected.push_back({20.2, numbers, "[ MP]", 8});
  for (int point = 1; point <= 5; ++point) centred(500.0 * (point - 1), numbers, std::to_string(point));
  centred(2500, numbers, "6 [MP]");
  expected.push_back({20.2, numbers + textHeight, "z[mm]", 8});
  // There is no room for 0.0 beside the row's name.
  for (const char* z : {"500.0", "1000.0", "1500.0", "2000.0"})
    centred(std::stod(z), numbers + textHeight, z);
  // The last one ends at the edge.
  expected.push_back({192, numbers + textHeight, "2500.0 [mm]", 8, false, true});
  for (const auto& [um, text] : {std::pair{40, "+ 40.0"}, std::pair{20, "+ 20.0"}, std::pair{0, "+ 0.0"},
                                 std::pair{-20, "- 20.0"}, std::pair{-40, "- 40.0"}})
    expected.push_back({20.2, places.y(um * 0.001) - textHeight / 2, text, 8});
  expected.push_back({20.2, topX, "[um]", 8});
  const double beside = places.x(2500) + 0.6 + 0.2;  // off the disc on the last point
  expected.push_back({beside, places.y(0) - textHeight / 2, "x", 8});
  expected.push_back({beside, places.y(0.0228933333333) - textHeight / 2, "R", 8});
  expected.push_back({beside, places.y(-0.0255666666667) - textHeight / 2, "R", 8});
  for (const std::string& other : othersThan(expected, paper, 1)) EXPECT_FALSE(has(topX, other)) << other;
}

TEST_F(GeradDiagramm, InMilHeightsAreInMilAndZInInch) {
  reference("six.G");
  Masssystem = 1;
  print(onlyX);
  EXPECT_TRUE(has(topX, "[mil]"));
  EXPECT_TRUE(has(topX, "+ 1.6")) << "2 mil";
  EXPECT_TRUE(has(topX, "z[in]"));
  EXPECT_TRUE(has(topX, "98.4 [in]"));
  EXPECT_TRUE(has(topX, "19.7"));
}

TEST_F(GeradDiagramm, ALineWithoutALengthShowsNoZ) {
  readings({0.004, -0.002});
  series.Linie.Distanz = 0;
  print(onlyX);
  EXPECT_FALSE(has(topX, "z[mm]"));
  EXPECT_FALSE(has(topX, "[ MP]"));
  EXPECT_TRUE(has(topX, "2 [MP]"));
}

TEST_F(GeradDiagramm, MovedPointsStandWhereTheyAre) {
  readings({0.004, -0.002, 0.003});
  series.Linie.Z.at(2) = 650;
  print(onlyX);
  EXPECT_TRUE(has(topX, "650.0"));
  EXPECT_TRUE(line(FarbeAchsenGitter, Places{topX, 1000, 0.005}.x(650), Places{topX, 1000, 0.005}.y(0.005),
                   Places{topX, 1000, 0.005}.x(650), Places{topX, 1000, 0.005}.y(-0.005)));
}

// ---- Frame and grid ----

TEST_F(GeradDiagramm, TheGridComesWithItsSwitchTheFrameAlways) {
  readings({0.004, -0.002, 0.003});
  const Places places{topX, 1000, 0.005};
  const double left = places.x(0);
  const double right = places.x(1000);
  const double top = places.y(0.005);
  const double bottom = places.y(-0.005);
  for (const bool grid : {true, false}) {
    series.Info.Gitter = grid;
    print(onlyX);
    EXPECT_EQ(lines(FarbeAchsenGitter).size(), grid ? 11U + 3U : 0U);
    EXPECT_TRUE(line(FarbeAchsenLinie, left, top, right, top));
    EXPECT_TRUE(line(FarbeAchsenLinie, left, bottom, right, bottom));
    EXPECT_TRUE(line(FarbeAchsenLinie, left, top, left, bottom));
    EXPECT_TRUE(line(FarbeAchsenLinie, right, top, right, bottom));
    EXPECT_TRUE(line(FarbeAchsenLinie, left, places.y(0), right, places.y(0))) << "zero line";
    EXPECT_TRUE(has(topX, "+ 4.0"));
    EXPECT_TRUE(has(topX, "3 [MP]"));
  }
}

// ---- Curve ----

TEST_F(GeradDiagramm, TheCurveRunsFromPointToPointWithAMarkOnEach) {
  readings({0.004, -0.002, 0.003});
  print(onlyX);
  const Places places{topX, 1000, 0.005};
  const std::vector<DataPoint> points{
      {places.x(0), places.y(0.004)}, {places.x(500), places.y(-0.002)}, {places.x(1000), places.y(0.003)}};
  EXPECT_TRUE(line(FarbeKurve, points[0].x, points[0].y, points[1].x, points[1].y));
  EXPECT_TRUE(line(FarbeKurve, points[1].x, points[1].y, points[2].x, points[2].y));
  EXPECT_EQ(lines(FarbeKurve).size(), 2U);
  const auto marks = discs();
  ASSERT_EQ(marks.size(), 3U);
  for (std::size_t i = 0; i < 3; ++i) {
    EXPECT_NEAR(marks[i].x, points[i].x, 1e-6);
    EXPECT_NEAR(marks[i].y, points[i].y, 1e-6);
  }
}

TEST_F(GeradDiagramm, OpenPointsAreBridgedInYellowAndHaveNoMark) {
  readings({0.004, Leerwert, 0.003, 0.001});
  print(onlyX);
  const Places places{topX, 1000, 0.005};
  const auto bridge = lines(FarbeUeberbrueckt);
  ASSERT_EQ(bridge.size(), 1U);
  EXPECT_NEAR(bridge[0].x, places.x(0), 1e-6);
  EXPECT_NEAR(bridge[0].x2, places.x(2000.0 / 3), 1e-6);
  EXPECT_EQ(discs().size(), 3U);
}

TEST_F(GeradDiagramm, RangesHoldAndClipAsOnTheScreen) {
  readings({0.004, -0.002, 0.003});
  series.X.Bereichsart = BereichsartHAND;
  series.X.Bereich = 0.002;
  print(onlyX);
  const Places places{topX, 1000, 0.002};
  EXPECT_TRUE(has(topX, "+ 1.6"));
  for (const DruckMarke& piece : lines(FarbeKurve)) {
    EXPECT_GE(std::min(piece.y, piece.y2), places.y(0.002) - 1e-6);
    EXPECT_LE(std::max(piece.y, piece.y2), places.y(-0.002) + 1e-6);
  }
  EXPECT_GT(lines(FarbeKurve).size(), 10U) << "dots along the edge";
  EXPECT_EQ(discs().size(), 1U) << "only the second lies inside";
}

TEST_F(GeradDiagramm, TheCursorIsTheScreensOwn) {
  readings({0.004, -0.002, 0.003});
  series.Linie.AktMP = 2;
  print(onlyX);
  const Places places{topX, 1000, 0.005};
  EXPECT_FALSE(line(FarbeCursor, places.x(500), places.y(0.005), places.x(500), places.y(-0.005)));
}

// ---- What the switches show ----

TEST_F(GeradDiagramm, LinesComeWithTheirSwitches) {
  readings({0.004, -0.002, 0.003});
  series.X.Gesamt = 0.004;
  series.X.ToleranzBezug = BezugNull;
  const auto letters = [this] {
    std::string found;
    for (const DruckMarke& mark : paper.texte(1))
      if (inside(mark, topX) && mark.text.size() == 1 && std::string("xsRt").find(mark.text) < 4)
        found += mark.text;
    return found;
  };
  print(onlyX);
  EXPECT_EQ(letters(), "");
  series.Info.ZeigeMittel = true;
  print(onlyX);
  EXPECT_EQ(letters(), "x");
  series.Info.ZeigeStreuung = true;
  series.Info.SFak = 1;
  print(onlyX);
  EXPECT_EQ(letters(), "xss");
  series.Info.ZeigeSpanne = true;
  print(onlyX);
  EXPECT_EQ(letters(), "xssRR");
  series.Info.ZeigeAbschnitt = true;
  print(onlyX);
  EXPECT_EQ(letters(), "ttxssRR") << "those at the left edge come first";
}

TEST_F(GeradDiagramm, ReferencePointsAreMarkedInREF) {
  readings({0.004, -0.002, 0.003, 0.001});
  series.Info.Ref1 = 2;
  series.Info.Ref2 = 3;
  print(onlyX);
  EXPECT_FALSE(has(topX, "Ref1"));
  series.Info.Auswertung = AuswertungREF;
  print(onlyX);
  EXPECT_TRUE(has(topX, "Ref1"));
  EXPECT_TRUE(has(topX, "Ref2"));
  const auto circles = paper.marken(1, DruckMarke::Art::kreis);
  ASSERT_EQ(circles.size(), 2U);
  const Places places{topX, 1000, 0.02};
  EXPECT_NEAR(circles[0].x, places.x(1000.0 / 3), 1e-6);
  EXPECT_NEAR(circles[0].y, places.y(0), 1e-6);
  EXPECT_NEAR(circles[0].radius, 172.0 / 55 * 50 / 200, 1e-6) << "a 200th of the line";
  EXPECT_EQ(circles[0].farbe, FarbeRot);
}

// ---- The scale afterwards ----

TEST_F(GeradDiagramm, TheFootIsInMillimetresAgain) {
  readings({0.004, -0.002, 0.003});
  print(bothDiagrams);
  EXPECT_EQ(at(1, 20, 275), "D3062Vantro Systems AG, Neustadt");
  EXPECT_EQ(at(1, 37.4, 171.8), "Y-D3017:  D3060");
  const auto rules = paper.linien(1);
  EXPECT_TRUE(std::all_of(rules.begin(), rules.end(), [](const DruckMarke& rule) {
    return rule.farbe != 0 || rule.y < 21 || rule.breite == 1;
  })) << "rules of the lower block are as thin as those of the upper one";
}

}  // namespace
}  // namespace korvin
