#include "korvin-head/head_model.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

namespace korvin::head {
namespace {

HeadProperties still() {
  HeadProperties properties;
  properties.noiseUm = 0;
  return properties;
}

std::string answerOf(const HeadProperties& properties, Spot spot, const Request& request, char key = 'K',
                     double now = 0) {
  return HeadModel(properties, driftingBeam(spot, {})).answer(request, key, now);
}

const Request kT{'0', '0', 'T'};
const Request kM{'0', '0', 'M'};
const Request kJ{'0', '0', 'J'};

TEST(Model, ColumnsOfTheAnswers) {
  HeadProperties properties = still();
  properties.headClass = '2';
  properties.intensity = 7;
  const Spot spot{0.0012, -1.5};
  EXPECT_EQ(answerOf(properties, spot, kT), "2-K-T");
  EXPECT_EQ(answerOf(properties, spot, kM, 'J'), "2-J-m 250012 235000 00000 07");
  EXPECT_EQ(answerOf(properties, spot, kJ), "2-K-j 250012 235000 00000 07");
}

TEST(Model, CursorKeysGiveAStatusAnswerOfTheirOwnKind) {
  EXPECT_EQ(answerOf(still(), {}, kT, 'L'), "1-L-L");
  EXPECT_EQ(answerOf(still(), {}, kT, 'R'), "1-R-R");
  EXPECT_EQ(answerOf(still(), {}, kT, 'M'), "1-M-T");
  EXPECT_EQ(answerOf(still(), {}, kJ, 'L').at(4), 'j');
}

TEST(Model, RawCountsStayWithinSixDigits) {
  EXPECT_EQ(rawCount(0), 250000);
  EXPECT_EQ(rawCount(-25), 0);
  EXPECT_EQ(rawCount(-1000), 0);
  EXPECT_EQ(rawCount(1000), 999999);
  EXPECT_EQ(rawCount(0.00005), 250001);
  EXPECT_EQ(answerOf(still(), {-100, 100}, kJ), "1-K-j 000000 999999 00000 85");
}

TEST(Model, TheBatteryGetsLowAtItsTime) {
  HeadProperties properties = still();
  properties.batteryLowAfter = 10;
  EXPECT_EQ(answerOf(properties, {}, kT, 'K', 9.9), "1-K-T");
  EXPECT_EQ(answerOf(properties, {}, kT, 'K', 10), "1-KBT");
}

TEST(Model, AnMAnswerCarriesTheHeadOnAlongItsLine) {
  HeadModel model(still(), alongLine(driftingBeam({0.1, 0.2}, {}), {10, -2}));
  EXPECT_EQ(model.answer(kJ, 'K', 0), "1-K-j 251000 252000 00000 85");
  EXPECT_EQ(model.answer(kM, 'K', 0), "1-K-m 251000 252000 00000 85");
  EXPECT_EQ(model.answer(kT, 'K', 0), "1-K-T");
  EXPECT_EQ(model.answer(kJ, 'K', 0), "1-K-j 251080 251960 00000 85");
  EXPECT_EQ(model.answer(kM, 'K', 9), "1-K-m 251080 251960 00000 85");
  EXPECT_EQ(model.answer(kM, 'K', 9), "1-K-m 251120 251940 00000 85") << "2 points: 20 - 8 um";
}

TEST(Model, AnMAnswerTurnsTheHeadOnAlongItsCircle) {
  HeadModel model(still(), onCircle(driftingBeam({0.1, 0.2}, {}), {0.5, 4}));
  EXPECT_EQ(model.answer(kJ, 'K', 0), "1-K-j 256000 252000 00000 85");
  EXPECT_EQ(model.answer(kM, 'K', 0), "1-K-m 256000 252000 00000 85");
  EXPECT_EQ(model.answer(kM, 'K', 0), "1-K-m 251000 257000 00000 85");
  EXPECT_EQ(model.answer(kM, 'K', 0), "1-K-m 246000 252000 00000 85");
  EXPECT_EQ(model.answer(kM, 'K', 0), "1-K-m 251000 247000 00000 85");
  EXPECT_EQ(model.answer(kM, 'K', 0), "1-K-m 256000 252000 00000 85") << "round again";
}

TEST(Model, IsCarriedOnByHand) {
  HeadModel model(still(), alongLine(driftingBeam({}, {}), {10, 0}));
  model.answer(kJ, 'K', 0);
  EXPECT_EQ(model.answer(kJ, 'K', 0), "1-K-j 250000 250000 00000 85") << "J alone stays where it is";
  model.carryOn();
  EXPECT_EQ(model.answer(kJ, 'K', 0), "1-K-j 250100 249950 00000 85");
}

TEST(Model, TheBeamDriftsByTheHour) {
  HeadModel model(still(), driftingBeam({1, -1}, {0.36, -3.6}));
  EXPECT_EQ(model.answer(kJ, 'K', 100), "1-K-j 260100 239000 00000 85");
}

TEST(Model, AnswersOnlyItsOwnIdAndTheSearch) {
  HeadProperties properties = still();
  properties.id = '3';
  const HeadModel model(properties, driftingBeam({}, {}));
  EXPECT_TRUE(model.isMeant({'0', '0', 'T'}));
  EXPECT_TRUE(model.isMeant({'3', '0', 'T'}));
  EXPECT_FALSE(model.isMeant({'1', '0', 'T'}));
}

TEST(Model, AnswerTimesByCommandAndLevel) {
  const HeadModel model(still(), driftingBeam({}, {}));
  const std::string levels = "01234567";
  const double m[] = {0.5, 1, 2, 5, 10, 0.05, 0.05, 0.05};
  const double j[] = {0.2, 0.2, 0.2, 0.2, 0.2, 0.05, 0.05, 0.05};
  for (std::size_t i = 0; i < levels.size(); ++i) {
    EXPECT_EQ(model.answerSeconds({'0', levels[i], 'M'}), m[i]) << levels[i];
    EXPECT_EQ(model.answerSeconds({'0', levels[i], 'J'}), j[i]) << levels[i];
    EXPECT_EQ(model.answerSeconds({'0', levels[i], 'T'}), 0) << levels[i];
  }
  EXPECT_EQ(model.answerSeconds({'0', 'x', 'M'}), 2);
}

TEST(Model, TheTimeScaleShortensAnswersButNotTheAveraging) {
  HeadProperties properties = still();
  properties.timeScale = 0.01;
  const HeadModel model(properties, driftingBeam({}, {}));
  EXPECT_DOUBLE_EQ(model.answerSeconds({'0', '4', 'M'}), 0.1);
  EXPECT_EQ(averagingSeconds({'0', '4', 'M'}), 10);
}

/// Standard deviation in um of `count` readings of X.
double scatter(const Request& request, int count) {
  HeadProperties properties;
  properties.noiseUm = 50;  // far above the grain of 0.1 um
  HeadModel model(properties, driftingBeam({}, {}));
  double sum = 0;
  double squares = 0;
  for (int i = 0; i < count; ++i) {
    const double um = (std::stod(model.answer(request, 'K', 0).substr(6, 6)) - 250000) / 10;
    sum += um;
    squares += um * um;
  }
  return std::sqrt((squares - sum * sum / count) / (count - 1));
}

// With 4000 readings the scatter itself scatters by 1/sqrt(8000), 1.1 %: 5 % is more than four of that.
TEST(Model, TheNoiseFallsWithTheSquareRootOfTheAveragingTime) {
  constexpr int kCount = 4000;
  for (const Request& request : {Request{'0', '0', 'M'}, Request{'0', '1', 'M'}, Request{'0', '4', 'M'},
                                 Request{'0', '0', 'J'}, Request{'0', '5', 'J'}}) {
    const double expected = 50 / std::sqrt(averagingSeconds(request));
    EXPECT_NEAR(scatter(request, kCount) / expected, 1, 0.05) << request.command << request.level;
  }
}

TEST(Model, TheSameSeedGivesTheSameReadings) {
  HeadProperties properties;
  properties.noiseUm = 100;
  HeadModel one(properties, driftingBeam({}, {}));
  HeadModel same(properties, driftingBeam({}, {}));
  properties.seed = 2;
  HeadModel other(properties, driftingBeam({}, {}));
  const std::string first = one.answer(kM, 'K', 0);
  EXPECT_EQ(first, same.answer(kM, 'K', 0));
  EXPECT_NE(first, other.answer(kM, 'K', 0));
  EXPECT_NE(first, one.answer(kM, 'K', 0));
}

}  // namespace
}  // namespace korvin::head
