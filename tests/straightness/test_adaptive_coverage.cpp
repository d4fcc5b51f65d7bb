// What an accepted point is worth: its mean lies within the required accuracy of the true position about as
// often as the level says. The large run of this is bench/adaptive_coverage.cpp.
#include <gtest/gtest.h>

#include <algorithm>

#include "straightness/adaptive_study.h"

namespace korvin {
namespace {

using test::AdaptiveStudy;
using test::StudyResult;

constexpr int points = 400;
constexpr std::uint64_t seed = 5;
constexpr double level = 0.95;
constexpr double sigmas =
    3;  // of the sampling error of a share; the seed is fixed, so it holds always or never

/// Not below the level, and not so far above it that points took longer than they had to.
void expectAbout(const StudyResult& result, double share, double highest) {
  EXPECT_GT(share, level - sigmas * result.samplingError(level));
  EXPECT_LT(share, highest);
}

TEST(AdaptiveCoverage, AcceptedMeansLieWithinTheAccuracyAtTheLevelOfConfidence) {
  const StudyResult result = AdaptiveStudy({.noiseUm = 16}, seed).measure(points);
  EXPECT_GT(result.accepted, points * 98 / 100);
  expectAbout(result, result.shareX(), 0.985);
  expectAbout(result, result.shareY(), 0.985);
  EXPECT_GT(result.shareBoth(), level * level - sigmas * result.samplingError(level * level));
  EXPECT_LT(result.shareBoth(), std::min(result.shareX(), result.shareY()));
  EXPECT_NEAR(result.seconds, 12, 0.5);
}

TEST(AdaptiveCoverage, HoldsWhereTimeBuysTheAccuracy) {
  const StudyResult result =
      AdaptiveStudy({.noiseUm = 22, .MessZeitMin = 5, .MessZeitMax = 60}, seed).measure(points);
  EXPECT_EQ(result.failed, 0);
  expectAbout(result, result.shareX(), 0.985);
  expectAbout(result, result.shareY(), 0.985);
  EXPECT_NEAR(result.seconds, 21.7, 1.5) << "the noise is 22 / 16 as large: almost twice the time";
}

TEST(AdaptiveCoverage, OnePercentLevelTakesLongerAndHoldsMore) {
  const StudyResult five =
      AdaptiveStudy({.noiseUm = 13, .MessZeitMin = 5, .MessZeitMax = 30}, seed).measure(points);
  const StudyResult one =
      AdaptiveStudy({.noiseUm = 13, .MessZeitMin = 5, .MessZeitMax = 30, .onePercent = true}, seed)
          .measure(points);
  EXPECT_GT(one.shareX(), 0.99 - sigmas * one.samplingError(0.99));
  EXPECT_GT(one.shareY(), 0.99 - sigmas * one.samplingError(0.99));
  EXPECT_GT(one.seconds, 1.5 * five.seconds);
}

TEST(AdaptiveCoverage, QuietPlaceCostsTheLeastTimeAlone) {
  const StudyResult result = AdaptiveStudy({.noiseUm = 2, .MessZeitMin = 5}, seed).measure(50);
  EXPECT_EQ(result.withinBoth, 50);
  EXPECT_NEAR(result.seconds, 5.1, 0.15);
}

TEST(AdaptiveCoverage, PlaceThatIsTooUnquietGivesNoReading) {
  const StudyResult result = AdaptiveStudy({.noiseUm = 50}, seed).measure(50);
  EXPECT_EQ(result.accepted, 0);
  EXPECT_EQ(result.failed, 50);
}

}  // namespace
}  // namespace korvin
