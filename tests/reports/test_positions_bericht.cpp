#include "reports/positions_bericht.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>
#include <string>
#include <vector>

#include "frame/leerwert.h"
#include "reports/bericht_stand.h"
#include "reports/paper_texts.h"
#include "support/live_memory.h"

namespace korvin {
namespace {

using test::DruckMarke;
using test::PaperText;

class PositionsBerichtTest : public test::BerichtStand {
 protected:
  static std::vector<PaperText> informationOfTheReference() {
    return {{20, 25, "D3001:", 9, true},
            {20, 29, "D3044:"},
            {45, 29, "Spindellager"},
            {20, 33, "D3048:"},
            {45, 33, "KORVIN-Position"},
            {20, 37, "D3050:"},
            {45, 37, "Punkt.O"},
            {20, 41, "D3008:"},
            {45, 41, "M. Größ"},
            {20, 45, "D3050 (t):"},
            {45, 45, " 04.03.03 09:15:00"},
            {90, 45, "D3051 (t):"},
            {120, 45, "06.07.09 06:00:00"},
            {20, 49, "D3010:"},
            {45, 49, "40"},
            {90, 49, "D3084:"},
            {120, 49, "14.01.04 13:58:48 - 14.01.04 14:05:18"},
            {20, 53, "D3003°:"},
            {45, 53, "D3029"},
            {90, 53, "D3013:"},
            {120, 53, "2s"},
            {20, 57, "D3009:"},
            {45, 57, "Warmlauf"}};
  }
  int rowsOn(int page) const {
    int rows = 0;
    for (const DruckMarke& mark : paper.texte(page)) rows += mark.text.find(" / ") == 8;
    return rows;
  }
};

// ---- The reference, mark by mark ----

TEST_F(PositionsBerichtTest, DiagramPageOfTheReference) {
  reference();
  print(all);
  std::vector<PaperText> expected = test::headAndFoot("Prüfstelle Süd", "01");
  test::add(expected, informationOfTheReference());
  const std::string title = "XY-D3017:  D3082: 5 / 0.0379 / -0.0879";
  // Means of the sums less the offset; twice the sample deviation; the spans.
  test::add(expected, {{34, 72, "X"},
                       {38, 72, title},
                       {116, 72, "x -0.0179"},
                       {141, 72, "2s 0.0188"},
                       {166, 72, "R 0.0436"},
                       {34, 79, "Y"},
                       {38, 79, title},
                       {116, 79, "x 0.0371"},
                       {141, 79, "2s 0.0397"},
                       {166, 79, "R 0.0891"}});
  const std::vector<std::string> diagramTexts = othersThan(expected, paper, 1);
  EXPECT_GT(diagramTexts.size(), 15U) << "ticks and names of the axes";
  for (const DruckMarke& mark : paper.texte(1)) {
    if (std::find(diagramTexts.begin(), diagramTexts.end(), mark.text) == diagramTexts.end()) continue;
    EXPECT_GE(mark.x, 20 - 1e-6) << mark.text;
    EXPECT_LE(mark.x2, 197 + 1e-6) << mark.text;
    EXPECT_GE(mark.y, 80 - 1e-6) << mark.text;
    EXPECT_LE(mark.y2, 257 + 1e-6) << mark.text;
    EXPECT_LE(mark.groesse, 8);
  }
}

TEST_F(PositionsBerichtTest, FirstTablePageOfTheReference) {
  reference();
  print(all);
  EXPECT_EQ(paper.seite(), 3);
  std::vector<PaperText> expected = test::headAndFoot("Prüfstelle Süd", "02");
  test::add(expected, informationOfTheReference());
  const std::string title = "XY-D3018  D3082: 5 / 0.0379 / -0.0879";
  test::add(expected, {{21, 66, "X"},
                       {25, 66, title},
                       {103, 66, "x -0.0179"},
                       {128, 66, "2s 0.0188"},
                       {153, 66, "R 0.0436"},
                       {21, 74, "Y"},
                       {25, 74, title},
                       {103, 74, "x 0.0371"},
                       {128, 74, "2s 0.0397"},
                       {153, 74, "R 0.0891"}});
  test::add(expected, {{20, 85, "XY-D3018: "},
                       {55, 85, "D3066"},
                       {75, 85, "D3056 / D3055"},
                       {125, 85, "X[mm]"},
                       {165, 85, "Y[mm]"},
                       {20, 268, "D3064: D3060   ! = D3090", 7}});
  test::add(expected, {{55, 94, "1", 9, false, true},
                       {75, 94, "14.01.04 / 13,58,48"},
                       {125, 94, "0.0261", 9, false, true},
                       {165, 94, "-0.0888", 9, false, true}});
  test::add(expected, {{55, 118, "5", 9, false, true},
                       {75, 118, "14.01.04 / 13,59,28"},
                       {125, 118, "0.0379", 9, false, true},
                       {125, 118, " !"},
                       {165, 118, "-0.0879", 9, false, true},
                       {165, 118, " !"}});
  test::add(expected, {{55, 256, "28", 9, false, true},
                       {75, 256, "14.01.04 / 14,03,18"},
                       {125, 256, "0.0282", 9, false, true},
                       {165, 256, "-0.0746", 9, false, true}});
  EXPECT_EQ(othersThan(expected, paper, 2).size(), 25U * 4U) << "the other rows";
  EXPECT_EQ(rowsOn(2), 28);
}

TEST_F(PositionsBerichtTest, LastTablePageOfTheReference) {
  reference();
  print(all);
  std::vector<PaperText> expected = test::headAndFoot("Prüfstelle Süd", "03");
  test::add(expected, {{20, 33, "XY-D3018: "},
                       {55, 33, "D3066"},
                       {75, 33, "D3056 / D3055"},
                       {125, 33, "X[mm]"},
                       {165, 33, "Y[mm]"},
                       {20, 268, "D3064: D3060   ! = D3090", 7}});
  test::add(expected, {{55, 39, "29", 9, false, true},
                       {75, 39, "14.01.04 / 14,03,28"},
                       {125, 39, "0.0303", 9, false, true},
                       {165, 39, "-0.0744", 9, false, true}});
  test::add(expected, {{55, 105, "40", 9, false, true},
                       {75, 105, "14.01.04 / 14,05,18"},
                       {125, 105, "0.0122", 9, false, true},
                       {165, 105, "-0.0207", 9, false, true}});
  EXPECT_EQ(othersThan(expected, paper, 3).size(), 10U * 4U);
  EXPECT_EQ(rowsOn(3), 12);
}

TEST_F(PositionsBerichtTest, RulesOfATablePage) {
  reference();
  print(bothTables);
  const auto rules = paper.linien(2);
  ASSERT_EQ(rules.size(), 2U + 12U);
  EXPECT_EQ(rules[0].y, 20);
  EXPECT_EQ(rules[1].y, 39) << "below the headings";
  for (std::size_t i = 1; i < rules.size(); ++i) {
    EXPECT_EQ(rules[i].x, 20);
    EXPECT_EQ(rules[i].x2, 175);
    EXPECT_EQ(rules[i].y, rules[i].y2);
    EXPECT_EQ(rules[i].breite, 1);
  }
  for (std::size_t row = 1; row <= 12; ++row)
    EXPECT_EQ(rules[row + 1].y, 33 + 6 * static_cast<double>(row) + 5);
}

// ---- Page limits ----

TEST_F(PositionsBerichtTest, TwentyEightPointsMakeOneTablePage) {
  points(28);
  print(bothTables);
  EXPECT_EQ(paper.seite(), 1);
  EXPECT_EQ(rowsOn(1), 28);
  EXPECT_EQ(endingAt(1, 55, 256), "28");
}

TEST_F(PositionsBerichtTest, TwentyNinePointsMakeASecondPageWithOneRow) {
  points(29);
  print(bothTables);
  EXPECT_EQ(paper.seite(), 2);
  EXPECT_EQ(rowsOn(1), 28);
  EXPECT_EQ(rowsOn(2), 1);
  EXPECT_EQ(endingAt(2, 55, 39), "29");
  EXPECT_EQ(endingAt(2, 125, 39), "0.029");
}

TEST_F(PositionsBerichtTest, SixtyFourPointsFillTwoPages) {
  points(64);
  print(bothTables);
  EXPECT_EQ(paper.seite(), 2);
  EXPECT_EQ(rowsOn(2), 36);
  EXPECT_EQ(endingAt(2, 55, 249), "64");
  points(65);
  paper = {};
  print(bothTables);
  EXPECT_EQ(paper.seite(), 3);
  EXPECT_EQ(endingAt(3, 55, 39), "65");
}

TEST_F(PositionsBerichtTest, AllPointsMake833FurtherPages) {
  points(MaxPunkteO);
  print(all);
  EXPECT_EQ(paper.seite(), 1 + 1 + 833);
  EXPECT_EQ(at(835, 180, 275), "D3063: 835");
  EXPECT_EQ(endingAt(835, 55, 33 + 19 * 6), "29999");
  EXPECT_EQ(rowsOn(835), 19);
  EXPECT_EQ(rowsOn(834), 36);
  EXPECT_EQ(paper.enden, 1);
}

TEST_F(PositionsBerichtTest, MemoryDoesNotGrowWithThePages) {
  points(MaxPunkteO);
  const Bericht bericht = report(bothTables);
  paper.merken = false;
  std::vector<std::size_t> live;
  paper.beiNeuerSeite = [&] {
    if (paper.seite() == 10 || paper.seite() == 800) live.push_back(test::liveBytes());
  };
  bericht.drucken(paper);
  ASSERT_EQ(live.size(), 2U);
  EXPECT_LE(live[1], live[0] + 512);
}

TEST_F(PositionsBerichtTest, WithoutPoints) {
  print(all);
  EXPECT_EQ(paper.seite(), 2);
  EXPECT_EQ(rowsOn(2), 0);
  EXPECT_EQ(at(1, 120, 49), "?.? - ?.?");
  EXPECT_EQ(at(1, 116, 72), "x  ?.?");
  EXPECT_EQ(at(1, 141, 72), "2s  ?.?");
  EXPECT_EQ(at(1, 166, 72), "R  ?.?");
  EXPECT_EQ(at(1, 45, 49), "0");
}

TEST_F(PositionsBerichtTest, OnePointHasNoDeviation) {
  points(1);
  print(all);
  EXPECT_EQ(at(1, 116, 72), "x 0.001");
  EXPECT_EQ(at(1, 141, 72), "2s  ?.?");
  EXPECT_EQ(at(1, 166, 72), "R 0.000");
  EXPECT_EQ(at(1, 116, 79), "x -0.002");
  EXPECT_EQ(at(1, 141, 79), "2s  ?.?");
}

// ---- Choices ----

TEST_F(PositionsBerichtTest, NothingChosenEndsTheDocumentWithNothingDrawn) {
  points(5);
  print({});
  EXPECT_TRUE(paper.alle.empty());
  EXPECT_EQ(paper.enden, 1);
  EXPECT_EQ(paper.seite(), 1);
}

TEST_F(PositionsBerichtTest, TheDiagramAlone) {
  points(50);
  print(diagram);
  EXPECT_EQ(paper.seite(), 1);
  EXPECT_EQ(paper.enden, 1);
  EXPECT_EQ(at(1, 20, 85), "");
  EXPECT_EQ(rowsOn(1), 0);
}

TEST_F(PositionsBerichtTest, OnlyTheTableOfX) {
  points(3);
  print({false, true, false});
  EXPECT_EQ(at(1, 20, 85), "X-D3018: ");
  EXPECT_EQ(at(1, 125, 85), "X[mm]");
  EXPECT_EQ(at(1, 165, 85), "");
  EXPECT_EQ(at(1, 21, 66), "X");
  EXPECT_EQ(at(1, 21, 74), "") << "no block of Y";
  EXPECT_EQ(endingAt(1, 125, 94), "0.001");
  EXPECT_EQ(endingAt(1, 165, 94), "");
}

TEST_F(PositionsBerichtTest, OnlyTheTableOfYTakesThePlaceOfX) {
  points(3);
  print({false, false, true});
  EXPECT_EQ(at(1, 20, 85), "Y-D3018: ");
  EXPECT_EQ(at(1, 125, 85), "Y[mm]");
  EXPECT_EQ(at(1, 165, 85), "");
  EXPECT_EQ(at(1, 21, 66), "") << "no block of X";
  EXPECT_EQ(at(1, 21, 74), "Y");
  EXPECT_EQ(endingAt(1, 125, 94), "-0.002");
  EXPECT_EQ(endingAt(1, 165, 94), "");
}

TEST_F(PositionsBerichtTest, ChoicesOfTheRecord) {
  info().CheckXYDiagramm = true;
  info().CheckYTabelle = true;
  EXPECT_TRUE(gewaehlteTeile(info()).XYDiagramm);
  EXPECT_FALSE(gewaehlteTeile(info()).XTabelle);
  EXPECT_TRUE(gewaehlteTeile(info()).YTabelle);
  info().CheckXTabelle = true;
  info().CheckXYDiagramm = false;
  info().CheckYTabelle = false;
  EXPECT_FALSE(gewaehlteTeile(info()).XYDiagramm);
  EXPECT_TRUE(gewaehlteTeile(info()).XTabelle);
  EXPECT_FALSE(gewaehlteTeile(info()).YTabelle);
}

// ---- Offset ----

TEST_F(PositionsBerichtTest, WithoutAnOffsetNoRowCarriesItsMark) {
  points(40);
  info().OffsetMP = 7;  // left over from an offset that was dropped
  print(all);
  for (const DruckMarke& mark : paper.alle) EXPECT_NE(mark.text, " !");
  EXPECT_EQ(at(1, 38, 72), "XY-D3017:  D3082: --");
  EXPECT_EQ(at(2, 25, 66), "XY-D3018  D3082: --");
}

TEST_F(PositionsBerichtTest, TheOffsetsPointCarriesItsMarkOnALaterPage) {
  points(40);
  info().OffsetAktiv = true;
  info().OffsetMP = 30;
  print(bothTables);
  EXPECT_EQ(at(2, 125, 45), " !");
  EXPECT_EQ(at(2, 165, 45), " !");
  EXPECT_EQ(std::count_if(paper.alle.begin(), paper.alle.end(),
                          [](const DruckMarke& mark) { return mark.text == " !"; }),
            2);
}

TEST_F(PositionsBerichtTest, RowsShowWhatWasMeasuredTheOffsetNotTakenOff) {
  points(3);
  info().OffsetAktiv = true;
  info().OffsetMP = 2;
  formpos.arbeit().X.Offset = 0.002;
  formpos.statistikNeu();
  print(bothTables);
  EXPECT_EQ(endingAt(1, 125, 100), "0.002");
  EXPECT_EQ(at(1, 103, 66), "x 0.000") << "the statistics are less the offset";
}

// ---- Texts ----

TEST_F(PositionsBerichtTest, PrintsInThePatternOfTheDecimals) {
  points(3);
  for (const auto& [decimals, mean, spread, range, value] :
       std::vector<std::array<std::string, 5>>{{"0", "x 2.0", "2s 2.0", "R 2.0", "1.0"},
                                               {"1", "x 2.00", "2s 2.00", "R 2.00", "1.00"},
                                               {"3", "x 2.0000", "2s 2.0000", "R 2.0000", "1.0000"}}) {
    formpos.messungLoeschen();
    for (int i = 1; i <= 3; ++i) point(i, i, 38000);
    info().NKStellen = static_cast<std::int16_t>(std::stoi(decimals));
    paper = {};
    print(all);
    EXPECT_EQ(at(1, 116, 72), mean);
    EXPECT_EQ(at(1, 141, 72), spread);
    EXPECT_EQ(at(1, 166, 72), range);
    EXPECT_EQ(endingAt(2, 125, 94), value);
  }
}

TEST_F(PositionsBerichtTest, InTheInchSystemOnlyTheUnitReadsOtherwise) {
  points(3);
  print(all);
  const std::string metric = endingAt(2, 125, 106);
  Masssystem = 1;
  paper = {};
  print(all);
  EXPECT_EQ(at(2, 125, 85), "X[mil]");
  EXPECT_EQ(at(2, 165, 85), "Y[mil]");
  EXPECT_EQ(endingAt(2, 125, 106), metric);
  EXPECT_EQ(at(1, 116, 72), "x 0.002");
}

TEST_F(PositionsBerichtTest, AMissingValueReadsAsSuch) {
  formpos.messungLoeschen();
  point(Leerwert, 0.001, 38000.5);
  point(0.002, Leerwert, Leerwert);
  print(bothTables);
  EXPECT_EQ(endingAt(1, 125, 94), "?.?");
  EXPECT_EQ(endingAt(1, 165, 94), "0.001");
  EXPECT_EQ(endingAt(1, 125, 100), "0.002");
  EXPECT_EQ(endingAt(1, 165, 100), "?.?");
  EXPECT_EQ(at(1, 75, 100), "?.?");
  EXPECT_EQ(at(1, 120, 49), "14.01.04 12:00:00 - ?.?");
}

TEST_F(PositionsBerichtTest, TheFilesNameIsThatOfTheDialogWithoutItsFolder) {
  points(1);
  info().DateiName = "C:\\KorFiles\\Alt.O";
  print(diagram);
  EXPECT_EQ(at(1, 45, 37), "Alt.O");
  dateiName = "/mess/  Neu.O";
  paper = {};
  print(diagram);
  EXPECT_EQ(at(1, 45, 37), "Neu.O");
}

TEST_F(PositionsBerichtTest, AMeasurementWithoutAFile) {
  points(1);
  info().DateiName = "/mess/*.O";
  info().Datum = "--.--- ---- / --:--:--";
  print(diagram);
  EXPECT_EQ(at(1, 45, 37), "");
  EXPECT_EQ(at(1, 45, 45), "--.--- ---- / --:--:--");
  EXPECT_EQ(report(diagram).titel, "KORVIN-D3057");
  EXPECT_EQ(report(diagram).dateiName, "KORVIN-D3057");
}

TEST_F(PositionsBerichtTest, TitleAndFileNameOfTheDocument) {
  info().DateiName = "C:\\KorFiles\\Punkt.Neu.O";
  EXPECT_EQ(report(diagram).titel, "KORVIN-D3057: Punkt.Neu.O");
  EXPECT_EQ(report(diagram).dateiName, "Punkt.Neu");
  info().DateiName = "C:\\KorFiles\\.O";
  EXPECT_EQ(report(diagram).dateiName, ".O");
}

TEST_F(PositionsBerichtTest, AFilterWithoutAMeasuringTimeHasNoText) {
  points(1);
  info().Filter = "4";
  print(diagram);
  EXPECT_EQ(at(1, 120, 53), "10s");
  info().Filter = "7";
  paper = {};
  print(diagram);
  EXPECT_EQ(at(1, 120, 53), "");
  EXPECT_EQ(at(1, 90, 53), "D3013:");
}

TEST_F(PositionsBerichtTest, LongTextsShrinkIntoTheirPlace) {
  points(1);
  const std::string lang(75, 'W');
  info().FirmaName = lang;
  info().Bezeichnung = lang;
  info().Kommentar = lang;
  info().SFak = 32767;
  formpos.arbeit().X.Offset = -123456789;
  formpos.arbeit().Y.Offset = -123456789;
  info().OffsetAktiv = true;
  info().OffsetMP = 29999;
  print(all);
  for (int page = 1; page <= 2; ++page)
    for (const DruckMarke& mark : paper.texte(page)) {
      EXPECT_GE(mark.x, 20 - 0.01) << mark.text;
      EXPECT_LE(mark.x2, mark.y < 80 || mark.y > 257 ? 202 : 197.01) << mark.text;
    }
  EXPECT_LT(paper.textBei(1, 38, 72).x2, 114);
}

TEST_F(PositionsBerichtTest, HugeValuesStayInTheirColumns) {
  formpos.messungLoeschen();
  point(1e30, -1e30, 38000.5);
  info().OffsetAktiv = true;
  info().OffsetMP = 1;
  print(bothTables);
  std::vector<DruckMarke> row;
  for (const DruckMarke& mark : paper.texte(1))
    if (mark.y == 94) row.push_back(mark);
  ASSERT_EQ(row.size(), 6U) << "number, time, two values with their marks";
  for (std::size_t i = 1; i < row.size(); ++i) EXPECT_GE(row[i].x, row[i - 1].x2 - 1e-6) << row[i].text;
  EXPECT_NEAR(row[2].x2, 125, 1e-6);
  EXPECT_NEAR(row[4].x2, 165, 1e-6);
}

// ---- The report as a whole ----

TEST_F(PositionsBerichtTest, ItIsASnapshot) {
  points(3);
  const Bericht bericht = report(bothTables);
  points(50);
  info().Bezeichnung = "another";
  info().NKStellen = 0;
  bericht.drucken(paper);
  EXPECT_EQ(paper.seite(), 1);
  EXPECT_EQ(rowsOn(1), 3);
  EXPECT_EQ(endingAt(1, 125, 94), "0.001");
}

TEST_F(PositionsBerichtTest, ItCanBeComposedAgainAndTellsThePresentTime) {
  points(40);
  const Bericht bericht = report(all);
  bericht.drucken(paper);
  test::RecordingDrucker second;
  clock.setNow(40000.5);
  bericht.drucken(second);
  ASSERT_EQ(second.alle.size(), paper.alle.size());
  EXPECT_EQ(at(1, 120, 45), "06.07.09 06:00:00");
  EXPECT_EQ(second.textBei(1, 120, 45).text, "06.07.09 12:00:00");
  for (std::size_t i = 0; i < paper.alle.size(); ++i) {
    if (paper.alle[i].text == "06.07.09 06:00:00") continue;
    EXPECT_EQ(second.alle[i].text, paper.alle[i].text);
    EXPECT_EQ(second.alle[i].x, paper.alle[i].x);
    EXPECT_EQ(second.alle[i].y, paper.alle[i].y);
  }
}

TEST_F(PositionsBerichtTest, TheRecordItselfIsLeftAlone) {
  reference();
  const auto before = toBytes(formpos.arbeit());
  print(all);
  EXPECT_EQ(toBytes(formpos.arbeit()), before);
}

TEST_F(PositionsBerichtTest, ACountBeyondTheStoreIsHeldWithinIt) {
  info().AnzahlMP = -5;
  print(bothTables);
  EXPECT_EQ(rowsOn(1), 0);
}

TEST_F(PositionsBerichtTest, PointsWithoutACountCannotBePrinted) {
  points(3);
  formpos.punkte().X().elements()[0] = 1e6;
  EXPECT_THROW(print(diagram), std::out_of_range);
}

}  // namespace
}  // namespace korvin
