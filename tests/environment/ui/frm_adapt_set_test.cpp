// The frame of the results by clicks and keys, in a window that has the arrow keys as shortcuts.
#include "environment/ui/frm_adapt_set.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QMainWindow>
#include <QStyleOptionSlider>
#include <QTest>
#include <QVBoxLayout>
#include <algorithm>
#include <string>
#include <vector>

#include "frame/posix_file_system.h"
#include "frame/ui/qt_text.h"
#include "support/test_ports.h"
#include "support/window_words.h"

namespace korvin {
namespace {

/// The room that a measuring window of 1024 by 768 has beside its diagram.
constexpr QSize Beside(415, 345);

class FrmAdaptSetTest : public ::testing::Test {
 protected:
  FrmAdaptSetTest() {
    window.setCentralWidget(new QWidget);
    window.centralWidget()->setLayout(new QVBoxLayout);
    window.centralWidget()->layout()->setContentsMargins(0, 0, 0, 0);
    const auto shortcut = [this](const QKeySequence& keys) {
      auto* action = new QAction(&window);
      action->setShortcut(keys);
      QObject::connect(action, &QAction::triggered, &window, [this] { ++stolen; });
      window.addAction(action);
    };
    for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Home}) shortcut(key);
    shortcut(QKeySequence(Qt::CTRL | Qt::Key_Left));
  }

  virtual Dictionary& words() { return dictionary; }

  void build() {
    frame = new FrmAdaptSet(set,
                            {fileDialog, messages, words(), files, [] { return std::string(); },
                             [] { return std::string("analysis"); }},
                            window.centralWidget());
    frame->onGespeichert = [this] {
      ++saved;
      set.verbergen();
      frame->zeigen();
    };
    window.centralWidget()->layout()->addWidget(frame);
    window.resize(Beside);
    window.show();
    QApplication::setActiveWindow(&window);
    settle();
  }
  /// 155 readings: 5 a second.
  void finish(std::int16_t N = 155, double sX = 1, double sY = 0.5) {
    set.UnsicherheitBerechnen({.AnalyseAnzahl = N, .AnalyseSekunden = 32, .sX = sX, .sY = sY});
    set.SliderEinrichten();
    frame->zeigen();
    settle();
  }
  void open() {
    build();
    finish();
  }
  static void settle() { QApplication::processEvents(); }

  template <class Widget = QLabel>
  Widget& child(const char* name) {
    auto* found = frame->findChild<Widget*>(QLatin1String(name));
    EXPECT_NE(found, nullptr) << name;
    return *found;
  }
  std::string text(const char* name) { return utf8Text(child(name).text()); }
  std::vector<std::string> panels() { return {text("PanelFx(0)"), text("PanelFx(1)"), text("PanelFx(2)")}; }
  QSlider& slider() { return child<QSlider>("SliderAdaption"); }
  QPushButton& save() { return child<QPushButton>("CmdWerteSave"); }
  QRadioButton& option(int i) { return child<QRadioButton>(i == 0 ? "OptPrio(0)" : "OptPrio(1)"); }
  PictureUnsicherheit& picture() { return child<PictureUnsicherheit>("PictureUnsicherheit"); }
  static void click(QWidget& widget) { QTest::mouseClick(&widget, Qt::LeftButton); }
  std::string stored(const char* section, const char* name) { return profil.wert(section, name, "missing"); }
  /// Where the centre of the slider's handle stands in the window.
  int handleAt() {
    QStyleOptionSlider option;
    option.initFrom(&slider());
    option.orientation = Qt::Horizontal;
    option.minimum = slider().minimum();
    option.maximum = slider().maximum();
    option.sliderPosition = slider().value();
    const QRect handle =
        slider().style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, &slider());
    return slider().mapTo(&window, handle.center()).x();
  }
  /// Where the diagram marks a position.
  int markAt(int position) {
    const double seconds = position * 0.2;
    return picture().mapTo(&window, picture().placeOf({seconds, 0})->toPoint()).x();
  }

  test::MemorySettingsTree tree;
  Profil profil{tree};
  AdaptSet set{profil};
  test::TestDictionary dictionary;
  test::TestFileDialog fileDialog;
  test::TestMessages messages;
  PosixFileSystem files;
  QMainWindow window;
  FrmAdaptSet* frame = nullptr;
  int saved = 0;
  int stolen = 0;  ///< keys that went to the window
  using Texts = std::vector<std::string>;
};

// ---- Coming and going ----

TEST_F(FrmAdaptSetTest, ComesUpWithTheResultAndTheFocusOnSaving) {
  build();
  EXPECT_FALSE(frame->isVisible());
  finish();
  EXPECT_TRUE(frame->isVisible());
  EXPECT_TRUE(save().hasFocus());
  EXPECT_TRUE(save().isEnabled());
  EXPECT_EQ(slider().minimum(), 25);
  EXPECT_EQ(slider().value(), 155);
  EXPECT_EQ(slider().maximum(), 279);
  EXPECT_EQ(panels(), (Texts{"31 s", "0.1641", "0.0820"}));
}

TEST_F(FrmAdaptSetTest, ARedrawLeavesTheFocusWhereItIs) {
  open();
  slider().setFocus();
  frame->zeigen();
  EXPECT_TRUE(slider().hasFocus());
}

TEST_F(FrmAdaptSetTest, GoesWithTheResult) {
  open();
  set.verbergen();
  frame->zeigen();
  EXPECT_FALSE(frame->isVisible());
}

TEST_F(FrmAdaptSetTest, AnotherRunBringsItsOwnSliderAndDiagram) {
  open();
  set.verbergen();
  frame->zeigen();
  finish(310, 2, 1);
  EXPECT_EQ(slider().maximum(), 558);
  EXPECT_EQ(slider().value(), 310);
  EXPECT_EQ(text("PanelFx(0)"), "31 s");
}

TEST_F(FrmAdaptSetTest, CaptionsComeFromTheDictionary) {
  dictionary.texts = {{2208, "(B):"}, {2209, "Level"}};
  open();
  EXPECT_EQ(utf8Text(frame->title()), "D2251");
  EXPECT_EQ(text("LblAA"), "D2250");
  EXPECT_EQ(utf8Text(save().text()), "D2252");
  EXPECT_EQ(text("LblPrio"), "Level(B):");
  EXPECT_EQ(text("lblFx(0)"), "t:");
  EXPECT_EQ(text("lblFx(1)"), "FX:");
  EXPECT_EQ(text("lblFx(2)"), "FY:");
  EXPECT_EQ(utf8Text(option(0).text()), "95%");
  EXPECT_EQ(utf8Text(option(1).text()), "99%");
  dictionary.texts[2250] = "other";
  frame->setTexte(dictionary);
  EXPECT_EQ(text("LblAA"), "other");
}

// ---- The slider ----

TEST_F(FrmAdaptSetTest, ArrowKeysMoveTheSliderAndNotTheWindowsPoint) {
  open();
  slider().setFocus();
  QTest::keyClick(&slider(), Qt::Key_Left);
  EXPECT_EQ(slider().value(), 154);
  EXPECT_EQ(panels(), (Texts{"31 s", "0.1695", "0.0847"}));
  QTest::keyClick(&slider(), Qt::Key_Right);
  QTest::keyClick(&slider(), Qt::Key_Right);
  EXPECT_EQ(slider().value(), 156);
  QTest::keyClick(&slider(), Qt::Key_Home);
  EXPECT_EQ(slider().value(), 25);
  EXPECT_EQ(text("PanelFx(0)"), "5 s");
  QTest::keyClick(&slider(), Qt::Key_End);
  EXPECT_EQ(slider().value(), 279);
  EXPECT_EQ(text("PanelFx(0)"), "56 s");
  QTest::keyClick(&slider(), Qt::Key_PageDown);
  EXPECT_EQ(slider().value(), 252);
  EXPECT_EQ(stolen, 0);
}

TEST_F(FrmAdaptSetTest, TheWindowKeepsItsShortcutsOtherwise) {
  open();
  slider().setFocus();
  QTest::keyClick(&slider(), Qt::Key_Left, Qt::ControlModifier);
  EXPECT_EQ(stolen, 1);
  save().setFocus();
  QTest::keyClick(&save(), Qt::Key_Left);
  EXPECT_EQ(stolen, 2);
  EXPECT_EQ(slider().value(), 155);
}

TEST_F(FrmAdaptSetTest, DraggingTheHandleShowsEachTime) {
  open();
  const int y = slider().height() / 2;
  const int from = handleAt() - slider().mapTo(&window, QPoint(0, 0)).x();
  QTest::mousePress(&slider(), Qt::LeftButton, {}, {from, y});
  QTest::mouseMove(&slider(), {0, y});
  EXPECT_EQ(text("PanelFx(0)"), "5 s");
  QTest::mouseMove(&slider(), {slider().width(), y});
  EXPECT_EQ(text("PanelFx(0)"), "56 s");
  QTest::mouseRelease(&slider(), Qt::LeftButton, {}, {slider().width(), y});
  EXPECT_EQ(set.slider().wert, 279);
}

TEST_F(FrmAdaptSetTest, TheHandleStandsUnderTheMarkedTime) {
  open();
  for (const int value : {25, 100, 155, 279}) {
    slider().setValue(value);
    settle();
    EXPECT_NEAR(handleAt(), markAt(value), 2) << value;
  }
  window.resize(Beside.width() + 200, Beside.height());
  settle();
  EXPECT_NEAR(handleAt(), markAt(279), 2);
}

// ---- The diagram ----

TEST_F(FrmAdaptSetTest, APressInTheDiagramPicksTheTime) {
  open();
  const auto at = [this](double seconds) { return picture().placeOf({seconds, 0.5})->toPoint(); };
  QTest::mousePress(&picture(), Qt::LeftButton, {}, at(20));
  EXPECT_EQ(text("PanelFx(0)"), "20 s");
  QTest::mouseMove(&picture(), at(40));
  EXPECT_EQ(text("PanelFx(0)"), "40 s");
  // Beyond both ends the slider stays at them.
  QTest::mouseMove(&picture(), at(-30));
  EXPECT_EQ(slider().value(), 25);
  QTest::mouseMove(&picture(), at(99));
  EXPECT_EQ(slider().value(), 279);
  QTest::mouseRelease(&picture(), Qt::LeftButton, {}, at(99));
}

TEST_F(FrmAdaptSetTest, TheDiagramFollowsTheSlider) {
  open();
  const QImage before = picture().grab().toImage();
  slider().setValue(100);
  settle();
  const QImage after = picture().grab().toImage();
  EXPECT_NE(before, after);
  // The mark is a black line at the chosen time.
  const int x = picture().placeOf({20, 0})->toPoint().x();
  const int y = picture().placeOf({20, 0.9})->toPoint().y();
  int darkest = 255;
  for (int i = -2; i <= 2; ++i) darkest = std::min(darkest, after.pixelColor(x + i, y).lightness());
  EXPECT_LT(darkest, 60);
}

TEST_F(FrmAdaptSetTest, ARunWithFewerSamplesThanSecondsShowsZero) {
  build();
  finish(20);
  EXPECT_EQ(panels(), (Texts{"31 s", "0", "0"}));
  const QImage shown = picture().grab().toImage();
  const QPoint middle = shown.rect().center();
  QTest::mouseClick(&picture(), Qt::LeftButton, {}, middle);
  EXPECT_EQ(slider().value(), 20);
  EXPECT_EQ(shown.pixelColor(middle), QColor(Qt::white));
}

// ---- The words ----

TEST_F(FrmAdaptSetTest, TellsWhetherAdaptiveMeasuringWillSucceed) {
  build();
  finish(155, 0.001, 0.001);
  EXPECT_EQ(text("LblAussicht"), "D7730");
  EXPECT_EQ(text("LblAussichtZahlen"), "D7735: X 0.0100  Y 0.0100 mm  12 s  ¦  D7736: X 0.0003  Y 0.0003 mm");
  const QColor likely = child("LblAussicht").palette().color(QPalette::WindowText);
  set.verbergen();
  frame->zeigen();
  finish(155, 0.001, 0.039);
  EXPECT_EQ(text("LblAussicht"), "D7731");
  const QColor doubtful = child("LblAussicht").palette().color(QPalette::WindowText);
  set.verbergen();
  frame->zeigen();
  finish(155, 0.1, 0.001);
  EXPECT_EQ(text("LblAussicht"), "D7732");
  const QColor unlikely = child("LblAussicht").palette().color(QPalette::WindowText);
  EXPECT_NE(likely, doubtful);
  EXPECT_NE(doubtful, unlikely);
}

// ---- Level and saving ----

TEST_F(FrmAdaptSetTest, NinetyFivePercentIsChosenAtFirst) {
  open();
  EXPECT_TRUE(option(0).isChecked());
  EXPECT_FALSE(option(1).isChecked());
}

TEST_F(FrmAdaptSetTest, TheLevelIsChosenByClicksAndKeysAndChangesNoShownValue) {
  open();
  const Texts before = panels();
  click(option(1));
  EXPECT_TRUE(set.anzeige().Beta1);
  EXPECT_FALSE(set.anzeige().Beta5);
  EXPECT_TRUE(option(1).isChecked());
  option(1).setFocus();
  QTest::keyClick(&option(1), Qt::Key_Left);
  EXPECT_EQ(stolen, 0);
  EXPECT_TRUE(set.anzeige().Beta5);
  EXPECT_FALSE(set.anzeige().Beta1);
  EXPECT_EQ(panels(), before);
}

TEST_F(FrmAdaptSetTest, SavingStoresWhatIsShownAndAsksForTheClear) {
  open();
  slider().setValue(100);
  click(option(1));
  click(save());
  EXPECT_EQ(saved, 1);
  EXPECT_FALSE(frame->isVisible());
  for (const char* section : {"MessInfo_G", "MessInfo_P", "MessInfo_R"}) {
    EXPECT_EQ(stored(section, "AutoAdapt"), "-1");
    EXPECT_EQ(stored(section, "X_Genauigkeit"), ".4623");
    EXPECT_EQ(stored(section, "Y_Genauigkeit"), ".2311");
    EXPECT_EQ(stored(section, "Beta5"), "0");
    EXPECT_EQ(stored(section, "Beta1"), "-1");
    EXPECT_EQ(stored(section, "MessZeitMin"), "5");
    EXPECT_EQ(stored(section, "MessZeitMax"), "20 s");
  }
}

TEST_F(FrmAdaptSetTest, SpaceAndEnterSaveAtOnce) {
  for (const Qt::Key which : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
    saved = 0;
    if (frame == nullptr) build();
    finish();
    QTest::keyClick(frame->window()->focusWidget(), which);
    EXPECT_EQ(saved, 1) << which;
  }
}

TEST_F(FrmAdaptSetTest, SavingIsDisabledUntilSomethingChanges) {
  open();
  // The clear that follows a save may have to wait for an answer of the head.
  frame->onGespeichert = [this] { ++saved; };
  click(save());
  EXPECT_FALSE(save().isEnabled());
  click(save());
  EXPECT_EQ(saved, 1);
  slider().setValue(100);
  EXPECT_TRUE(save().isEnabled());
  click(save());
  click(option(0));
  EXPECT_TRUE(save().isEnabled());
  EXPECT_EQ(saved, 2);
}

TEST_F(FrmAdaptSetTest, UncertaintiesBelowTheLowestAreLiftedOnThePanels) {
  build();
  finish(20);
  frame->onGespeichert = [this] { ++saved; };
  click(save());
  EXPECT_EQ(panels(), (Texts{"31 s", "0.0002", "0.0002"}));
}

TEST_F(FrmAdaptSetTest, TabGoesThroughAllControls) {
  open();
  std::vector<std::string> visited;
  for (int i = 0; i < 4; ++i) {
    QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
    visited.push_back(utf8Text(window.focusWidget()->objectName()));
  }
  EXPECT_NE(std::find(visited.begin(), visited.end(), "SliderAdaption"), visited.end());
  EXPECT_NE(std::find(visited.begin(), visited.end(), "OptPrio(0)"), visited.end());
  EXPECT_NE(std::find(visited.begin(), visited.end(), "CmdWerteSave"), visited.end());
  EXPECT_EQ(utf8Text(slider().accessibleName()), "D7740");
  EXPECT_EQ(utf8Text(picture().accessibleName()), "D7741");
}

// ---- In all languages ----

class FrmAdaptSetWords : public FrmAdaptSetTest, public ::testing::WithParamInterface<int> {
 protected:
  FrmAdaptSetWords() {
    texts.DicOeffnen(KORVIN_BIN "/korvin.mdb");
    applyTheme(Appearance::light, screenScale(1024 / 1280.0, 768 / 1024.0), GetParam());
  }
  ~FrmAdaptSetWords() override { applyTheme(Appearance::light, screenScale(1024 / 1280.0, 768 / 1024.0), 0); }
  Dictionary& words() override { return texts; }

  std::string spalte = SpalteVonSprache(static_cast<std::int16_t>(GetParam()));
  test::TestProgramEnd programEnd;
  SqliteDictionary texts{spalte, programEnd};
};

TEST_P(FrmAdaptSetWords, NothingIsCutOff) {
  build();
  for (const double s : {0.0001, 0.039, 90.0}) {
    set.verbergen();
    frame->zeigen();
    finish(155, s, s);
    EXPECT_EQ(window.size(), Beside);
    test::expectLabelsFit(window);
    const int caption = QFontMetrics(save().font()).horizontalAdvance(save().text());
    EXPECT_LE(caption + 40, save().width());
    EXPECT_GE(picture().height(), 80);
  }
}

INSTANTIATE_TEST_SUITE_P(AllLanguages, FrmAdaptSetWords, ::testing::Range(0, 8));

}  // namespace
}  // namespace korvin
