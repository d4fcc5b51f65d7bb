#include "environment/aussicht.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "environment/adapt_parameter.h"
#include "environment/aussicht_texte.h"
#include "frame/memory_settings_tree.h"
#include "support/test_ports.h"

namespace korvin {
namespace {

constexpr double RoundingOfHalfWidths = 1e-15;

/// Five samples a second.
AnalyseErgebnis run(double sX, double sY) {
  return {.AnalyseAnzahl = 155, .AnalyseSekunden = 32, .Beta = 5, .sX = sX, .sY = sY};
}

AdaptivVorgabe asked(double X, double Y, std::int16_t seconds = 12, std::int16_t Beta = 5) {
  return {.X_Genauigkeit = X, .Y_Genauigkeit = Y, .MessZeitMax = seconds, .Beta = Beta};
}

// ---- Settings ----

class AdaptivVorgabeTest : public ::testing::Test {
 protected:
  MemorySettingsTree tree;
  Profil profil{tree};
};

TEST_F(AdaptivVorgabeTest, WithoutSettingsIsThatOfTheStraightnessWindow) {
  const AdaptivVorgabe vorgabe = adaptivVorgabe(profil);
  EXPECT_EQ(vorgabe.X_Genauigkeit, 0.01);
  EXPECT_EQ(vorgabe.Y_Genauigkeit, 0.01);
  EXPECT_EQ(vorgabe.MessZeitMax, 12);
  EXPECT_EQ(vorgabe.Beta, 5);
}

TEST_F(AdaptivVorgabeTest, ReadsWhatSavingWrote) {
  AdaptParameter parameter{.zeit = "25 s", .FX = "0.1234", .FY = "0.5678", .Beta5 = false, .Beta1 = true};
  ParameterSpeichern(profil, parameter);
  const AdaptivVorgabe vorgabe = adaptivVorgabe(profil);
  EXPECT_EQ(vorgabe.X_Genauigkeit, 0.1234);
  EXPECT_EQ(vorgabe.Y_Genauigkeit, 0.5678);
  EXPECT_EQ(vorgabe.MessZeitMax, 25);
  EXPECT_EQ(vorgabe.Beta, 1);
}

TEST_F(AdaptivVorgabeTest, OnlyTheKeyOf99PercentIsAsked) {
  profil.ProfilSchreiben(KorvinIni, "MessInfo_G", "Beta5", "0");
  EXPECT_EQ(adaptivVorgabe(profil).Beta, 5);
}

// ---- Half widths ----

TEST(AdaptivAussicht, HalfWidthsAreThoseOfTheSamplesThatFit) {
  const Aussicht aussicht = adaptivAussicht(run(0.01, 0.02), asked(1, 1));
  // 12 s at 0.2 s; the factor for 60 samples at 5 % is 2.0006.
  EXPECT_EQ(aussicht.proben, 60);
  EXPECT_NEAR(aussicht.halbbreiteX, 2.0006 * 0.01 / std::sqrt(60), RoundingOfHalfWidths);
  EXPECT_NEAR(aussicht.halbbreiteY, 2.0006 * 0.02 / std::sqrt(60), RoundingOfHalfWidths);
}

TEST(AdaptivAussicht, TheOtherLevelWidensThem) {
  const Aussicht aussicht = adaptivAussicht(run(0.01, 0.02), asked(1, 1, 12, 1));
  EXPECT_NEAR(aussicht.halbbreiteX, (2.660 + 0.0012) * 0.01 / std::sqrt(60), RoundingOfHalfWidths);
}

TEST(AdaptivAussicht, MilAreBroughtToMm) {
  AnalyseErgebnis inMil = run(1, 2);
  inMil.Masssystem = 1;
  const Aussicht aussicht = adaptivAussicht(inMil, asked(1, 1));
  EXPECT_NEAR(aussicht.halbbreiteX, 2.0006 * 0.0254 / std::sqrt(60), RoundingOfHalfWidths);
  EXPECT_NEAR(aussicht.halbbreiteY, 2.0006 * 0.0508 / std::sqrt(60), RoundingOfHalfWidths);
}

TEST(AdaptivAussicht, TakesNoMoreThanAThousandSamples) {
  AnalyseErgebnis fast = run(0.01, 0.01);
  fast.AnalyseAnzahl = 500;
  EXPECT_EQ(adaptivAussicht(fast, asked(1, 1, 62)).proben, 1000);
  EXPECT_EQ(adaptivAussicht(fast, asked(1, 1, 63)).proben, 1000);
}

TEST(AdaptivAussicht, SamplesThatFitExactlyCount) {
  for (std::int16_t rate = 1; rate <= 16; ++rate) {
    AnalyseErgebnis ergebnis = run(0.01, 0.01);
    ergebnis.AnalyseAnzahl = static_cast<std::int16_t>(31 * rate);
    for (std::int16_t seconds = 1; seconds < 60; ++seconds)
      ASSERT_EQ(adaptivAussicht(ergebnis, asked(1, 1, seconds)).proben, rate * seconds);
  }
}

TEST(AdaptivAussicht, ASampleThatFitsInPartDoesNotCount) {
  AnalyseErgebnis ergebnis = run(0.01, 0.01);
  ergebnis.AnalyseAnzahl = 150;
  // 12 * 150 / 31 = 58.06
  EXPECT_EQ(adaptivAussicht(ergebnis, asked(1, 1, 12)).proben, 58);
}

// ---- Grades ----

/// The grade where X takes up `share` of its accuracy, and Y hardly any.
Erfolg gradeAt(double share) {
  const double K = 2.0006 / std::sqrt(60);
  return adaptivAussicht(run(share / K, 0.001), asked(1, 1)).erfolg;
}

// 1 + 2 sqrt(1 / 118 + 1 / 308) with 60 samples of a point and 155 of the run.
const double Margin = 1 + 2 * std::sqrt(1.0 / 118 + 1.0 / 308);

TEST(AdaptivAussicht, GradesLieTwoStandardDeviationsApart) {
  EXPECT_EQ(gradeAt(0.1), Erfolg::wahrscheinlich);
  EXPECT_EQ(gradeAt(1 / Margin - 1e-6), Erfolg::wahrscheinlich);
  EXPECT_EQ(gradeAt(1 / Margin + 1e-6), Erfolg::fraglich);
  EXPECT_EQ(gradeAt(1), Erfolg::fraglich);
  EXPECT_EQ(gradeAt(Margin - 1e-6), Erfolg::fraglich);
  EXPECT_EQ(gradeAt(Margin + 1e-6), Erfolg::unwahrscheinlich);
  EXPECT_EQ(gradeAt(10), Erfolg::unwahrscheinlich);
}

TEST(AdaptivAussicht, TheWorseAxisDecides) {
  EXPECT_EQ(adaptivAussicht(run(0.001, 0.001), asked(0.1, 0.1)).erfolg, Erfolg::wahrscheinlich);
  EXPECT_EQ(adaptivAussicht(run(1, 0.001), asked(0.1, 0.1)).erfolg, Erfolg::unwahrscheinlich);
  EXPECT_EQ(adaptivAussicht(run(0.001, 1), asked(0.1, 0.1)).erfolg, Erfolg::unwahrscheinlich);
  EXPECT_EQ(adaptivAussicht(run(0.001, 0.001), asked(0.1, 0.0001)).erfolg, Erfolg::unwahrscheinlich);
  EXPECT_EQ(adaptivAussicht(run(0.001, 0.001), asked(0.0001, 0.1)).erfolg, Erfolg::unwahrscheinlich);
}

TEST(AdaptivAussicht, AnAccuracyOfZeroIsNeverReached) {
  EXPECT_EQ(adaptivAussicht(run(0, 0), asked(0, 0.1)).erfolg, Erfolg::unwahrscheinlich);
  EXPECT_EQ(adaptivAussicht(run(0, 0), asked(0.1, 0)).erfolg, Erfolg::unwahrscheinlich);
  EXPECT_EQ(adaptivAussicht(run(0, 0), asked(0.1, -1)).erfolg, Erfolg::unwahrscheinlich);
  EXPECT_EQ(adaptivAussicht(run(0, 0), asked(0.1, 0.1)).erfolg, Erfolg::wahrscheinlich);
}

TEST(AdaptivAussicht, FewerThanTwoSamplesReachNothing) {
  AnalyseErgebnis slow = run(0, 0);
  slow.AnalyseAnzahl = 31;
  for (const std::int16_t seconds : {std::int16_t{-3}, std::int16_t{0}, std::int16_t{1}}) {
    const Aussicht aussicht = adaptivAussicht(slow, asked(1, 1, seconds));
    EXPECT_LT(aussicht.proben, 2) << seconds;
    EXPECT_EQ(aussicht.erfolg, Erfolg::unwahrscheinlich) << seconds;
    EXPECT_EQ(aussicht.halbbreiteX, 0) << seconds;
  }
  EXPECT_EQ(adaptivAussicht(slow, asked(1, 1, 2)).erfolg, Erfolg::wahrscheinlich);
  // A run whose time was never measured says nothing about the pace.
  for (const double seconds : {0.0, 1.0}) {
    slow.AnalyseSekunden = seconds;
    EXPECT_EQ(adaptivAussicht(slow, asked(1, 1)).erfolg, Erfolg::unwahrscheinlich);
  }
}

TEST(AdaptivAussicht, ASingleSampleOfTheRunSaysNothing) {
  AnalyseErgebnis single = run(0, 0);
  single.AnalyseAnzahl = 1;
  EXPECT_EQ(adaptivAussicht(single, asked(1, 1, 99)).erfolg, Erfolg::unwahrscheinlich);
}

// ---- Words ----

class AussichtTexte : public ::testing::Test {
 protected:
  AussichtTexte() {
    dictionary.texts = {
        {7730, "likely"}, {7731, "doubtful"}, {7732, "unlikely"}, {7735, "asked"}, {7736, "got"}};
  }
  test::TestDictionary dictionary;
};

TEST_F(AussichtTexte, EachGradeHasItsWords) {
  EXPECT_EQ(aussichtWorte({.erfolg = Erfolg::wahrscheinlich, .vorgabe = {}}, dictionary), "likely");
  EXPECT_EQ(aussichtWorte({.erfolg = Erfolg::fraglich, .vorgabe = {}}, dictionary), "doubtful");
  EXPECT_EQ(aussichtWorte({.erfolg = Erfolg::unwahrscheinlich, .vorgabe = {}}, dictionary), "unlikely");
}

TEST_F(AussichtTexte, FiguresOfBothAxes) {
  const Aussicht aussicht{
      .vorgabe = asked(0.0127, 0.0254), .proben = 60, .halbbreiteX = 0.00254, .halbbreiteY = 0.5};
  EXPECT_EQ(aussichtZahlen(aussicht, 0, dictionary),
            "asked: X 0.0127  Y 0.0254 mm  12 s  ¦  got: X 0.0025  Y 0.5000 mm");
  EXPECT_EQ(aussichtZahlen(aussicht, 1, dictionary),
            "asked: X 0.5000  Y 1.0000 mil  12 s  ¦  got: X 0.1000  Y 19.6850 mil");
}

TEST_F(AussichtTexte, NoHalfWidthsWithoutSamples) {
  EXPECT_EQ(aussichtZahlen({.vorgabe = asked(0.01, 0.02, 0), .proben = 1}, 0, dictionary),
            "asked: X 0.0100  Y 0.0200 mm  0 s  ¦  got: X -.----  Y -.---- mm");
}

}  // namespace
}  // namespace korvin
