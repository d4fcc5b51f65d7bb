// A line of a settings table: from the stored text to what its control holds, and back.

#include <gtest/gtest.h>

#include "dialogs/settings_field.h"

namespace korvin {
namespace {

constexpr Einstellung anyKey{"KorInfo", "Any", ""};

FeldWert shown(FeldForm form, int size, std::string_view stored) {
  return feldWert({"control", anyKey, form, size}, stored);
}
FeldWert length(FeldForm form, std::int16_t units, std::string_view stored) {
  return feldWert({"control", anyKey, form}, stored, units);
}
std::string lengthStored(FeldForm form, std::int16_t units, const char* entered) {
  return gespeicherterText({"control", anyKey, form}, entered, units);
}
std::string stored(FeldForm form, const FeldWert& value) {
  return gespeicherterText({"control", anyKey, form, 5}, value);
}

TEST(SettingsField, ATextStandsAsItIs) {
  EXPECT_EQ(shown(FeldForm::text, 75, "1,5 mm"), FeldWert("1,5 mm"));
  EXPECT_EQ(stored(FeldForm::text, "1,5 mm"), "1,5 mm");
  EXPECT_EQ(stored(FeldForm::text, std::string()), "");
}

TEST(SettingsField, LengthsAreShownInTheirUnitAndForm) {
  EXPECT_EQ(length(FeldForm::laenge, 0, "2500.04"), FeldWert("2500.0"));
  EXPECT_EQ(length(FeldForm::laenge, 1, "2540"), FeldWert("100.0"));
  EXPECT_EQ(length(FeldForm::toleranz, 0, "0,0125"), FeldWert("0.013"));
  EXPECT_EQ(length(FeldForm::toleranz, 1, "0.0254"), FeldWert("1.00"));
  EXPECT_EQ(length(FeldForm::genauigkeit, 0, "0.01"), FeldWert("0.0100"));
  EXPECT_EQ(length(FeldForm::genauigkeit, 1, "0.01"), FeldWert("0.39"));
  for (const char* none : {"", "0", "no number", "1e999"}) {
    EXPECT_EQ(length(FeldForm::laenge, 0, none), FeldWert("0.0")) << none;
    EXPECT_EQ(length(FeldForm::toleranz, 0, none), FeldWert("0.000")) << none;
    EXPECT_EQ(length(FeldForm::genauigkeit, 1, none), FeldWert("0.00")) << none;
  }
}

TEST(SettingsField, LengthsAreStoredInMillimetres) {
  EXPECT_EQ(lengthStored(FeldForm::laenge, 0, "1000,5"), "1000.5");
  EXPECT_EQ(lengthStored(FeldForm::laenge, 1, "100.5"), "2552.7");
  EXPECT_EQ(lengthStored(FeldForm::toleranz, 0, "0.020"), "0.02");
  EXPECT_EQ(lengthStored(FeldForm::toleranz, 1, "1.50"), "0.0381");
  EXPECT_EQ(lengthStored(FeldForm::genauigkeit, 0, "0.0015"), "0.0015");
  EXPECT_EQ(lengthStored(FeldForm::genauigkeit, 1, "1000.00"), "25.4");
  EXPECT_EQ(lengthStored(FeldForm::toleranz, 1, ""), "0");
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
