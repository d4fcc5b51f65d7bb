// A line of a settings table: from the stored text to what its control holds, and back.

#include <gtest/gtest.h>

#include "dialogs/settings_field.h"

namespace korvin {
namespace {

constexpr Einstellung anyKey{"KorInfo", "Any", ""};

FeldWert shown(FeldForm form, int size, std::string_view stored) {
  return feldWert({"control", anyKey, form, size}, stored);
}
std::string stored(FeldForm form, const FeldWert& value) {
  return gespeicherterText({"control", anyKey, form, 5}, value);
}

TEST(SettingsField, ATextStandsAsItIs) {
  EXPECT_EQ(shown(FeldForm::text, 75, "1,5 mm"), FeldWert("1,5 mm"));
  EXPECT_EQ(stored(FeldForm::text, "1,5 mm"), "1,5 mm");
  EXPECT_EQ(stored(FeldForm::text, std::string()), "");
}

TEST(SettingsField, AnIndexIsHeldWithinItsList) {
  EXPECT_EQ(shown(FeldForm::index, 5, "0"), FeldWert(0));
  EXPECT_EQ(shown(FeldForm::index, 5, "4"), FeldWert(4));
  EXPECT_EQ(shown(FeldForm::index, 5, "5"), FeldWert(4));
  EXPECT_EQ(shown(FeldForm::index, 5, "70000"), FeldWert(4));
  EXPECT_EQ(shown(FeldForm::index, 5, "-1"), FeldWert(0));
  EXPECT_EQ(shown(FeldForm::index, 5, "-70000"), FeldWert(0));
  EXPECT_EQ(shown(FeldForm::index, 5, "no number"), FeldWert(0));
  EXPECT_EQ(stored(FeldForm::index, 3), "3");
}

TEST(SettingsField, AFactorIsStoredItselfAndOneOutOfTheListSelectsTheFirst) {
  EXPECT_EQ(shown(FeldForm::faktor, 6, "1"), FeldWert(0));
  EXPECT_EQ(shown(FeldForm::faktor, 6, "6"), FeldWert(5));
  for (const char* out : {"0", "7", "-2", "", "32000"})
    EXPECT_EQ(shown(FeldForm::faktor, 6, out), FeldWert(0)) << out;
  EXPECT_EQ(stored(FeldForm::faktor, 0), "1");
  EXPECT_EQ(stored(FeldForm::faktor, 2), "3");
}

TEST(SettingsField, ASwitchIsAFlag) {
  EXPECT_EQ(shown(FeldForm::schalter, 0, "-1"), FeldWert(true));
  EXPECT_EQ(shown(FeldForm::schalter, 0, " -1.0"), FeldWert(true));
  EXPECT_EQ(shown(FeldForm::schalter, 0, "1"), FeldWert(false));
  EXPECT_EQ(shown(FeldForm::schalter, 0, ""), FeldWert(false));
  EXPECT_EQ(stored(FeldForm::schalter, true), "-1");
  EXPECT_EQ(stored(FeldForm::schalter, false), "0");
}

TEST(SettingsField, AValueOfAnotherKindIsAMistakeOfTheWindow) {
  EXPECT_THROW(stored(FeldForm::index, "3"), std::bad_variant_access);
  EXPECT_THROW(stored(FeldForm::schalter, 1), std::bad_variant_access);
}

}  // namespace
}  // namespace korvin
