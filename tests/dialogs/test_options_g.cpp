// The settings of straightness measuring: what the dialog shows, what taking over stores and does to the
// series.

#include "dialogs/options_g.h"
#include "options_g_stand.h"

namespace korvin {
namespace {

using test::OptionsGTest;

constexpr double tiny = 1e-12;  // of numbers that went through their text

// ---- Reading ----

TEST_F(OptionsGTest, AnEmptyStoreShowsTheDialogsOwnDefaults) {
  const FeldWerte expected{"1",                                                 // port
                           1,                                                   // speed
                           "",       "?",      "",    "?",     "?",             // texts
                           "6",      "2500.0",                                  // line
                           "0.000",  "0.000",  "0.0", "0.000", "0.000", "0.0",  // tolerances
                           "0.0100", "0.0100",                                  // accuracies
                           1,                                                   // ToleranzBezug
                           2,                                                   // Filter
                           false,    false,    true,  false,  // AutoAdapt, BiDi_Messen, Beta5, Beta1
                           "10",     "6",                     // MessZeitMax, MessZeitMin
                           0,        2,        0,             // Montage, NKStellen, SFAK
                           false,    false,    false, false,  // report
                           false};                            // AsciiDatei
  EXPECT_EQ(fromMainWindow().lesen(), expected);
}

TEST_F(OptionsGTest, EachControlShowsItsSetting) {
  store("KorInfo", "PortNr", "7");
  store("KorInfo", "BaudRate", "0");
  store("KorInfo", "FirmaName", "Maker");
  store("KorInfo", "PfadMessFile", "/data/");
  store("KorInfo", "NKStellen", "3");
  store("KorInfo", "AsciiDatei", "-1");
  for (const char* key : {"Bezeichnung", "Bediener", "Kommentar"}) store("MessInfo_G", key, key);
  store("MessInfo_G", "AnzMPs", "12");
  store("MessInfo_G", "Distanz", "1234,56");
  store("Toleranz_G", "XGesamt", "0.02");
  store("Toleranz_G", "XWertPro", "0.01");
  store("Toleranz_G", "XProEinheit", "500");
  store("Toleranz_G", "YGesamt", "0.04");
  store("Toleranz_G", "YWertPro", "0.03");
  store("Toleranz_G", "YProEinheit", "600.55");
  store("Toleranz_G", "ToleranzBezug", "2");
  store("MessInfo_G", "X_Genauigkeit", "0.5");
  store("MessInfo_G", "Y_Genauigkeit", "0.25");
  store("MessInfo_G", "Filter", "4");
  store("MessInfo_G", "Montage", "3");
  store("MessInfo_G", "AutoAdapt", "-1");
  store("MessInfo_G", "BiDi_Messen", "-1");
  store("MessInfo_G", "Beta5", "0");
  store("MessInfo_G", "Beta1", "-1");
  store("MessInfo_G", "MessZeitMax", "40");
  store("MessInfo_G", "MessZeitMin", "20");
  store("MessInfo_G", "SFak", "3");
  store("DruckInfo_G", "CheckXDiagramm", "-1");
  store("DruckInfo_G", "CheckYTabelle", "-1");
  const FeldWerte expected{
      "7",     0,       "Maker", "Bezeichnung", "/data/", "Bediener", "Kommentar", "12",     "1234.6",
      "0.020", "0.010", "500.0", "0.040",       "0.030",  "600.6",    "0.5000",    "0.2500", 2,
      4,       true,    true,    false,         true,     "40",       "20",        3,        3,
      2,       true,    false,   false,         true,     true};
  EXPECT_EQ(fromMainWindow().lesen(), expected);
}

TEST_F(OptionsGTest, InInchLengthsAreInchesAndDeviationsMil) {
  system.Masssystem = 1;
  store("MessInfo_G", "Distanz", "2540");
  store("Toleranz_G", "XGesamt", "0.0254");
  store("Toleranz_G", "XWertPro", "0.0127");
  store("Toleranz_G", "XProEinheit", "254");
  store("MessInfo_G", "X_Genauigkeit", "0.0508");
  EXPECT_EQ(shown("TextEinstellung(9)"), FeldWert("100.0"));
  EXPECT_EQ(shown("TextEinstellung(10)"), FeldWert("1.00"));
  EXPECT_EQ(shown("TextEinstellung(11)"), FeldWert("0.50"));
  EXPECT_EQ(shown("TextEinstellung(12)"), FeldWert("10.0"));
  EXPECT_EQ(shown("TextEinstellung(13)"), FeldWert("0.00")) << "a zero is the zero of the form";
  EXPECT_EQ(shown("TextEinstellung(16)"), FeldWert("2.00"));
  EXPECT_EQ(shown("TextEinstellung(17)"), FeldWert("0.39"));
  EXPECT_EQ(shown("TextEinstellung(8)"), FeldWert("6")) << "a number has no unit";
}

TEST_F(OptionsGTest, ListsStayWithinTheirRange) {
  store("MessInfo_G", "Filter", "7");
  store("MessInfo_G", "Montage", "-1");
  store("KorInfo", "NKStellen", "12");
  store("Toleranz_G", "ToleranzBezug", "3");
  store("MessInfo_G", "SFAK", "7");
  EXPECT_EQ(shown("cmbFilter"), FeldWert(4));
  EXPECT_EQ(shown("cmbKameraBefestigung"), FeldWert(0));
  EXPECT_EQ(shown("cmbAnzStellen"), FeldWert(3));
  EXPECT_EQ(shown("cmbTolBezug"), FeldWert(2));
  EXPECT_EQ(shown("cmbSfak"), FeldWert(0));
}

TEST_F(OptionsGTest, OneOfTheConfidenceLevelsIsAlwaysChosen) {
  const auto chosen = [this](const char* five, const char* one) {
    store("MessInfo_G", "Beta5", five);
    store("MessInfo_G", "Beta1", one);
    return std::pair(shown("OptPrio(0)"), shown("OptPrio(1)"));
  };
  const std::pair<FeldWert, FeldWert> at5{true, false};
  const std::pair<FeldWert, FeldWert> at1{false, true};
  EXPECT_EQ(chosen("-1", "0"), at5);
  EXPECT_EQ(chosen("0", "0"), at5) << "it is what measuring takes then";
  EXPECT_EQ(chosen("0", "-1"), at1);
  EXPECT_EQ(chosen("-1", "-1"), at1);
}

// ---- Writing ----

TEST_F(OptionsGTest, EverythingIsStoredInItsOrder) {
  FeldWerte values = fromMainWindow().lesen();
  values = {"9",   0,       "Maker", "Rail",  "/data/", "Anna",   "cold", "11",  "800.5", "0.020", "0.010",
            "500", "0.040", "0.030", "600.0", "0.1000", "0.2000", 2,      4,     true,    true,    false,
            true,  "30",    "20",    3,       1,        2,        true,   false, true,    false,   true};
  fromMainWindow().uebernehmen(values);
  EXPECT_EQ(tree.written, (std::vector<std::string>{"KorInfo/PortNr=9",
                                                    "KorInfo/BaudRate=0",
                                                    "KorInfo/FirmaName=Maker",
                                                    "MessInfo_G/Bezeichnung=Rail",
                                                    "KorInfo/PfadMessFile=/data/",
                                                    "MessInfo_G/Bediener=Anna",
                                                    "MessInfo_G/Kommentar=cold",
                                                    "MessInfo_G/AnzMPs=11",
                                                    "MessInfo_G/Distanz=800.5",
                                                    "Toleranz_G/XGesamt=0.02",
                                                    "Toleranz_G/XWertPro=0.01",
                                                    "Toleranz_G/XProEinheit=500",
                                                    "Toleranz_G/YGesamt=0.04",
                                                    "Toleranz_G/YWertPro=0.03",
                                                    "Toleranz_G/YProEinheit=600",
                                                    "MessInfo_G/X_Genauigkeit=0.1",
                                                    "MessInfo_G/Y_Genauigkeit=0.2",
                                                    "Toleranz_G/ToleranzBezug=2",
                                                    "MessInfo_G/Filter=4",
                                                    "MessInfo_G/AutoAdapt=-1",
                                                    "MessInfo_G/BiDi_Messen=-1",
                                                    "MessInfo_G/Beta5=0",
                                                    "MessInfo_G/Beta1=-1",
                                                    "MessInfo_G/MessZeitMax=30",
                                                    "MessInfo_G/MessZeitMin=20",
                                                    "MessInfo_G/Montage=3",
                                                    "KorInfo/NKStellen=1",
                                                    "MessInfo_G/SFAK=3",
                                                    "DruckInfo_G/CheckXDiagramm=-1",
                                                    "DruckInfo_G/CheckYDiagramm=0",
                                                    "DruckInfo_G/CheckXTabelle=-1",
                                                    "DruckInfo_G/CheckYTabelle=0",
                                                    "KorInfo/AsciiDatei=-1"}));
}

TEST_F(OptionsGTest, TheLinkIsStoredBeforeTheQuestionAndAllElseAfterIt) {
  measure();
  tree.written.clear();
  std::vector<std::string> before;
  messages.answers = {MessageAnswer::no};
  messages.onShow = [&] { before = tree.written; };
  change("TextEinstellung(8)", "9");
  EXPECT_EQ(before, (std::vector<std::string>{"KorInfo/PortNr=1", "KorInfo/BaudRate=1"}));
  EXPECT_EQ(tree.written.size(), 33U);
}

TEST_F(OptionsGTest, AStoreThatCannotBeWrittenIsPassedOverInSilence) {
  tree.writable = false;
  fromMainWindow().uebernehmen(fromMainWindow().lesen());
  EXPECT_TRUE(messages.shown.empty());
}

TEST_F(OptionsGTest, InInchEntriesBecomeMillimetres) {
  system.Masssystem = 1;
  OptionsG dialog = fromMainWindow();
  FeldWerte values = dialog.lesen();
  at(values, "TextEinstellung(9)") = "100.5";
  at(values, "TextEinstellung(10)") = "2.00";
  at(values, "TextEinstellung(15)") = "10.0";
  at(values, "TextEinstellung(16)") = "1.50";
  dialog.uebernehmen(values);
  EXPECT_EQ(stored("MessInfo_G", "Distanz"), "2552.7");
  EXPECT_EQ(stored("Toleranz_G", "XGesamt"), "0.0508");
  EXPECT_EQ(stored("Toleranz_G", "YProEinheit"), "254");
  EXPECT_EQ(stored("MessInfo_G", "X_Genauigkeit"), "0.0381");
}

TEST_F(OptionsGTest, AnUntouchedBoxStoresTheUnroundedValue) {
  for (const std::int16_t units : {std::int16_t{0}, std::int16_t{1}}) {
    system.Masssystem = units;
    store("MessInfo_G", "Distanz", "1234.5678");
    store("Toleranz_G", "XGesamt", "0.0123456");
    store("Toleranz_G", "YProEinheit", "333,3333");
    store("MessInfo_G", "X_Genauigkeit", "0.0123456");
    confirm(fromSeries());
    EXPECT_EQ(stored("MessInfo_G", "Distanz"), "1234.5678");
    EXPECT_EQ(stored("Toleranz_G", "XGesamt"), "0.0123456");
    EXPECT_EQ(stored("Toleranz_G", "YProEinheit"), "333,3333");
    EXPECT_EQ(stored("MessInfo_G", "X_Genauigkeit"), "0.0123456");
    EXPECT_EQ(stored("Toleranz_G", "YGesamt"), "");
    EXPECT_EQ(line().Distanz, 1234.5678);
    EXPECT_EQ(series().X.Gesamt, 0.0123456);
    EXPECT_EQ(series().Y.ProEinheit, 333.3333);
    EXPECT_EQ(series().Adapt.X_Genauigkeit, 0.0123456);
  }
}

TEST_F(OptionsGTest, UntouchedListsAndSwitchesStoreWhatTheyShow) {
  store("MessInfo_G", "Filter", "7");
  store("Toleranz_G", "ToleranzBezug", "3");
  store("MessInfo_G", "AutoAdapt", "1");
  store("DruckInfo_G", "CheckXTabelle", "-1.0");
  confirm(fromSeries());
  EXPECT_EQ(stored("MessInfo_G", "Filter"), "4");
  EXPECT_EQ(stored("Toleranz_G", "ToleranzBezug"), "2");
  EXPECT_EQ(stored("MessInfo_G", "SFAK"), "1") << "the default 0 is no factor";
  EXPECT_EQ(stored("MessInfo_G", "AutoAdapt"), "0") << "1 sets no flag";
  EXPECT_EQ(stored("DruckInfo_G", "CheckXTabelle"), "-1");
}

TEST_F(OptionsGTest, SoItDoesAfterTheDialogTookOverAndStayed) {
  store("MessInfo_G", "Distanz", "1234.5678");
  OptionsG dialog = fromSeries();
  FeldWerte values = dialog.lesen();
  at(values, "TextEinstellung(10)") = "0.030";
  dialog.uebernehmen(values);
  dialog.uebernehmen(values);
  EXPECT_EQ(stored("MessInfo_G", "Distanz"), "1234.5678");
  EXPECT_EQ(stored("Toleranz_G", "XGesamt"), "0.03");
}

TEST_F(OptionsGTest, AfterThatTheTextOfBeforeIsAnEntryLikeAnyOther) {
  store("MessInfo_G", "Distanz", "1234.5678");
  OptionsG dialog = fromSeries();
  FeldWerte values = dialog.lesen();
  at(values, "TextEinstellung(9)") = "1000.0";
  dialog.uebernehmen(values);
  at(values, "TextEinstellung(9)") = "1234.6";
  dialog.uebernehmen(values);
  EXPECT_EQ(stored("MessInfo_G", "Distanz"), "1234.6");
}

TEST_F(OptionsGTest, ABlankToleranceIsNone) {
  store("Toleranz_G", "XGesamt", "0.02");
  change("TextEinstellung(10)", "");
  EXPECT_EQ(stored("Toleranz_G", "XGesamt"), "0");
  EXPECT_EQ(series().X.Gesamt, 0);
}

// ---- The main window's dialog ----

TEST_F(OptionsGTest, FromTheMainWindowTheSettingsAreOnlyStored) {
  const auto before = toBytes(series());
  OptionsG dialog = fromMainWindow();
  EXPECT_FALSE(dialog.mitReihe());
  EXPECT_FALSE(dialog.ZAequidistant());
  EXPECT_FALSE(dialog.nurFuerNeueReihe());
  FeldWerte values = dialog.lesen();
  at(values, "TextEinstellung(8)") = "9";
  at(values, "cmbFilter") = 4;
  dialog.uebernehmen(values);
  dialog.punkteGleichVerteilen();
  EXPECT_EQ(toBytes(series()), before);
  EXPECT_EQ(system.FilterVorgabe, '2');
  EXPECT_EQ(stored("MessInfo_G", "AnzMPs"), "9");
}

// ---- The series: geometry, filter, mounting ----

TEST_F(OptionsGTest, WithoutReadingsNewGeometryAppliesUnasked) {
  info().ZeigeMittel = true;
  line().AktMP = 3;
  change("TextEinstellung(8)", "11");
  EXPECT_TRUE(messages.shown.empty());
  EXPECT_EQ(line().AnzMPs, 11);
  EXPECT_EQ(line().Distanz, 2500);
  EXPECT_EQ(line().ZSchritt, 250);
  EXPECT_EQ(line().Z.at(11), 2500);
  EXPECT_EQ(line().AktMP, 1);
  EXPECT_EQ(info().Ref2, 11);
  EXPECT_FALSE(info().ZeigeMittel);
  EXPECT_EQ(series().X.Wert.anzahl(), 11U);
  EXPECT_FALSE(info().Geaendert);
}

TEST_F(OptionsGTest, LengthFilterAndMountingAloneApplyToo) {
  change("TextEinstellung(9)", "1000.0");
  EXPECT_EQ(line().Distanz, 1000);
  EXPECT_EQ(line().ZSchritt, 200);
  change("cmbFilter", 4);
  EXPECT_EQ(info().Filter.full(), "4");
  change("cmbKameraBefestigung", 3);
  EXPECT_EQ(info().Montage, 3);
  EXPECT_TRUE(messages.shown.empty());
}

TEST_F(OptionsGTest, NothingChangedAsksNothingAndKeepsTheReadings) {
  measure();
  confirm(fromSeries());
  EXPECT_TRUE(messages.shown.empty());
  EXPECT_EQ(series().X.Wert.at(2), 0.5);
}

TEST_F(OptionsGTest, WhetherTheLengthChangedIsJudgedOnItsText) {
  measure();
  line().Distanz = 2500.04;
  confirm(fromSeries());
  EXPECT_TRUE(messages.shown.empty()) << "reads 2500.0 as well";
  EXPECT_EQ(line().Distanz, 2500.04);
  line().Distanz = 2500.06;
  confirm(fromSeries());
  EXPECT_EQ(messages.shown.size(), 1U);
}

TEST_F(OptionsGTest, SoItIsInInch) {
  system.Masssystem = 1;
  measure();
  confirm(fromSeries());
  EXPECT_TRUE(messages.shown.empty()) << "98.43 in";
  line().Distanz = 2500.5;
  confirm(fromSeries());
  EXPECT_TRUE(messages.shown.empty()) << "98.44, which reads 98.4 in too";
  line().Distanz = 2501;
  confirm(fromSeries());
  EXPECT_EQ(messages.shown.size(), 1U) << "98.46";
}

TEST_F(OptionsGTest, WithAReadingAQuestionComes) {
  for (const char* control : {"TextEinstellung(8)", "TextEinstellung(9)"}) {
    measure();
    messages.shown.clear();
    messages.beeps = 0;
    messages.answers = {MessageAnswer::no};
    change(control, control[16] == '8' ? "11" : "1000.0");
    ASSERT_EQ(messages.shown.size(), 1U) << control;
    EXPECT_EQ(messages.shown[0].title, "KORVIN D5500");
    EXPECT_EQ(messages.shown[0].text, "D6016 ?");
    EXPECT_EQ(messages.shown[0].buttons, MessageButtons::yesNo);
    EXPECT_EQ(messages.beeps, 1);
  }
}

TEST_F(OptionsGTest, AReadingOfOneAxisAtTheLastPointCounts) {
  series().Y.Wert.at(6) = -0.25;
  messages.answers = {MessageAnswer::no};
  change("cmbFilter", 3);
  EXPECT_EQ(messages.shown.size(), 1U);
  EXPECT_EQ(series().Y.Wert.at(6), -0.25);
}

TEST_F(OptionsGTest, WhatStandsBehindTheLastPointIsNoReading) {
  series().X.Wert.at(7) = 0.5;
  change("cmbFilter", 3);
  EXPECT_TRUE(messages.shown.empty());
}

TEST_F(OptionsGTest, NoLeavesTheSeriesAsItIsAndKeepsTheValuesForTheNext) {
  measure();
  const auto geometry = line().Z;
  messages.answers = {MessageAnswer::no};
  OptionsG dialog = fromSeries();
  FeldWerte values = dialog.lesen();
  at(values, "TextEinstellung(8)") = "11";
  at(values, "TextEinstellung(9)") = "1000.0";
  at(values, "cmbFilter") = 4;
  at(values, "cmbKameraBefestigung") = 1;
  dialog.uebernehmen(values);
  EXPECT_EQ(line().AnzMPs, 6);
  EXPECT_EQ(line().Distanz, 2500);
  EXPECT_EQ(line().Z, geometry);
  EXPECT_EQ(series().X.Wert.at(2), 0.5);
  EXPECT_EQ(info().Filter.full(), "2");
  EXPECT_EQ(info().Montage, 0);
  EXPECT_EQ(stored("MessInfo_G", "AnzMPs"), "11");
  EXPECT_EQ(stored("MessInfo_G", "Distanz"), "1000");
  EXPECT_EQ(stored("MessInfo_G", "Filter"), "4");
  EXPECT_EQ(stored("MessInfo_G", "Montage"), "1");
  EXPECT_EQ(system.FilterVorgabe, '4') << "the next reading is taken with it";
}

TEST_F(OptionsGTest, YesAppliesTheValuesAndClearsTheSeries) {
  measure();
  line().Z.at(3) = 1100;  // moved points go as well
  info().Geaendert = false;
  messages.answers = {MessageAnswer::yes};
  OptionsG dialog = fromSeries();
  FeldWerte values = dialog.lesen();
  at(values, "TextEinstellung(8)") = "11";
  at(values, "TextEinstellung(9)") = "1000.0";
  at(values, "cmbFilter") = 4;
  at(values, "cmbKameraBefestigung") = 1;
  dialog.uebernehmen(values);
  EXPECT_EQ(line().AnzMPs, 11);
  EXPECT_EQ(line().Distanz, 1000);
  EXPECT_EQ(line().Z.at(3), 200);
  EXPECT_EQ(series().X.Wert.at(2), Leerwert);
  EXPECT_EQ(series().Y.Wert.at(2), Leerwert);
  EXPECT_EQ(info().Filter.full(), "4");
  EXPECT_EQ(info().Montage, 1);
  EXPECT_TRUE(info().Geaendert) << "readings are gone";
}

TEST_F(OptionsGTest, WithMovedPointsAndNoReadingGeometryIsOnlyStored) {
  line().Z.at(3) = 1100;
  OptionsG dialog = fromSeries();
  EXPECT_TRUE(dialog.nurFuerNeueReihe());
  FeldWerte values = dialog.lesen();
  at(values, "TextEinstellung(8)") = "11";
  at(values, "cmbFilter") = 4;
  at(values, "cmbKameraBefestigung") = 1;
  at(values, "TextEinstellung(10)") = "0.020";
  dialog.uebernehmen(values);
  EXPECT_TRUE(messages.shown.empty());
  EXPECT_EQ(line().AnzMPs, 6);
  EXPECT_EQ(line().Z.at(3), 1100);
  EXPECT_EQ(info().Filter.full(), "2");
  EXPECT_EQ(info().Montage, 0);
  EXPECT_EQ(stored("MessInfo_G", "AnzMPs"), "11");
  EXPECT_EQ(series().X.Gesamt, 0.02) << "what isn't geometry is taken";
  EXPECT_EQ(system.FilterVorgabe, '4');
}

TEST_F(OptionsGTest, EvenDistancesComeAtOnce) {
  measure();
  line().Z.at(3) = 1100;
  OptionsG dialog = fromSeries();
  EXPECT_FALSE(dialog.ZAequidistant());
  EXPECT_FALSE(dialog.nurFuerNeueReihe()) << "with readings the question comes";
  dialog.punkteGleichVerteilen();
  EXPECT_TRUE(dialog.ZAequidistant());
  EXPECT_EQ(line().Z.at(3), 1000);
  EXPECT_EQ(series().X.Wert.at(2), 0.5);
  EXPECT_TRUE(info().Geaendert);
  EXPECT_TRUE(tree.keys.empty()) << "nothing is stored";
}

TEST_F(OptionsGTest, AsManyPointsAsTheRecordHoldsAreLookedAt) {
  line().AnzMPs = 201;
  ReiheLeeren(series());
  series().X.Wert.at(201) = 0.5;
  messages.answers = {MessageAnswer::no};
  change("TextEinstellung(8)", "200");
  EXPECT_EQ(messages.shown.size(), 1U);
  messages.answers = {MessageAnswer::yes};
  change("TextEinstellung(8)", "200");
  EXPECT_EQ(line().AnzMPs, 200);
  EXPECT_NEAR(line().Z.at(200), 2500, 1e-9);
}

// ---- The series: everything else ----

TEST_F(OptionsGTest, TolerancesAccuraciesDecimalsAndAdaptiveMeasuringGoIntoTheSeries) {
  measure();
  OptionsG dialog = fromSeries();
  FeldWerte values = dialog.lesen();
  at(values, "TextEinstellung(10)") = "0.020";
  at(values, "TextEinstellung(11)") = "0.010";
  at(values, "TextEinstellung(12)") = "500.0";
  at(values, "TextEinstellung(13)") = "0.040";
  at(values, "TextEinstellung(14)") = "0.030";
  at(values, "TextEinstellung(15)") = "600.0";
  at(values, "cmbTolBezug") = 2;
  at(values, "TextEinstellung(16)") = "0.1000";
  at(values, "TextEinstellung(17)") = "0.2000";
  at(values, "cmbAnzStellen") = 1;
  at(values, "CheckAdaptOn") = true;
  at(values, "OptPrio(0)") = false;
  at(values, "OptPrio(1)") = true;
  at(values, "TextEinstellung(18)") = "20";
  at(values, "TextEinstellung(19)") = "30";
  const auto file = toBytes(formgera.bild());
  dialog.uebernehmen(values);
  EXPECT_TRUE(messages.shown.empty());
  EXPECT_NEAR(series().X.Gesamt, 0.02, tiny);
  EXPECT_NEAR(series().X.WertPro, 0.01, tiny);
  EXPECT_EQ(series().X.ProEinheit, 500);
  EXPECT_NEAR(series().Y.Gesamt, 0.04, tiny);
  EXPECT_NEAR(series().Y.WertPro, 0.03, tiny);
  EXPECT_EQ(series().Y.ProEinheit, 600);
  EXPECT_EQ(series().X.ToleranzBezug, 2);
  EXPECT_EQ(series().Y.ToleranzBezug, 2);
  EXPECT_NEAR(series().Adapt.X_Genauigkeit, 0.1, tiny);
  EXPECT_NEAR(series().Adapt.Y_Genauigkeit, 0.2, tiny);
  EXPECT_EQ(info().NKStellen, 1);
  EXPECT_TRUE(series().Adapt.AutoAdapt);
  EXPECT_FALSE(series().Adapt.Beta5);
  EXPECT_TRUE(series().Adapt.Beta1);
  EXPECT_EQ(series().Adapt.MessZeitMin, 20);
  EXPECT_EQ(series().Adapt.MessZeitMax, 30);
  EXPECT_EQ(toBytes(formgera.bild()), file) << "the file's data come with saving";
  EXPECT_EQ(series().X.Wert.at(2), 0.5);
}

TEST_F(OptionsGTest, WhatBelongsToNewSeriesLeavesThisOneAlone) {
  info().Bezeichnung = "Old rail";
  info().SFak = 1;
  OptionsG dialog = fromSeries();
  FeldWerte values = dialog.lesen();
  at(values, "TextEinstellung(2)") = "New rail";
  at(values, "cmbSfak") = 2;
  at(values, "CheckDiagramm(0)") = true;
  dialog.uebernehmen(values);
  EXPECT_EQ(info().Bezeichnung.trimmed(), "Old rail");
  EXPECT_EQ(info().SFak, 1);
  EXPECT_FALSE(info().CheckXDiagramm);
}

TEST_F(OptionsGTest, ANewSeriesTakesWhatWasStored) {
  OptionsG dialog = fromMainWindow();
  FeldWerte values = dialog.lesen();
  at(values, "TextEinstellung(8)") = "9";
  at(values, "TextEinstellung(9)") = "800.0";
  at(values, "TextEinstellung(13)") = "0.040";
  at(values, "cmbSfak") = 2;
  at(values, "TextEinstellung(19)") = "30";
  dialog.uebernehmen(values);
  const GeradReihe made = neueReihe(profil, "/data/");
  EXPECT_EQ(made.Linie.AnzMPs, 9);
  EXPECT_EQ(made.Linie.Distanz, 800);
  EXPECT_NEAR(made.Y.Gesamt, 0.04, tiny);
  EXPECT_EQ(made.Info.SFak, 3);
  EXPECT_EQ(made.Adapt.MessZeitMax, 30);
}

}  // namespace
}  // namespace korvin
