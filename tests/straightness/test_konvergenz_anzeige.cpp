// What the convergence diagram shows of an adaptive point: ranges, units and times.
#include "straightness/konvergenz_anzeige.h"

#include <gtest/gtest.h>

#include <vector>

namespace korvin {
namespace {

constexpr std::int16_t metric = 0;
constexpr std::int16_t inch = 1;

KonvergenzRahmen frameOf(const KonvergenzZiel& aim, const std::vector<AdaptVerlauf>& course = {},
                         std::int16_t units = metric) {
  return konvergenzRahmen(aim, course, units, "required");
}

TEST(KonvergenzZiel, TimesCountFromTheStartOfThePoint) {
  AdaptVorgaben goals;
  goals.X_Genauigkeit = 0.01;
  goals.Y_Genauigkeit = 0.02;
  goals.MessZeitMin = 10;
  goals.MessZeitMax = 12;
  AdaptZustand state;
  state.AdaptStart = 40000;
  state.AdaptMinEnde = 40010;
  state.AdaptMaxEnde = 40018.5;
  state.AdaptLaufzeit = 3.25;
  const KonvergenzZiel aim = konvergenzZiel(state, goals);
  EXPECT_EQ(aim.X_Genauigkeit, 0.01);
  EXPECT_EQ(aim.Y_Genauigkeit, 0.02);
  EXPECT_EQ(aim.MinEnde, 10);
  EXPECT_EQ(aim.MaxEnde, 18.5) << "extended";
  EXPECT_EQ(aim.jetzt, 3.25);
}

TEST(KonvergenzZiel, BeforeTheFirstPointTimesAreThoseThatAreSet) {
  AdaptVorgaben goals;
  goals.MessZeitMin = 7;
  goals.MessZeitMax = 9;
  const KonvergenzZiel aim = konvergenzZiel({}, goals);
  EXPECT_EQ(aim.MinEnde, 7);
  EXPECT_EQ(aim.MaxEnde, 9);
}

TEST(KonvergenzRahmen, IsAroundTheRequirementBeforeTheFirstSample) {
  const KonvergenzRahmen frame = frameOf({0.01, 0.02, 10, 12});
  EXPECT_DOUBLE_EQ(frame.unten, 0.005) << "half the smaller one";
  EXPECT_DOUBLE_EQ(frame.oben, 0.2) << "ten times the larger one";
  EXPECT_EQ(frame.genauigkeit, (std::array<double, 2>{0.01, 0.02}));
  EXPECT_EQ(frame.MinEnde, 10);
  EXPECT_EQ(frame.MaxEnde, 12);
  EXPECT_GT(frame.ende, 12);
  EXPECT_LT(frame.ende, 13);
  EXPECT_EQ(frame.einheit, "mm");
  EXPECT_EQ(frame.gefordert, "required");
}

TEST(KonvergenzRahmen, GrowsByStepsWithTheHalfWidthsAndNotBeyondALimit) {
  const KonvergenzZiel aim{0.01, 0.01, 10, 12};
  const KonvergenzRahmen wider = frameOf(aim, {{1, {0.3, 0.003}}});
  EXPECT_DOUBLE_EQ(wider.unten, 0.002);
  EXPECT_DOUBLE_EQ(wider.oben, 0.5);
  const KonvergenzRahmen same = frameOf(aim, {{1, {0.3, 0.003}}, {2, {0.22, 0.0025}}});
  EXPECT_EQ(same, wider) << "the frame stands still";
  const KonvergenzRahmen limit = frameOf(aim, {{1, {50, 0}}});
  EXPECT_DOUBLE_EQ(limit.unten, 0.0005);
  EXPECT_DOUBLE_EQ(limit.oben, 1);
}

TEST(KonvergenzRahmen, NeverShrinksWhileAPointGoesOn) {
  std::vector<AdaptVerlauf> course;
  const KonvergenzZiel aim{0.01, 0.01, 10, 12};
  KonvergenzRahmen before = frameOf(aim);
  for (int i = 1; i <= 40; ++i) {
    course.push_back({0.4 * i, {0.9 / i, i % 7 * 0.001}});
    const KonvergenzRahmen now = frameOf(aim, course);
    EXPECT_LE(now.unten, before.unten) << i;
    EXPECT_GE(now.oben, before.oben) << i;
    EXPECT_GE(now.ende, before.ende) << i;
    before = now;
  }
}

TEST(KonvergenzRahmen, BoundsAreOneTwoOrFiveTimesAPowerOfTen) {
  for (const double required : {0.001, 0.0019, 0.002, 0.0051, 0.01, 0.04, 0.1, 1.0}) {
    const KonvergenzRahmen frame = frameOf({required, required, 10, 12});
    for (const double bound : {frame.unten, frame.oben})
      EXPECT_EQ(konvergenzHoehen(bound, bound, 0).size(), 1U) << required << ": " << bound;
    EXPECT_LE(frame.unten, required / 2 * (1 + 1e-12));
    EXPECT_GT(frame.unten, required / 5 * (1 - 1e-12));
    EXPECT_GE(frame.oben, required * 10 * (1 - 1e-12));
    EXPECT_LE(frame.oben, required * 25 * (1 + 1e-12));
  }
}

TEST(KonvergenzRahmen, WithoutARequirementOfOneAxisTheOtherOnesCounts) {
  const KonvergenzRahmen frame = frameOf({0, 0.1, 10, 12});
  EXPECT_DOUBLE_EQ(frame.unten, 0.05);
  EXPECT_DOUBLE_EQ(frame.oben, 1);
  EXPECT_EQ(frame.genauigkeit, (std::array<double, 2>{0, 0.1}));
  const KonvergenzRahmen none = frameOf({-1, 0, 10, 12});
  EXPECT_DOUBLE_EQ(none.unten, 0.005);
  EXPECT_DOUBLE_EQ(none.oben, 0.1);
  EXPECT_EQ(none.genauigkeit, (std::array<double, 2>{0, 0}));
}

TEST(KonvergenzRahmen, IsInMilWithInch) {
  const KonvergenzRahmen frame = frameOf({0.0254, 0.0508, 10, 12}, {}, inch);
  EXPECT_EQ(frame.einheit, "mil");
  EXPECT_DOUBLE_EQ(frame.genauigkeit[0], 1);
  EXPECT_DOUBLE_EQ(frame.genauigkeit[1], 2);
  EXPECT_DOUBLE_EQ(frame.unten, 0.5);
  EXPECT_DOUBLE_EQ(frame.oben, 20);
}

TEST(KonvergenzRahmen, TimeReachesBeyondAnAnswerAfterTheEnd) {
  const KonvergenzZiel aim{0.01, 0.01, 10, 12};
  const auto endAt = [&](double now) {
    KonvergenzZiel later = aim;
    later.jetzt = now;
    return frameOf(later).ende;
  };
  EXPECT_EQ(endAt(11.9), frameOf(aim).ende);
  EXPECT_GT(endAt(13.2), 15);
  EXPECT_EQ(endAt(14.9), endAt(13.2)) << "moves by steps";
  EXPECT_GT(endAt(15.1), endAt(14.9));
  EXPECT_GT(frameOf({0.01, 0.01, 10, 18}).ende, 18) << "extended";
  EXPECT_GT(frameOf({0.01, 0.01, 0, 0}).ende, 0) << "a file without times";
}

TEST(KonvergenzInhalt, HasTheCourseInTheUnitShown) {
  const std::vector<AdaptVerlauf> course = {{0.4, {0.0254, 0.0508}}, {0.6, {0.0127, 0.01}}};
  const KonvergenzInhalt mm = konvergenzInhalt({0.01, 0.01, 10, 12, 0.8}, course, metric);
  EXPECT_EQ(mm.sekunden, (std::vector<double>{0.4, 0.6}));
  EXPECT_EQ(mm.K[0], (std::vector<double>{0.0254, 0.0127}));
  EXPECT_EQ(mm.K[1], (std::vector<double>{0.0508, 0.01}));
  EXPECT_EQ(mm.muster, "0.0000");
  EXPECT_EQ(mm.jetzt, 0.8);
  const KonvergenzInhalt mil = konvergenzInhalt({}, course, inch);
  EXPECT_DOUBLE_EQ(mil.K[0][0], 1);
  EXPECT_DOUBLE_EQ(mil.K[1][0], 2);
  EXPECT_EQ(mil.muster, "0.00");
}

}  // namespace
}  // namespace korvin
