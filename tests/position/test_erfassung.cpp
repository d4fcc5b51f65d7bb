#include "position/erfassung.h"

#include <gtest/gtest.h>

#include "frame/leerwert.h"
#include "support/recording_view.h"

namespace korvin {
namespace {

/// The real task of position measuring in the real cycle, on the tests' clock.
class ErfassungTest : public ::testing::Test {
 protected:
  ErfassungTest() {
    world.head.x = 250500;
    world.head.y = 250300;
    world.system.DbPfad = "/nowhere/korvin.mdb";
    task.ersteAktivierung();
  }
  PositionsInfo& info() { return formpos.Info(); }
  void startRun(char key = 'J') {
    cycle.M_KVNOnline();
    cycle.anfordern(key);
  }
  void run(double seconds) { world.clock.advance(seconds); }
  std::size_t count(char command) {
    return static_cast<std::size_t>(
        std::count(world.head.commands.begin(), world.head.commands.end(), command));
  }

  test::CycleWorld world;
  FORMPOS formpos;
  PositionsErfassung task{
      {world.clock, world.messages, world.dictionary, world.profil, world.meldung, world.system, formpos}};
  test::RecordingView view;
  Messzyklus cycle{world.surroundings(), world.head, task, view};
};

TEST_F(ErfassungTest, NewMeasurementReadsTheDefaults) {
  EXPECT_EQ(info().NKStellen, 3);
  EXPECT_EQ(info().Filter.full(), "2");
  EXPECT_EQ(info().Bezeichnung.trimmed(), "?");
  EXPECT_EQ(info().SFak, 1);
  EXPECT_EQ(info().RestMP, -1);
  EXPECT_EQ(info().Intervall, 0);
  EXPECT_TRUE(info().Gitter);
  EXPECT_FALSE(info().StartAktiv);
  EXPECT_FALSE(info().StopAktiv);
  EXPECT_EQ(info().KameraID.full(), "0");
  EXPECT_EQ(info().PortNr, 1);
  EXPECT_EQ(info().Settings.trimmed(), "115200,N,8,1");
  EXPECT_EQ(info().ProgrammText.trimmed(), "KORVIN-D5502");
  EXPECT_EQ(info().Datum.trimmed(), "--.--- ---- / --:--:--");
  EXPECT_EQ(world.system.FilterVorgabe, '2');
}

TEST_F(ErfassungTest, NewMeasurementReadsTheStoredSettings) {
  Profil& p = world.profil;
  p.ProfilSchreiben("", "KorInfo", "FirmaName", "Pr\u00FCfstelle");
  p.ProfilSchreiben("", "KorInfo", "NKStellen", "1");
  p.ProfilSchreiben("", "KorInfo", "PortNr", "12");
  p.ProfilSchreiben("", "KorInfo", "BaudRate", "0");
  p.ProfilSchreiben("", "MessInfo_O", "Filter", "4");
  p.ProfilSchreiben("", "MessInfo_O", "Montage", "3");
  p.ProfilSchreiben("", "DruckInfo_O", "CheckXTabelle", "-1");
  task.neueMessung();
  EXPECT_EQ(info().FirmaName.trimmed(),
            "Pr\xFC"
            "fstelle");
  EXPECT_EQ(info().NKStellen, 1);
  EXPECT_EQ(info().PortNr, 12);
  EXPECT_EQ(info().Settings.trimmed(), "19200,N,8,1");
  EXPECT_EQ(info().Montage, 3);
  EXPECT_TRUE(info().CheckXTabelle);
  EXPECT_FALSE(info().CheckYTabelle);
  EXPECT_EQ(world.system.FilterVorgabe, '4');
}

TEST_F(ErfassungTest, LoadedFileKeepsItsRecordButTakesTheLinkSettings) {
  formpos.bild().Info.DateiStatus = 2;
  formpos.bild().Info.Filter = "3";
  formpos.bild().Info.PortNr = 9;
  formpos.bild().Info.Bezeichnung = "Spindel";
  info().DateiStatus = 1;
  task.ersteAktivierung();
  EXPECT_EQ(info().Bezeichnung.trimmed(), "Spindel");
  EXPECT_EQ(info().PortNr, 1);
  EXPECT_EQ(info().DateiStatus, 1);
  EXPECT_EQ(world.system.FilterVorgabe, '3');
}

TEST_F(ErfassungTest, LoadedFileHasNothingDrawnYet) {
  formpos.bild().X.BereichAlt = 0.1;
  formpos.bild().Y.BereichAlt = 0.1;
  task.bildUebernehmen();
  EXPECT_EQ(formpos.arbeit().X.BereichAlt, 0);
  EXPECT_EQ(formpos.arbeit().Y.BereichAlt, 0);
}

TEST_F(ErfassungTest, TitleInAnotherScriptKeepsTheRecordReadable) {
  world.dictionary.texts[5502] = "\u4F4D\u7F6E";
  task.neueMessung();
  EXPECT_EQ(info().ProgrammText.trimmed(), "KORVIN-Position");
}

TEST_F(ErfassungTest, ReadingIsStoredInMmWithYInverted) {
  cycle.M_KVNOnline();
  cycle.anfordern('M');
  run(0.2);
  ASSERT_EQ(info().AnzahlMP, 1);
  EXPECT_DOUBLE_EQ(formpos.punkte().X().at(1), 0.05);
  EXPECT_DOUBLE_EQ(formpos.punkte().Y().at(1), -0.03);
  EXPECT_NEAR(formpos.punkte().T().at(1), world.clock.now(), 1e-4);
}

TEST_F(ErfassungTest, ReadingIsStoredInMilInTheInchSystem) {
  world.system.Masssystem = 1;
  cycle.M_KVNOnline();
  cycle.anfordern('M');
  run(0.2);
  EXPECT_DOUBLE_EQ(formpos.punkte().X().at(1), 0.05 / 0.0254);
}

TEST_F(ErfassungTest, ReadingOutOfTheHeadsRangeIsStoredInRed) {
  world.head.x = 250000 + 30000;
  startRun();
  run(0.2);
  EXPECT_EQ(view.valueColour, FarbeRot);
  EXPECT_GE(info().AnzahlMP, 1);
}

TEST_F(ErfassungTest, RunOfOnePointTakesOneAndEnds) {
  info().RestMP = 1;
  startRun();
  run(1);
  EXPECT_EQ(info().AnzahlMP, 1);
  EXPECT_FALSE(cycle.laeuft());
}

TEST_F(ErfassungTest, IntervalWithoutStartTimeHasNoEffect) {
  info().Intervall = 10;
  startRun();
  run(2);
  EXPECT_GT(info().AnzahlMP, 20);
  EXPECT_EQ(count('M'), 0U);
}

TEST_F(ErfassungTest, StopTimeInThePastEndsTheRunWithoutAPoint) {
  info().StopAktiv = true;
  info().StopZeit = world.clock.now() - 1;
  startRun();
  run(1);
  EXPECT_EQ(info().AnzahlMP, 0);
  EXPECT_FALSE(cycle.laeuft());
  EXPECT_FALSE(info().StopAktiv);
}

TEST_F(ErfassungTest, StartTimeWaitsWithPollsThenTakesIntervalPointsUntilTheStopTime) {
  info().Intervall = 10;
  info().StartAktiv = true;
  info().StartZeit = world.clock.now() + 60 / 86400.0;
  info().StopAktiv = true;
  info().StopZeit = world.clock.now() + 125 / 86400.0;
  startRun();
  run(59);
  EXPECT_EQ(info().AnzahlMP, 0);
  EXPECT_GT(count('T'), 100U);
  run(2);
  EXPECT_EQ(info().AnzahlMP, 1);
  EXPECT_FALSE(info().StartAktiv);
  EXPECT_TRUE(task.LaeuftIntervall());
  run(70);
  // At 60, 70, 80, 90, 100, 110 and 120 seconds.
  EXPECT_EQ(info().AnzahlMP, 7);
  EXPECT_FALSE(cycle.laeuft());
  EXPECT_EQ(count('J'), 0U);
}

TEST_F(ErfassungTest, IntervalRunCrossesMidnight) {
  world.clock.setNow(45000 + (86400.0 - 120) / 86400.0);
  info().Intervall = 30;
  info().StartAktiv = true;
  info().StartZeit = world.clock.now();
  info().RestMP = 8;
  startRun();
  run(400);
  ASSERT_EQ(info().AnzahlMP, 8);
  EXPECT_FALSE(cycle.laeuft());
  const PunktFeld& t = formpos.punkte().T();
  const double midnight = 45001;
  std::vector<double> seconds;
  for (std::size_t i = 1; i <= 8; ++i) seconds.push_back((t.at(i) - midnight) * 86400);
  // Points every 30 s; from 86398 - 30 - 4 on the clock waits for midnight, then measures at once.
  const std::vector<double> expected{-120, -90, -60, 0, 30, 60, 90, 120};
  for (std::size_t i = 0; i < 8; ++i) EXPECT_NEAR(seconds[i], expected[i], 1.0) << i;
}

TEST_F(ErfassungTest, MidnightWaitLetsTheWindowClose) {
  world.clock.setNow(45000 + 86390.0 / 86400.0);
  info().Intervall = 3600;
  info().StartAktiv = true;
  info().StartZeit = world.clock.now();
  startRun();
  world.clock.after(2, [this] { cycle.schliessenAnfordern(); });
  run(3);
  EXPECT_EQ(view.unloads, 1);
  EXPECT_LT(world.clock.elapsed(), 4);
  EXPECT_EQ(count('M'), 1U);
}

TEST_F(ErfassungTest, FirstReadingAcrossMidnightDoesNotLoseTheNight) {
  world.clock.setNow(45000 + 86399.8 / 86400.0);
  world.head.delay = 0.4;
  info().Intervall = 30;
  info().StartAktiv = true;
  info().StartZeit = world.clock.now();
  startRun();
  run(100);
  EXPECT_GE(info().AnzahlMP, 4);
}

TEST_F(ErfassungTest, IntervalClockOfOneRunDoesNotReachIntoTheNext) {
  info().Intervall = 10;
  info().StartAktiv = true;
  info().StartZeit = world.clock.now();
  info().RestMP = 1;
  startRun();
  run(1);
  ASSERT_TRUE(task.LaeuftIntervall());
  ASSERT_FALSE(cycle.laeuft());
  info().RestMP = -1;
  startRun();
  run(2);
  EXPECT_FALSE(task.LaeuftIntervall());
  EXPECT_GT(info().AnzahlMP, 10);
}

TEST_F(ErfassungTest, EndOfARunDropsThePlan) {
  info().StartAktiv = true;
  info().StartZeit = world.clock.now() + 1;
  info().StopAktiv = true;
  info().StopZeit = world.clock.now() + 2;
  startRun();
  run(1);
  cycle.anfordern('J');
  run(1);
  EXPECT_FALSE(cycle.laeuft());
  EXPECT_FALSE(info().StartAktiv);
  EXPECT_FALSE(info().StopAktiv);
}

TEST_F(ErfassungTest, TimesCountFromTheirVeryMoment) {
  info().StopAktiv = true;
  info().StopZeit = world.clock.now();
  EXPECT_EQ(task.laufSchritt().art, LaufSchritt::Art::beenden);
  info().StopAktiv = false;
  info().StartAktiv = true;
  info().StartZeit = world.clock.now();
  EXPECT_EQ(task.laufSchritt().befehl, 'M');
  info().Intervall = 0;
  EXPECT_EQ(task.laufSchritt().befehl, 'M') << "the moment itself is due";
}

TEST_F(ErfassungTest, MidnightIsNearFromTwoSecondsBefore) {
  info().StartAktiv = true;
  info().StartZeit = world.clock.now();
  info().Filter = "0";
  task.laufSchritt();
  world.clock.setNow(45000 + 86397.9 / 86400.0);
  EXPECT_EQ(task.laufSchritt().art, LaufSchritt::Art::senden);
  world.clock.setNow(45000 + 86398.5 / 86400.0);
  EXPECT_EQ(task.laufSchritt().art, LaufSchritt::Art::warten);
  EXPECT_EQ(task.NaechsteMessung(), 0);
}

TEST_F(ErfassungTest, NewMeasurementKeepsTheDisplayAndDropsThePoints) {
  startRun();
  run(0.3);
  formpos.arbeit().X.BereichHand = 1;
  formpos.arbeit().X.Bereich = 0.5;
  formpos.arbeit().Y.NumZoom = true;
  info().NurAktuell = true;
  info().Reserve9.bytes[3] = 7;
  task.neueMessung();
  EXPECT_EQ(formpos.arbeit().X.BereichHand, 1);
  EXPECT_EQ(formpos.arbeit().X.Bereich, 0.5);
  EXPECT_TRUE(formpos.arbeit().Y.NumZoom);
  EXPECT_TRUE(info().NurAktuell);
  EXPECT_EQ(info().Reserve9.bytes[3], 0);
  EXPECT_EQ(info().AnzahlMP, 0);
  EXPECT_EQ(formpos.punkte().X().at(1), Leerwert);
  EXPECT_EQ(formpos.arbeit().X.Maximum, Leerwert);
}

TEST_F(ErfassungTest, FastRunKeepsFurtherAwayFromMidnight) {
  // 86398 - 2 x 7 is 86384: at 86393 a fast run's second point has to wait, a normal run's (2 x 2) has not.
  for (const char key : {'Q', 'J'}) {
    world.clock.setNow(45000 + 86393.0 / 86400.0);
    task.neueMessung();
    info().StartAktiv = true;
    info().StartZeit = world.clock.now();
    info().RestMP = 2;
    startRun(key);
    run(20);
    ASSERT_EQ(info().AnzahlMP, 2);
    EXPECT_EQ(formpos.punkte().T().at(2) >= 45001, key == 'Q');
  }
}

TEST_F(ErfassungTest, LimitOf29999PointsEndsTheRunWithAWarning) {
  world.head.delay = 0.001;
  startRun();
  run(29999 * 0.05);
  EXPECT_EQ(info().AnzahlMP, 29999);
  EXPECT_FALSE(cycle.laeuft());
  ASSERT_EQ(world.messages.shown.size(), 1U);
  EXPECT_EQ(world.messages.shown[0].title, "KORVIN-D5502");
  EXPECT_EQ(world.messages.shown[0].text, "D6019 (29999) D6020");
  EXPECT_EQ(world.messages.shown[0].icon, MessageIcon::warning);
  EXPECT_EQ(world.messages.beeps, 1);
}

TEST_F(ErfassungTest, OffsetTakesThePointUnderTheCursor) {
  startRun();
  run(0.2);
  cycle.anfordern('J');
  run(0.2);
  info().MPAktuell = 1;
  formpos.arbeit().X.BereichAlt = 5;
  formpos.arbeit().Y.BereichAlt = 5;
  ASSERT_TRUE(task.offsetSchalten(true));
  EXPECT_TRUE(info().OffsetAktiv);
  EXPECT_EQ(info().OffsetMP, 1);
  EXPECT_DOUBLE_EQ(formpos.arbeit().X.Offset, 0.05);
  EXPECT_DOUBLE_EQ(formpos.arbeit().Y.Offset, -0.03);
  EXPECT_EQ(formpos.arbeit().X.Summe, 0);
  EXPECT_EQ(formpos.arbeit().X.BereichAlt, 0);
  EXPECT_EQ(formpos.arbeit().Y.BereichAlt, 0);
  ASSERT_TRUE(task.offsetSchalten(false));
  EXPECT_FALSE(info().OffsetAktiv);
  EXPECT_EQ(info().OffsetMP, 0);
  EXPECT_EQ(formpos.arbeit().X.Offset, 0);
  EXPECT_NEAR(formpos.arbeit().X.Summe, 0.05 * info().AnzahlMP, 1e-12);
}

TEST_F(ErfassungTest, OffsetWithoutAPointIsRefused) {
  EXPECT_FALSE(task.offsetSchalten(true));
  EXPECT_FALSE(info().OffsetAktiv);
}

TEST_F(ErfassungTest, OffsetOfACursorBeyondThePointsIsRefused) {
  info().RestMP = 1;
  startRun();
  run(0.3);
  for (const int cursor : {2, 32767, -5}) {
    info().MPAktuell = static_cast<std::int16_t>(cursor);
    EXPECT_FALSE(task.offsetSchalten(true));
    EXPECT_TRUE(task.offsetSchalten(false));
  }
}

TEST_F(ErfassungTest, CursorStaysWithinThePoints) {
  task.cursorBewegen(1);
  EXPECT_EQ(info().MPAktuell, 0);
  info().RestMP = 1;
  startRun();
  run(1);
  EXPECT_EQ(info().MPVorher, 0);
  task.cursorBewegen(1);
  EXPECT_EQ(info().MPAktuell, 1);
  EXPECT_EQ(info().MPVorher, 1);
  info().RestMP = 2;
  startRun();
  run(1);
  ASSERT_EQ(info().MPAktuell, 3);
  task.cursorBewegen(1);
  EXPECT_EQ(info().MPAktuell, 3);
  task.cursorBewegen(-1);
  EXPECT_EQ(info().MPAktuell, 2);
  EXPECT_EQ(info().MPVorher, 3);
  task.cursorBewegen(-5);
  EXPECT_EQ(info().MPAktuell, 1);
}

TEST_F(ErfassungTest, DeletingThePointsDropsTheOffsetToo) {
  startRun();
  run(0.2);
  task.offsetSchalten(true);
  formpos.arbeit().X.BereichAlt = 5;
  formpos.arbeit().Y.BereichAlt = 5;
  task.M_MessLöschen();
  EXPECT_EQ(info().AnzahlMP, 0);
  EXPECT_FALSE(info().OffsetAktiv);
  EXPECT_EQ(info().OffsetMP, 0);
  EXPECT_EQ(formpos.arbeit().X.Offset, 0);
  EXPECT_EQ(formpos.arbeit().Y.Offset, 0);
  EXPECT_EQ(formpos.arbeit().X.BereichAlt, 0);
  EXPECT_EQ(formpos.arbeit().Y.BereichAlt, 0);
}

}  // namespace
}  // namespace korvin
