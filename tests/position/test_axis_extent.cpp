#include "position/axis_extent.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <vector>

#include "frame/bereich.h"
#include "frame/leerwert.h"
#include "position/formpos.h"

namespace korvin {
namespace {

/// An axis with points, and what the rule over all of them says beside what was kept.
class AxisExtentTest : public ::testing::Test {
 protected:
  AxisExtentTest() { formpos.messungLoeschen(); }

  void point(double x) {
    formpos.arbeit().X.Aktuell = x;
    formpos.punktHinzufuegen(45000);
  }
  void offset(double value) {
    axis().Offset = value;
    formpos.statistikNeu();
  }
  AchsenInfo& axis() { return formpos.arbeit().X; }
  PunktFeld& values() { return formpos.punkte().X(); }
  double byTheRule() {
    return bereichDerAchse(axis().BereichHand != 0, axis().Bereich, axis().Offset, values().elements());
  }
  double kept() {
    const double found = extent.bereich(axis(), values());
    axis().BereichAlt = 1;  // as a drawing leaves it
    return found;
  }

  FORMPOS formpos;
  AxisExtent extent;
};

TEST_F(AxisExtentTest, WithoutPointsAThousandth) {
  EXPECT_EQ(kept(), 0.001);
}

TEST_F(AxisExtentTest, GrowsWithThePoints) {
  point(0.5);
  EXPECT_EQ(kept(), 0.5);
  point(-3);
  EXPECT_EQ(kept(), 3);
  point(2);
  EXPECT_EQ(kept(), 3);
}

TEST_F(AxisExtentTest, TheFarthestIsFoundAtEveryPlace) {
  for (int count = 1; count <= 11; ++count) {
    for (int far = 0; far < count; ++far) {
      formpos.messungLoeschen();
      for (int i = 0; i < count; ++i) point(i == far ? -7 : i == far + 1 ? Leerwert : 2);
      axis().BereichAlt = 0;
      EXPECT_EQ(kept(), 7) << far << " of " << count;
    }
  }
}

TEST_F(AxisExtentTest, PointsWithoutValueAreSkippedThoughTheExtremesOfTheRecordCountThem) {
  point(1);
  point(Leerwert);
  EXPECT_EQ(axis().Maximum, Leerwert);
  EXPECT_EQ(kept(), 1);
}

TEST_F(AxisExtentTest, AnExtremeOf999IsAValueHereThoughTheRecordTakesItForNone) {
  offset(1);
  point(1000);
  point(2);
  EXPECT_EQ(axis().Maximum, 1) << "the record has lost it";
  EXPECT_EQ(kept(), 999);
  EXPECT_EQ(kept(), byTheRule());
}

TEST_F(AxisExtentTest, AnotherOffsetLooksAtAllPointsAgain) {
  point(4);
  point(5);
  EXPECT_EQ(kept(), 5);
  offset(4.5);
  EXPECT_EQ(kept(), 0.5);
  offset(0);
  EXPECT_EQ(kept(), 5);
}

TEST_F(AxisExtentTest, FewerPointsAreOtherPoints) {
  point(4);
  point(5);
  EXPECT_EQ(kept(), 5);
  formpos.messungLoeschen();
  point(1);
  EXPECT_EQ(kept(), 1);
}

TEST_F(AxisExtentTest, NothingOfTheLastDrawingHoldsWithBereichAltZero) {
  point(4);
  point(5);
  EXPECT_EQ(kept(), 5);
  formpos.messungLoeschen();
  point(1);
  point(2);
  point(3);
  axis().BereichAlt = 0;
  EXPECT_EQ(kept(), 3);
}

TEST_F(AxisExtentTest, RangeByHandIsTheRecordsAndHidesNoExchangeOfPoints) {
  point(5);
  EXPECT_EQ(kept(), 5);
  axis().BereichHand = 1;
  axis().Bereich = 0.2;
  EXPECT_EQ(kept(), 0.2);
  values().at(1) = 1;
  axis().BereichAlt = 0;
  EXPECT_EQ(kept(), 0.2);
  axis().BereichHand = 0;
  EXPECT_EQ(kept(), 1);
}

TEST_F(AxisExtentTest, PointsThatCameWithARangeByHandCountAfterIt) {
  point(1);
  EXPECT_EQ(kept(), 1);
  axis().BereichHand = 1;
  point(7);
  kept();
  axis().BereichHand = 0;
  EXPECT_EQ(kept(), 7);
}

TEST_F(AxisExtentTest, ACountThatIsNoneThrows) {
  values().at(0) = 30000;
  EXPECT_THROW(kept(), std::out_of_range);
}

TEST_F(AxisExtentTest, OnePointMoreIsOneLookMore) {
  for (int i = 0; i < 1000; ++i) point(1);
  EXPECT_EQ(kept(), 1);
  values().at(500) = 9;  // no one looks there any more
  point(2);
  EXPECT_EQ(kept(), 2);
}

/// Any course of points, offsets and clearings gives the same as the rule that looks at all points.
TEST_F(AxisExtentTest, AlwaysTheSameAsTheRuleOverAllPoints) {
  std::mt19937 random(20031104);
  std::uniform_real_distribution<double> place(-20, 20);
  std::uniform_int_distribution<int> dice(0, 99);
  const std::vector<double> strange = {
      Leerwert, -Leerwert, 0, 1000, 1e300, 1e-300, std::numeric_limits<double>::quiet_NaN()};
  for (int step = 0; step < 4000; ++step) {
    const int what = dice(random);
    if (what < 80) {
      point(place(random) * std::pow(10.0, -what / 20));
    } else if (what < 90) {
      point(strange.at(static_cast<std::size_t>(step) % strange.size()));
    } else if (what < 96) {
      offset(what == 90 ? 0 : place(random));
      if (what % 2 == 0) axis().BereichAlt = 0;
    } else if (what < 98) {
      axis().BereichHand = axis().BereichHand == 0 ? 1 : 0;
    } else {
      formpos.messungLoeschen();
      axis().BereichAlt = 0;
    }
    ASSERT_EQ(kept(), byTheRule()) << "step " << step;
  }
}

}  // namespace
}  // namespace korvin
