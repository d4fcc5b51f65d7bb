// The user's guide tells the shortcuts of the window, all of them and no others.

#include "analysis_window.h"
#include "support/guide_keys.h"

namespace korvin {
namespace {

using test::GuideLanguage;
using GuideOfTheAnalysis = test::AnalysisWindow;

TEST_F(GuideOfTheAnalysis, TellsTheShortcutsInEnglish) {
  show();
  EXPECT_EQ(test::keysOfTheGuide(QStringLiteral("In the environment analysis")),
            test::keysOfTheWindow(*form, GuideLanguage::english));
}

TEST_F(GuideOfTheAnalysis, TellsTheShortcutsInGerman) {
  show();
  EXPECT_EQ(test::keysOfTheGuide(QStringLiteral("In der Umgebungsanalyse")),
            test::keysOfTheWindow(*form, GuideLanguage::german));
}

}  // namespace
}  // namespace korvin
