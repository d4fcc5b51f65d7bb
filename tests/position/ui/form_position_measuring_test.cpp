// Measuring in the real window: clicks, shortcuts and the head's keys, and what the panels show of it.

#include <QAction>
#include <QHeaderView>

#include "frame/ui/mouse_pointer.h"
#include "link/ui/led_label.h"
#include "position_stand.h"

namespace korvin {
namespace {

using Stand = test::PositionStand;

TEST_F(Stand, ShowingGoesOnlineAndPolls) {
  show();
  EXPECT_TRUE(world.head.PortOpen());
  EXPECT_TRUE(entry("M_KVNOnline")->isChecked());
  EXPECT_FALSE(entry("M_KVNSimulation")->isChecked());
  run(1);
  EXPECT_GT(world.head.commands.size(), 10U);
  EXPECT_EQ(world.head.commands.find_first_not_of('T'), std::string::npos);
  EXPECT_EQ(text("PanelxWertNormal"), "-.----");
  EXPECT_EQ(text("PanelMessPkt"), "- ");
  EXPECT_EQ(text("lblMPsTotal"), "- ");
  EXPECT_EQ(text("lblOffset"), "--- / -.--- / -.--- ");
  EXPECT_EQ(text("lblKamera"), "D3003: D3202");
}

TEST_F(Stand, HourglassOfTheStartEndsWithTheShowing) {
  showHourglass();
  show();
  EXPECT_FALSE(hourglassShown());
}

TEST_F(Stand, SingleMeasurementByTheToolbar) {
  show();
  world.head.x = 251234;
  world.head.y = 249000;
  click("XYMP1");
  EXPECT_FALSE(pressed("XYMP1")) << "a click alone shows nothing: the tick does";
  run(0.1);
  EXPECT_EQ(info().AnzahlMP, 1);
  EXPECT_EQ(text("PanelxWertNormal"), "0.1234");
  EXPECT_EQ(text("PanelyWertNormal"), "0.1000") << "the head counts Y the other way";
  EXPECT_EQ(text("PanelXWertZoom"), "0.1234");
  EXPECT_EQ(text("PanelYWertZoom"), "0.1000");
  EXPECT_EQ(text("PanelMessPkt"), "1");
  EXPECT_EQ(text("lblMPsTotal"), "1");
  EXPECT_EQ(text("lblStatus"), "D3081: 80 % ");
  EXPECT_EQ(colour("lblStatus"), QColor(0, 255, 0));
  EXPECT_EQ(colour("PanelxWertNormal"), QColor(255, 255, 0));
  EXPECT_TRUE(info().Geaendert);
  EXPECT_FALSE(pressed("XYMP1"));
}

TEST_F(Stand, SingleMeasurementByItsShortcutAndItsMenuEntry) {
  show();
  type(Qt::Key_F5);
  run(0.2);
  EXPECT_EQ(info().AnzahlMP, 1);
  entry("M_SingleMeas")->trigger();
  run(0.2);
  EXPECT_EQ(info().AnzahlMP, 2);
}

TEST_F(Stand, SingleMeasurementByTheHeadsKey) {
  show();
  headKey('M');
  run(0.2);
  EXPECT_EQ(info().AnzahlMP, 1);
}

TEST_F(Stand, HourglassAndPressedKeyWhileASingleMeasurementIsUnderWay) {
  show();
  world.head.delay = 0.3;
  click("XYMP1");
  bool looked = false;
  world.clock.after(0.5, [&] {
    looked = true;
    EXPECT_TRUE(pressed("XYMP1"));
    EXPECT_EQ(text("lblBetrieb"), "D7221");
    EXPECT_NE(QApplication::overrideCursor(), nullptr);
  });
  run(1);
  EXPECT_TRUE(looked);
  EXPECT_FALSE(pressed("XYMP1"));
  EXPECT_EQ(text("lblBetrieb"), "D7220");
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(Stand, RunningMeasurementEndsAtTheSecondPress) {
  show();
  type(Qt::Key_F6);
  run(0.5);
  EXPECT_TRUE(pressed("XYMPN"));
  EXPECT_EQ(text("lblBetrieb"), "D7222");
  EXPECT_EQ(colour("PanelxWertNormal"), QColor(255, 255, 255));
  const int taken = info().AnzahlMP;
  EXPECT_GT(taken, 5);
  click("XYMPN");
  EXPECT_TRUE(pressed("XYMPN")) << "the run goes on until the next tick";
  run(0.1);
  EXPECT_FALSE(pressed("XYMPN"));
  EXPECT_EQ(text("lblBetrieb"), "D7220");
  const int after = info().AnzahlMP;
  run(1);
  EXPECT_EQ(info().AnzahlMP, after);
}

TEST_F(Stand, RunByMenuAndByTheHeadsKey) {
  show();
  entry("M_PJustage")->trigger();
  run(0.3);
  EXPECT_TRUE(pressed("XYMPN"));
  headKey('J');
  run(0.1);
  EXPECT_FALSE(pressed("XYMPN"));
  EXPECT_GT(info().AnzahlMP, 1);
}

struct FastLevel {
  char set;
  char sent;
};

class FastRun : public Stand, public ::testing::WithParamInterface<FastLevel> {};

TEST_P(FastRun, SendsItsOwnLevelAndGoesBack) {
  world.profil.ProfilSchreiben("", "MessInfo_O", "Filter", std::string(1, GetParam().set));
  show();
  run(0.1);
  world.head.filters.clear();
  world.head.commands.clear();
  type(Qt::Key_F7);
  run(0.4);
  EXPECT_TRUE(pressed("XYMPNN"));
  EXPECT_EQ(text("lblBetrieb"), "D7223");
  ASSERT_NE(world.head.commands.find('J'), std::string::npos);
  for (std::size_t i = 0; i < world.head.commands.size(); ++i) {
    EXPECT_EQ(world.head.filters.at(i), world.head.commands.at(i) == 'J' ? GetParam().sent : GetParam().set);
  }
  entry("M_QJustage")->trigger();
  run(0.2);
  EXPECT_FALSE(pressed("XYMPNN"));
  EXPECT_EQ(info().Filter.full().front(), GetParam().set);
}

INSTANTIATE_TEST_SUITE_P(Levels, FastRun,
                         ::testing::Values(FastLevel{'0', '5'}, FastLevel{'1', '6'}, FastLevel{'2', '7'},
                                           FastLevel{'3', '7'}, FastLevel{'4', '7'}));

TEST_F(Stand, EveryKeyHasItsJob) {
  show();
  for (const QToolButton* each : bar().findChildren<QToolButton*>()) {
    if (each->objectName().startsWith(QStringLiteral("qt_"))) continue;
    EXPECT_TRUE(each->isEnabled()) << utf8Text(each->objectName());
    EXPECT_FALSE(each->toolTip().contains(QStringLiteral("D7030"))) << utf8Text(each->objectName());
  }
}

TEST_F(Stand, RefusedIntensityShowsTheEmptyPatternAndTakesNothing) {
  show();
  takePoints(1);
  world.head.intensity = 9;
  click("XYMP1");
  run(0.1);
  EXPECT_EQ(info().AnzahlMP, 1);
  for (const char* panel : {"PanelxWertNormal", "PanelyWertNormal", "PanelXWertZoom", "PanelYWertZoom"}) {
    EXPECT_EQ(text(panel), " -.----") << panel;
  }
  EXPECT_EQ(colour("lblStatus"), QColor(255, 0, 0));
  run(2.0);
  EXPECT_TRUE(shown("imgInfo"));
  EXPECT_EQ(utf8Text(label("imgInfo")->toolTip()), "D7115");
}

TEST_F(Stand, ValueOutOfTheHeadsRangeIsStoredAndRed) {
  show();
  world.head.x = 250000 + 21001;
  click("XYMPN");
  run(0.3);
  EXPECT_GT(info().AnzahlMP, 1);
  EXPECT_DOUBLE_EQ(formpos.punkte().X().at(1), 2.1001);
  EXPECT_EQ(colour("PanelxWertNormal"), QColor(255, 0, 0));
  EXPECT_EQ(colour("PanelYWertZoom"), QColor(255, 0, 0));
}

TEST_F(Stand, LostLinkShowsTheRadioIconAndComesBack) {
  show();
  run(0.5);
  bool silent = true;
  world.head.behaviour = [&](char command) {
    return silent ? std::string() : test::answerFrame(test::answerBody(command));
  };
  run(5);
  EXPECT_EQ(utf8Text(label("imgInfo")->toolTip()), "D7110");
  EXPECT_TRUE(shown("imgInfo"));
  silent = false;
  run(10);
  EXPECT_FALSE(shown("imgInfo"));
  world.head.behaviour = nullptr;
  takePoints(1);
}

TEST_F(Stand, LostLinkEndsARunAndKeepsItsPoints) {
  show();
  click("XYMPN");
  run(0.5);
  world.head.behaviour = [](char) { return std::string(); };
  run(12);
  EXPECT_FALSE(pressed("XYMPN"));
  EXPECT_GT(info().AnzahlMP, 5);
  EXPECT_EQ(form->findChild<PointList*>()->model()->rowCount(), info().AnzahlMP);
}

TEST_F(Stand, WithoutAHeadTheWindowFallsBackToTheSimulatedOne) {
  world.head.openError = CommPortFehlt;
  show();
  ASSERT_EQ(world.messages.shown.size(), 1U);
  EXPECT_FALSE(entry("M_KVNOnline")->isChecked());
  EXPECT_FALSE(entry("M_KVNOnline")->isEnabled());
  EXPECT_TRUE(entry("M_KVNSimulation")->isChecked());
  EXPECT_EQ(text("lblKamera"), "Simulation only");
  EXPECT_EQ(colour("lblKamera"), QColor(255, 0, 0));
  run(0.3);
  auto* led = form->findChild<LedLabel*>();
  const Farbe first = led->farbe();
  run(0.25);
  EXPECT_EQ(first == FarbeGrau ? led->farbe() : first, FarbeRot);
  click("XYMP1");
  run(2);
  EXPECT_EQ(info().AnzahlMP, 1);
  world.messages.answers.push_back(MessageAnswer::no);
  entry("M_Neu")->trigger();
  ASSERT_EQ(info().AnzahlMP, 0);
  EXPECT_EQ(text("lblKamera"), "Simulation only") << "a new measurement brings no head back";
}

TEST_F(Stand, SimulationIsChosenInTheMenuAndItsMarkStays) {
  show();
  entry("M_KVNSimulation")->trigger();
  EXPECT_TRUE(entry("M_KVNSimulation")->isChecked());
  EXPECT_FALSE(entry("M_KVNOnline")->isEnabled());
  entry("M_KVNSimulation")->trigger();
  EXPECT_TRUE(entry("M_KVNSimulation")->isChecked());
  const std::size_t before = world.head.commands.size();
  run(1);
  EXPECT_EQ(world.head.commands.size(), before);
}

TEST_F(Stand, LinkMarksFollowTheCycleAndNotTheClick) {
  show();
  bool clicked = false;
  world.clock.after(0.0315, [&] {
    clicked = true;
    entry("M_KVNSimulation")->trigger();
    EXPECT_FALSE(entry("M_KVNSimulation")->isChecked()) << "a transaction is under way";
    entry("M_KVNOnline")->trigger();
    EXPECT_TRUE(entry("M_KVNOnline")->isChecked());
  });
  run(0.2);
  EXPECT_TRUE(clicked);
}

TEST_F(Stand, FailedSingleMeasurementIsOverForTheUserOnceTheLinkIsTriedAnew) {
  show();
  run(0.1);
  world.head.behaviour = [](char command) {
    return command == 'M' ? std::string() : test::answerFrame(test::answerBody(command));
  };
  click("XYMP1");
  run(20);
  EXPECT_TRUE(pressed("XYMP1")) << "the key tells that it failed";
  EXPECT_EQ(text("lblBetrieb"), "D7220");
}

TEST_F(Stand, ServiceLineAndPanel) {
  show();
  run(0.5);
  EXPECT_TRUE(text("lblMSCommInput(0)").starts_with("10K"));
  EXPECT_FALSE(shown("LstCamMsg"));
  auto* list = form->findChild<QListWidget*>(QStringLiteral("LstCamMsg"));
  QTest::mouseDClick(label("lblMSCommInput(0)"), Qt::LeftButton);
  EXPECT_TRUE(shown("LstCamMsg"));
  EXPECT_TRUE(shown("SliderTimers(2)"));
  EXPECT_EQ(list->count(), 0) << "nothing is listed while the panel is hidden";
  run(0.5);
  const int listed = list->count();
  EXPECT_GT(listed, 5);
  EXPECT_TRUE(list->item(0)->text().startsWith(QStringLiteral("10K T")));
  run(60);
  EXPECT_EQ(list->count(), ServicePanel::MaxTelegramme);
  QTest::mouseDClick(label("lblMSCommInput(0)"), Qt::LeftButton);
  EXPECT_FALSE(shown("LstCamMsg"));
}

TEST_F(Stand, SlidersSetTheTimers) {
  show();
  QTest::mouseDClick(label("lblMSCommInput(0)"), Qt::LeftButton);
  EXPECT_EQ(text("Label4"), "31 ms");
  EXPECT_EQ(text("Label5"), "15 ms");
  EXPECT_EQ(text("Label6"), "500 ms");
  auto* polling = form->findChild<QSlider*>(QStringLiteral("SliderTimers(0)"));
  EXPECT_EQ(polling->minimum(), 1);
  EXPECT_EQ(polling->maximum(), 50);
  EXPECT_EQ(polling->value(), 10);
  QTest::keyClick(polling, Qt::Key_End);
  EXPECT_EQ(text("Label4"), "155 ms");
  run(1);
  world.head.commands.clear();
  run(10);
  EXPECT_NEAR(static_cast<double>(world.head.commands.size()), 10 / (0.155 + world.head.delay), 3);
  auto* keyPressed = form->findChild<QSlider*>(QStringLiteral("SliderTimers(2)"));
  QTest::keyClick(keyPressed, Qt::Key_Home);
  EXPECT_EQ(text("Label6"), "50 ms");
  click("XYMP1");
  run(1);
  EXPECT_EQ(info().AnzahlMP, 0) << "the press has lapsed before the next poll";
}

TEST_F(Stand, MiddleSliderSetsThePaceOfARun) {
  show();
  QTest::mouseDClick(label("lblMSCommInput(0)"), Qt::LeftButton);
  auto* pace = form->findChild<QSlider*>(QStringLiteral("SliderTimers(1)"));
  pace->setValue(11);
  EXPECT_EQ(text("Label5"), "17 ms") << "16.5 is rounded away from zero";
  click("XYMPN");
  run(0.2);
  pace->setValue(50);
  EXPECT_EQ(text("Label5"), "75 ms");
  const int before = info().AnzahlMP;
  run(2);
  EXPECT_NEAR(info().AnzahlMP - before, 2 / (0.075 + world.head.delay), 2);
}

TEST_F(Stand, ArrowKeysMoveAFocusedSliderAndNotTheCursor) {
  show();
  takePoints(3);
  QTest::mouseDClick(label("lblMSCommInput(0)"), Qt::LeftButton);
  auto* polling = form->findChild<QSlider*>(QStringLiteral("SliderTimers(0)"));
  polling->setFocus();
  QTest::keyClick(polling, Qt::Key_Left);
  EXPECT_EQ(polling->value(), 9);
  EXPECT_EQ(info().MPAktuell, 3);
}

TEST_F(Stand, PlanShowsItsTimesAndTheClockUntilTheRunEnds) {
  show();
  EXPECT_FALSE(shown("PanelZeit(0)"));
  EXPECT_FALSE(shown("PanelZeit(2)"));
  EXPECT_FALSE(shown("PanelMessRate"));
  EXPECT_FALSE(shown("PanelMpsStart"));
  info().StartAktiv = true;
  info().StartZeit = world.clock.now() + 5 / 86400.0;
  info().StopAktiv = true;
  info().StopZeit = world.clock.now() + 30 / 86400.0;
  info().Intervall = 2.5;
  info().RestMP = 100;
  click("XYMPN");
  run(1);
  EXPECT_EQ(text("PanelZeit(0)"), "  12:00:05");
  EXPECT_EQ(text("PanelZeit(1)"), "  12:00:30");
  EXPECT_EQ(text("PanelMessRate"), "2.5");
  EXPECT_EQ(text("PanelMpsStart"), "100");
  EXPECT_EQ(text("PanelZeit(2)"), "  12:00:01");
  EXPECT_EQ(text("lblBetrieb"), "D7224");
  EXPECT_EQ(info().AnzahlMP, 0);
  run(6);
  EXPECT_FALSE(shown("PanelZeit(0)"));
  EXPECT_TRUE(shown("PanelZeit(1)"));
  EXPECT_EQ(text("lblBetrieb"), "D7222");
  EXPECT_EQ(text("PanelMpsStart"), "99");
  EXPECT_EQ(text("PanelZeit(2)"), "  12:00:07");
  run(30);
  EXPECT_FALSE(pressed("XYMPN"));
  EXPECT_FALSE(shown("PanelZeit(1)"));
  EXPECT_FALSE(shown("PanelZeit(2)"));
}

TEST_F(Stand, ClockStopsWithTheWindow) {
  show();
  info().StopAktiv = true;
  info().StopZeit = world.clock.now() + 1;
  click("XYMPN");
  run(0.5);
  world.messages.answers.push_back(MessageAnswer::no);
  form->close();
  run(0.1);
  ASSERT_FALSE(form->offen());
  const std::string last = text("PanelZeit(2)");
  run(60);
  EXPECT_EQ(text("PanelZeit(2)"), last);
}

TEST_F(Stand, TriggerLineMeasuresOnce) {
  show();
  world.head.changeDsr(true);
  run(0.3);
  EXPECT_EQ(info().AnzahlMP, 1);
  EXPECT_TRUE(world.head.RTSEnable());
}

TEST_F(Stand, InchWindowMeasuresAndNamesMil) {
  world.system.Masssystem = 1;
  world.head.x = 252540;
  show();
  EXPECT_EQ(text("pnlXY"), "[mil]");
  click("XYMP1");
  run(0.2);
  EXPECT_EQ(text("PanelxWertNormal"), "10.0000");
  EXPECT_EQ(form->findChild<PointList*>()->model()->headerData(2, Qt::Horizontal).toString(),
            QStringLiteral("D7152 [mil]"));
}

TEST_F(Stand, MountingPictureAndDecimalsComeFromTheSettings) {
  world.profil.ProfilSchreiben("", "MessInfo_O", "Montage", "1");
  world.profil.ProfilSchreiben("", "KorInfo", "NKStellen", "1");
  show();
  EXPECT_EQ(form->findChild<HeadPanel*>()->montageSchluessel(), QStringLiteral("ICON55"));
  EXPECT_EQ(text("PanelxWertNormal"), "-.--");
  world.head.x = 251000;
  click("XYMP1");
  run(0.2);
  EXPECT_EQ(text("PanelyWertNormal"), "-0.10") << "a quarter turn: (X, Y) becomes (Y, -X)";
}

TEST_F(Stand, HelpKeyOpensTheHelp) {
  show();
  type(Qt::Key_F1);
  EXPECT_EQ(helpOpened, 1);
  click("HILFE");
  EXPECT_EQ(helpOpened, 2);
}

}  // namespace
}  // namespace korvin
