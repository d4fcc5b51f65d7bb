// What the settings of an analysis and its outlook are worth. The large run of this is
// bench/analysis_handover.cpp.
#include <gtest/gtest.h>

#include "environment/handover_study.h"

namespace korvin {
namespace {

using test::HandoverResult;
using test::HandoverStudy;

constexpr std::uint64_t seed = 11;

// ---- Settings that are handed over ----

TEST(AnalysisHandover, PointsSucceedInTheProposedTimeLeftOfTheSlidersMiddle) {
  for (const double place : {0.1, 0.5, 0.75, 0.99}) {
    const HandoverResult result = HandoverStudy({.noiseUm = 16, .place = place}, seed).measure(20, 5);
    EXPECT_EQ(result.accepted, 100) << place;
    EXPECT_GE(result.shareInTime(), 0.9) << place;
    EXPECT_LT(result.proposed, 31) << place;
    EXPECT_GT(result.FX, 0.0059) << "wider than at the time of the run";
  }
}

TEST(AnalysisHandover, AtTheLeftEndPointsSucceedByTheExtension) {
  const HandoverResult result = HandoverStudy({.noiseUm = 16, .place = 0}, seed).measure(10, 5);
  EXPECT_EQ(result.proposed, 5) << "the longest time is the least time";
  EXPECT_EQ(result.accepted, 50);
  EXPECT_EQ(result.inTime, 0);
  EXPECT_NEAR(result.seconds, 5.3, 0.2) << "the second sample after it";
}

TEST(AnalysisHandover, BeyondTheRunTheLinePromisesTooMuch) {
  const HandoverResult result = HandoverStudy({.noiseUm = 16, .place = 1.6}, seed).measure(10, 5);
  EXPECT_EQ(result.accepted, 0);
  EXPECT_EQ(result.shareOfRuns(Erfolg::wahrscheinlich), 0);
}

TEST(AnalysisHandover, AHigherLevelThanTheAnalysisWentByAsksForMoreThanItPromised) {
  const HandoverResult five =
      HandoverStudy({.noiseUm = 16, .place = 0.99, .onePercent = true}, seed).measure(10, 5);
  const HandoverResult one =
      HandoverStudy({.noiseUm = 16, .place = 0.99, .onePercent = true, .openedOnePercent = true}, seed)
          .measure(10, 5);
  EXPECT_LT(five.shareInTime(), 0.3);
  EXPECT_GE(one.shareInTime(), 0.9);
  EXPECT_GT(one.FX, 1.2 * five.FX);
}

// ---- Outlook ----

HandoverResult withStoredSettings(double noiseUm) {
  return HandoverStudy({.noiseUm = noiseUm, .place = std::nullopt}, seed).measure(20, 5);
}

TEST(AnalysisOutlook, LikelyPointsSucceed) {
  const HandoverResult result = withStoredSettings(10);
  EXPECT_EQ(result.with(Erfolg::wahrscheinlich).runs, 20);
  EXPECT_EQ(result.with(Erfolg::wahrscheinlich).inTime, 100);
}

TEST(AnalysisOutlook, DoubtfulPointsMayGoEitherWay) {
  const HandoverResult result = withStoredSettings(16);
  EXPECT_EQ(result.with(Erfolg::fraglich).runs, 20);
  EXPECT_GT(result.shareInTime(), 0.2);
  EXPECT_LT(result.shareInTime(), 0.8);
}

TEST(AnalysisOutlook, UnlikelyPointsFail) {
  const HandoverResult result = withStoredSettings(25);
  EXPECT_EQ(result.with(Erfolg::unwahrscheinlich).runs, 20);
  EXPECT_LE(result.with(Erfolg::unwahrscheinlich).inTime, 1);
}

}  // namespace
}  // namespace korvin
