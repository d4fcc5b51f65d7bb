#include "reports/tabelle.h"

#include <gtest/gtest.h>

#include <string>

#include "support/recording_drucker.h"

namespace korvin {
namespace {

using test::DruckMarke;
using test::RecordingDrucker;

class TabelleTest : public ::testing::Test {
 protected:
  TabelleTest() {
    table.titel = "Title: ";
    table.fussnoten = {{"! = note"}};
    table.spalten = {{60, "MP", 55, true, 20, [](int i) { return std::to_string(i); }, {}},
                     {125, "X[mm]", 125, true, 90, [](int i) { return "x" + std::to_string(i); },
                      [](int i) { return i == 2 ? " !" : ""; }}};
    table.erste = {95, 98, 27};
    table.weitere = {30, 30, 37};
  }
  void print(int rows) {
    table.anzahl = rows;
    Seitenrahmen frame(paper, texts);
    tabellenSeiten(frame, table, [this] { ++above; });
    pages = paper.seite();
  }
  int rowsOn(int page) const {
    int count = 0;
    for (const DruckMarke& text : paper.texte(page)) count += text.text.starts_with("x");
    return count;
  }

  SeitenTexte texts{"Head", "Maker", "Page "};
  Tabelle table;
  RecordingDrucker paper;
  int above = 0;
  int pages = 0;
};

TEST_F(TabelleTest, ALongTitleEndsBeforeTheFirstHeading) {
  table.titel = std::string(60, 'W');
  print(1);
  EXPECT_LE(paper.textBei(1, 20, 95).x2, 60.01);
  EXPECT_EQ(paper.textBei(1, 60, 95).groesse, 9);
}

TEST_F(TabelleTest, HeadingsRuleAndFootnote) {
  print(1);
  EXPECT_EQ(paper.textBei(1, 20, 95).text, "Title: ");
  EXPECT_EQ(paper.textBei(1, 60, 95).text, "MP");
  EXPECT_EQ(paper.textBei(1, 125, 95).text, "X[mm]");
  EXPECT_EQ(paper.textBei(1, 125, 95).groesse, 9);
  EXPECT_EQ(paper.textBei(1, 20, 268).text, "! = note");
  EXPECT_EQ(paper.textBei(1, 20, 268).groesse, 7);
  const auto rules = paper.linien(1);
  ASSERT_EQ(rules.size(), 3U) << "head of the page, headings, one row";
  EXPECT_EQ(rules[1].y, 101);
  EXPECT_EQ(rules[1].x, 20);
  EXPECT_EQ(rules[1].x2, 175);
  EXPECT_EQ(above, 1);
}

TEST_F(TabelleTest, RowsStandSixMillimetresApart) {
  print(3);
  for (int i = 1; i <= 3; ++i) {
    const double y = 98 + 6 * i;
    EXPECT_EQ(paper.textBis(1, 55, y).text, std::to_string(i));
    EXPECT_EQ(paper.textBis(1, 125, y).text, "x" + std::to_string(i));
    const DruckMarke rule = paper.linien(1).at(1 + static_cast<std::size_t>(i));
    EXPECT_EQ(rule.y, y + 5);
    EXPECT_EQ(rule.x, 20);
    EXPECT_EQ(rule.x2, 175);
  }
}

TEST_F(TabelleTest, AMarkStandsBehindTheValueWhichKeepsItsPlace) {
  print(3);
  EXPECT_EQ(paper.textBei(1, 125, 98 + 12).text, " !");
  EXPECT_EQ(paper.textBei(1, 125, 98 + 6).text, "");
  EXPECT_EQ(paper.textBei(1, 125, 98 + 18).text, "");
}

TEST_F(TabelleTest, TheRulesEndWhereTheReportSays) {
  table.regelRechts = 180;
  print(1);
  EXPECT_EQ(paper.linien(1).at(1).x2, 180);
  EXPECT_EQ(paper.linien(1).at(2).x2, 180);
}

TEST_F(TabelleTest, ALongValueStaysInItsColumn) {
  table.spalten[1].wert = [](int) { return std::string(60, 'x'); };
  print(1);
  EXPECT_NEAR(paper.textBis(1, 125, 104).x, 90, 0.01);
}

TEST_F(TabelleTest, WithoutRowsThereIsOnePageOfHeadings) {
  print(0);
  EXPECT_EQ(pages, 1);
  EXPECT_EQ(above, 1);
  EXPECT_EQ(paper.textBei(1, 20, 95).text, "Title: ");
  EXPECT_EQ(rowsOn(1), 0);
}

TEST_F(TabelleTest, TwentySevenRowsFillTheFirstPage) {
  print(27);
  EXPECT_EQ(pages, 1);
  EXPECT_EQ(rowsOn(1), 27);
}

TEST_F(TabelleTest, OneMoreTakesASecondPage) {
  print(28);
  EXPECT_EQ(pages, 2);
  EXPECT_EQ(rowsOn(1), 27);
  EXPECT_EQ(rowsOn(2), 1);
  EXPECT_EQ(paper.textBis(2, 125, 36).text, "x28");
  EXPECT_EQ(paper.textBei(2, 20, 30).text, "Title: ");
  EXPECT_EQ(above, 1) << "only the first page has something above its table";
}

TEST_F(TabelleTest, AHundredRowsTakeThreePages) {
  print(100);
  EXPECT_EQ(pages, 3);
  EXPECT_EQ(rowsOn(1), 27);
  EXPECT_EQ(rowsOn(2), 37);
  EXPECT_EQ(rowsOn(3), 36);
  for (int page = 1; page <= 3; ++page) {
    EXPECT_EQ(paper.textBei(page, 20, 10).text, "Head");
    EXPECT_EQ(paper.textBei(page, 20, 268).text, "! = note");
    EXPECT_EQ(paper.textBei(page, 180, 275).text, "Page 0" + std::to_string(page));
  }
}

}  // namespace
}  // namespace korvin
