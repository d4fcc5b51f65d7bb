// The dialog in all eight languages at 1024 by 768: every word is there, and none is cut off.

#include "dialog_words.h"
#include "options_o_stand.h"

namespace korvin {
namespace {

class OptionsOWords : public test::DialogWords<test::OptionsOStand> {
 protected:
  OptionsOWords() { info().RestMP = 29999; }
};

TEST_P(OptionsOWords, NothingIsCutOffOnAnyPage) {
  store("KorInfo", "PfadMessFile", "/no/such/folder/");
  showFromPosition();
  expectEveryPageFits();
}

TEST_P(OptionsOWords, NorAreTheHintsBesideTheBoxes) {
  showFromPosition();
  bringToFront(1);
  box(7)->setText(QStringLiteral("40000"));
  box(8)->setText(QStringLiteral("86399.25 s"));
  box(9)->setText(QStringLiteral("31.02.23"));
  box(12)->setText(QStringLiteral("12:00:00"));
  settle();
  for (const int index : {7, 8, 10, 12}) EXPECT_NE(hint(index), "") << index;
  expectPageFits();
  enter(6, "17");
  ok();
  EXPECT_NE(hint(6), "");
  expectPageFits();
}

TEST_P(OptionsOWords, NorIsWhatTheMainWindowsDialogSaysOfThePlan) {
  showFromMainWindow();
  bringToFront(1);
  expectPageFits();
}

TEST_P(OptionsOWords, TabsStandSideBySide) {
  showFromMainWindow();
  expectTabsSideBySide();
}

INSTANTIATE_TEST_SUITE_P(Languages, OptionsOWords, ::testing::Range(0, 8), test::languageName);

}  // namespace
}  // namespace korvin
