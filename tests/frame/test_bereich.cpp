#include "frame/bereich.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <stdexcept>
#include <string>
#include <vector>

#include "frame/leerwert.h"

namespace korvin {
namespace {

constexpr int metric = 0;
constexpr int inch = 1;

struct Rung {
  double value;
  const char* text;
};

const std::vector<Rung> metricRungs = {{0.001, "±1um"}, {0.002, "±2um"}, {0.005, "±5um"}, {0.01, "±10um"},
                                       {0.02, "±20um"}, {0.05, "±50um"}, {0.1, "±100um"}, {0.2, "±200um"},
                                       {0.5, "±500um"}, {1, "±1mm"},     {2, "±2mm"},     {5, "±5mm"},
                                       {10, "±10mm"},   {20, "±20mm"}};
const std::vector<Rung> inchRungs = {
    {0.02, "±0.02mil"}, {0.05, "±0.05mil"}, {0.1, "±0.1mil"}, {0.2, "±0.2mil"}, {0.5, "±0.5mil"},
    {1, "±1mil"},       {2, "±2mil"},       {5, "±5mil"},     {10, "±10mil"},   {20, "±20mil"},
    {50, "±50mil"},     {100, "±100mil"},   {200, "±200mil"}, {500, "±500mil"}, {1000, "±1in"}};

class EveryLadder : public testing::TestWithParam<int> {
 protected:
  int unit() const { return GetParam(); }
  const std::vector<Rung>& rungs() const { return unit() == inch ? inchRungs : metricRungs; }
};
INSTANTIATE_TEST_SUITE_P(Bereich, EveryLadder, testing::Values(metric, inch));

TEST_P(EveryLadder, ARungFitsItselfAndAllBetweenFitsTheRungAbove) {
  for (std::size_t i = 0; i < rungs().size(); ++i) {
    const DiagrammBereich self = bereichAnpassen(rungs()[i].value, unit());
    EXPECT_EQ(self.bereich, rungs()[i].value);
    EXPECT_EQ(self.text, rungs()[i].text);
    EXPECT_EQ(self.schritt, rungs()[i].value / 5);
    if (i + 1 == rungs().size()) break;
    const double justAbove = std::nextafter(rungs()[i].value, 1e9);
    EXPECT_EQ(bereichAnpassen(justAbove, unit()).bereich, rungs()[i + 1].value);
    EXPECT_EQ(bereichAnpassen(justAbove, unit()).text, rungs()[i + 1].text);
  }
}

TEST_P(EveryLadder, GoesUpRungByRungAndStaysAtTheTop) {
  for (std::size_t i = 0; i + 1 < rungs().size(); ++i) {
    EXPECT_EQ(bereichGroesser(rungs()[i].value, unit()), rungs()[i + 1].value);
    EXPECT_EQ(bereichGroesser((rungs()[i].value + rungs()[i + 1].value) / 2, unit()), rungs()[i + 1].value);
  }
  const double top = rungs().back().value;
  EXPECT_EQ(bereichGroesser(top, unit()), top);
  EXPECT_EQ(bereichGroesser(top * 3, unit()), top);
  EXPECT_EQ(bereichGroesser(0, unit()), rungs().front().value);
}

TEST_P(EveryLadder, GoesDownToTheLowestButOne) {
  for (std::size_t i = 2; i < rungs().size(); ++i)
    EXPECT_EQ(bereichKleiner(rungs()[i].value, unit()), rungs()[i - 1].value);
  EXPECT_EQ(bereichKleiner(rungs()[1].value, unit()), rungs()[1].value);
  EXPECT_EQ(bereichKleiner(rungs()[0].value, unit()), rungs()[0].value) << "the bottom stays";
}

TEST_P(EveryLadder, AValueBetweenRungsFallsToTheRungBelow) {
  for (std::size_t i = 0; i + 1 < rungs().size(); ++i) {
    EXPECT_EQ(bereichKleiner((rungs()[i].value + rungs()[i + 1].value) / 2, unit()), rungs()[i].value);
  }
  EXPECT_EQ(bereichKleiner(rungs().back().value * 2, unit()), rungs().back().value);
  EXPECT_EQ(bereichKleiner(rungs().front().value / 2, unit()), rungs().front().value);
}

TEST(Bereich, FitsToTheNextRungWithItsLabel) {
  EXPECT_EQ(bereichAnpassen(0.0011, metric).bereich, 0.002);
  EXPECT_EQ(bereichAnpassen(0.0011, metric).text, "±2um");
  EXPECT_EQ(bereichAnpassen(25, metric).bereich, 20) << "such a point lies outside";
  EXPECT_EQ(bereichAnpassen(25, metric).text, "±20mm");
  EXPECT_EQ(bereichAnpassen(5000, inch).bereich, 1000);
  EXPECT_EQ(bereichAnpassen(5000, inch).text, "±1in");
  EXPECT_EQ(bereichAnpassen(0.001, inch).bereich, 0.02);
}

TEST(Bereich, OddValuesGiveARung) {
  for (const double value : {0.0, -3.0, std::numeric_limits<double>::quiet_NaN()}) {
    EXPECT_EQ(bereichAnpassen(value, metric).bereich, 0.001);
  }
  EXPECT_EQ(bereichAnpassen(std::numeric_limits<double>::infinity(), metric).bereich, 20);
}

TEST(Bereich, OfAnAxisIsItsOwnByHand) {
  const std::vector<double> points = {2, 0.5, -0.7};
  EXPECT_EQ(bereichDerAchse(true, 0.05, 0, points), 0.05);
  EXPECT_EQ(bereichDerAchse(false, 0.05, 0, points), 0.7);
}

TEST(Bereich, OfAnAxisIsTheHighestDistanceFromTheOffset) {
  const std::vector<double> points = {3, 0.5, -0.75, 0.25, 100, 100};
  EXPECT_EQ(bereichDerAchse(false, 0, 0, points), 0.75) << "only counted points";
  EXPECT_EQ(bereichDerAchse(false, 0, -0.5, points), 1);
  EXPECT_EQ(bereichDerAchse(false, 0, 0.5, points), 1.25);
}

TEST(Bereich, OfAnAxisSkipsTheEmptyValue) {
  EXPECT_EQ(bereichDerAchse(false, 0, 0, std::vector<double>{3, 0.5, Leerwert, -0.25}), 0.5);
  EXPECT_EQ(bereichDerAchse(false, 0, 0, std::vector<double>{1, Leerwert}), 0.001);
}

TEST(Bereich, OfAnAxisWithoutPointsIsTheSmallest) {
  for (const std::vector<double>& points :
       {std::vector<double>{}, {0}, {0, 5}, {-1, 5}, {0.5, 5}, {std::nan(""), 5}}) {
    const double range = bereichDerAchse(false, 0, 0, points);
    EXPECT_EQ(range, 0.001);
    EXPECT_EQ(bereichAnpassen(range, metric).bereich, 0.001);
    EXPECT_EQ(bereichAnpassen(range, inch).bereich, 0.02);
  }
  EXPECT_EQ(bereichDerAchse(false, 0, 0, std::vector<double>{1, 0.0001}), 0.001);
}

TEST(Bereich, ACountBeyondTheArrayIsABoundsFailure) {
  EXPECT_EQ(bereichDerAchse(false, 0, 0, std::vector<double>{1, 0.5}), 0.5);
  EXPECT_THROW(bereichDerAchse(false, 0, 0, std::vector<double>{2, 0.5}), std::out_of_range);
  EXPECT_THROW(bereichDerAchse(false, 0, 0, std::vector<double>{1e300, 0.5}), std::out_of_range);
}

TEST(BereichsText, TellsUnitAndNumber) {
  EXPECT_EQ(bereichsEinheit(bereichAnpassen(0.02, 0)), "um");
  EXPECT_EQ(bereichsZahl(bereichAnpassen(0.02, 0)), 20);
  EXPECT_EQ(bereichsEinheit(bereichAnpassen(20, 0)), "mm");
  EXPECT_EQ(bereichsEinheit(bereichAnpassen(0.05, 1)), "mil");
  EXPECT_EQ(bereichsZahl(bereichAnpassen(0.05, 1)), 0.05);
  EXPECT_EQ(bereichsEinheit(bereichAnpassen(1000, 1)), "in");
  EXPECT_EQ(bereichsZahl(bereichAnpassen(1000, 1)), 1);
}

}  // namespace
}  // namespace korvin
