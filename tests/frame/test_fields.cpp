#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <stdexcept>

#include "frame/fester_text.h"
#include "frame/flagge.h"
#include "frame/zaehlfeld.h"

namespace korvin {
namespace {

TEST(FesterText, IsBlankWhenNew) {
  EXPECT_EQ(FesterText<4>().full(), "    ");
}

TEST(FesterText, PadsShortTextsAndCutsLongOnesOnTheRight) {
  FesterText<4> text("ab");
  EXPECT_EQ(text.full(), "ab  ");
  text = "abcdefg";
  EXPECT_EQ(text.full(), "abcd");
  text = "x";
  EXPECT_EQ(text.full(), "x   ");
  EXPECT_TRUE(FesterText<4>::fits("abcd"));
  EXPECT_FALSE(FesterText<4>::fits("abcde"));
}

TEST(FesterText, TrimsOnTheRightOnly) {
  EXPECT_EQ(FesterText<8>("  a b ").trimmed(), "  a b");
  EXPECT_EQ(FesterText<8>().trimmed(), "");
  EXPECT_EQ(FesterText<8>(std::string_view("a\0\0", 3)).trimmed(), "a");
}

static_assert(FesterText<3>("ab").full() == "ab ");

TEST(Flagge, IsTrueForAnyValueButZero) {
  EXPECT_FALSE(Flagge());
  EXPECT_TRUE(Flagge::ofRaw(-1));
  EXPECT_TRUE(Flagge::ofRaw(1));
  EXPECT_TRUE(Flagge::ofRaw(256));
  EXPECT_EQ(Flagge::ofRaw(256).raw(), 256);
}

TEST(Flagge, SetWritesMinusOneOrZero) {
  Flagge flag = Flagge::ofRaw(7);
  flag = true;
  EXPECT_EQ(flag.raw(), -1);
  flag = false;
  EXPECT_EQ(flag.raw(), 0);
}

static_assert(!std::is_convertible_v<int, Flagge>);

TEST(Zaehlfeld, StartsWithoutPoints) {
  const Zaehlfeld<3> field;
  EXPECT_EQ(field.anzahl(), 0U);
  for (const std::size_t i : {1, 2, 3}) EXPECT_EQ(field.at(i), Leerwert);
}

TEST(Zaehlfeld, ChecksItsBounds) {
  Zaehlfeld<3> field;
  field.at(3) = 1.5;
  EXPECT_EQ(field.at(3), 1.5);
  EXPECT_THROW(field.at(4), std::out_of_range);
  EXPECT_THROW(field.at(static_cast<std::size_t>(-1)), std::out_of_range);
  EXPECT_THROW(field.setAnzahl(4), std::out_of_range);
}

TEST(Zaehlfeld, CountIsTheWholePartOfElementZero) {
  Zaehlfeld<3> field;
  field.at(0) = 2.9;
  EXPECT_EQ(field.anzahl(), 2U);
  field.setAnzahl(3);
  EXPECT_EQ(field.at(0), 3.0);
}

TEST(Zaehlfeld, RefusesACountThatOverrunsIt) {
  Zaehlfeld<3> field;
  for (const double bad : {4.0, -1.0, 1e300, std::nan(""), std::numeric_limits<double>::infinity()}) {
    field.at(0) = bad;
    EXPECT_FALSE(Zaehlfeld<3>::isCount(bad)) << bad;
    EXPECT_THROW(field.anzahl(), std::out_of_range) << bad;
  }
}

TEST(Zaehlfeld, ClearEmptiesEveryElement) {
  Zaehlfeld<3> field;
  for (const std::size_t i : {0, 1, 2, 3}) field.at(i) = 3;
  field.clearFrom(3);
  EXPECT_EQ(field.at(2), 3);
  EXPECT_EQ(field.at(3), Leerwert);
  field.clear();
  EXPECT_EQ(field, Zaehlfeld<3>());
}

}  // namespace
}  // namespace korvin
