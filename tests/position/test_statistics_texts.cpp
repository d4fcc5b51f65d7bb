#include "position/statistics_texts.h"

#include <gtest/gtest.h>

#include <cmath>

#include "frame/leerwert.h"
#include "position/formpos.h"

namespace korvin {
namespace {

class StatisticsTextsTest : public ::testing::Test {
 protected:
  StatisticsTextsTest() {
    formpos.messungLoeschen();
    PositionsInfo& info = formpos.Info();
    info.RestMP = -1;
    info.NKStellen = 2;
    info.SFak = 2;
    info.ZeigeMittel = true;
    info.ZeigeStreuung = true;
    info.ZeigeSpanne = true;
  }
  void points(std::initializer_list<double> values) {
    for (const double x : values) {
      formpos.arbeit().X.Aktuell = x;
      formpos.arbeit().Y.Aktuell = -x;
      formpos.punktHinzufuegen(45000.5);
    }
  }
  AchsenInfo& X() { return formpos.arbeit().X; }
  StatistikTexte texts() { return statistikTexte(X(), formpos.Info()); }

  FORMPOS formpos;
};

TEST_F(StatisticsTextsTest, WithoutPointsAllIsOpen) {
  X().Mittel = 1;
  X().Streuung = 1;
  EXPECT_EQ(texts().x, "x  ?.?");
  EXPECT_EQ(texts().s, "±2s ?.?");
  EXPECT_EQ(texts().R, "R ?.?");
  EXPECT_EQ(X().Mittel, Leerwert);
  EXPECT_EQ(X().Streuung, Leerwert);
}

TEST_F(StatisticsTextsTest, OnePointHasNoSpreadAndASpanOfZero) {
  points({1.25});
  EXPECT_EQ(texts().x, "x 1.250");
  EXPECT_EQ(texts().s, "±2s ?.?");
  EXPECT_EQ(texts().R, "R 0.000");
  EXPECT_EQ(X().Mittel, 1.25);
  EXPECT_EQ(X().Streuung, Leerwert);
}

TEST_F(StatisticsTextsTest, MeanSpreadAndSpanOfKnownValues) {
  points({2, 4, 4, 4, 5, 5, 7, 9});  // mean 5, squared deviations 32, so s is the root of 32/7
  EXPECT_EQ(texts().x, "x 5.000");
  EXPECT_EQ(texts().s, "±2s 4.276");
  EXPECT_EQ(texts().R, "R 7.000");
  EXPECT_EQ(X().Mittel, 5);
  EXPECT_DOUBLE_EQ(X().Streuung, std::sqrt(32.0 / 7));
}

TEST_F(StatisticsTextsTest, EachAxisHasItsOwn) {
  points({1, 3});
  const StatistikTexte y = statistikTexte(formpos.arbeit().Y, formpos.Info());
  EXPECT_EQ(y.x, "x -2.000");
  EXPECT_EQ(y.s, "±2s 2.828");
  EXPECT_EQ(y.R, "R 2.000");
  EXPECT_EQ(formpos.arbeit().Y.Mittel, -2);
  EXPECT_EQ(X().Mittel, Leerwert) << "not brought up to date yet";
}

TEST_F(StatisticsTextsTest, RelativeToTheOffset) {
  points({10, 12});
  X().Offset = 10;
  formpos.statistikNeu();
  EXPECT_EQ(texts().x, "x 1.000");
  EXPECT_EQ(texts().R, "R 2.000");
}

TEST_F(StatisticsTextsTest, FactorIsAWholeNumberBeforeTheS) {
  points({1, 3});
  formpos.Info().SFak = 1;
  EXPECT_EQ(texts().s, "±1s 1.414");
  formpos.Info().SFak = 3;
  EXPECT_EQ(texts().s, "±3s 4.243");
  EXPECT_DOUBLE_EQ(X().Streuung, std::sqrt(2.0)) << "without the factor";
}

TEST_F(StatisticsTextsTest, DecimalsOfTheRecord) {
  points({1, 2});
  formpos.Info().NKStellen = 0;
  EXPECT_EQ(texts().x, "x 1.5");
  formpos.Info().NKStellen = 3;
  EXPECT_EQ(texts().x, "x 1.5000");
  EXPECT_EQ(texts().s, "±2s 1.4142");
  EXPECT_EQ(texts().R, "R 1.0000");
}

TEST_F(StatisticsTextsTest, LinesThatAreSwitchedOffAreLeftOutYetTheRecordIsBroughtUpToDate) {
  points({1, 3});
  formpos.Info().ZeigeMittel = false;
  EXPECT_FALSE(texts().x);
  EXPECT_TRUE(texts().s && texts().R);
  formpos.Info().ZeigeStreuung = false;
  EXPECT_FALSE(texts().s);
  EXPECT_TRUE(texts().R);
  formpos.Info().ZeigeSpanne = false;
  EXPECT_FALSE(texts().R);
  EXPECT_EQ(X().Mittel, 2);
  EXPECT_DOUBLE_EQ(X().Streuung, std::sqrt(2.0));
}

TEST_F(StatisticsTextsTest, EqualValuesHaveNoSpreadWhateverRoundingLeaves) {
  formpos.Info().AnzahlMP = 3;
  X().Summe = 3;
  X().Quadratsumme = std::nextafter(3.0, 0.0);  // a square just below zero
  EXPECT_EQ(texts().s, "±2s 0.000");
  EXPECT_EQ(X().Streuung, 0);
  for (const double value : {0.1, 0.7, 12.3456, 19.9999}) {
    formpos.messungLoeschen();
    formpos.Info().ZeigeStreuung = true;
    points({value, value, value, value, value, value, value});
    EXPECT_EQ(texts().s, "±2s 0.000") << value;
    EXPECT_LT(X().Streuung, 1e-6);
  }
}

TEST_F(StatisticsTextsTest, SpreadOfManyPointsCountsInWideNumbers) {
  formpos.Info().AnzahlMP = 29999;
  X().Summe = 29999;
  X().Quadratsumme = 29999 + 29998;  // mean 1, variance 1
  EXPECT_NEAR(*standardabweichung(X(), 29999), 1, 1e-9);
  EXPECT_EQ(texts().s, "±2s 2.000");
  EXPECT_EQ(texts().x, "x 1.000");
}

}  // namespace
}  // namespace korvin
