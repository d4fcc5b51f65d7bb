// The window of the environment analysis by clicks and keys.
#include "environment/ui/form_umgebungs_analyse.h"

#include <gmock/gmock.h>

#include <QListWidget>
#include <QPushButton>

#include "analysis_window.h"
#include "frame/ui/mouse_pointer.h"

namespace korvin {
namespace {

using ::testing::StartsWith;

class Analysis : public test::AnalysisWindow {
 protected:
  void expectEmpty() {
    EXPECT_EQ(info().AnzahlMP, 0);
    EXPECT_TRUE(enabled("XYMPNN"));
    EXPECT_FALSE(pressed("XYMPNN"));
    EXPECT_FALSE(progress().isVisible());
    EXPECT_FALSE(frame().isVisible());
    EXPECT_TRUE(form->findChild<PointList*>()->isVisible());
    EXPECT_FALSE(hourglassShown());
    for (const char* name : {"x", "s", "R", "Fx"}) EXPECT_TRUE(pressed(name)) << name;
    EXPECT_FALSE(pressed("OFFSET"));
    EXPECT_EQ(text("lblBetrieb"), "D7220");
  }
  QPushButton* save() { return form->findChild<QPushButton*>(QStringLiteral("CmdWerteSave")); }
};

// ---- A run ----

TEST_F(Analysis, OpensEmptyAndPolls) {
  show();
  expectEmpty();
  EXPECT_EQ(form->windowTitle(), QStringLiteral("D2300"));
  EXPECT_EQ(text("PanelxWertNormal"), "-.----");
  EXPECT_EQ(text("lblKamera"), "D3003: D3201");
  EXPECT_GT(world.head.commands.size(), 1U);
}

TEST_F(Analysis, RunShowsItsProgressUnderTheHourglass) {
  show();
  start();
  EXPECT_TRUE(hourglassShown());
  EXPECT_FALSE(enabled("XYMPNN"));
  EXPECT_FALSE(entry("M_QJustage")->isEnabled());
  EXPECT_FALSE(entry("M_EinrichtInfo")->isEnabled());
  EXPECT_TRUE(progress().isVisible());
  EXPECT_EQ(progress().minimum(), 0);
  EXPECT_EQ(progress().maximum(), 31);
  EXPECT_EQ(text("lblBetrieb"), "D7710");
  run(10);
  EXPECT_NEAR(progress().value(), 11, 1);
  EXPECT_GT(info().AnzahlMP, 80);
}

TEST_F(Analysis, EndShowsTheResultInPlaceOfTheList) {
  show();
  finish();
  EXPECT_FALSE(hourglassShown());
  EXPECT_FALSE(progress().isVisible());
  EXPECT_FALSE(pressed("XYMPNN"));
  EXPECT_FALSE(enabled("XYMPNN"));
  EXPECT_FALSE(entry("M_QJustage")->isEnabled());
  EXPECT_FALSE(form->findChild<PointList*>()->isVisible());
  EXPECT_EQ(text("lblBetrieb"), "D7711");
  EXPECT_EQ(text("PanelFx(0)"), "31 s");
  EXPECT_EQ(text("PanelFx(1)"), result.anzeige().FX);
  EXPECT_EQ(text("PanelXStatistik(5)"), result.unsicherheit().MaxFxText());
  EXPECT_EQ(text("PanelYStatistik(4)"), result.unsicherheit().MaxFyText());
  EXPECT_THAT(text("PanelXStatistik(5)"), StartsWith("MAX_Fx: 0.0"));
  EXPECT_EQ(QApplication::focusWidget(), save());
  EXPECT_EQ(form->size(), QSize(1024, 768));
}

TEST_F(Analysis, StartsByShortcutAndByMenuToo) {
  show();
  type(Qt::Key_F7);
  run(0.4);
  EXPECT_TRUE(pressed("XYMPNN"));
  click("LOESCHEN");
  run(0.4);
  entry("M_QJustage")->trigger();
  run(0.4);
  EXPECT_TRUE(pressed("XYMPNN"));
  EXPECT_TRUE(progress().isVisible());
}

TEST_F(Analysis, WindowStaysAnswerableInARun) {
  show();
  start();
  run(2);
  click("MPL");
  EXPECT_EQ(info().MPAktuell, info().AnzahlMP - 1);
  click("s");
  EXPECT_FALSE(shown("PanelXStatistik(1)"));
  run(2);
  EXPECT_TRUE(pressed("XYMPNN"));
}

TEST_F(Analysis, HeadsKeysMeasureAndStepOnThePoints) {
  show();
  takePoint();
  takePoint();
  EXPECT_EQ(info().AnzahlMP, 2);
  EXPECT_EQ(text("PanelMessPkt"), "2");
  headKey('L');
  run(0.4);
  EXPECT_EQ(text("PanelMessPkt"), "1");
  headKey('R');
  run(0.4);
  EXPECT_EQ(text("PanelMessPkt"), "2");
  headKey('J');
  run(0.4);
  EXPECT_TRUE(pressed("XYMPNN"));
}

TEST_F(Analysis, TriggerLineTakesASingleValue) {
  show();
  world.head.changeDsr(true);
  run(0.4);
  EXPECT_EQ(info().AnzahlMP, 1);
}

TEST_F(Analysis, TooFewPointsLeaveTheWindowReadyForAnotherRun) {
  show();
  world.head.intensity = 5;
  start();
  EXPECT_EQ(text("PanelxWertNormal"), " -.----");
  run(31.5);
  expectEmpty();
}

TEST_F(Analysis, WhatIsDrawnAnewInARunMakesNoSamplesOfThePointsBefore) {
  show();
  for (int i = 0; i < 4; ++i) takePoint();
  world.head.intensity = 5;
  start();
  for (const char* name : {"x", "Fx", "MPL"}) click(name);
  run(31.5);
  EXPECT_EQ(task().AnalyseAnzahl(), 0);
  EXPECT_FALSE(frame().isVisible());
  EXPECT_TRUE(enabled("XYMPNN"));
  EXPECT_EQ(info().AnzahlMP, 4);
}

TEST_F(Analysis, RunInSimulationGivesAResult) {
  world.head.openError = 8005;
  show();
  ASSERT_EQ(text("lblKamera"), "Simulation only");
  finish();
  EXPECT_NEAR(task().AnalyseAnzahl(), 31 / 0.215, 3);
}

TEST_F(Analysis, InchWindowShowsMil) {
  world.system.Masssystem = 1;
  show();
  EXPECT_EQ(text("lblEinheitX"), "[mil]");
  finish();
  EXPECT_NEAR(formpos.punkte().Y().at(1), -0.03 / 0.0254, 0.5);
}

// ---- Clearing and closing ----

TEST_F(Analysis, ClearingInARunEmptiesTheWindow) {
  show();
  start();
  run(3);
  click("LOESCHEN");
  run(0.4);
  expectEmpty();
}

TEST_F(Analysis, ClearingEmptiesTheListOfTelegramsToo) {
  show();
  QTest::mouseDClick(label("lblMSCommInput(0)"), Qt::LeftButton);
  run(1);
  auto* telegrams = form->findChild<QListWidget*>(QStringLiteral("LstCamMsg"));
  ASSERT_GT(telegrams->count(), 3);
  click("LOESCHEN");
  EXPECT_EQ(telegrams->count(), 0);
}

TEST_F(Analysis, ClearingGivesThePanelsTheirRoomBack) {
  show();
  auto* panels = form->findChild<PositionPanels*>();
  const int height = panels->height();
  finish();
  settle();
  EXPECT_LT(panels->height(), height);
  click("LOESCHEN");
  settle();
  EXPECT_EQ(panels->height(), height);
}

TEST_F(Analysis, AStartBetweenAClearAndTheEndOfItsRunTakesNothingBack) {
  show();
  start();
  run(2);
  click("LOESCHEN");
  click("XYMPNN");
  EXPECT_TRUE(task().AnalyseAbbruch());
  run(0.4);
  expectEmpty();
}

TEST_F(Analysis, ClearingAClosingWindowLeavesNoRequestBehind) {
  show();
  form->close();
  click("LOESCHEN");
  EXPECT_FALSE(task().AnalyseAbbruch());
}

TEST_F(Analysis, ClearingWhileAnAnswerIsAwaitedEmptiesTheWindow) {
  show();
  start();
  world.head.delay = 1;
  world.clock.after(1.5, [this] { click("LOESCHEN"); });
  run(4);
  expectEmpty();
  EXPECT_FALSE(task().AnalyseAbbruch());
}

TEST_F(Analysis, EveryWayToClearEmptiesAFinishedOne) {
  show();
  const std::vector<std::function<void()>> ways = {
      [this] { click("LOESCHEN"); }, [this] { type(Qt::Key_Delete, Qt::ControlModifier); },
      [this] { entry("M_MessLöschen")->trigger(); }, [this] { entry("M_Neu")->trigger(); }};
  for (const auto& clear : ways) {
    finish();
    click("OFFSET");
    click("Fx");
    click("x");
    clear();
    run(0.4);
    expectEmpty();
    EXPECT_FALSE(shown("PanelXStatistik(5)"));
    EXPECT_FALSE(shown("PanelYStatistik(4)"));
  }
}

TEST_F(Analysis, SavingStoresTheValuesAndClears) {
  show();
  finish();
  QTest::mouseClick(save(), Qt::LeftButton);
  run(0.4);
  expectEmpty();
  for (const char* section : {"MessInfo_G", "MessInfo_P", "MessInfo_R"}) {
    EXPECT_EQ(world.profil.wert(section, "AutoAdapt", ""), "-1");
    EXPECT_EQ(world.profil.wert(section, "MessZeitMax", ""), "31 s");
  }
}

TEST_F(Analysis, AfterAClearTheHeadsKeyHasToBePressedTwice) {
  show();
  click("LOESCHEN");
  headKey('J');
  run(0.6);
  expectEmpty();
  headKey('J');
  run(0.6);
  EXPECT_TRUE(pressed("XYMPNN"));
}

TEST_F(Analysis, ClosingAsksNothingAndEndsTheRunAtItsNextTick) {
  show();
  start();
  run(1);
  world.clock.after(0.001, [this] { form->close(); });
  run(0.01);
  EXPECT_TRUE(form->isVisible()) << "the first request is refused";
  run(0.3);
  EXPECT_FALSE(form->isVisible());
  EXPECT_TRUE(world.messages.shown.empty());
  EXPECT_EQ(world.messages.beeps, 1);
  EXPECT_FALSE(world.head.PortOpen());
  EXPECT_FALSE(hourglassShown());
}

TEST_F(Analysis, LostLinkInARunEmptiesTheWindowAndShowsTheRadioIcon) {
  show();
  start();
  world.head.behaviour = [](char) { return std::string(); };
  run(7);
  expectEmpty();
  EXPECT_EQ(form->findChild<HeadPanel*>()->infoSchluessel(), QString::fromLatin1(IconFunk));
}

// ---- Keys ----

TEST_F(Analysis, KeysAndEntriesWithoutAJobStandDisabledAndSayWhy) {
  show();
  takePoint();
  for (const char* name :
       {"NEU", "EINRICHTEN", "LADEN", "SPEICHERN", "DRUCKEN", "NZOOM", "XYAMPL", "XYMP1", "XYMPN", "HILFE"}) {
    ASSERT_NE(key(name), nullptr) << name;
    EXPECT_FALSE(enabled(name)) << name;
    EXPECT_TRUE(key(name)->toolTip().contains(QStringLiteral("D7714"))) << name;
    click(name);
  }
  for (const char* name : {"M_Oeffnen", "M_Speichern", "M_SpeichernUnter", "M_ProtokollDrucken",
                           "M_EinrichtInfo", "M_SingleMeas", "M_PJustage", "M_xyNumZoom"}) {
    ASSERT_NE(entry(name), nullptr) << name;
    EXPECT_FALSE(entry(name)->isEnabled()) << name;
    EXPECT_EQ(entry(name)->toolTip(), QStringLiteral("D7714")) << name;
    entry(name)->trigger();
  }
  for (const auto& [k, modifiers] : {std::pair{Qt::Key_S, Qt::ControlModifier},
                                     {Qt::Key_O, Qt::ControlModifier},
                                     {Qt::Key_P, Qt::ControlModifier}}) {
    type(k, modifiers);
  }
  run(0.4);
  EXPECT_EQ(info().AnzahlMP, 1);
  EXPECT_TRUE(fileDialog.requests.empty());
  EXPECT_TRUE(world.messages.shown.empty());
  EXPECT_EQ(helpOpened, 0);
  finish();
  for (const char* name : {"EINRICHTEN", "XYMP1", "XYMPN"}) EXPECT_FALSE(enabled(name)) << name;
}

TEST_F(Analysis, HelpIsReachedByItsEntry) {
  show();
  entry("M_Hilfe")->trigger();
  EXPECT_EQ(helpOpened, 1);
}

TEST_F(Analysis, StatisticsKeyShowsAndHidesTheFourKeys) {
  show();
  const auto visible = [this] {
    settle();
    int count = 0;
    for (const char* name : {"x", "s", "R", "Fx"}) count += key(name)->isVisible() ? 1 : 0;
    return count;
  };
  EXPECT_EQ(visible(), 4);
  click("STATISTIK");
  EXPECT_EQ(visible(), 0);
  EXPECT_TRUE(shown("PictureStatistik"));
  click("STATISTIK");
  EXPECT_EQ(visible(), 4);
}

TEST_F(Analysis, LinesOfTheStatisticsAreSwitchedOneByOne) {
  show();
  takePoint();
  takePoint();
  int line = 0;
  for (const char* name : {"x", "s", "R"}) {
    const std::string x = "PanelXStatistik(" + std::to_string(line) + ")";
    const std::string y = "PanelYStatistik(" + std::to_string(line++) + ")";
    EXPECT_TRUE(shown(x.c_str()) && shown(y.c_str())) << name;
    click(name);
    EXPECT_FALSE(shown(x.c_str()) || shown(y.c_str())) << name;
  }
}

TEST_F(Analysis, KeyFxSwitchesNothingButRedraws) {
  show();
  finish();
  click("Fx");
  EXPECT_FALSE(pressed("Fx"));
  for (const char* name : {"PanelXStatistik(0)", "PanelXStatistik(1)", "PanelXStatistik(2)",
                           "PanelXStatistik(5)", "PanelYStatistik(4)", "PanelFx(1)"}) {
    EXPECT_TRUE(shown(name)) << name;
  }
}

TEST_F(Analysis, OffsetAndAllPointsAsInPositionMeasuring) {
  show();
  takePoint();
  takePoint();
  click("OFFSET");
  EXPECT_TRUE(info().OffsetAktiv);
  EXPECT_EQ(text("PanelxWertNormal"), "0.0000");
  click("OFFSET");
  EXPECT_FALSE(info().OffsetAktiv);
  EXPECT_TRUE(pressed("ALLE"));
  click("ALLE");
  EXPECT_TRUE(info().NurAktuell);
}

TEST_F(Analysis, GridAndListAreSwitchedInTheMenu) {
  show();
  EXPECT_TRUE(entry("M_Gitter")->isChecked());
  entry("M_Gitter")->trigger();
  EXPECT_FALSE(info().Gitter);
  entry("M_PunktListe")->trigger();
  EXPECT_FALSE(form->findChild<PointList*>()->isVisible());
}

TEST_F(Analysis, ListHiddenByTheMenuLeavesItsRoomToThePanels) {
  show();
  const auto panels = [this] {
    settle();
    return form->findChild<PositionPanels*>()->height();
  };
  const int shared = panels();
  entry("M_PunktListe")->trigger();
  const int whole = panels();
  EXPECT_GT(whole, shared + 100);
  finish();
  EXPECT_LT(panels(), whole);
  EXPECT_TRUE(save()->hasFocus());
  click("LOESCHEN");
  run(0.4);
  EXPECT_NEAR(panels(), whole, 1);
  entry("M_PunktListe")->trigger();
  EXPECT_NEAR(panels(), shared, 1);
  finish();
  entry("M_PunktListe")->trigger();
  EXPECT_TRUE(frame().isVisible());
  click("LOESCHEN");
  run(0.4);
  EXPECT_NEAR(panels(), whole, 1);
}

TEST_F(Analysis, ListHiddenByTheMenuStaysSoAfterAResult) {
  show();
  entry("M_PunktListe")->trigger();
  finish();
  click("LOESCHEN");
  run(0.4);
  EXPECT_FALSE(form->findChild<PointList*>()->isVisible());
}

}  // namespace
}  // namespace korvin
