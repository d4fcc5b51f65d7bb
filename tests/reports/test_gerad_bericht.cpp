#include "reports/gerad_bericht.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>
#include <string>

#include "frame/leerwert.h"
#include "reports/gerad_stand.h"
#include "straightness/masseinheit.h"
#include "straightness/toleranz.h"

namespace korvin {
namespace {

using test::DruckMarke;

class GeradBerichtTest : public test::GeradStand {
 protected:
  /// Rows of a table page: numbers that end at x 55.
  int rowsOn(int page) const {
    int rows = 0;
    for (const DruckMarke& mark : paper.texte(page)) rows += std::abs(mark.x2 - 55) < 1e-4 && mark.y > 30;
    return rows;
  }
  int marks(const std::string& text) const {
    return static_cast<int>(std::count_if(paper.alle.begin(), paper.alle.end(),
                                          [&](const DruckMarke& mark) { return mark.text == text; }));
  }
  static constexpr GeradBerichtTeile xTable{false, false, true, false};
  static constexpr GeradBerichtTeile yTable{false, false, false, true};
};

// ---- Pages ----

TEST_F(GeradBerichtTest, HundredAndFiftyPointsMakeThreeTablePages) {
  points(150);
  print(bothTables);
  EXPECT_EQ(paper.seite(), 3);
  EXPECT_EQ(rowsOn(1), 27);
  EXPECT_EQ(rowsOn(2), 37);
  EXPECT_EQ(rowsOn(3), 36);
  EXPECT_EQ(endingAt(1, 55, 101), "1");
  EXPECT_EQ(endingAt(1, 55, 95 + 27 * 6), "27");
  EXPECT_EQ(endingAt(2, 55, 36), "28");
  EXPECT_EQ(endingAt(2, 55, 30 + 37 * 6), "64");
  EXPECT_EQ(endingAt(3, 55, 36), "65");
  EXPECT_EQ(endingAt(3, 55, 30 + 36 * 6), "100");
  EXPECT_EQ(marks("101"), 0) << "the hundredth is the last";
  EXPECT_EQ(marks("150"), 1) << "and told as the number of points";
  EXPECT_EQ(marks("0.101"), 0);
}

TEST_F(GeradBerichtTest, TwentySevenPointsMakeOneTablePage) {
  points(27);
  print(bothTables);
  EXPECT_EQ(paper.seite(), 1);
  EXPECT_EQ(rowsOn(1), 27);
  points(28);
  print(bothTables);
  EXPECT_EQ(paper.seite(), 2);
  EXPECT_EQ(rowsOn(2), 1);
  EXPECT_EQ(endingAt(2, 55, 36), "28");
}

TEST_F(GeradBerichtTest, SixtyFourPointsMakeTwoTablePages) {
  points(64);
  print(bothTables);
  EXPECT_EQ(paper.seite(), 2);
  EXPECT_EQ(rowsOn(2), 37);
  points(65);
  print(bothTables);
  EXPECT_EQ(paper.seite(), 3);
  EXPECT_EQ(rowsOn(3), 1);
}

TEST_F(GeradBerichtTest, NothingChosenEndsTheDocumentWithNothingDrawn) {
  points(5);
  print({});
  EXPECT_TRUE(paper.alle.empty());
  EXPECT_EQ(paper.enden, 1);
  EXPECT_EQ(paper.seite(), 1);
}

TEST_F(GeradBerichtTest, TablesFollowTheDiagramsOnPagesOfTheirOwn) {
  points(28);
  print(all);
  EXPECT_EQ(paper.seite(), 3);
  EXPECT_EQ(at(1, 37.4, 69.8), "X-D3017:  D3060");
  EXPECT_EQ(at(2, 20, 95), "D3060: D3018");
  EXPECT_EQ(at(3, 20, 30), "D3060: D3018");
  EXPECT_EQ(at(3, 180, 275), "D3063: 03");
  EXPECT_EQ(at(3, 20, 25), "") << "no information block";
}

TEST_F(GeradBerichtTest, ChoicesOfTheRecord) {
  series.Info.CheckXDiagramm = true;
  series.Info.CheckYTabelle = true;
  GeradBerichtTeile parts = gewaehlteTeile(series.Info);
  EXPECT_TRUE(parts.XDiagramm && !parts.YDiagramm && !parts.XTabelle && parts.YTabelle);
  series.Info.CheckXDiagramm = false;
  series.Info.CheckYTabelle = false;
  series.Info.CheckYDiagramm = true;
  series.Info.CheckXTabelle = true;
  parts = gewaehlteTeile(series.Info);
  EXPECT_TRUE(!parts.XDiagramm && parts.YDiagramm && parts.XTabelle && !parts.YTabelle);
}

// ---- One table ----

TEST_F(GeradBerichtTest, OnlyTheTableOfX) {
  points(3);
  print(xTable);
  EXPECT_EQ(at(1, 125, 95), "X[mm]");
  EXPECT_EQ(at(1, 165, 95), "");
  EXPECT_EQ(at(1, 25, 65), "X-D3018:   D3060");
  EXPECT_EQ(at(1, 25, 80), "") << "no block of Y";
  EXPECT_EQ(endingAt(1, 125, 101), "0.001");
  EXPECT_EQ(endingAt(1, 165, 101), "");
}

TEST_F(GeradBerichtTest, OnlyTheTableOfYTakesTheColumnOfX) {
  points(3);
  print(yTable);
  EXPECT_EQ(at(1, 125, 95), "Y[mm]");
  EXPECT_EQ(at(1, 165, 95), "");
  EXPECT_EQ(at(1, 25, 65), "") << "no block of X";
  EXPECT_EQ(at(1, 25, 80), "Y-D3018:  D3060");
  EXPECT_EQ(endingAt(1, 125, 101), "-0.002");
  EXPECT_EQ(endingAt(1, 165, 101), "");
}

// ---- Rows ----

TEST_F(GeradBerichtTest, RowsTellTheEvaluatedValues) {
  readings({0.001, 0.003, 0.001});
  series.Info.Auswertung = AuswertungREF;
  print(bothTables);
  EXPECT_EQ(at(1, 20, 95), "D3058: D3018");
  EXPECT_EQ(endingAt(1, 125, 101), "0.000");
  EXPECT_EQ(endingAt(1, 125, 107), "0.002");
  EXPECT_EQ(endingAt(1, 165, 107), "0.001");
}

TEST_F(GeradBerichtTest, ZIsWhereThePointWasMoved) {
  points(3);
  series.Linie.Z.at(2) = 127;
  print(xTable);
  EXPECT_EQ(endingAt(1, 85, 101), "0.0");
  EXPECT_EQ(endingAt(1, 85, 107), "127.0");
  Masssystem = 1;
  print(xTable);
  EXPECT_EQ(endingAt(1, 85, 107), "5.0");
}

TEST_F(GeradBerichtTest, OpenReadingsHaveNoValueAndNoMark) {
  readings({0.001, Leerwert, 0.009});
  series.X.Gesamt = 0.002;
  series.Y.Gesamt = 0.002;
  for (const std::int16_t system : {std::int16_t{0}, MasssystemInch}) {
    Masssystem = system;
    print(bothTables);
    EXPECT_EQ(endingAt(1, 125, 107), "?.?");
    EXPECT_EQ(endingAt(1, 165, 107), "?.?");
    EXPECT_EQ(at(1, 125, 107), "");
    EXPECT_EQ(at(1, 165, 107), "");
  }
}

TEST_F(GeradBerichtTest, MarksStandBehindTheirValuesByTheAxis) {
  readings({0.001, 0.003, 0.009});
  series.X.Gesamt = 0.004;
  series.X.ToleranzBezug = BezugMinimum;
  series.Y.Gesamt = 0.002;
  series.Y.ToleranzBezug = BezugMaximum;
  print(bothTables);
  EXPECT_EQ(at(1, 125, 101), "");
  EXPECT_EQ(at(1, 125, 107), "") << "0.003 keeps 0.001 + 0.004";
  EXPECT_EQ(at(1, 125, 113), " *0");
  EXPECT_EQ(at(1, 165, 101), " *2");
  EXPECT_EQ(at(1, 165, 107), " *2") << "0.0015 is below 0.0045 - 0.002";
  EXPECT_EQ(at(1, 165, 113), "");
}

TEST_F(GeradBerichtTest, PointsThatYDoesNotCountAreOpenThere) {
  points(3);
  series.Y.Wert.at(0) = 2;
  print(bothTables);
  EXPECT_EQ(endingAt(1, 125, 113), "0.003");
  EXPECT_EQ(endingAt(1, 165, 113), "?.?");
}

TEST_F(GeradBerichtTest, ThePointsOfXAreTheRows) {
  points(3);
  series.X.Wert.at(0) = 2;
  print(bothTables);
  EXPECT_EQ(rowsOn(1), 2);
}

// ---- Degenerate series ----

TEST_F(GeradBerichtTest, WithoutAnyReading) {
  readings({Leerwert, Leerwert, Leerwert});
  series.X.Gesamt = 0.01;
  series.Info.ZeigeMittel = series.Info.ZeigeStreuung = series.Info.ZeigeSpanne = series.Info.ZeigeAbschnitt =
      true;
  print(all);
  EXPECT_EQ(at(2, 103, 65), "x  ?.?");
  EXPECT_EQ(at(2, 128, 65), "2s  ?.?");
  EXPECT_EQ(at(2, 153, 65), "R  ?.?");
  EXPECT_EQ(at(2, 95, 70), "?.?");
  EXPECT_EQ(at(2, 130, 70), "?.?/? z?");
  EXPECT_EQ(endingAt(2, 125, 101), "?.?");
  EXPECT_EQ(paper.seite(), 2);
}

TEST_F(GeradBerichtTest, WithoutPoints) {
  print(all);
  EXPECT_EQ(paper.seite(), 2);
  EXPECT_EQ(rowsOn(2), 0);
  EXPECT_EQ(at(2, 103, 65), "x  ?.?");
  EXPECT_EQ(at(1, 45, 49), "0");
}

TEST_F(GeradBerichtTest, OnePointHasNoDeviation) {
  series.Linie.AnzMPs = 1;
  series.X.Wert.at(0) = 1;
  series.X.Wert.at(1) = 0.004;
  print(all);
  EXPECT_EQ(at(2, 103, 65), "x 0.004");
  EXPECT_EQ(at(2, 128, 65), "2s  ?.?");
  EXPECT_EQ(at(2, 153, 65), "R 0.000");
}

TEST_F(GeradBerichtTest, MovedPointsHaveNoSection) {
  points(11);
  series.X.Wert.at(5) = 0.2;
  series.X.ProEinheit = 200;
  print(xTable);
  EXPECT_EQ(at(1, 130, 70), "0.197 / 200.0 z3");
  series.Linie.Z.at(2) = 127;
  print(xTable);
  EXPECT_EQ(at(1, 130, 70), "-.--- / -.- z-");
}

TEST_F(GeradBerichtTest, RawValuesInMilTakeOpenReadingsIn) {
  readings({0.0254, Leerwert, 0.0508});
  print(xTable);
  EXPECT_EQ(at(1, 153, 65), "R 0.025");
  Masssystem = 1;
  print(xTable);
  EXPECT_EQ(at(1, 153, 65), "R 39329.709") << "999 mm in mil less 1 mil";
  EXPECT_EQ(endingAt(1, 125, 113), "2.000");
}

// ---- Words ----

TEST_F(GeradBerichtTest, TheFileIsTheOneThatWasChosenElseThatOfTheRecord) {
  points(2);
  series.Info.DateiName = "C:\\KorFiles\\ Bahn.neu.G";
  print(bothDiagrams);
  EXPECT_EQ(at(1, 45, 37), "Bahn.neu.G");
  EXPECT_EQ(report(all).titel, "KORVIN-D3057: Bahn.neu.G");
  EXPECT_EQ(report(all).dateiName, "Bahn.neu");
  dateiName = "/home/m/ Welle.G";
  print(bothDiagrams);
  EXPECT_EQ(at(1, 45, 37), "Welle.G");
}

TEST_F(GeradBerichtTest, ASeriesWithoutAFile) {
  points(2);
  series.Info.DateiName = "/mess/*.G";
  series.Info.Datum = "--.--- ---- / --:--:--";
  print(bothDiagrams);
  EXPECT_EQ(at(1, 45, 37), "");
  EXPECT_EQ(at(1, 45, 45), "--.--- ---- / --:--:--");
  EXPECT_EQ(report(all).titel, "KORVIN-D3057");
  EXPECT_EQ(report(all).dateiName, "KORVIN-D3057");
}

TEST_F(GeradBerichtTest, LongTextsShrinkIntoTheirPlace) {
  points(3);
  const std::string lang(75, 'W');
  series.Info.FirmaName = lang;
  series.Info.Bezeichnung = lang;
  series.Info.Kommentar = lang;
  series.Info.SFak = 32767;
  series.X.Gesamt = 1e15;
  series.X.WertPro = 1e15;
  series.X.ProEinheit = 1e15;
  for (const int number : {3017, 3018, 3058, 3059, 3060, 5001, 3011, 3026, 3027, 3028})
    dictionary.texts[static_cast<std::int16_t>(number)] = std::string(40, 'W');
  print(all);
  for (int page = 1; page <= 2; ++page)
    for (const DruckMarke& mark : paper.texte(page)) {
      EXPECT_GE(mark.x, 20 - 0.01) << mark.text;
      EXPECT_LE(mark.x2, mark.y > 270 ? 202 : 192.01) << mark.text;
    }
}

TEST_F(GeradBerichtTest, HugeValuesStayInTheirColumns) {
  readings({1e30, -1e30, 0});
  series.X.Gesamt = 1;
  series.Y.Gesamt = 1;
  print(bothTables);
  std::vector<DruckMarke> row;
  for (const DruckMarke& mark : paper.texte(1))
    if (mark.y == 101) row.push_back(mark);
  ASSERT_EQ(row.size(), 6U) << "number, z, two values with their marks";
  for (std::size_t i = 1; i < row.size(); ++i) EXPECT_GE(row[i].x, row[i - 1].x2 - 1e-6) << row[i].text;
}

// ---- The report as a whole ----

TEST_F(GeradBerichtTest, ItIsASnapshot) {
  points(3);
  const Bericht bericht = report(all);
  points(50);
  series.Info.Bezeichnung = "another";
  series.Info.NKStellen = 0;
  series.Linie.Z = {};
  bericht.drucken(paper);
  EXPECT_EQ(paper.seite(), 2);
  EXPECT_EQ(rowsOn(2), 3);
  EXPECT_EQ(endingAt(2, 125, 101), "0.001");
  EXPECT_EQ(endingAt(2, 85, 113), "200.0");
}

TEST_F(GeradBerichtTest, ItCanBeComposedAgainAndTellsThePresentTime) {
  points(40);
  const Bericht bericht = report(all);
  bericht.drucken(paper);
  test::RecordingDrucker second;
  clock.setNow(40000.5);
  bericht.drucken(second);
  ASSERT_EQ(second.alle.size(), paper.alle.size());
  EXPECT_EQ(at(1, 120, 45), "06.07.09 06:00:00");
  EXPECT_EQ(second.textBei(1, 120, 45).text, "06.07.09 12:00:00");
  EXPECT_EQ(second.textBei(2, 120, 45).text, "06.07.09 12:00:00");
  for (std::size_t i = 0; i < paper.alle.size(); ++i) {
    if (paper.alle[i].text == "06.07.09 06:00:00") continue;
    EXPECT_EQ(second.alle[i].text, paper.alle[i].text);
    EXPECT_EQ(second.alle[i].x, paper.alle[i].x);
    EXPECT_EQ(second.alle[i].y, paper.alle[i].y);
  }
}

TEST_F(GeradBerichtTest, TheSeriesItselfIsLeftAlone) {
  reference("full.G");
  const auto before = toBytes(series);
  print(all);
  EXPECT_EQ(toBytes(series), before);
}

TEST_F(GeradBerichtTest, PointsWithoutACountCannotBePrinted) {
  points(3);
  series.X.Wert.elements()[0] = 1e6;
  EXPECT_THROW(print(bothDiagrams), std::out_of_range);
}

}  // namespace
}  // namespace korvin
