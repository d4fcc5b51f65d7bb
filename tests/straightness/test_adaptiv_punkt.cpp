// Adaptive points of a straightness series in the real cycle.

#include "straightness/adaptiv_stand.h"

namespace korvin {
namespace {

constexpr double tiny = 1e-12;  // of mm: rounding of a mean

TEST_F(AdaptivTest, QuietBeamIsAcceptedAtTheFirstSampleBehindTheMinimum) {
  adapt().MessZeitMin = 5;
  begin();
  ASSERT_TRUE(finish());
  EXPECT_EQ(state().AdaptN, 26) << "the first sample after 5 s";
  EXPECT_NEAR(state().AdaptLaufzeit, 5.2, 0.1);
  EXPECT_NEAR(X(1), 0.05, tiny);
  EXPECT_NEAR(Y(1), 0.03, tiny);
  EXPECT_EQ(line().AktMP, 2);
  EXPECT_TRUE(info().Geaendert);
  EXPECT_TRUE(question.shown.empty());
}

}  // namespace
}  // namespace korvin
