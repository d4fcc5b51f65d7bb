// The window in all eight languages at 1024 by 768: every word is there, and none is cut off.
#include <QMenuBar>
#include <QToolBar>

#include "analysis_window.h"
#include "support/window_words.h"

namespace korvin {
namespace {

using test::expectKeysTell;
using test::expectLabelsFit;
using test::expectMenusFit;
using test::expectNothingCovered;

class AnalysisWords : public test::InEachLanguage<test::AnalysisWindow> {};

TEST_P(AnalysisWords, NothingIsCutOff) {
  show();
  expectLabelsFit(*form);
  start();
  run(2);
  expectLabelsFit(*form);
  expectNothingCovered(*form);
  run(30);
  ASSERT_TRUE(task().fertig());
  settle();
  expectLabelsFit(*form);
  expectNothingCovered(*form);
  EXPECT_EQ(form->size(), QSize(1024, 768));
  EXPECT_LE(form->minimumSizeHint().height(), 700) << "room for the desktop's bars";
}

TEST_P(AnalysisWords, KeysAndMenusTellWhatTheyDo) {
  show();
  expectKeysTell(bar());
  expectMenusFit(*form->menuBar());
}

INSTANTIATE_TEST_SUITE_P(Languages, AnalysisWords, ::testing::Range(0, 8), [](const auto& language) {
  return std::string(SpalteVonSprache(static_cast<std::int16_t>(language.param)));
});

}  // namespace
}  // namespace korvin
