#include "straightness/erfassung.h"

#include <array>

#include "frame/leerwert.h"
#include "straightness/auswertung.h"
#include "straightness/erfassung_stand.h"

namespace korvin {
namespace {

constexpr double tiny = 1e-12;  // of mm: rounding of one division

// ---- Activation and settings ----

TEST_F(GeradErfassungTest, NewSeriesReadsTheDefaultsOfTheLink) {
  EXPECT_EQ(line().AnzMPs, 6);
  EXPECT_EQ(line().AktMP, 1);
  EXPECT_EQ(info().KameraID.full(), "0");
  EXPECT_EQ(info().PortNr, 1);
  EXPECT_EQ(info().BaudRate.trimmed(), "115200,N,8,1");
  EXPECT_EQ(info().KameraText.trimmed(), "D3003: D3029");
  EXPECT_EQ(world.system.FilterVorgabe, '2');
  EXPECT_TRUE(task.RichtungVor());
  EXPECT_FALSE(task.BiDi_Messen());
  EXPECT_EQ(task.beschreibung().titelText, 5500);
}

TEST_F(GeradErfassungTest, NewSeriesReadsTheStoredSettings) {
  Profil& p = world.profil;
  p.ProfilSchreiben("", "KorInfo", "KameraID", "3");
  p.ProfilSchreiben("", "KorInfo", "PortNr", "12");
  p.ProfilSchreiben("", "KorInfo", "BaudRate", "0");
  p.ProfilSchreiben("", "MessInfo_G", "Montage", "2");
  p.ProfilSchreiben("", "MessInfo_G", "Filter", "4");
  p.ProfilSchreiben("", "MessInfo_G", "BiDi_Messen", "-1");
  task.ersteAktivierung();
  EXPECT_EQ(info().Montage, 2);
  EXPECT_EQ(info().KameraText.trimmed(), "D3003: D3031");
  EXPECT_EQ(world.system.FilterVorgabe, '4');
  EXPECT_TRUE(task.BiDi_Messen());
  const LinkAngaben link = task.linkAngaben();
  EXPECT_EQ(link.port, 12);
  EXPECT_EQ(link.settings, "19200,N,8,1");
  EXPECT_EQ(link.id, "3");
}

TEST_F(GeradErfassungTest, LoadedFileIsShownWithItsOwnMountingAndFilter) {
  world.profil.ProfilSchreiben("", "MessInfo_G", "Montage", "3");
  world.profil.ProfilSchreiben("", "MessInfo_G", "Filter", "1");
  formgera.bild() = series();
  formgera.bild().Info.Montage = 1;
  formgera.bild().Info.Filter = "4";
  formgera.bild().X.Wert.at(2) = 0.25;
  info().DateiStatus = 1;
  task.ersteAktivierung();
  EXPECT_EQ(X(2), 0.25);
  EXPECT_EQ(info().DateiStatus, 1);
  EXPECT_EQ(info().Montage, 1);
  EXPECT_EQ(info().KameraText.trimmed(), "D3003: D3030");
  EXPECT_EQ(task.gezeigteMontage(), 3) << "the picture follows the settings";
  EXPECT_EQ(world.system.FilterVorgabe, '4');
}

TEST_F(GeradErfassungTest, ReadingTheSettingsTouchesNoReadingAndSetsTheDirectionForward) {
  world.profil.ProfilSchreiben("", "MessInfo_G", "Montage", "1");
  series().X.Wert.at(1) = 0.5;
  task.AUTO_MESSRICHTUNG();
  task.einstellungenLesen();
  EXPECT_EQ(X(1), 0.5);
  EXPECT_EQ(info().Montage, 0);
  EXPECT_FALSE(info().Geaendert);
  EXPECT_TRUE(task.RichtungVor());
}

TEST_F(GeradErfassungTest, ReadingTheSettingsLeavesTheFilterThatTheUserHasSet) {
  world.system.FilterVorgabe = '4';
  task.einstellungenLesen();
  EXPECT_EQ(world.system.FilterVorgabe, '4');
  info().Filter = "1";
  task.filterVorgeben();
  EXPECT_EQ(world.system.FilterVorgabe, '1');
}

TEST_F(GeradErfassungTest, EvenDistancesCountAsAChangeOnlyWhereAPointHadMoved) {
  task.ersteAktivierung();
  series().X.BereichAlt = series().Y.BereichAlt = 2;
  task.punkteGleichVerteilen();
  EXPECT_FALSE(info().Geaendert);
  EXPECT_EQ(series().X.BereichAlt, 2);
  series().X.Wert.at(2) = 0.5;
  line().Z.at(2) = 600;
  task.punkteGleichVerteilen();
  EXPECT_EQ(line().Z.at(2), 500);
  EXPECT_EQ(X(2), 0.5);
  EXPECT_TRUE(info().Geaendert);
  EXPECT_EQ(series().X.BereichAlt, 0);
  EXPECT_EQ(series().Y.BereichAlt, 0);
}

TEST_F(GeradErfassungTest, WordsOfAnotherScriptLeaveTheRecordsText) {
  info().KameraText = "Sensor head: 0";
  world.dictionary.texts[3003] = "\u4F20\u611F\u5934";
  task.einstellungenLesen();
  EXPECT_EQ(info().KameraText.trimmed(), "Sensor head: 0");
}

// ---- Directions, pictures, keys of the evaluation ----

TEST_F(GeradErfassungTest, DirectionTurnsRoundWithItsPicture) {
  EXPECT_EQ(task.richtungsBild(), "ICON91");
  task.AUTO_MESSRICHTUNG();
  EXPECT_FALSE(task.RichtungVor());
  EXPECT_EQ(task.richtungsBild(), "ICON92");
  task.AUTO_MESSRICHTUNG();
  EXPECT_TRUE(task.RichtungVor());
}

TEST_F(GeradErfassungTest, PictureOfTheSingleKeyTellsTheKindOfMeasuring) {
  EXPECT_EQ(task.einzelBild(), "ICON81");
  series().Adapt.AutoAdapt = true;
  EXPECT_EQ(task.einzelBild(), "ICON85");
}

TEST_F(GeradErfassungTest, ModeKeysChangeTheModeAndNothingElse) {
  EXPECT_EQ(info().Auswertung, AuswertungISO);
  EXPECT_FALSE(task.referenztastenSichtbar());
  task.REF();
  EXPECT_EQ(info().Auswertung, AuswertungREF);
  EXPECT_TRUE(task.referenztastenSichtbar());
  task.ROH();
  EXPECT_EQ(info().Auswertung, AuswertungROH);
  EXPECT_FALSE(task.referenztastenSichtbar());
  task.ISO();
  EXPECT_EQ(info().Auswertung, AuswertungISO);
  EXPECT_FALSE(info().Geaendert);
}

TEST_F(GeradErfassungTest, ReferencePointsKeepTheirOrder) {
  line().AktMP = 3;
  EXPECT_TRUE(task.REF1());
  EXPECT_EQ(info().Ref1, 3);
  EXPECT_FALSE(task.REF2()) << "the point is Ref1 itself";
  EXPECT_EQ(world.messages.beeps, 1);
  EXPECT_EQ(info().Ref2, 6);
  line().AktMP = 4;
  EXPECT_TRUE(task.REF2());
  EXPECT_EQ(info().Ref2, 4);
  EXPECT_FALSE(task.REF1()) << "the point is Ref2 itself";
  EXPECT_EQ(info().Ref1, 3);
  EXPECT_EQ(world.messages.beeps, 2);
  EXPECT_FALSE(info().Geaendert);
  line().AktMP = 1;
  EXPECT_TRUE(task.REF1());
  EXPECT_EQ(info().Ref1, 1);
}

TEST_F(GeradErfassungTest, SecondOfTwoPointsIsNoFirstReference) {
  line().AnzMPs = 2;
  ReiheLeeren(series());
  line().AktMP = 2;
  EXPECT_FALSE(task.REF1());
  EXPECT_EQ(info().Ref1, 1);
  EXPECT_EQ(world.messages.beeps, 1);
}

TEST_F(GeradErfassungTest, CursorOffTheLineIsNoReference) {
  line().AktMP = 0;
  EXPECT_FALSE(task.REF1());
  line().AktMP = 7;
  EXPECT_FALSE(task.REF2());
  EXPECT_EQ(info().Ref1, 1);
  EXPECT_EQ(info().Ref2, 6);
  EXPECT_EQ(world.messages.beeps, 2);
}

TEST_F(GeradErfassungTest, MovedPointChangesTheSeriesAndHasTheDiagramsDrawnAnew) {
  series().X.BereichAlt = series().Y.BereichAlt = 0.1;
  task.punktVersetzen(2, 600);
  EXPECT_EQ(line().Z.at(2), 600);
  task.punktVersetzen(2, 5000);
  EXPECT_EQ(line().Z.at(2), 1000 - 2500.0 / 200) << "up to its neighbour";
  EXPECT_EQ(series().X.BereichAlt, 0);
  EXPECT_EQ(series().Y.BereichAlt, 0);
  EXPECT_TRUE(info().Geaendert);
}

// ---- Storing ----

TEST_F(GeradErfassungTest, ReadingIsStoredInMmWithTheHeadsSignOfY) {
  for (const std::int16_t units : {std::int16_t{0}, std::int16_t{1}}) {
    world.system.Masssystem = units;
    KameraAntwort answer;
    answer.RohX = 250000 + 1234;
    answer.RohY = 250000 + 567;
    task.PunktSpeichern(answer);
    EXPECT_NEAR(X(1), 0.1234, tiny);
    EXPECT_NEAR(Y(1), 0.0567, tiny);
  }
  EXPECT_TRUE(info().Geaendert);
}

TEST_F(GeradErfassungTest, WholeRawScaleIsTwentyFiveMmToEachSide) {
  KameraAntwort answer;
  answer.RohX = 0;
  answer.RohY = 500000;
  task.PunktSpeichern(answer);
  EXPECT_EQ(X(1), -25);
  EXPECT_EQ(Y(1), 25);
}

TEST_F(GeradErfassungTest, MountingOfTheRecordTurnsTheReading) {
  const std::array<std::array<double, 2>, 5> expected{
      {{0.1, 0.02}, {0.02, -0.1}, {-0.1, -0.02}, {-0.02, 0.1}, {0.1, 0.02}}};
  world.profil.ProfilSchreiben("", "MessInfo_G", "Montage", "2");  // of the next series
  KameraAntwort answer;
  answer.RohX = 251000;
  answer.RohY = 250200;
  for (std::int16_t mounting = 0; mounting < 5; ++mounting) {
    SCOPED_TRACE(mounting);
    info().Montage = mounting;
    task.PunktSpeichern(answer);
    EXPECT_NEAR(X(1), expected.at(static_cast<std::size_t>(mounting))[0], tiny);
    EXPECT_NEAR(Y(1), expected.at(static_cast<std::size_t>(mounting))[1], tiny);
  }
}

/// A file may bring any cursor along.
TEST_F(GeradErfassungTest, CursorOutsideTheLineIsBroughtOntoIt) {
  KameraAntwort answer;
  answer.RohX = 260000;
  line().AktMP = 0;
  task.PunktSpeichern(answer);
  EXPECT_EQ(line().AktMP, 1);
  EXPECT_EQ(X(1), 1);
  line().AktMP = 200;
  task.PunktSpeichern(answer);
  EXPECT_EQ(line().AktMP, 6);
  EXPECT_EQ(X(6), 1);
  EXPECT_EQ(X(0), 6) << "the count";
}

TEST_F(GeradErfassungTest, LineOfOnePointTakesIt) {
  line().AnzMPs = 1;
  KameraAntwort answer;
  answer.RohX = 260000;
  task.PunktSpeichern(answer);
  EXPECT_EQ(X(1), 1);
}

TEST_F(GeradErfassungTest, LineWithoutPointsTakesNothing) {
  line().AnzMPs = 0;
  line().AktMP = 0;
  const auto before = toBytes(series());
  task.PunktSpeichern({});
  EXPECT_EQ(toBytes(series()), before);
}

// ---- Single measurements ----

TEST_F(GeradErfassungTest, SingleMeasurementIsStoredShownForASecondAndStepsOn) {
  online();
  std::vector<double> redrawn;
  view.onRedraw = [&] { redrawn.push_back(world.clock.elapsed()); };
  std::int16_t during = 0;
  world.clock.after(1.5, [&] { during = line().AktMP; });
  single();
  EXPECT_NEAR(X(1), 0.05, tiny);
  EXPECT_NEAR(Y(1), 0.03, tiny);
  EXPECT_EQ(X(2), Leerwert);
  EXPECT_EQ(during, 1);
  EXPECT_EQ(line().AktMP, 2);
  ASSERT_EQ(redrawn.size(), 2U);
  EXPECT_NEAR(redrawn[1] - redrawn[0], 1.0, 0.03);
  EXPECT_TRUE(info().Geaendert);
  EXPECT_TRUE(view.changed);
  EXPECT_EQ(cycle.Tastenzustand(), 'K');
  EXPECT_TRUE(cycle.tmrPolling().enabled());
  EXPECT_EQ(count('M'), 1U);
}

TEST_F(GeradErfassungTest, EventsRunWhileTheReadingIsShown) {
  online();
  world.clock.after(1.4, [this] { cycle.M_KVNSimulation(); });
  single();
  EXPECT_TRUE(view.link.simulation);
  EXPECT_EQ(line().AktMP, 2);
  EXPECT_TRUE(cycle.tmrPolling().enabled());
}

TEST_F(GeradErfassungTest, LastPointIsMeasuredAgain) {
  online();
  line().AktMP = 6;
  single();
  world.head.x = 251000;
  single();
  EXPECT_EQ(line().AktMP, 6);
  EXPECT_NEAR(X(6), 0.1, tiny);
  EXPECT_EQ(X(5), Leerwert);
}

TEST_F(GeradErfassungTest, BackwardsTheSeriesIsWalkedToItsFirstPoint) {
  online();
  line().AktMP = 3;
  task.AUTO_MESSRICHTUNG();
  for (const int raw : {251000, 252000, 253000, 254000}) {
    world.head.x = raw;
    single();
  }
  EXPECT_EQ(line().AktMP, 1);
  EXPECT_NEAR(X(3), 0.1, tiny);
  EXPECT_NEAR(X(2), 0.2, tiny);
  EXPECT_NEAR(X(1), 0.4, tiny) << "the first point was measured twice";
}

TEST_F(GeradErfassungTest, SingleMeasurementLocksTheMeasuringKeysAndFreesThem) {
  online();
  bool asked = false;
  whenAsked('M', [&] {
    asked = true;
    EXPECT_TRUE(view.hourglass);
    EXPECT_TRUE(view.keyPressed["XYMP1"]);
    for (const char* key : {"XYMP1", "XYMPN", "XYMPNN", "XYMPKMP"}) {
      ASSERT_TRUE(view.keyFree.contains(key)) << key;
      EXPECT_FALSE(view.keyFree[key]) << key;
    }
    EXPECT_FALSE(view.keyFree.contains("EINRICHTEN"));
    EXPECT_TRUE(view.valueColours.empty()) << "the panels stay";
  });
  single();
  EXPECT_TRUE(asked);
  EXPECT_FALSE(view.hourglass);
  EXPECT_FALSE(view.keyPressed["XYMP1"]);
  for (const char* key : {"XYMP1", "XYMPN", "XYMPNN", "XYMPKMP"}) EXPECT_TRUE(view.keyFree[key]) << key;
  EXPECT_EQ(view.valueColour, FarbeGelb);
}

TEST_F(GeradErfassungTest, SingleMeasurementIsSentWithTheUsersFilter) {
  online();
  world.system.FilterVorgabe = '3';
  single();
  EXPECT_EQ(info().Filter.full(), "3");
  EXPECT_EQ(world.head.filters.back(), '3');
}

TEST_F(GeradErfassungTest, SingleMeasurementHasItsOwnTimeLimit) {
  world.system.FilterVorgabe = '4';
  world.korCom.FilterText('4', world.dictionary);  // 20 s
  online();
  world.head.behaviour = [this](char asked) {
    world.head.delay = asked == 'M' ? 19.0 : 0.01;
    return test::answerFrame(test::answerBody(asked == 'M' ? 'm' : 'T', 'K', 251000));
  };
  single();
  EXPECT_NEAR(X(1), 0.1, tiny);
}

TEST_F(GeradErfassungTest, BeamOffTheSensorIsRedAndStored) {
  online();
  world.head.x = 250000 + 21001;  // the small head reaches 2.1 mm
  std::vector<Farbe> colours;
  view.onRedraw = [&] { colours.push_back(view.valueColour); };
  single();
  EXPECT_NEAR(X(1), 2.1001, tiny);
  EXPECT_EQ(line().AktMP, 2);
  EXPECT_EQ(colours, (std::vector<Farbe>{FarbeRot, FarbeRot})) << "for as long as it is shown";
  EXPECT_EQ(view.valueColour, FarbeGelb);
}

TEST_F(GeradErfassungTest, EdgeOfTheSensorCountsAsOnIt) {
  online();
  world.head.y = 250000 - 21000;
  Farbe colour = 0;
  view.onRedraw = [&] { colour = view.valueColour; };
  single();
  EXPECT_EQ(colour, FarbeGelb);
  EXPECT_NEAR(Y(1), -2.1, tiny);
}

TEST_F(GeradErfassungTest, TooLittleOrTooMuchLightIsRefused) {
  online();
  for (const int intensity : {9, 99}) {
    SCOPED_TRACE(intensity);
    world.head.intensity = intensity;
    view.icons.clear();
    view.emptyValues.clear();
    view.valueColours.clear();
    const double start = world.clock.elapsed();
    single();
    EXPECT_LT(world.clock.elapsed() - start, 0.95) << "no wait";
    EXPECT_EQ(X(1), Leerwert);
    EXPECT_EQ(Y(1), Leerwert);
    EXPECT_EQ(line().AktMP, 1);
    EXPECT_TRUE(view.raised("ICONINTENS"));
    EXPECT_EQ(view.emptyValues, std::vector<std::string>{" -.----"});
    EXPECT_EQ(view.valueColours, (std::vector<Farbe>{FarbeWeiss, FarbeGelb}));
    EXPECT_EQ(view.redraws, 0);
    EXPECT_FALSE(view.changed);
    EXPECT_FALSE(info().Geaendert);
    EXPECT_FALSE(view.hourglass);
    EXPECT_TRUE(cycle.tmrPolling().enabled());
  }
}

TEST_F(GeradErfassungTest, RefusedReadingLeavesTheOneBefore) {
  online();
  single();
  line().AktMP = 1;
  world.head.x = 255000;
  world.head.intensity = 5;
  single();
  EXPECT_NEAR(X(1), 0.05, tiny);
}

TEST_F(GeradErfassungTest, LightAtTheLimitsIsAccepted) {
  online();
  for (const int intensity : {10, 98}) {
    world.head.intensity = intensity;
    single();
    EXPECT_EQ(view.intensityColour, FarbeRot);
  }
  EXPECT_NEAR(X(1), 0.05, tiny);
  EXPECT_NEAR(X(2), 0.05, tiny);
  EXPECT_EQ(line().AktMP, 3);
  EXPECT_EQ(view.intensity, "D3081: 98 % ");
}

TEST_F(GeradErfassungTest, DashesFollowTheDecimals) {
  info().NKStellen = 1;
  online();
  world.head.intensity = 0;
  single();
  EXPECT_EQ(view.emptyValues, std::vector<std::string>{" -.--"});
}

TEST_F(GeradErfassungTest, NormRisesAndWeakerLightIsTold) {
  online();
  world.head.intensity = 60;
  single();
  EXPECT_EQ(world.profil.wert("KorInfo", "NormInt_Laser", ""), "60");
  world.head.intensity = 54;
  single();
  EXPECT_FALSE(view.raised("ICONINTE"));
  world.head.intensity = 53;
  single();
  EXPECT_TRUE(view.raised("ICONINTE"));
  EXPECT_EQ(world.profil.wert("KorInfo", "NormInt_Laser", ""), "60");
  EXPECT_EQ(line().AktMP, 4) << "weaker light refuses nothing";
}

TEST_F(GeradErfassungTest, UnexpectedAnswerStoresNothing) {
  online();
  for (const char kind : {'j', 'T', 'L', 'R'}) {
    SCOPED_TRACE(kind);
    answers('M', kind);
    view.icons.clear();
    single();
    EXPECT_TRUE(view.raised("ICONFRG"));
    EXPECT_TRUE(cycle.tmrInfoToggle().enabled());
    EXPECT_EQ(X(1), Leerwert);
    EXPECT_EQ(line().AktMP, 1);
    EXPECT_FALSE(view.hourglass);
    EXPECT_TRUE(view.keyFree["XYMP1"]);
    EXPECT_EQ(view.valueColour, FarbeGelb);
  }
}

TEST_F(GeradErfassungTest, SilenceToASingleMeasurementBringsTheKeysBack) {
  online();
  run(0.9);
  silentTo('M');
  bool hourglassInRecovery = false;
  world.clock.after(0.9 + 3 * 5 + 1, [&] { hourglassInRecovery = view.hourglass; });
  single();
  run(25);
  EXPECT_TRUE(view.raised("ICONFUNK"));
  EXPECT_TRUE(hourglassInRecovery);
  EXPECT_FALSE(view.hourglass);
  EXPECT_FALSE(view.keyPressed["XYMP1"]);
  for (const char* key : {"XYMP1", "XYMPN", "XYMPNN", "XYMPKMP"}) EXPECT_TRUE(view.keyFree[key]) << key;
  EXPECT_EQ(view.valueColour, FarbeGelb);
  EXPECT_EQ(cycle.Tastenzustand(), 'K');
  EXPECT_EQ(X(1), Leerwert);
  EXPECT_EQ(line().AktMP, 1);
  EXPECT_EQ(world.head.opened.size(), 2U) << "the port was opened anew";
  EXPECT_TRUE(cycle.tmrPolling().enabled());
}

TEST_F(GeradErfassungTest, LinkMessagesHaveTheTitleOfTheKind) {
  world.head.openError = CommPortFehlt;
  online();
  ASSERT_EQ(world.messages.shown.size(), 1U);
  EXPECT_EQ(world.messages.shown[0].title, "KORVIN-D5500");
}

TEST_F(GeradErfassungTest, RequestLapsesAfterASecondAndAfterHalfASecondOnceARunHasBeen) {
  cycle.anfordern('M');
  run(0.95);
  EXPECT_EQ(cycle.Tastenzustand(), 'M');
  run(0.1);
  EXPECT_EQ(cycle.Tastenzustand(), 'K');
  startRun();
  EXPECT_EQ(cycle.tmrKeyPressed().interval(), 500);
}

TEST_F(GeradErfassungTest, SingleMeasurementLeavesTheLapseOfRequests) {
  online();
  single();
  EXPECT_EQ(cycle.tmrKeyPressed().interval(), 1000);
}

TEST_F(GeradErfassungTest, SimulatedHeadMeasuresToo) {
  cycle.M_KVNSimulation();
  run(0.1);
  cycle.anfordern('M');
  run(1.1);
  EXPECT_NEAR(X(1), 0, tiny);
  EXPECT_EQ(line().AktMP, 2);
  EXPECT_TRUE(view.raised("ICONSIM"));
  EXPECT_TRUE(world.head.sent.empty());
}

// ---- Keys of the head ----

TEST_F(GeradErfassungTest, CursorKeysOfTheHeadPressTheToolbar) {
  online();
  world.head.key = 'L';
  run(0.9);
  world.head.key = 'R';
  run(0.9);
  EXPECT_EQ(view.presses, (std::vector<std::string>{"ZL", "ZR"}));
}

TEST_F(GeradErfassungTest, MeasuringKeysOfTheHeadMeasureAtOnce) {
  online();
  world.head.key = 'M';
  run(0.9);
  EXPECT_NEAR(X(1), 0.05, tiny);
  EXPECT_EQ(line().AktMP, 2);
  world.head.key = 'J';
  run(0.9);
  EXPECT_TRUE(cycle.laeuft());
  world.head.key = 'J';
  run(0.1);
  EXPECT_FALSE(cycle.laeuft());
}

TEST_F(GeradErfassungTest, HeadsRunningKeyLetsAFastRequestStand) {
  online();
  cycle.anfordern('Q');
  world.head.key = 'J';
  run(0.85);
  EXPECT_TRUE(view.keyPressed["XYMPNN"]);
}

TEST_F(GeradErfassungTest, MultiPointMeasuringIgnoresTheHeadsKeys) {
  online();
  task.setMehrPunktAktiv(true);
  for (const char key : {'L', 'R', 'J', 'M'}) {
    world.head.key = key;
    run(0.9);
  }
  EXPECT_TRUE(view.presses.empty());
  EXPECT_EQ(X(1), Leerwert);
  EXPECT_FALSE(cycle.laeuft());
  task.setMehrPunktAktiv(false);
  world.head.key = 'M';
  run(0.9);
  EXPECT_NEAR(X(1), 0.05, tiny);
}

TEST_F(GeradErfassungTest, StatusShowsOnIdleAnswersAndUnknownKeysDropTheRequest) {
  online();
  world.head.status = 'B';
  run(0.9);
  EXPECT_TRUE(view.raised("ICONBAT"));
  cycle.anfordern('M');
  world.head.key = 'Z';
  run(0.9);
  EXPECT_TRUE(view.raised("ICONFRG"));
  EXPECT_EQ(cycle.Tastenzustand(), 'K');
  EXPECT_EQ(count('M'), 0U);
}

// ---- Trigger line ----

TEST_F(GeradErfassungTest, TriggerLineMeasuresOnceWithRtsLowForAsLong) {
  online();
  world.head.rtsHistory.clear();
  world.head.changeDsr(true);
  EXPECT_EQ(cycle.Tastenzustand(), 'S');
  std::vector<bool> rts;
  view.onRedraw = [&] { rts.push_back(world.head.RTSEnable()); };
  run(0.9);
  EXPECT_NEAR(X(1), 0.05, tiny);
  EXPECT_EQ(line().AktMP, 2);
  EXPECT_EQ(count('M'), 1U);
  EXPECT_EQ(rts, (std::vector<bool>{false, false})) << "while the reading is shown, too";
  EXPECT_TRUE(world.head.RTSEnable());
  EXPECT_EQ(world.head.rtsHistory, (std::vector<bool>{false, true}));
  run(3);
  EXPECT_EQ(count('M'), 1U);
}

TEST_F(GeradErfassungTest, RtsStaysLowOnceTheTriggerHasFallen) {
  online();
  world.head.changeDsr(true);
  whenAsked('M', [this] { world.head.changeDsr(false); });
  run(0.9);
  EXPECT_EQ(count('M'), 1U);
  EXPECT_FALSE(world.head.RTSEnable());
}

TEST_F(GeradErfassungTest, RtsRisesAfterARefusedOrUnexpectedAnswer) {
  online();
  world.head.intensity = 3;
  world.head.changeDsr(true);
  run(0.9);
  EXPECT_TRUE(world.head.RTSEnable());
  answers('M', 'T');
  world.head.changeDsr(true);
  ASSERT_FALSE(world.head.RTSEnable());
  run(0.9);
  EXPECT_TRUE(view.raised("ICONFRG"));
  EXPECT_TRUE(world.head.RTSEnable());
}

}  // namespace
}  // namespace korvin
