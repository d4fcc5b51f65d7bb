// Measuring in the real window: clicks, shortcuts and the head's keys, and what the panels show of it.

#include <QAction>
#include <cmath>

#include "frame/ui/mouse_pointer.h"
#include "gerad_stand.h"

namespace korvin {
namespace {

const QColor white(255, 255, 255);
const QColor yellow(255, 255, 0);
const QColor red(255, 0, 0);

class Measuring : public test::GeradStand {
 protected:
  /// Looks while a single measurement is shown: after the reading, before the step.
  void whileShown(std::function<void()> look) {
    world.clock.after(1.5, [this, look = std::move(look)] {
      looked = true;
      look();
    });
  }
  double x(std::size_t point) { return series().X.Wert.at(point); }
  std::size_t count(char command) {
    return static_cast<std::size_t>(
        std::count(world.head.commands.begin(), world.head.commands.end(), command));
  }

  bool looked = false;
};

TEST_F(Measuring, ShowingGoesOnlineAndPolls) {
  show();
  EXPECT_TRUE(world.head.PortOpen());
  EXPECT_TRUE(entry("M_KVNOnline")->isChecked());
  run(3);
  EXPECT_GE(world.head.commands.size(), 2U);
  EXPECT_EQ(world.head.commands.find_first_not_of('T'), std::string::npos);
  EXPECT_EQ(text("PanelxWertNormal"), "?.?");
  EXPECT_EQ(text("PanelMessPkt"), "1 / 6");
  EXPECT_EQ(text("LabelX"), "X1");
  EXPECT_EQ(z().text().toStdString(), "0.0");
  EXPECT_EQ(text("lblDistanzMax"), "2500.0 mm");
  EXPECT_EQ(utf8Text(form->windowTitle()), "D5500");
  EXPECT_EQ(text("lblKamera"), "D3003: D3202");
  EXPECT_EQ(text("lblBetrieb"), "D7220");
}

TEST_F(Measuring, HourglassOfTheStartEndsWithTheShowing) {
  showHourglass();
  show();
  EXPECT_FALSE(hourglassShown());
}

TEST_F(Measuring, SingleMeasurementsByTheToolbarWalkAlongTheLine) {
  show();
  click("ROH");
  beam(0.1234, 0.25);
  click("XYMP1");
  whileShown([this] {
    EXPECT_EQ(text("PanelxWertNormal"), " 0.1234") << "shown for a second before the window steps on";
    EXPECT_EQ(text("PanelyWertNormal"), " 0.2500") << "the sign of Y is the head's";
    EXPECT_EQ(text("PanelXWertZoom"), " 0.1234");
    EXPECT_EQ(text("PanelYWertZoom"), " 0.2500");
    EXPECT_EQ(text("PanelMessPkt"), "1 / 6");
    EXPECT_EQ(text("lblBetrieb"), "D7221");
    EXPECT_TRUE(pressed("XYMP1"));
    for (const char* each : {"XYMP1", "XYMPN", "XYMPNN"}) EXPECT_FALSE(enabled(each)) << each;
    EXPECT_NE(QApplication::overrideCursor(), nullptr);
  });
  measured();
  EXPECT_TRUE(looked);
  EXPECT_EQ(text("PanelMessPkt"), "2 / 6");
  EXPECT_EQ(text("PanelxWertNormal"), "?.?");
  EXPECT_EQ(z().text().toStdString(), "500.0");
  EXPECT_EQ(x(1), 0.1234);
  EXPECT_EQ(series().Y.Wert.at(1), 0.25);
  EXPECT_EQ(cell(0, LineTableModel::X), "0.1234");
  EXPECT_EQ(list().currentIndex().row(), 1);
  EXPECT_EQ(ground("PanelxWertNormal"), yellow);
  EXPECT_EQ(text("lblStatus"), "D3081: 80 % ");
  EXPECT_FALSE(pressed("XYMP1"));
  for (const char* each : {"XYMP1", "XYMPN", "XYMPNN"}) EXPECT_TRUE(enabled(each)) << each;
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
  EXPECT_TRUE(info().Geaendert);
}

TEST_F(Measuring, EachWayToASingleMeasurementTakesOnePoint) {
  show();
  type(Qt::Key_F5);
  measured();
  EXPECT_EQ(line().AktMP, 2);
  entry("M_SingleMeas")->trigger();
  measured();
  EXPECT_EQ(line().AktMP, 3);
  world.head.key = 'M';
  measured();
  EXPECT_EQ(line().AktMP, 4);
  EXPECT_EQ(count('M'), 3U);
}

TEST_F(Measuring, AtTheLastPointTheNextMeasurementReplacesIt) {
  show();
  takePoints({0.1, 0.2, 0.3, 0.4, 0.5, 0.6});
  EXPECT_EQ(line().AktMP, 6);
  EXPECT_EQ(x(6), 0.6);
  takePoints({0.7});
  EXPECT_EQ(line().AktMP, 6);
  EXPECT_EQ(x(6), 0.7);
  EXPECT_EQ(x(5), 0.5);
}

TEST_F(Measuring, BothDirectionsIfTheSettingsAllowThem) {
  show();
  EXPECT_FALSE(keyShown("AUTO_MESSRICHTUNG"));
  EXPECT_FALSE(enabled("AUTO_MESSRICHTUNG"));
  world.profil.ProfilSchreiben("", "MessInfo_G", "BiDi_Messen", "-1");
  click("NEU");
  EXPECT_TRUE(keyShown("AUTO_MESSRICHTUNG"));
  EXPECT_TRUE(pictured("AUTO_MESSRICHTUNG", "ICON91"));
  takePoints({0.1, 0.2});
  EXPECT_EQ(line().AktMP, 3);
  click("AUTO_MESSRICHTUNG");
  EXPECT_TRUE(pictured("AUTO_MESSRICHTUNG", "ICON92"));
  takePoints({0.3, 0.25, 0.15, 0.05});
  EXPECT_EQ(line().AktMP, 1) << "held at the first point";
  EXPECT_EQ(x(3), 0.3);
  EXPECT_EQ(x(2), 0.25);
  EXPECT_EQ(x(1), 0.05);
}

TEST_F(Measuring, NewDataReadTheSettingsOfTheHeadAndOfTheDirection) {
  Profil& p = world.profil;
  p.ProfilSchreiben("", "MessInfo_G", "BiDi_Messen", "-1");
  show();
  EXPECT_TRUE(keyShown("AUTO_MESSRICHTUNG"));
  click("AUTO_MESSRICHTUNG");
  p.ProfilSchreiben("", "MessInfo_G", "Montage", "3");
  p.ProfilSchreiben("", "MessInfo_G", "Filter", "4");
  click("NEU");
  EXPECT_EQ(form->findChild<HeadPanel*>()->montageSchluessel().toStdString(), "ICON57");
  EXPECT_EQ(text("lblKamera"), "D3003: D3204");
  EXPECT_TRUE(erfassung().RichtungVor());
  EXPECT_TRUE(pictured("AUTO_MESSRICHTUNG", "ICON91"));
  p.ProfilSchreiben("", "MessInfo_G", "BiDi_Messen", "0");
  click("NEU");
  EXPECT_FALSE(keyShown("AUTO_MESSRICHTUNG"));
  EXPECT_FALSE(enabled("AUTO_MESSRICHTUNG"));
}

TEST_F(Measuring, PictureOfTheSingleKeyTellsHowItMeasures) {
  show();
  EXPECT_TRUE(pictured("XYMP1", "ICON81"));
  world.profil.ProfilSchreiben("", "MessInfo_G", "AutoAdapt", "-1");
  click("NEU");
  EXPECT_TRUE(pictured("XYMP1", "ICON85"));
  world.profil.ProfilSchreiben("", "MessInfo_G", "AutoAdapt", "0");
  click("NEU");
  EXPECT_TRUE(pictured("XYMP1", "ICON81"));
}

TEST_F(Measuring, HeadsArrowsAndTheToolbarsMoveTheCursor) {
  show();
  world.head.key = 'R';
  run(2);
  EXPECT_EQ(text("PanelMessPkt"), "2 / 6");
  type(Qt::Key_Right);
  click("ZR");
  EXPECT_EQ(text("PanelMessPkt"), "4 / 6");
  EXPECT_EQ(z().text().toStdString(), "1500.0");
  world.head.key = 'L';
  run(2);
  type(Qt::Key_Left);
  click("ZL");
  EXPECT_EQ(text("PanelMessPkt"), "1 / 6");
  click("ZL");
  EXPECT_EQ(text("PanelMessPkt"), "1 / 6");
  EXPECT_FALSE(info().Geaendert);
}

TEST_F(Measuring, RunningMeasurementReplacesTheCurrentPointUntilTheSecondPress) {
  show();
  click("ROH");
  click("ZR");
  beam(0.001, 0);
  type(Qt::Key_F6);
  run(2);
  EXPECT_TRUE(pressed("XYMPN"));
  EXPECT_FALSE(enabled("XYMP1"));
  EXPECT_EQ(text("lblBetrieb"), "D7222");
  EXPECT_EQ(text("PanelxWertNormal"), " 0.0010");
  EXPECT_EQ(ground("PanelxWertNormal"), white);
  beam(0.002, 0);
  run(1);
  EXPECT_EQ(text("PanelxWertNormal"), " 0.0020");
  EXPECT_EQ(text("PanelMessPkt"), "2 / 6") << "nothing steps";
  EXPECT_GT(count('J'), 20U);
  EXPECT_EQ(world.head.filters.back(), '2');
  click("XYMPN");
  run(1);
  EXPECT_FALSE(pressed("XYMPN"));
  EXPECT_TRUE(enabled("XYMP1"));
  EXPECT_EQ(ground("PanelxWertNormal"), yellow);
  EXPECT_EQ(text("lblBetrieb"), "D7220");
  EXPECT_EQ(x(2), 0.002);
  EXPECT_TRUE(istLeer(x(1)));
  const std::size_t asked = count('J');
  run(2);
  EXPECT_EQ(count('J'), asked);
}

TEST_F(Measuring, RunByMenuAndByTheHeadsKey) {
  show();
  entry("M_PJustage")->trigger();
  run(1.5);
  EXPECT_TRUE(pressed("XYMPN"));
  world.head.key = 'J';
  run(0.5);
  EXPECT_FALSE(pressed("XYMPN"));
  world.head.key = 'J';
  run(2);
  EXPECT_TRUE(pressed("XYMPN"));
}

TEST_F(Measuring, FastRunAsksAtItsOwnLevelAndGivesItBack) {
  show();
  type(Qt::Key_F7);
  run(1.5);
  EXPECT_TRUE(pressed("XYMPNN"));
  EXPECT_FALSE(enabled("XYMPN"));
  EXPECT_EQ(text("lblBetrieb"), "D7223");
  EXPECT_EQ(world.head.filters.back(), '7');
  EXPECT_EQ(text("Label5"), "10 ms") << "the slider's own figure";
  entry("M_QJustage")->trigger();
  run(1);
  EXPECT_FALSE(pressed("XYMPNN"));
  EXPECT_TRUE(enabled("XYMPN"));
  EXPECT_EQ(info().Filter.full(), "2");
  run(2);
  EXPECT_EQ(world.head.filters.back(), '2');
}

TEST_F(Measuring, BeamOffTheSensorIsRedAndStored) {
  show();
  click("ROH");
  world.head.x = 499999;
  click("XYMP1");
  whileShown([this] {
    for (const char* each : {"PanelxWertNormal", "PanelyWertNormal", "PanelXWertZoom", "PanelYWertZoom"})
      EXPECT_EQ(ground(each), red) << each;
  });
  measured();
  EXPECT_TRUE(looked);
  EXPECT_EQ(x(1), 24.9999);
  EXPECT_EQ(line().AktMP, 2);
}

TEST_F(Measuring, TooLittleAndTooMuchLightAreRefused) {
  show();
  takePoints({0.5});
  click("ZL");
  for (const int intensity : {9, 99}) {
    world.head.intensity = intensity;
    beam(0.7, 0);
    click("XYMP1");
    measured();
    EXPECT_EQ(x(1), 0.5) << intensity;
    EXPECT_EQ(line().AktMP, 1) << "no step";
    EXPECT_EQ(text("PanelxWertNormal"), " -.----");
    EXPECT_EQ(text("PanelYWertZoom"), " -.----");
    EXPECT_EQ(text("lblStatus"), "D3081: " + std::to_string(intensity) + " % ");
  }
  world.head.intensity = 10;
  click("XYMP1");
  measured();
  EXPECT_EQ(x(1), 0.7);
}

TEST_F(Measuring, UnexpectedAnswerStoresNothing) {
  show();
  world.head.behaviour = [](char command) {
    return test::answerFrame(test::answerBody(command == 'M' ? 'j' : command));
  };
  click("XYMP1");
  measured();
  EXPECT_TRUE(istLeer(x(1)));
  EXPECT_EQ(line().AktMP, 1);
  EXPECT_FALSE(pressed("XYMP1"));
  EXPECT_FALSE(info().Geaendert);
}

TEST_F(Measuring, LostLinkInARunEndsItAndKeepsTheLastReading) {
  show();
  beam(0.25, 0);
  click("XYMPN");
  run(1.5);
  ASSERT_TRUE(pressed("XYMPN"));
  world.head.behaviour = [](char) { return std::string(); };
  run(15);
  EXPECT_FALSE(pressed("XYMPN"));
  EXPECT_EQ(x(1), 0.25);
  EXPECT_TRUE(enabled("XYMP1"));
  world.head.behaviour = nullptr;
  run(10);
  beam(0.5, 0);
  // After a run a press lapses in half a second, and the next poll may be later.
  for (int i = 0; i < 10 && x(1) != 0.5; ++i) {
    click("XYMP1");
    run(0.7);
  }
  EXPECT_EQ(x(1), 0.5);
}

TEST_F(Measuring, TriggerLineTakesOnePointWithRtsLowMeanwhile) {
  show();
  run(1);
  world.head.rtsHistory.clear();
  world.head.changeDsr(true);
  measured();
  EXPECT_FALSE(istLeer(x(1)));
  EXPECT_EQ(count('M'), 1U);
  EXPECT_EQ(world.head.rtsHistory, (std::vector<bool>{false, true}));
  EXPECT_EQ(line().AktMP, 2);
}

TEST_F(Measuring, MountingPictureIsThatOfTheSettingsAndReadingsAreTurnedByTheSeriesOwn) {
  world.profil.ProfilSchreiben("", "MessInfo_G", "Montage", "1");
  show();
  beam(0.1, 0.3);
  click("XYMP1");
  measured();
  EXPECT_EQ(x(1), 0.3);
  EXPECT_EQ(series().Y.Wert.at(1), -0.1);
  EXPECT_EQ(form->findChild<HeadPanel*>()->montageSchluessel().toStdString(), "ICON55");
}

TEST_F(Measuring, ReadingsAreInMmAlsoInInch) {
  world.system.Masssystem = 1;
  show();
  click("ROH");
  beam(0.254, 0);
  click("XYMP1");
  whileShown([this] { EXPECT_EQ(text("PanelxWertNormal"), " 10.0000"); });
  measured();
  EXPECT_TRUE(looked);
  EXPECT_DOUBLE_EQ(x(1), 0.254);
  EXPECT_EQ(text("lblDistanzMax"), "98.4 in");
  EXPECT_EQ(z().text().toStdString(), "19.7");
  EXPECT_EQ(text("PanelxWertNormal"), "?.?") << "an open reading, although it is converted in ROH";
  EXPECT_EQ(utf8Text(list().model()->headerData(1, Qt::Horizontal).toString()), "Z [in]");
}

// ---- Closing in each state ----

TEST_F(Measuring, IdleWindowClosesWithTheNextTick) {
  show();
  form->close();
  EXPECT_TRUE(form->isVisible());
  EXPECT_EQ(text("lblBetrieb"), "D7225");
  run(1);
  EXPECT_FALSE(form->isVisible());
  EXPECT_FALSE(form->offen());
  EXPECT_FALSE(world.head.PortOpen());
  EXPECT_FALSE(hourglassShown());
}

TEST_F(Measuring, CancelKeepsTheWindowAndTheRun) {
  show();
  click("XYMPN");
  run(1.5);
  world.messages.answers.push_back(MessageAnswer::cancel);
  form->close();
  run(1);
  EXPECT_TRUE(form->offen());
  EXPECT_TRUE(pressed("XYMPN"));
  ASSERT_EQ(world.messages.shown.size(), 1U);
  EXPECT_EQ(world.messages.shown[0].title, "KORVIN-D5500");
  EXPECT_EQ(world.messages.shown[0].text, "D6009");
}

TEST_F(Measuring, WindowClosesDuringARunAndAFastRun) {
  for (const char* run_ : {"XYMPN", "XYMPNN"}) {
    show();
    click(run_);
    run(1.5);
    ASSERT_TRUE(pressed(run_));
    world.messages.answers.push_back(MessageAnswer::no);
    form->close();
    run(1);
    EXPECT_FALSE(form->offen()) << run_;
    EXPECT_FALSE(world.head.PortOpen()) << run_;
    info().DateiStatus = DateiNeu;
  }
}

TEST_F(Measuring, ClosingWhileAnAnswerIsAwaitedTakesNoReading) {
  show();
  run(1);
  world.head.delay = 0.3;
  click("XYMP1");
  world.clock.after(1.05, [this] {
    looked = true;
    ASSERT_TRUE(pressed("XYMP1"));
    form->close();
    EXPECT_TRUE(form->offen()) << "a transaction is under way";
  });
  run(8);
  EXPECT_TRUE(looked);
  EXPECT_FALSE(form->offen());
  EXPECT_TRUE(istLeer(x(1)));
}

TEST_F(Measuring, ClosingWhileAReadingIsShown) {
  show();
  click("XYMP1");
  whileShown([this] {
    world.messages.answers.push_back(MessageAnswer::no);
    form->close();
  });
  run(5);
  EXPECT_TRUE(looked);
  EXPECT_FALSE(form->offen());
  EXPECT_FALSE(hourglassShown());
}

TEST_F(Measuring, ClosingWhileTheLinkIsLost) {
  show();
  click("XYMPN");
  run(1.5);
  world.head.behaviour = [](char) { return std::string(); };
  run(2);
  world.messages.answers.push_back(MessageAnswer::no);
  form->close();
  run(20);
  EXPECT_FALSE(form->offen());
}

}  // namespace
}  // namespace korvin
