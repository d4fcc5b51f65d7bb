#include "korvin-head/head_keys.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace korvin::head {
namespace {

using ::testing::HasSubstr;

TEST(KeyScript, ReadsTimesLettersAndComments) {
  const auto script = parseKeyScript("# a walk\n2.5 M\n\n +1 j  # running\r\n10\tL\n+0 r");
  ASSERT_EQ(script.size(), 4U);
  EXPECT_EQ(script[0].seconds, 2.5);
  EXPECT_EQ(script[0].key, 'M');
  EXPECT_EQ(script[1].seconds, 3.5);
  EXPECT_EQ(script[1].key, 'J');
  EXPECT_EQ(script[2].key, 'L');
  EXPECT_EQ(script[3].seconds, 10);
  EXPECT_EQ(script[3].key, 'R');
  EXPECT_TRUE(parseKeyScript("").empty());
}

std::string complaint(std::string_view text) {
  try {
    parseKeyScript(text);
  } catch (const ScriptError& error) {
    return error.what();
  }
  return "none";
}

TEST(KeyScript, NamesTheLineThatCannotBeRead) {
  EXPECT_THAT(complaint("1 M\nsoon M\n"), HasSubstr("line 2: no time"));
  EXPECT_THAT(complaint("-1 M"), HasSubstr("line 1: no time"));
  EXPECT_THAT(complaint("nan M"), HasSubstr("line 1: no time"));
  EXPECT_THAT(complaint("\n\n1 X"), HasSubstr("line 3: no key"));
  EXPECT_THAT(complaint("1 MM"), HasSubstr("line 1: no key"));
  EXPECT_THAT(complaint("1"), HasSubstr("line 1: no key"));
  EXPECT_THAT(complaint("2 M\n1 M"), HasSubstr("line 2: the time"));
}

TEST(KeyPad, APressIsReportedOnceHoweverLateTheQuestionComes) {
  KeyPad keys;
  keys.press('M');
  EXPECT_EQ(keys.report(100), 'M');
  EXPECT_EQ(keys.report(100), 'K');
}

TEST(KeyPad, PressesWaitForEachOther) {
  KeyPad keys;
  keys.press('L');
  keys.press('R');
  EXPECT_EQ(keys.report(0), 'L');
  EXPECT_EQ(keys.report(0), 'R');
  EXPECT_EQ(keys.report(0), 'K');
}

TEST(KeyPad, ScriptedKeysComeAtTheirTimes) {
  KeyPad keys(parseKeyScript("2.5 M\n3 J"));
  EXPECT_EQ(keys.report(2.49), 'K');
  EXPECT_EQ(keys.report(2.5), 'M');
  EXPECT_EQ(keys.report(2.6), 'K');
  EXPECT_EQ(keys.report(9), 'J');
  EXPECT_EQ(keys.report(9), 'K');
}

TEST(KeyPad, AHeldKeyIsReportedUntilItIsLetGo) {
  KeyPad keys({}, 0.5);
  keys.press('J');
  EXPECT_EQ(keys.report(10), 'J');
  EXPECT_EQ(keys.report(10.4), 'J');
  EXPECT_EQ(keys.report(10.5), 'K');
}

}  // namespace
}  // namespace korvin::head
