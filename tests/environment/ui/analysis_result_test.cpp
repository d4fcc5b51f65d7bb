// The result of a run in the window of the environment analysis: picking, saving, clearing, in all languages.
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <set>
#include <string>

#include "environment/ui/analysis_window.h"
#include "frame/zahl_text.h"
#include "support/window_words.h"

namespace korvin {
namespace {

class AnalysisResult : public test::AnalysisWindow {
 protected:
  template <class Widget>
  Widget& child(const char* name) {
    auto* found = form->findChild<Widget*>(QString::fromUtf8(name));
    EXPECT_NE(found, nullptr) << name;
    return *found;
  }
  QSlider& slider() { return child<QSlider>("SliderAdaption"); }
  QPushButton& save() { return child<QPushButton>("CmdWerteSave"); }
  std::set<std::string> words;
  std::string stored(const char* section, const char* name) {
    return world.profil.wert(section, name, "missing");
  }
  void expectCleared() {
    EXPECT_FALSE(frame().isVisible());
    EXPECT_EQ(info().AnzahlMP, 0);
    EXPECT_TRUE(enabled("XYMPNN"));
    EXPECT_FALSE(progress().isVisible());
  }
};

TEST_F(AnalysisResult, FromTheRunToTheStoredSettingsByKeysAlone) {
  world.profil.ProfilSchreiben("", "MessInfo_P", "MessZeitMin", "8");
  show();
  type(Qt::Key_F7);
  run(32);
  ASSERT_TRUE(frame().isVisible());
  EXPECT_TRUE(save().hasFocus());
  EXPECT_EQ(text("PanelFx(0)"), "31 s");
  const int points = info().MPAktuell;

  slider().setFocus();
  QTest::keyClick(form->focusWidget(), Qt::Key_Home);
  EXPECT_EQ(text("PanelFx(0)"), "5 s");
  for (int i = 0; i < 50; ++i) QTest::keyClick(form->focusWidget(), Qt::Key_Right);
  EXPECT_EQ(text("PanelFx(0)"), "10 s");
  EXPECT_EQ(info().MPAktuell, points) << "the arrow keys are the slider's";
  const std::string FX = text("PanelFx(1)");
  const std::string FY = text("PanelFx(2)");
  EXPECT_NE(FX, FY);
  child<QRadioButton>("OptPrio(0)").setFocus();
  QTest::keyClick(form->focusWidget(), Qt::Key_Right);
  EXPECT_EQ(text("PanelFx(1)"), FX);
  save().setFocus();
  QTest::keyClick(form->focusWidget(), Qt::Key_Return);
  run(0.4);

  expectCleared();
  for (const char* section : {"MessInfo_G", "MessInfo_P", "MessInfo_R"}) {
    EXPECT_EQ(stored(section, "AutoAdapt"), "-1");
    EXPECT_EQ(zahlAusText(stored(section, "X_Genauigkeit")), zahlAusText(FX));
    EXPECT_EQ(zahlAusText(stored(section, "Y_Genauigkeit")), zahlAusText(FY));
    EXPECT_EQ(stored(section, "Beta5"), "0");
    EXPECT_EQ(stored(section, "Beta1"), "-1");
    EXPECT_EQ(stored(section, "MessZeitMin"), "8");
    EXPECT_EQ(stored(section, "MessZeitMax"), "10 s");
  }
}

TEST_F(AnalysisResult, AnotherRunShowsAnotherResult) {
  show();
  finish();
  slider().setValue(slider().minimum());
  QTest::mouseClick(&save(), Qt::LeftButton);
  run(0.4);
  finish();
  EXPECT_EQ(text("PanelFx(0)"), "31 s");
  EXPECT_TRUE(save().isEnabled());
  EXPECT_EQ(text("LblAussicht"), "D7730") << "the settings are those that were saved";
}

TEST_F(AnalysisResult, ClearingWithoutSavingStoresNothing) {
  show();
  finish();
  click("LOESCHEN");
  run(0.4);
  expectCleared();
  EXPECT_EQ(stored("MessInfo_G", "AutoAdapt"), "missing");
  EXPECT_EQ(stored("MessInfo_G", "MessZeitMax"), "missing");
}

TEST_F(AnalysisResult, SavingWhileAnAnswerIsAwaitedClearsWithItsTick) {
  show();
  finish();
  bool clicked = false;
  const auto answer = world.head.behaviour;
  world.head.behaviour = [&](char command) {
    if (!clicked) {
      clicked = true;
      QTest::mouseClick(&save(), Qt::LeftButton);
      EXPECT_TRUE(frame().isVisible()) << "not within a tick";
      EXPECT_FALSE(save().isEnabled());
    }
    return answer(command);
  };
  run(0.6);
  ASSERT_TRUE(clicked);
  expectCleared();
  EXPECT_EQ(stored("MessInfo_R", "MessZeitMax"), "31 s");
}

TEST_F(AnalysisResult, InchShowsAndStoresMil) {
  world.system.Masssystem = 1;
  show();
  finish();
  const std::string FX = text("PanelFx(1)");
  QTest::mouseClick(&save(), Qt::LeftButton);
  run(0.4);
  EXPECT_EQ(zahlAusText(stored("MessInfo_G", "X_Genauigkeit")), zahlAusText(FX));
}

TEST_F(AnalysisResult, MoreSamplesThanTheTablesTakeEndLikeALostLink) {
  world.head.delay = 0.04;
  show();
  start();
  run(30);
  EXPECT_GT(info().AnzahlMP, 480);
  run(2);
  expectCleared();
  EXPECT_FALSE(shown("PanelXStatistik(5)"));
  EXPECT_FALSE(pressed("XYMPNN"));
}

TEST_F(AnalysisResult, APressInItsDiagramPicksTheTime) {
  show();
  finish();
  auto& picture = child<PictureUnsicherheit>("PictureUnsicherheit");
  QTest::mouseClick(&picture, Qt::LeftButton, {}, picture.placeOf({20, 0.001})->toPoint());
  EXPECT_EQ(text("PanelFx(0)"), "20 s");
}

// ---- In all languages ----

using AnalysisResultWords = test::InEachLanguage<AnalysisResult>;

TEST_P(AnalysisResultWords, NothingIsCutOffBesideTheDiagram) {
  // Each grade has its words.
  for (const char* accuracy : {"1", "0.0023", "0.0001"}) {
    world.profil.ProfilSchreiben("", "MessInfo_G", "X_Genauigkeit", accuracy);
    show();
    finish();
    EXPECT_EQ(form->size(), QSize(1024, 768));
    EXPECT_LE(form->minimumSizeHint().height(), 768);
    test::expectLabelsFit(*form);
    test::expectNothingCovered(*form);
    const int caption = QFontMetrics(save().font()).horizontalAdvance(save().text());
    EXPECT_LE(caption + 40, save().width());
    EXPECT_TRUE(frame().rect().contains(QRect(save().mapTo(&frame(), QPoint(0, 0)), save().size())));
    words.insert(text("LblAussicht"));
  }
  EXPECT_EQ(words.size(), 3u);
}

INSTANTIATE_TEST_SUITE_P(AllLanguages, AnalysisResultWords, ::testing::Range(0, 8));

}  // namespace
}  // namespace korvin
