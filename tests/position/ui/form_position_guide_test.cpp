// The user's guide tells the shortcuts of the window, all of them and no others.

#include "position_stand.h"
#include "support/guide_keys.h"

namespace korvin {
namespace {

using test::GuideLanguage;
using GuideOfPosition = test::PositionStand;

TEST_F(GuideOfPosition, TellsTheShortcutsInEnglish) {
  show();
  EXPECT_EQ(test::keysOfTheGuide(QStringLiteral("In position measuring")),
            test::keysOfTheWindow(*form, GuideLanguage::english));
}

TEST_F(GuideOfPosition, TellsTheShortcutsInGerman) {
  show();
  EXPECT_EQ(test::keysOfTheGuide(QStringLiteral("In der Positionsmessung")),
            test::keysOfTheWindow(*form, GuideLanguage::german));
}

}  // namespace
}  // namespace korvin
