// The user's guide tells the shortcuts of the window, all of them and no others.

#include "gerad_stand.h"
#include "support/guide_keys.h"

namespace korvin {
namespace {

using test::GuideLanguage;
using GuideOfStraightness = test::GeradStand;

TEST_F(GuideOfStraightness, TellsTheShortcutsInEnglish) {
  show();
  EXPECT_EQ(test::keysOfTheGuide(QStringLiteral("In straightness measuring")),
            test::keysOfTheWindow(*form, GuideLanguage::english));
}

TEST_F(GuideOfStraightness, TellsTheShortcutsInGerman) {
  show();
  EXPECT_EQ(test::keysOfTheGuide(QStringLiteral("In der Geradheitsmessung")),
            test::keysOfTheWindow(*form, GuideLanguage::german));
}

}  // namespace
}  // namespace korvin
