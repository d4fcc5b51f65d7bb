#include "straightness/achsen_kurve.h"

#include <gtest/gtest.h>

#include <vector>

#include "frame/leerwert.h"

namespace korvin {
namespace {

/// Values at z = 0, 10, 20 …
std::vector<KurvenStueck> pieces(std::vector<double> values, double R = 1) {
  std::vector<double> z{0};
  for (std::size_t i = 0; i < values.size(); ++i) z.push_back(static_cast<double>(i) * 10);
  values.insert(values.begin(), static_cast<double>(values.size()));
  return kurvenStuecke({values, z}, R);
}

using Pieces = std::vector<KurvenStueck>;
constexpr bool Bridged = true;
constexpr bool Outside = true;

TEST(KurvenStuecke, LeadFromValueToValue) {
  EXPECT_EQ(pieces({0, 0.5, -0.5}), (Pieces{{{0, 0}, {10, 0.5}}, {{10, 0.5}, {20, -0.5}}}));
}

TEST(KurvenStuecke, NeedTwoValues) {
  EXPECT_TRUE(pieces({}).empty());
  EXPECT_TRUE(pieces({0.5}).empty());
  EXPECT_TRUE(pieces({Leerwert, 0.5, Leerwert}).empty());
  EXPECT_TRUE(kurvenStuecke({}, 1).empty());
}

TEST(KurvenStuecke, BridgeOpenPointsAndGoOnAsBefore) {
  EXPECT_EQ(pieces({0, Leerwert, Leerwert, 0.3, 0.2}),
            (Pieces{{{0, 0}, {30, 0.3}, Bridged}, {{30, 0.3}, {40, 0.2}}}));
}

TEST(KurvenStuecke, BeginAtTheFirstValue) {
  EXPECT_EQ(pieces({Leerwert, 0.1, 0.2}), (Pieces{{{10, 0.1}, {20, 0.2}}}));
}

TEST(KurvenStuecke, SplitWhereTheCurveLeavesTheRange) {
  EXPECT_EQ(pieces({0, 2}), (Pieces{{{0, 0}, {5, 1}}, {{5, 1}, {10, 1}, false, Outside}}));
  EXPECT_EQ(pieces({0, -2}), (Pieces{{{0, 0}, {5, -1}}, {{5, -1}, {10, -1}, false, Outside}}));
}

TEST(KurvenStuecke, SplitWhereTheCurveComesBack) {
  EXPECT_EQ(pieces({2, 0}), (Pieces{{{0, 1}, {5, 1}, false, Outside}, {{5, 1}, {10, 0}}}));
}

TEST(KurvenStuecke, RunAlongTheEdgeBeyondIt) {
  EXPECT_EQ(pieces({2, 3}), (Pieces{{{0, 1}, {10, 1}, false, Outside}}));
  EXPECT_EQ(pieces({-2, -3}), (Pieces{{{0, -1}, {10, -1}, false, Outside}}));
}

TEST(KurvenStuecke, CrossTheWholeRangeInThreePieces) {
  EXPECT_EQ(pieces({-4, 4}), (Pieces{{{0, -1}, {3.75, -1}, false, Outside},
                                     {{3.75, -1}, {6.25, 1}},
                                     {{6.25, 1}, {10, 1}, false, Outside}}));
  EXPECT_EQ(pieces({4, -4}), (Pieces{{{0, 1}, {3.75, 1}, false, Outside},
                                     {{3.75, 1}, {6.25, -1}},
                                     {{6.25, -1}, {10, -1}, false, Outside}}));
}

TEST(KurvenStuecke, CountTheEdgeAsInside) {
  EXPECT_EQ(pieces({1, -1, 1}), (Pieces{{{0, 1}, {10, -1}}, {{10, -1}, {20, 1}}}));
  EXPECT_EQ(pieces({1, 2}), (Pieces{{{0, 1}, {10, 1}, false, Outside}}));
}

TEST(KurvenStuecke, SplitBridgesToo) {
  EXPECT_EQ(pieces({0, Leerwert, 2}),
            (Pieces{{{0, 0}, {10, 1}, Bridged}, {{10, 1}, {20, 1}, Bridged, Outside}}));
}

TEST(KurveBei, LiesOnTheLineBetweenTwoValues) {
  const std::vector<double> z = {0, 0, 10, 20, 30};
  const std::vector<double> values = {4, Leerwert, 1, Leerwert, 3};
  const KurvenWerte curve{values, z};
  EXPECT_EQ(kurveBei(curve, 10), 1);
  EXPECT_EQ(kurveBei(curve, 15), 1.5);
  EXPECT_EQ(kurveBei(curve, 30), 3);
  EXPECT_FALSE(kurveBei(curve, 9));
  EXPECT_FALSE(kurveBei(curve, 31));
  EXPECT_FALSE(kurveBei({}, 0));
}

}  // namespace
}  // namespace korvin
