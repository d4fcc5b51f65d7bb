#include "straightness/achsen_anzeige.h"

#include <gtest/gtest.h>

#include "straightness/achsen_bereich.h"
#include "straightness/axis_stand.h"

namespace korvin {
namespace {

constexpr std::int16_t Inch = 1;

TEST(AchseBerechnen, GivesOnlyTheLinesThatAreSwitchedOn) {
  AxisStand axis({0.001, 0.002, 0.006});
  axis.draw();
  EXPECT_FALSE(axis.data.texte.Mittel || axis.data.texte.Streuung || axis.data.texte.Spanne);
  EXPECT_FALSE(axis.data.texte.ErgebnisGesamt || axis.data.texte.ToleranzAbschnitt);
  EXPECT_EQ(axis.data.texte.Bereich, "±10um");
  EXPECT_EQ(axis.data.texte.Wert, " 0.001");
}

TEST(AchseBerechnen, TellsMeanDeviationAndRange) {
  AxisStand axis({0.001, 0.002, 0.006});
  axis.series.Info.ZeigeMittel = axis.series.Info.ZeigeStreuung = axis.series.Info.ZeigeSpanne = true;
  axis.draw();
  EXPECT_EQ(axis.data.texte.Mittel, "x 0.003");
  EXPECT_EQ(axis.data.texte.Streuung, "±2s 0.005");
  EXPECT_EQ(axis.data.texte.Spanne, "R 0.005");
  EXPECT_DOUBLE_EQ(axis.series.X.Mittel, 0.003);
  EXPECT_NEAR(axis.series.X.Streuung, 0.00264575131, 1e-11);
  EXPECT_EQ(axis.series.X.MaxWert, 0.006);
  EXPECT_EQ(axis.series.X.MinWert, 0.001);
}

TEST(AchseBerechnen, AsksWhereThereAreNoValues) {
  AxisStand axis({Leerwert, Leerwert});
  axis.series.Info.ZeigeMittel = axis.series.Info.ZeigeStreuung = axis.series.Info.ZeigeSpanne = true;
  axis.tolerance(0.02, BezugMinimum);
  axis.draw();
  EXPECT_EQ(axis.data.texte.Mittel, "x  ?.?");
  EXPECT_EQ(axis.data.texte.Streuung, "±2s ?.?");
  EXPECT_EQ(axis.data.texte.Spanne, "R ?.?");
  EXPECT_EQ(axis.data.texte.ErgebnisGesamt, "?.?");
  EXPECT_EQ(axis.data.texte.ErgebnisAbschnitt, "?.? / ? z ?");
  EXPECT_EQ(axis.data.texte.Wert, "?.?");
  EXPECT_FALSE(axis.data.band);
  EXPECT_EQ(axis.series.X.Mittel, Leerwert);
}

TEST(AchseBerechnen, DeviationOfOneValueIsUnknown) {
  AxisStand axis({0.002, Leerwert});
  axis.series.Info.ZeigeStreuung = true;
  axis.draw();
  EXPECT_EQ(axis.data.texte.Streuung, "±2s ?.?");
}

TEST(AchseBerechnen, LeavesResultsThatAreNotShownAsTheyWere) {
  AxisStand axis({0.001, 0.002, 0.006});
  axis.series.X.Mittel = axis.series.X.MaxWert = axis.series.X.AbschnittWert = 77;
  axis.draw();
  EXPECT_EQ(axis.series.X.Mittel, 77);
  EXPECT_EQ(axis.series.X.MaxWert, 77);
  EXPECT_EQ(axis.series.X.AbschnittWert, 77);
}

TEST(AchseBerechnen, TellsToleranceAndWorstSection) {
  AxisStand axis({0.001, 0.002, 0.006});
  axis.tolerance(0.02, BezugNull);
  axis.series.X.ProEinheit = 500;
  axis.series.X.WertPro = 0.003;
  axis.draw();
  EXPECT_EQ(axis.data.texte.ToleranzGesamt, "±0.010");
  EXPECT_EQ(axis.data.texte.ToleranzAbschnitt, "0.003/500.0");
  EXPECT_EQ(axis.data.texte.ErgebnisGesamt, "0.006 , 0.001");
  EXPECT_EQ(axis.data.texte.ErgebnisAbschnitt, "0.004/500.0/2");
  EXPECT_EQ(axis.series.X.AbschnittStart, 2);
}

TEST(AchseBerechnen, OpenPointsOfROHInInchSpoilTheStatisticsButNotTheCurve) {
  AxisStand axis({0.0254, Leerwert, 0.0508});
  axis.series.Info.ZeigeSpanne = true;
  axis.draw(Inch);
  EXPECT_EQ(axis.data.texte.Spanne, "R 39329.709");
  EXPECT_EQ(axis.data.bereich.bereich, 2);
  EXPECT_EQ(axis.data.kurve.at(2), Leerwert);
  axis.series.Linie.AktMP = 2;
  axis.draw(Inch);
  EXPECT_EQ(axis.data.texte.Wert, "?.?");
}

TEST(AchseBerechnen, CurveHasNoOpenPointAtEitherEnd) {
  AxisStand axis({Leerwert, 0.0254, Leerwert});
  axis.draw(Inch);
  EXPECT_EQ(axis.data.kurve.at(1), Leerwert);
  EXPECT_EQ(axis.data.kurve.at(3), Leerwert);
}

TEST(AchseBerechnen, AsksForTheValueWhereTheCursorStandsNowhere) {
  AxisStand axis({0.001, 0.002});
  for (const std::int16_t point : {std::int16_t{0}, std::int16_t{-1}, std::int16_t{3}, std::int16_t{202}}) {
    axis.series.Linie.AktMP = point;
    axis.draw();
    EXPECT_EQ(axis.data.texte.Wert, "?.?");
    for (const auto& op : axis.content.all(test::DrawingOp::Kind::line)) EXPECT_NE(op.colour, FarbeCursor);
  }
}

std::vector<std::pair<double, std::string>> lines(const AxisStand& axis) {
  std::vector<std::pair<double, std::string>> found;
  for (const auto& line : achsenZusatzlinien(axis.data, achsenSchalter(axis.series.Info, 0)))
    found.emplace_back(line.hoehe, line.text);
  return found;
}

TEST(AchsenZusatzlinien, LeaveOutWhatLiesBeyondTheRange) {
  AxisStand axis({-0.02, 0.02});
  axis.series.Info.ZeigeMittel = axis.series.Info.ZeigeStreuung = axis.series.Info.ZeigeSpanne = true;
  axis.draw();  // range 0.02: extremes on the edge, deviation beyond
  EXPECT_EQ(lines(axis), (std::vector<std::pair<double, std::string>>{{0, "x"}, {0.02, "R"}, {-0.02, "R"}}));
  axis.series.X.Bereichsart = BereichsartHAND;
  axis.series.X.Bereich = 0.01;
  axis.draw();
  EXPECT_EQ(lines(axis), (std::vector<std::pair<double, std::string>>{{0, "x"}}));
}

TEST(AchsenZusatzlinien, StandAboutTheMeanAlsoWhereItIsNotShown) {
  AxisStand axis({0.001, 0.002, 0.003, 0.004});
  axis.series.Info.SFak = 1;
  axis.series.Info.ZeigeStreuung = true;
  axis.draw();
  const auto found = lines(axis);
  ASSERT_EQ(found.size(), 2U);
  EXPECT_NEAR(found[0].first, 0.0025 + 0.00129099445, 1e-11);
  EXPECT_NEAR(found[1].first, 0.0025 - 0.00129099445, 1e-11);
  EXPECT_EQ(found[0].second, "s");
}

TEST(AchsenZusatzlinien, HoldTheBandWithinTheRange) {
  for (const auto& [reference, below, above] :
       {std::tuple{BezugMinimum, 0.001, 0.01}, std::tuple{BezugNull, -0.01, 0.01},
        std::tuple{BezugMaximum, -0.01, 0.006}}) {
    AxisStand axis({0.001, 0.006});
    axis.tolerance(0.03, reference);
    axis.draw();
    ASSERT_EQ(axis.data.bereich.bereich, 0.01);
    EXPECT_EQ(lines(axis), (std::vector<std::pair<double, std::string>>{{above, above < 0.01 ? "t" : ""},
                                                                        {below, below > -0.01 ? "t" : ""}}));
  }
}

TEST(ReferenzMarken, StandAtBothPointsInREFAlone) {
  AxisStand axis({0.001, 0.002, 0.003});
  axis.series.Info.Ref1 = 2;
  EXPECT_TRUE(referenzMarken(achsenQuelle(axis.series, axis.series.X, 0)).empty());
  axis.series.Info.Auswertung = AuswertungREF;
  const auto marks = referenzMarken(achsenQuelle(axis.series, axis.series.X, 0));
  ASSERT_EQ(marks.size(), 2U);
  EXPECT_EQ(marks[0].z, 500);
  EXPECT_EQ(marks[0].text, "Ref1");
  EXPECT_EQ(marks[1].z, 1000);
  EXPECT_EQ(marks[1].text, "Ref2");
  EXPECT_EQ(marks[0].farbe, FarbeRot);
}

TEST(ReferenzMarken, AreGreyWithAnOpenReferencePoint) {
  AxisStand axis({0.001, 0.002, Leerwert});
  axis.series.Info.Auswertung = AuswertungREF;
  for (const auto& mark : referenzMarken(achsenQuelle(axis.series, axis.series.X, 0)))
    EXPECT_EQ(mark.farbe, 0x808080);
}

TEST(PunktHinweis, TellsNumberZAndValueInTheUnitsShown) {
  AxisStand axis({0.001, Leerwert, 0.0254});
  const auto hint = [&](std::int16_t point, std::int16_t system) {
    axis.draw(system);
    return punktHinweis(achsenQuelle(axis.series, axis.series.X, system), axis.data,
                        achsenSchalter(axis.series.Info, system), "Y", point);
  };
  EXPECT_EQ(hint(1, 0), "MP 1\nz  0.0 mm\nY  0.001 mm");
  EXPECT_EQ(hint(3, Inch), "MP 3\nz  39.4 in\nY  1.000 mil");
  EXPECT_EQ(hint(2, Inch), "MP 2\nz  19.7 in\nY ?.? mil");
  EXPECT_EQ(hint(0, 0), "");
  EXPECT_EQ(hint(4, 0), "");
}

}  // namespace
}  // namespace korvin
