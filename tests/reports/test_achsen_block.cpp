#include "reports/achsen_block.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>

#include "straightness/formgera.h"
#include "support/recording_drucker.h"
#include "support/test_ports.h"

namespace korvin {
namespace {

using test::DruckMarke;

/// A block printed with its corner at (10, 100), so that shares of x0 and y show.
class AchsenBlockTest : public ::testing::Test {
 protected:
  AchsenBlockTest() {
    series.Linie.AnzMPs = 6;
    series.Linie.Distanz = 2500;
    ReiheLeeren(series);
    for (int i = 1; i <= 6; ++i) series.X.Wert.at(static_cast<std::size_t>(i)) = i * i * 0.001;
    series.Info.Auswertung = AuswertungROH;
    series.Info.NKStellen = 2;
    series.Info.SFak = 3;
  }

  AchsenBlockTexte texts(std::int16_t system = 0) {
    AchsenSchalter all = achsenSchalter(series.Info, system);
    all.Mittel = all.Streuung = all.Spanne = all.Abschnitt = true;
    const AchsenAnzeigeDaten data =
        achseBerechnen(achsenQuelle(series, series.X, system), all, series.X, series.X);
    return achsenBlockTexte(dictionary, "X", {data, series.X, series.Linie, all});
  }
  void print() {
    AchsenBlockTexte words = texts();
    words.titel = "X-D3017:  ISO";
    AchsenBlock(paper, 10, 100, achsenBlock(words));
  }
  bool rule(double x1, double y1, double x2, double y2) const {
    const auto rules = paper.linien(1);
    return std::any_of(rules.begin(), rules.end(), [&](const DruckMarke& r) {
      return std::abs(r.x - x1) < 1e-9 && std::abs(r.y - y1) < 1e-9 && std::abs(r.x2 - x2) < 1e-9 &&
             std::abs(r.y2 - y2) < 1e-9;
    });
  }

  GeradReihe series;
  test::TestDictionary dictionary;
  test::RecordingDrucker paper;
};

TEST_F(AchsenBlockTest, Rules) {
  print();
  for (const double y : {100.0, 105.0, 110.0}) EXPECT_TRUE(rule(30, y, 186.5, y)) << y;
  for (const double x : {30.0, 35.0, 186.5}) EXPECT_TRUE(rule(x, 100, x, 110)) << x;
  for (const double x : {111.0, 136.0, 161.0}) EXPECT_TRUE(rule(x, 100, x, 105)) << x;
  for (const double x : {60.0, 95.0, 105.0, 140.0}) EXPECT_TRUE(rule(x, 105, x, 110)) << x;
  EXPECT_TRUE(rule(113.5, 101.8, 115, 101.8)) << "the bar over the x";
  EXPECT_EQ(paper.linien(1).size(), 3U + 3U + 3U + 4U + 1U);
}

TEST_F(AchsenBlockTest, CellsStandAtTheirPlaces) {
  series.X.Gesamt = 0.064;
  series.X.ToleranzBezug = BezugNull;
  series.X.WertPro = 0.026;
  series.X.ProEinheit = 1000;
  print();
  const auto at = [this](double x, double y) { return paper.textBei(1, x, y).text; };
  EXPECT_EQ(at(35, 101), "X-D3017:  ISO");
  EXPECT_EQ(at(113, 101), "x 0.015");
  EXPECT_EQ(at(138, 101), "3s 0.040");
  EXPECT_EQ(at(163, 101), "R 0.035");
  EXPECT_EQ(at(31, 106), "X t");
  EXPECT_EQ(at(35, 106), "±0.032");
  EXPECT_EQ(at(60, 106), "0.026/1000.0");
  EXPECT_EQ(at(95, 106), "D5001");
  EXPECT_EQ(at(105, 106), "0.036 , 0.001");
  EXPECT_EQ(at(140, 106), "0.020 / 1000.0 z4");
  EXPECT_EQ(paper.texte(1).size(), 10U);
  EXPECT_EQ(paper.textBei(1, 35, 101).groesse, 9);
}

TEST_F(AchsenBlockTest, ACellWithoutATextIsLeftOut) {
  AchsenBlockTexte words = texts();
  words.streuung.clear();
  words.mittel.clear();
  AchsenBlock(paper, 10, 100, achsenBlock(words));
  EXPECT_EQ(paper.texte(1).size(), 10U - 3U) << "nor was there a title";
  EXPECT_EQ(paper.linien(1).size(), 3U + 3U + 3U + 4U) << "no bar without an x";
}

TEST_F(AchsenBlockTest, WithoutTolerances) {
  series.X.ToleranzBezug = BezugNull;
  const AchsenBlockTexte its = texts();
  EXPECT_EQ(its.gesamt, "?.?");
  EXPECT_EQ(its.abschnittVorgabe, "?.? / ?");
  EXPECT_EQ(its.extreme, "0.036 , 0.001") << "what was measured is told all the same";
  EXPECT_EQ(its.abschnitt, "?.?/? z?");
}

TEST_F(AchsenBlockTest, TheWholeIsHalvedOnlyAroundTheZeroLine) {
  series.X.Gesamt = 0.064;
  for (const std::int16_t reference : {BezugMinimum, BezugMaximum}) {
    series.X.ToleranzBezug = reference;
    EXPECT_EQ(texts().gesamt, "0.064");
    EXPECT_EQ(texts().extreme, "0.035");
  }
  series.X.ToleranzBezug = BezugNull;
  EXPECT_EQ(texts().gesamt, "±0.032");
}

TEST_F(AchsenBlockTest, InMilAndInch) {
  series.X.Gesamt = 0.0508;
  series.X.ToleranzBezug = BezugNull;
  series.X.WertPro = 0.0254;
  series.X.ProEinheit = 1000;
  const AchsenBlockTexte its = texts(1);
  EXPECT_EQ(its.gesamt, "±1.000");
  EXPECT_EQ(its.abschnittVorgabe, "1.00/39.4");
  EXPECT_EQ(its.extreme, "1.417 , 0.039");
  EXPECT_EQ(its.abschnitt, "0.787 / 39.4 z4");
  EXPECT_EQ(its.spanne, "R 1.378");
}

TEST_F(AchsenBlockTest, DecimalsOfTheSeries) {
  series.Info.NKStellen = 0;
  EXPECT_EQ(texts().mittel, "x 0.0");
  series.Info.NKStellen = 3;
  EXPECT_EQ(texts().mittel, "x 0.0152");
  EXPECT_EQ(texts().spanne, "R 0.0350");
}

TEST_F(AchsenBlockTest, ASectionThatDoesNotFit) {
  series.X.ProEinheit = 3000;
  EXPECT_EQ(texts().abschnitt, "?.?/? z?");
  series.X.ProEinheit = 2500;
  EXPECT_EQ(texts().abschnitt, "0.035 / 2500.0 z1");
  series.X.ProEinheit = 2000;
  EXPECT_EQ(texts().abschnitt, "0.032 / 2000.0 z2");
  series.X.Wert.at(3) = Leerwert;
  EXPECT_EQ(texts().abschnitt, "?.?/? z?") << "the search needs all points";
  EXPECT_EQ(texts().extreme, "0.035");
}

TEST_F(AchsenBlockTest, ModesInWords) {
  EXPECT_EQ(auswertungsText(dictionary, 0), "D3060");
  EXPECT_EQ(auswertungsText(dictionary, 1), "D3059 1101");
  EXPECT_EQ(auswertungsText(dictionary, 2), "D3058");
  EXPECT_EQ(auswertungsText(dictionary, 7), "D3060") << "acts as ROH";
}

// ---- The mark of a value beyond the tolerance ----

/// Extremes -0.25 and 0.5; exact in binary, as the limits are.
AchsenErgebnis limits(double whole, std::int16_t reference) {
  AchsenErgebnis block;
  block.MaxWert = 0.5;
  block.MinWert = -0.25;
  block.Gesamt = whole;
  block.ToleranzBezug = reference;
  return block;
}

double above(double value) {
  return std::nextafter(value, std::numeric_limits<double>::infinity());
}
double below(double value) {
  return std::nextafter(value, -std::numeric_limits<double>::infinity());
}

TEST(ToleranzMarkeTest, FromTheSmallestUp) {
  const AchsenErgebnis block = limits(0.5, BezugMinimum);
  EXPECT_EQ(ToleranzMarke(0.25, block, 0), "") << "on the limit";
  EXPECT_EQ(ToleranzMarke(above(0.25), block, 0), " *0");
  EXPECT_EQ(ToleranzMarke(0.5, block, 0), " *0");
  EXPECT_EQ(ToleranzMarke(-0.25, block, 0), "");
}

TEST(ToleranzMarkeTest, AroundTheZeroLine) {
  const AchsenErgebnis block = limits(0.5, BezugNull);
  EXPECT_EQ(ToleranzMarke(0.25, block, 0), "");
  EXPECT_EQ(ToleranzMarke(-0.25, block, 0), "");
  EXPECT_EQ(ToleranzMarke(above(0.25), block, 0), " *1");
  EXPECT_EQ(ToleranzMarke(below(-0.25), block, 0), " *1");
}

TEST(ToleranzMarkeTest, FromTheLargestDown) {
  const AchsenErgebnis block = limits(0.5, BezugMaximum);
  EXPECT_EQ(ToleranzMarke(0, block, 0), "");
  EXPECT_EQ(ToleranzMarke(below(0), block, 0), " *2");
  EXPECT_EQ(ToleranzMarke(0.5, block, 0), "");
}

TEST(ToleranzMarkeTest, WithoutAToleranceThereIsNone) {
  for (const std::int16_t reference : {BezugMinimum, BezugNull, BezugMaximum})
    for (const double value : {-1e9, 0.0, 1e9}) EXPECT_EQ(ToleranzMarke(value, limits(0, reference), 0), "");
}

TEST(ToleranzMarkeTest, InMilTheToleranceIsConverted) {
  const AchsenErgebnis block = limits(0.0254 * 0.5, BezugMinimum);  // half a mil
  EXPECT_EQ(ToleranzMarke(0.25, block, 1), "");
  EXPECT_EQ(ToleranzMarke(0.2501, block, 1), " *0");
  EXPECT_EQ(ToleranzMarke(-0.2, block, 0), " *0") << "taken as mm it is beyond";
}

}  // namespace
}  // namespace korvin
