#include "link/ui/kopfsuche.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QTest>
#include <QWidget>

#include "frame/kor_registry.h"
#include "frame/memory_settings_tree.h"
#include "frame/ui/mouse_pointer.h"
#include "link/ui/form_scan_comport.h"
#include "support/scripted_head.h"
#include "support/test_clock.h"
#include "support/test_ports.h"

namespace korvin {
namespace {

class KopfsucheTest : public ::testing::Test {
 protected:
  KopfsucheTest() {
    KorRegistry(tree).RegistryAnlegen("/nowhere");
    head.openErrorOfPort = [this](std::int16_t port) {
      watch(port);
      return port == headPort ? 0 : CommPortFehlt;
    };
    window.show();
  }
  ~KopfsucheTest() override { showNormalPointer(); }

  static FormScanComport* dialog() {
    for (QWidget* each : QApplication::topLevelWidgets()) {
      if (auto* found = qobject_cast<FormScanComport*>(each)) return found;
    }
    return nullptr;
  }

  /// What a user sees while `port` is being tried.
  void watch(int port) {
    QApplication::processEvents();
    ASSERT_NE(dialog(), nullptr);
    dialogVisible = dialog()->isVisible();
    windowEnabled = window.isEnabled();
    hourglass = hourglassShown();
    bar[port] = dialog()->findChild<QProgressBar*>(QStringLiteral("Progress1"))->value();
    for (const char* name : {"Label1", "Label2", "Label3"}) {
      labels[name] = dialog()->findChild<QLabel*>(QString::fromLatin1(name))->text().toStdString();
    }
    title = dialog()->windowTitle().toStdString();
    QTest::keyClick(dialog(), Qt::Key_Escape);
    EXPECT_TRUE(dialog()->isVisible()) << "the search can't be closed";
  }

  test::TestClock clock;
  test::TestRandom random;
  test::TestMessages messages;
  test::TestDictionary dictionary;
  MemorySettingsTree tree;
  Profil profil{tree};
  Meldung meldung;
  KameraAntwort antwort;
  KorCom korCom{clock, clock, random, messages};
  test::ScriptedHead head{clock};
  Kopfsuche suche{{clock, clock, profil, korCom, head, antwort}, dictionary, messages, meldung};
  QWidget window;
  int headPort = 0;
  bool dialogVisible = false;
  bool windowEnabled = true;
  bool hourglass = false;
  std::map<int, int> bar;
  std::map<std::string, std::string> labels;
  std::string title;
};

TEST_F(KopfsucheTest, AHeadIsFoundAndTheDialogGoes) {
  headPort = 5;
  EXPECT_TRUE(suche.suchen(window));
  EXPECT_TRUE(dialogVisible);
  EXPECT_FALSE(windowEnabled);
  EXPECT_TRUE(hourglass);
  EXPECT_EQ(bar.at(4), 4);
  EXPECT_EQ(title, "D600");
  EXPECT_EQ(labels.at("Label1"), "D605");
  EXPECT_EQ(labels.at("Label2"), "D604");
  EXPECT_EQ(labels.at("Label3"), "D606");
  EXPECT_EQ(dialog(), nullptr);
  EXPECT_TRUE(window.isEnabled());
  EXPECT_FALSE(hourglassShown());
  EXPECT_TRUE(messages.shown.empty());
  EXPECT_EQ(suche.zeile(), "D7120: Com 5, 115200");
  EXPECT_FALSE(suche.laeuft());
}

TEST_F(KopfsucheTest, TheWindowKeepsItsFocus) {
  QLineEdit first(&window);
  QLineEdit second(&window);
  first.show();
  second.show();
  second.setFocus();
  ASSERT_EQ(window.focusWidget(), &second);
  headPort = 5;
  suche.suchen(window);
  EXPECT_EQ(window.focusWidget(), &second);
}

TEST_F(KopfsucheTest, TheBarCountsBothPasses) {
  messages.answers = {MessageAnswer::ok};
  EXPECT_TRUE(suche.suchen(window));
  EXPECT_EQ(bar.at(16), 32);
  EXPECT_EQ(bar.at(1), 17);
}

TEST_F(KopfsucheTest, WithoutAHeadOkGoesOn) {
  messages.answers = {MessageAnswer::ok};
  EXPECT_TRUE(suche.suchen(window));
  ASSERT_EQ(messages.shown.size(), 1U);
  EXPECT_EQ(messages.shown.front().title, "D600");
  EXPECT_EQ(messages.shown.front().text, "D603");
  EXPECT_EQ(messages.shown.front().buttons, MessageButtons::okCancel);
  EXPECT_EQ(suche.zeile(), "D7121");
}

TEST_F(KopfsucheTest, WithoutAHeadCancelEndsTheProgram) {
  messages.answers = {MessageAnswer::cancel};
  EXPECT_FALSE(suche.suchen(window));
  EXPECT_EQ(dialog(), nullptr);
}

TEST_F(KopfsucheTest, BeforeTheSearchThereIsNothingToTell) {
  EXPECT_EQ(suche.zeile(), "");
}

TEST_F(KopfsucheTest, RunningShowsWhileItRuns) {
  headPort = 1;
  bool running = false;
  clock.after(0.1, [&] { running = suche.laeuft(); });
  suche.suchen(window);
  EXPECT_TRUE(running);
}

}  // namespace
}  // namespace korvin
