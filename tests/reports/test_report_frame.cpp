#include <gtest/gtest.h>

#include "reports/info_block.h"
#include "reports/seitenrahmen.h"
#include "reports/statistik_block.h"
#include "support/recording_drucker.h"
#include "support/test_ports.h"

namespace korvin {
namespace {

using test::DruckMarke;
using test::RecordingDrucker;

class ReportFrameTest : public ::testing::Test {
 protected:
  test::TestDictionary dictionary;
  RecordingDrucker paper;
};

TEST_F(ReportFrameTest, HeadOfTheFirstPage) {
  const SeitenTexte texte = seitenTexte(dictionary, "Prüfstelle Süd");
  Seitenrahmen(paper, texte).SeiteKopf();
  EXPECT_EQ(paper.seite(), 1) << "the first page is there already";
  const DruckMarke head = paper.textBei(1, 20, 10);
  EXPECT_EQ(head.text, "KORVIN-D3057:  Prüfstelle Süd");
  EXPECT_EQ(head.schrift, "ARIAL");
  EXPECT_EQ(head.groesse, 18);
  EXPECT_FALSE(head.fett);
  ASSERT_EQ(paper.linien(1).size(), 1U);
  const DruckMarke rule = paper.linien(1).at(0);
  EXPECT_EQ(rule.x, 20);
  EXPECT_EQ(rule.y, 20);
  EXPECT_EQ(rule.x2, 190);
  EXPECT_EQ(rule.y2, 20);
  EXPECT_EQ(rule.breite, 3);
  paper.linie(0, 0, 1, 1, 0);
  EXPECT_EQ(paper.alle.back().breite, 1) << "line width back";
}

TEST_F(ReportFrameTest, EachFurtherHeadBeginsAPage) {
  const SeitenTexte texte = seitenTexte(dictionary, "");
  Seitenrahmen frame(paper, texte);
  frame.SeiteKopf();
  frame.SeiteKopf();
  frame.SeiteKopf();
  EXPECT_EQ(paper.seite(), 3);
  EXPECT_EQ(paper.textBei(3, 20, 10).text, "KORVIN-D3057:  ");
}

TEST_F(ReportFrameTest, TheHeadStandsInMillimetresWhateverTheScaleWas) {
  const SeitenTexte texte = seitenTexte(dictionary, "");
  paper.setSkala(-1, 1, 1, -1);
  Seitenrahmen(paper, texte).SeiteKopf();
  EXPECT_EQ(paper.textBei(1, 20, 10).text, "KORVIN-D3057:  ");
}

TEST_F(ReportFrameTest, ALongDesignationShrinksToTheRightMargin) {
  const SeitenTexte texte = seitenTexte(dictionary, std::string(75, 'W'));
  Seitenrahmen(paper, texte).SeiteKopf();
  const DruckMarke head = paper.textBei(1, 20, 10);
  EXPECT_NEAR(head.x2, 190, 0.01);
  EXPECT_LT(head.groesse, 18);
}

TEST_F(ReportFrameTest, Foot) {
  const SeitenTexte texte = seitenTexte(dictionary, "");
  Seitenrahmen frame(paper, texte);
  paper.setSkala(-1, 1, 1, -1);
  paper.setFarbe(0x0000FF);
  paper.setFett(true);
  frame.SeiteFuss();
  const DruckMarke maker = paper.textBei(1, 20, 275);
  EXPECT_EQ(maker.text.rfind("D3062", 0), 0U);
  EXPECT_GT(maker.text.size(), 5U) << "a name behind it";
  EXPECT_EQ(paper.textBei(1, 105, 275).text, "WIN-KORVIN, Version 5.55 / qk ");
  EXPECT_EQ(paper.textBei(1, 180, 275).text, "D3063: 01");
  EXPECT_EQ(paper.texte(1).size(), 3U);
  for (const DruckMarke& text : paper.texte(1)) {
    EXPECT_EQ(text.groesse, 7);
    EXPECT_EQ(text.schrift, "ARIAL");
    EXPECT_EQ(text.farbe, 0);
    EXPECT_FALSE(text.fett);
  }
}

TEST_F(ReportFrameTest, PageNumbersHaveTwoDigitsAtLeast) {
  const SeitenTexte texte = seitenTexte(dictionary, "");
  Seitenrahmen frame(paper, texte);
  for (int page = 1; page <= 100; ++page) {
    frame.SeiteKopf();
    frame.SeiteFuss();
  }
  EXPECT_EQ(paper.textBei(9, 180, 275).text, "D3063: 09");
  EXPECT_EQ(paper.textBei(10, 180, 275).text, "D3063: 10");
  EXPECT_EQ(paper.textBei(100, 180, 275).text, "D3063: 100");
}

// ---- Information block ----

TEST_F(ReportFrameTest, InfoBlockPutsALineEveryFourMillimetres) {
  InfoBlock(paper, 25, {{"Heading:", {}, {}, {}, true}, {"a:", "b", {}, {}}, {"c:", "d", "e:", "f"}});
  EXPECT_EQ(paper.textBei(1, 20, 25).text, "Heading:");
  EXPECT_TRUE(paper.textBei(1, 20, 25).fett);
  EXPECT_EQ(paper.textBei(1, 20, 29).text, "a:");
  EXPECT_FALSE(paper.textBei(1, 20, 29).fett);
  EXPECT_EQ(paper.textBei(1, 45, 29).text, "b");
  EXPECT_EQ(paper.textBei(1, 20, 33).text, "c:");
  EXPECT_EQ(paper.textBei(1, 45, 33).text, "d");
  EXPECT_EQ(paper.textBei(1, 90, 33).text, "e:");
  EXPECT_EQ(paper.textBei(1, 120, 33).text, "f");
  EXPECT_EQ(paper.texte(1).size(), 7U) << "what is empty makes no mark";
  for (const DruckMarke& text : paper.texte(1)) {
    EXPECT_EQ(text.groesse, 9);
    EXPECT_EQ(text.schrift, "ARIAL");
  }
}

TEST_F(ReportFrameTest, OnlyTheHeadingOfABlockIsBold) {
  InfoBlock(paper, 25, {{"Heading:", "value", "right:", "its value", true}});
  EXPECT_TRUE(paper.textBei(1, 20, 25).fett);
  EXPECT_FALSE(paper.textBei(1, 45, 25).fett);
  EXPECT_FALSE(paper.textBei(1, 90, 25).fett);
  EXPECT_FALSE(paper.textBei(1, 120, 25).fett);
}

TEST_F(ReportFrameTest, InfoBlockLeavesThePositionWhereTheNextValueWouldStand) {
  InfoBlock(paper, 25, std::vector<InfoZeile>(9));
  EXPECT_EQ(paper.x(), 45);
  EXPECT_EQ(paper.y(), 25 + 36);
  InfoBlock(paper, 25, std::vector<InfoZeile>(11));
  EXPECT_EQ(paper.y(), 25 + 44) << "a longer block ends lower";
}

TEST_F(ReportFrameTest, InfoBlockKeepsEachTextInItsPlace) {
  const std::string lang(75, 'W');
  InfoBlock(paper, 25, {{lang, lang, lang, lang}, {lang, lang, {}, {}}, {lang, {}, {}, {}}});
  EXPECT_LT(paper.textBei(1, 20, 25).x2, 45);
  EXPECT_LT(paper.textBei(1, 45, 25).x2, 90);
  EXPECT_LT(paper.textBei(1, 90, 25).x2, 120);
  EXPECT_LE(paper.textBei(1, 120, 25).x2, 190.01);
  const DruckMarke alone = paper.textBei(1, 45, 29);
  EXPECT_EQ(alone.groesse, 9) << "without a right half there is room up to the margin";
  EXPECT_LE(paper.textBei(1, 20, 33).x2, 190.01);
  EXPECT_EQ(paper.textBei(1, 20, 33).groesse, 9);
  EXPECT_EQ(paper.schriftGroesse(), 9);
}

// ---- Statistics block ----

TEST_F(ReportFrameTest, BlockOfOneRow) {
  AchsenBlock(paper, 13, 71, statistikBlock({"X", "XY-Title:", "x 0.010", "2s 0.002", "R 0.005"}));
  EXPECT_EQ(paper.textBei(1, 34, 72).text, "X");
  EXPECT_EQ(paper.textBei(1, 38, 72).text, "XY-Title:");
  EXPECT_EQ(paper.textBei(1, 116, 72).text, "x 0.010");
  EXPECT_EQ(paper.textBei(1, 141, 72).text, "2s 0.002");
  EXPECT_EQ(paper.textBei(1, 166, 72).text, "R 0.005");
  for (const DruckMarke& text : paper.texte(1)) EXPECT_EQ(text.groesse, 9);
}

TEST_F(ReportFrameTest, RulesOfABlock) {
  AchsenBlock(paper, 13, 71, statistikBlock({"X", "T", "x", "s", "R"}));
  const auto has = [this](double x1, double y1, double x2, double y2) {
    for (const DruckMarke& l : paper.linien(1)) {
      if (std::abs(l.x - x1) + std::abs(l.y - y1) + std::abs(l.x2 - x2) + std::abs(l.y2 - y2) < 1e-6)
        return true;
    }
    return false;
  };
  EXPECT_TRUE(has(33, 71, 189.5, 71));
  EXPECT_TRUE(has(33, 76, 189.5, 76));
  for (const double x : {33.0, 38.0, 114.0, 139.0, 164.0, 189.5}) EXPECT_TRUE(has(x, 71, x, 76)) << x;
  EXPECT_EQ(paper.linien(1).size(), 2U + 6U + 1U) << "the last one is the bar over the x";
}

TEST_F(ReportFrameTest, TheBarOfAMeanLiesOverItsX) {
  AchsenBlock(paper, 0, 65, statistikBlock({"X", "T", "x 0.010", "s", "R"}));
  const DruckMarke bar = paper.linien(1).back();
  EXPECT_NEAR(bar.x, 103.5, 1e-6);
  EXPECT_NEAR(bar.x2, 105, 1e-6);
  EXPECT_EQ(bar.y, bar.y2);
  const DruckMarke mean = paper.textBei(1, 103, 66);
  EXPECT_GT(bar.y, mean.y);
  EXPECT_LT(bar.y, mean.y + 0.4 * (mean.y2 - mean.y)) << "above the small letter";
}

TEST_F(ReportFrameTest, CellsOfABlockKeepTheirTexts) {
  const std::string lang(75, 'W');
  AchsenBlock(paper, 0, 65, statistikBlock({"X", lang, lang, lang, lang}));
  EXPECT_LT(paper.textBei(1, 25, 66).x2, 101);
  EXPECT_LT(paper.textBei(1, 103, 66).x2, 126);
  EXPECT_LT(paper.textBei(1, 128, 66).x2, 151);
  EXPECT_LT(paper.textBei(1, 153, 66).x2, 176.5);
  EXPECT_EQ(paper.schriftGroesse(), 9);
}

}  // namespace
}  // namespace korvin
