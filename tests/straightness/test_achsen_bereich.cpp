#include "straightness/achsen_bereich.h"

#include <gtest/gtest.h>

#include <initializer_list>

namespace korvin {
namespace {

constexpr std::int16_t Metrisch = 0;
constexpr std::int16_t Inch = 1;

struct Axis {
  AchsenAnzeige anzeige;
  AchsenToleranz toleranz;
  Auswertefeld wert;  ///< readings; evaluated the same, or in mil
  std::int16_t system = Metrisch;

  Axis(std::initializer_list<double> values, std::int16_t kind, double gesamt = 0,
       std::int16_t units = Metrisch)
      : system(units) {
    anzeige.Bereichsart = kind;
    toleranz.Gesamt = gesamt;
    wert.setAnzahl(values.size());
    std::size_t i = 0;
    for (const double value : values) wert.at(++i) = value;
  }

  double half() const { return Halbbereich(anzeige, toleranz, {wert.elements(), {}}, evaluated(), system); }
  DiagrammBereich rung() {
    return bereichBestimmen(anzeige, toleranz, {wert.elements(), {}}, evaluated(), system);
  }

 private:
  Auswertefeld evaluated() const {
    Auswertefeld result = wert;
    for (std::size_t i = 1; system == Inch && i <= result.anzahl(); ++i) result.at(i) /= 0.0254;
    return result;
  }
};

TEST(Halbbereich, StartsDifferentlyInMmAndMil) {
  EXPECT_EQ(Axis({}, BereichsartAUTO).half(), 0.002);
  EXPECT_EQ(Axis({}, BereichsartAUTO, 0, Inch).half(), 0.01 / 0.0254);
}

TEST(Halbbereich, FollowsTheLargestDistanceFromZero) {
  EXPECT_EQ(Axis({0.01, -0.03, 0.02}, BereichsartAUTO).half(), 0.03);
  EXPECT_DOUBLE_EQ(Axis({0.0254, -0.0508}, BereichsartAUTO, 0, Inch).half(), 2);
}

TEST(Halbbereich, SkipsOpenReadingsInEveryUnit) {
  EXPECT_EQ(Axis({0.01, Leerwert}, BereichsartAUTO).half(), 0.01);
  EXPECT_DOUBLE_EQ(Axis({0.0254, Leerwert}, BereichsartAUTO, 0, Inch).half(), 1);
}

TEST(Halbbereich, StaysAsSetByHand) {
  Axis axis({0.5}, BereichsartHAND);
  axis.anzeige.Bereich = 0.02;
  EXPECT_EQ(axis.half(), 0.02);
}

TEST(Halbbereich, FollowsTheToleranceUntilAValueExceedsItWhole) {
  EXPECT_EQ(Axis({0, 0}, BereichsartTOL, 0.1).half(), 0.05);
  EXPECT_EQ(Axis({0.08}, BereichsartTOL, 0.1).half(), 0.05);
  EXPECT_EQ(Axis({0.12}, BereichsartTOL, 0.1).half(), 0.12);
  EXPECT_EQ(Axis({0.1}, BereichsartTOL, 0.1).half(), 0.1);
  EXPECT_EQ(Axis({0.01}, BereichsartTOL, 0).half(), 0.01);
  EXPECT_DOUBLE_EQ(Axis({0}, BereichsartTOL, 0.0508, Inch).half(), 1);
}

TEST(BereichBestimmen, StoresTheRung) {
  Axis axis({0.0211}, BereichsartAUTO);
  EXPECT_EQ(axis.rung().text, "±50um");
  EXPECT_EQ(axis.anzeige.Bereich, 0.05);
  EXPECT_EQ(Axis({}, BereichsartAUTO).rung().bereich, 0.002);
  EXPECT_EQ(Axis({}, BereichsartAUTO, 0, Inch).rung().bereich, 0.5);
}

TEST(RahmenVeraltet, OnlyWhereTheRangeDiffersFromTheLastDrawing) {
  AchsenAnzeige anzeige;
  anzeige.Bereich = 0.05;
  EXPECT_TRUE(rahmenVeraltet(anzeige));
  EXPECT_EQ(anzeige.BereichAlt, 0.05);
  EXPECT_FALSE(rahmenVeraltet(anzeige));
  anzeige.BereichAlt = 0;
  EXPECT_TRUE(rahmenVeraltet(anzeige));
}

double afterKey(double bereich, std::string_view key, std::int16_t system = Metrisch) {
  AchsenAnzeige anzeige;
  anzeige.Bereichsart = BereichsartHAND;
  anzeige.Bereich = bereich;
  EXPECT_TRUE(bereichsTaste(anzeige, key, system));
  return anzeige.Bereich;
}

TEST(AchsenBereichsTaste, StepsAlongTheLadder) {
  EXPECT_EQ(afterKey(0.02, "PLUS"), 0.05);
  EXPECT_EQ(afterKey(0.02, "MINUS"), 0.01);
  EXPECT_EQ(afterKey(0.5, "PLUS", Inch), 1);
}

TEST(AchsenBereichsTaste, PlusWrapsFromTheTopToTheSecondRung) {
  EXPECT_EQ(afterKey(20, "PLUS"), 0.002);
  EXPECT_EQ(afterKey(1000, "PLUS", Inch), 0.05);
}

TEST(AchsenBereichsTaste, MinusEndsAtTheSecondRung) {
  EXPECT_EQ(afterKey(0.002, "MINUS"), 0.002);
  EXPECT_EQ(afterKey(0.05, "MINUS", Inch), 0.05);
}

TEST(AchsenBereichsTaste, ChoosesTheKindOfRange) {
  AchsenAnzeige anzeige;
  EXPECT_TRUE(bereichsTaste(anzeige, "TOL", Metrisch));
  EXPECT_EQ(anzeige.Bereichsart, BereichsartTOL);
  EXPECT_TRUE(bereichsTaste(anzeige, "HAND", Metrisch));
  EXPECT_EQ(anzeige.Bereichsart, BereichsartHAND);
  EXPECT_TRUE(bereichsTaste(anzeige, "AUTO", Metrisch));
  EXPECT_EQ(anzeige.Bereichsart, BereichsartAUTO);
}

TEST(AchsenBereichsTaste, StepsOnlyByHand) {
  for (const std::int16_t kind : {BereichsartAUTO, BereichsartTOL}) {
    AchsenAnzeige anzeige;
    anzeige.Bereichsart = kind;
    anzeige.Bereich = 0.02;
    EXPECT_FALSE(bereichsTaste(anzeige, "PLUS", Metrisch));
    EXPECT_FALSE(bereichsTaste(anzeige, "MINUS", Metrisch));
    EXPECT_EQ(anzeige.Bereich, 0.02);
  }
  AchsenAnzeige anzeige;
  EXPECT_FALSE(bereichsTaste(anzeige, "SONST", Metrisch));
}

}  // namespace
}  // namespace korvin
