// The dialog in all eight languages at 1024 by 768: every word is there, and none is cut off.

#include "dialog_words.h"
#include "options_g_ui_stand.h"

namespace korvin {
namespace {

class OptionsGWords : public test::DialogWords<test::OptionsGStand> {};

TEST_P(OptionsGWords, NothingIsCutOffOnAnyPage) {
  store("KorInfo", "PfadMessFile", "/no/such/folder/");
  line().Z.at(3) = 1100;
  for (const std::int16_t units : {std::int16_t{0}, std::int16_t{1}}) {
    system.Masssystem = units;
    showFromSeries();
    expectEveryPageFits();
  }
}

TEST_P(OptionsGWords, NorIsWhatTheMainWindowsDialogSays) {
  showFromMainWindow();
  expectEveryPageFits();
}

TEST_P(OptionsGWords, NorAreTheHintsOfRefusedEntries) {
  for (const std::int16_t units : {std::int16_t{0}, std::int16_t{1}}) {
    system.Masssystem = units;
    store("MessInfo_G", "AutoAdapt", "-1");
    line().Z.at(3) = 1100;
    showFromSeries();
    bringToFront(1);
    for (const int index : {8, 9, 10, 11, 13, 14}) {
      enter(index, "99999");
      ok();
      EXPECT_NE(hint(index), "") << index;
      EXPECT_EQ(tabs().currentIndex(), 1);
      box(12)->setText(QStringLiteral("about 10"));
      settle();
      expectPageFits();
      enter(index, index < 10 ? "50" : "1");
    }
    bringToFront(2);
    for (const int index : {16, 17, 18, 19, 21}) {
      enter(index, "99999");
      ok();
      EXPECT_NE(hint(index), "") << index;
      expectPageFits();
      enter(index, index < 18 ? "1" : "16");
    }
  }
}

TEST_P(OptionsGWords, TabsStandSideBySide) {
  showFromSeries();
  expectTabsSideBySide();
}

INSTANTIATE_TEST_SUITE_P(Languages, OptionsGWords, ::testing::Range(0, 8), test::languageName);

}  // namespace
}  // namespace korvin
