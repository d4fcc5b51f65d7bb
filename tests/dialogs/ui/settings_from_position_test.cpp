// The settings dialog over the real measuring window: what is entered is what the measurement goes by.

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>

#include "dialogs/ui/form_options_o.h"
#include "position/ui/position_stand.h"

namespace korvin {
namespace {

class SettingsFromPosition : public test::PositionStand {
 protected:
  SettingsFromPosition() {
    settings = [this](QWidget& window, const auto& outsideOfTicks) {
      OffeneMessung open{formpos, erfassung()};
      FormOptionsO(
          {{{dictionary(), world.messages, world.meldung, world.profil, world.system}, {}, outsideOfTicks},
           world.clock,
           world.clock},
          &open, &window)
          .ausfuehren();
    };
  }

  /// Opens the dialog by its key; `use` is what the user does in it.
  void inSettings(const std::function<void()>& use) {
    bool used = false;
    QTimer::singleShot(0, [&] {
      dialog = qobject_cast<FormOptionsO*>(QApplication::activeModalWidget());
      ASSERT_NE(dialog, nullptr);
      QApplication::setActiveWindow(dialog);
      dialog->findChild<QTabWidget*>()->setCurrentIndex(1);
      settle();
      use();
      used = true;
      if (dialog->isVisible()) dialog->reject();
    });
    click("EINRICHTEN");
    ASSERT_TRUE(used);
  }
  void switchPlanOn() {
    auto* check = dialog->findChild<QCheckBox*>(QStringLiteral("CheckAutoOn"));
    if (!check->isChecked()) QTest::mouseClick(check, Qt::LeftButton, {}, QPoint(8, check->height() / 2));
    settle();
  }
  void enter(int index, const char* what) {
    auto* box = dialog->findChild<QLineEdit*>(QStringLiteral("TextEinstellung(%1)").arg(index));
    box->setFocus();
    box->clear();
    QTest::keyClicks(box, QString::fromUtf8(what));
    settle();
  }
  void choose(const char* list, int index) {
    dialog->findChild<QComboBox*>(QString::fromUtf8(list))->setCurrentIndex(index);
  }
  void clickCommand(int index) {
    QTest::mouseClick(dialog->findChild<QPushButton*>(QStringLiteral("Commands(%1)").arg(index)),
                      Qt::LeftButton);
  }
  void ok() {
    clickCommand(0);
    settle();
    EXPECT_FALSE(dialog->isVisible());
  }

  FormOptionsO* dialog = nullptr;
};

TEST_F(SettingsFromPosition, APlanEnteredThereIsShownAndObeyed) {
  show();
  inSettings([this] {
    switchPlanOn();
    enter(7, "3");
    enter(8, "10");
    enter(9, "15.03.23");
    enter(10, "12:01");
    ok();
  });
  EXPECT_EQ(text("PanelMpsStart"), "3");
  EXPECT_EQ(text("PanelMessRate"), "10");
  EXPECT_EQ(text("PanelZeit(0)"), "  12:01:00");
  EXPECT_TRUE(shown("PanelZeit(0)"));
  EXPECT_FALSE(shown("PanelZeit(1)"));
  EXPECT_TRUE(shown("PanelZeit(2)"));

  click("XYMPN");
  run(55);
  EXPECT_EQ(info().AnzahlMP, 0) << "waits for the start time";
  EXPECT_TRUE(pressed("XYMPN"));
  run(8);
  EXPECT_EQ(info().AnzahlMP, 1);
  EXPECT_EQ(text("PanelMpsStart"), "2");
  run(10);
  EXPECT_EQ(info().AnzahlMP, 2);
  run(10);
  EXPECT_EQ(info().AnzahlMP, 3);
  EXPECT_FALSE(pressed("XYMPN")) << "all points are taken";
  EXPECT_FALSE(shown("PanelZeit(0)"));
  EXPECT_FALSE(shown("PanelZeit(2)"));
  EXPECT_TRUE(key("EINRICHTEN")->isEnabled());
  run(20);
  EXPECT_EQ(info().AnzahlMP, 3);
}

TEST_F(SettingsFromPosition, AStopTimeEnteredThereEndsTheRun) {
  show();
  inSettings([this] {
    switchPlanOn();
    enter(11, "15.03.23");
    enter(12, "12.00.30");
    ok();
  });
  EXPECT_EQ(text("PanelZeit(1)"), "  12:00:30");
  click("XYMPN");
  run(20);
  EXPECT_TRUE(pressed("XYMPN"));
  const int before = info().AnzahlMP;
  EXPECT_GT(before, 10) << "as fast as the head answers";
  run(12);
  EXPECT_FALSE(pressed("XYMPN"));
  EXPECT_GT(info().AnzahlMP, before);
}

TEST_F(SettingsFromPosition, AStartTimeWithoutADateBeginsAtOnceAtItsInterval) {
  show();
  inSettings([this] {
    switchPlanOn();
    enter(8, "5");
    enter(10, "23:00");
    ok();
  });
  EXPECT_EQ(info().StartZeit, 23 / 24.0);
  click("XYMPN");
  run(1);
  EXPECT_EQ(info().AnzahlMP, 1);
  run(5);
  EXPECT_EQ(info().AnzahlMP, 2);
}

TEST_F(SettingsFromPosition, APlanOfARunThatIsOverIsGoneFromTheDialogToo) {
  show();
  info().StartAktiv = true;
  info().StartZeit = 45000;
  click("XYMPN");
  run(1);
  click("XYMPN");
  run(1);
  inSettings(
      [this] { EXPECT_FALSE(dialog->findChild<QCheckBox*>(QStringLiteral("CheckAutoOn"))->isChecked()); });
}

TEST_F(SettingsFromPosition, YesToANewFilterClearsThePointsAndReleasesOffset) {
  show();
  takePoints(2);
  click("OFFSET");
  world.messages.answers = {MessageAnswer::yes};
  inSettings([this] {
    choose("cmbFilter", 4);
    ok();
  });
  EXPECT_EQ(info().AnzahlMP, 0);
  EXPECT_FALSE(pressed("OFFSET"));
  EXPECT_EQ(text("lblOffset"), "--- / -.--- / -.--- ");
  EXPECT_EQ(text("lblKamera"), "D3003: D3204");
  EXPECT_EQ(info().Filter.full(), "4");
}

TEST_F(SettingsFromPosition, NoKeepsThePointsAndTheNextReadingGoesByTheChosenFilter) {
  show();
  takePoints(2);
  click("OFFSET");
  world.messages.answers = {MessageAnswer::no};
  inSettings([this] {
    choose("cmbFilter", 4);
    choose("cmbKameraBefestigung", 1);
    ok();
  });
  EXPECT_EQ(info().AnzahlMP, 2);
  EXPECT_TRUE(pressed("OFFSET"));
  EXPECT_EQ(info().Filter.full(), "2");
  EXPECT_EQ(info().Montage, 0);
  click("XYMP1");
  run(0.5);
  EXPECT_EQ(info().AnzahlMP, 3);
  EXPECT_EQ(info().Filter.full(), "4");
}

TEST_F(SettingsFromPosition, DecimalsAreShownAtOnce) {
  show();
  takePoints(1);
  inSettings([this] {
    choose("cmbAnzStellen", 1);
    choose("cmbFilter", 2);
    ok();
  });
  EXPECT_EQ(text("PanelxWertNormal"), "0.10");
}

TEST_F(SettingsFromPosition, OkDuringATelegramWaitsForItsEnd) {
  show();
  takePoints(1);
  world.messages.answers = {MessageAnswer::yes};
  inSettings([this] {
    choose("cmbFilter", 4);
    world.head.delay = 0.2;
    world.clock.after(0.1, [this] {
      clickCommand(0);
      EXPECT_TRUE(dialog->isVisible());
      EXPECT_EQ(info().AnzahlMP, 1);
    });
    run(0.5);
    EXPECT_FALSE(dialog->isVisible());
  });
  EXPECT_EQ(info().AnzahlMP, 0);
}

TEST_F(SettingsFromPosition, CancelWhileOkIsWaitingWins) {
  show();
  takePoints(1);
  inSettings([this] {
    choose("cmbFilter", 4);
    world.head.delay = 0.2;
    world.clock.after(0.1, [this] {
      clickCommand(0);
      clickCommand(1);
    });
    run(0.5);
  });
  run(1);
  EXPECT_EQ(info().AnzahlMP, 1);
  EXPECT_EQ(world.system.FilterVorgabe, '2');
  EXPECT_TRUE(world.messages.shown.empty());
}

TEST_F(SettingsFromPosition, CancelLeavesTheMeasurementAsItIs) {
  show();
  takePoints(1);
  const auto before = toBytes(info());
  inSettings([this] {
    switchPlanOn();
    enter(7, "3");
    choose("cmbFilter", 4);
    clickCommand(1);
  });
  EXPECT_EQ(toBytes(info()), before);
}

}  // namespace
}  // namespace korvin
