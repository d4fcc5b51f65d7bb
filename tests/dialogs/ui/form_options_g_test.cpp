// The settings dialog of straightness measuring, by real clicks and keys.

#include "options_g_ui_stand.h"

namespace korvin {
namespace {

class FormOptionsGTest : public test::OptionsGStand {
 protected:
  void showAdaptive() {
    store("MessInfo_G", "AutoAdapt", "-1");
    showFromSeries();
    openTab("TabMessinstrument");
  }
};

// ---- What it shows ----

TEST_F(FormOptionsGTest, TitleTabsFramesAndNames) {
  showFromMainWindow();
  EXPECT_EQ(utf8Text(dialog->objectName()), "FormOptionsG");
  EXPECT_EQ(utf8Text(dialog->windowTitle()), "D2037 D5500");
  EXPECT_EQ(utf8Text(tabs().objectName()), "TabOptG");
  const std::array<const char*, 4> pages = {"TabAllgemein", "TabMessobjekt", "TabMessinstrument",
                                            "TabDisplay"};
  ASSERT_EQ(tabs().count(), 4);
  for (int i = 0; i < 4; ++i) {
    EXPECT_EQ(utf8Text(tabs().tabText(i)), "D" + std::to_string(2220 + i));
    EXPECT_EQ(utf8Text(tabs().tabToolTip(i)), "D" + std::to_string(2225 + i));
    QWidget* page = find<QWidget>(pages.at(static_cast<std::size_t>(i)));
    EXPECT_EQ(tabs().widget(i), page);
    EXPECT_NE(page->findChild<QWidget*>(QStringLiteral("FrmOptG(%1)").arg(i)), nullptr);
  }
  EXPECT_EQ(tabs().currentIndex(), 0);
  for (const int i : {0, 1, 2, 3, 4, 5, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 21})
    EXPECT_NE(box(i), nullptr) << i;
  EXPECT_TRUE(box(1)->isReadOnly());
  EXPECT_EQ(utf8Text(command(0)->text()), "D7650");
  EXPECT_EQ(utf8Text(command(1)->text()), "D3020");
  EXPECT_EQ(utf8Text(command(2)->text()), "D7050");
}

TEST_F(FormOptionsGTest, ATabShowsItsFrame) {
  showFromMainWindow();
  const std::array<const char*, 4> pages = {"TabAllgemein", "TabMessobjekt", "TabMessinstrument",
                                            "TabDisplay"};
  for (int i = 0; i < 4; ++i) {
    openTab(pages.at(static_cast<std::size_t>(i)));
    for (int j = 0; j < 4; ++j)
      EXPECT_EQ(dialog->findChild<QWidget*>(QStringLiteral("FrmOptG(%1)").arg(j))->isVisible(), i == j);
  }
}

TEST_F(FormOptionsGTest, ListsHaveTheirEntries) {
  showFromMainWindow();
  EXPECT_EQ(entries("cmbBpS"), "19200|115200|");
  EXPECT_EQ(entries("cmbFilter"), "D3200|D3201|D3202|D3203|D3204|");
  EXPECT_EQ(entries("cmbKameraBefestigung"), "D3029|D3030|D3031|D3032|");
  EXPECT_EQ(entries("cmbAnzStellen"), "'0.0'|'0.00'|'0.000'|'0.0000'|");
  EXPECT_EQ(entries("cmbSfak"), "1|2|3|4|5|6|");
  EXPECT_EQ(entries("cmbTolBezug"), "0 - D3027|1 - D3028|2 - D3026|");
}

TEST_F(FormOptionsGTest, ShowsWhatIsStored) {
  store("KorInfo", "FirmaName", "Maker");
  store("MessInfo_G", "AnzMPs", "12");
  store("Toleranz_G", "YProEinheit", "300");
  store("MessInfo_G", "Beta1", "-1");
  store("DruckInfo_G", "CheckYDiagramm", "-1");
  store("Toleranz_G", "ToleranzBezug", "2");
  showFromMainWindow();
  EXPECT_EQ(text(0), "Maker");
  EXPECT_EQ(text(2), "?");
  EXPECT_EQ(text(8), "12");
  EXPECT_EQ(text(9), "2500.0");
  EXPECT_EQ(text(10), "0.000");
  EXPECT_EQ(text(15), "300.0");
  EXPECT_EQ(text(16), "0.0100");
  EXPECT_FALSE(check("OptPrio(0)")->isChecked());
  EXPECT_TRUE(check("OptPrio(1)")->isChecked());
  EXPECT_FALSE(check("CheckDiagramm(0)")->isChecked());
  EXPECT_TRUE(check("CheckDiagramm(1)")->isChecked());
  EXPECT_EQ(list("cmbTolBezug")->currentIndex(), 2);
}

TEST_F(FormOptionsGTest, UnitsStandWithTheNumbers) {
  const auto named = [this](int index) { return utf8Text(box(index)->accessibleName()); };
  showFromMainWindow();
  EXPECT_EQ(named(9), "D3000 [mm]");
  EXPECT_EQ(named(10), "D7657 [mm] X");
  EXPECT_EQ(named(15), "D7659 [mm] Y");
  EXPECT_EQ(named(16), "D7663 [mm]");
  system.Masssystem = 1;
  showFromMainWindow();
  EXPECT_EQ(named(9), "D3000 [in]");
  EXPECT_EQ(named(10), "D7657 [mil] X");
  EXPECT_EQ(named(15), "D7659 [in] Y");
  EXPECT_EQ(named(16), "D7663 [mil]");
  EXPECT_EQ(named(18), "D7665 [s]");
}

// ---- Taking over ----

TEST_F(FormOptionsGTest, OkStoresWhatEveryControlHolds) {
  showFromSeries();
  enter(0, "Maker");
  enter(2, "Rail");
  enter(3, "/data/");
  enter(4, "Anna");
  enter(5, "cold");
  openTab("TabMessobjekt");
  enter(8, "11");
  enter(9, "1000,5");
  enter(10, "0.02");
  enter(11, "0.01");
  enter(12, "500");
  enter(13, "0.04");
  enter(14, "0.03");
  enter(15, "600");
  choose("cmbTolBezug", 2);
  click(check("CheckBidirMP"));
  openTab("TabMessinstrument");
  enter(21, "9");
  choose("cmbBpS", 0);
  choose("cmbFilter", 4);
  choose("cmbKameraBefestigung", 3);
  click(check("CheckAdaptOn"));
  enter(16, "0.1");
  enter(17, "0.2");
  enter(18, "20");
  enter(19, "30");
  click(check("OptPrio(1)"));
  openTab("TabDisplay");
  choose("cmbAnzStellen", 1);
  choose("cmbSfak", 2);
  for (const char* name :
       {"CheckDiagramm(0)", "CheckDiagramm(1)", "CheckTabelle(0)", "CheckTabelle(1)", "CheckAsciiDatei"})
    click(check(name));
  EXPECT_TRUE(tree.keys.empty()) << "nothing is stored before";
  ok();
  EXPECT_TRUE(closed());
  EXPECT_EQ(dialog->result(), QDialog::Accepted);
  EXPECT_TRUE(messages.shown.empty());
  EXPECT_EQ(stored("KorInfo", "FirmaName"), "Maker");
  EXPECT_EQ(stored("MessInfo_G", "Bezeichnung"), "Rail");
  EXPECT_EQ(stored("KorInfo", "PfadMessFile"), "/data/");
  EXPECT_EQ(stored("MessInfo_G", "Bediener"), "Anna");
  EXPECT_EQ(stored("MessInfo_G", "Kommentar"), "cold");
  EXPECT_EQ(stored("MessInfo_G", "AnzMPs"), "11");
  EXPECT_EQ(stored("MessInfo_G", "Distanz"), "1000.5");
  EXPECT_EQ(stored("Toleranz_G", "XGesamt"), "0.02");
  EXPECT_EQ(stored("Toleranz_G", "XWertPro"), "0.01");
  EXPECT_EQ(stored("Toleranz_G", "XProEinheit"), "500");
  EXPECT_EQ(stored("Toleranz_G", "YGesamt"), "0.04");
  EXPECT_EQ(stored("Toleranz_G", "YWertPro"), "0.03");
  EXPECT_EQ(stored("Toleranz_G", "YProEinheit"), "600");
  EXPECT_EQ(stored("Toleranz_G", "ToleranzBezug"), "2");
  EXPECT_EQ(stored("MessInfo_G", "BiDi_Messen"), "-1");
  EXPECT_EQ(stored("KorInfo", "PortNr"), "9");
  EXPECT_EQ(stored("KorInfo", "BaudRate"), "0");
  EXPECT_EQ(stored("MessInfo_G", "Filter"), "4");
  EXPECT_EQ(stored("MessInfo_G", "Montage"), "3");
  EXPECT_EQ(stored("MessInfo_G", "AutoAdapt"), "-1");
  EXPECT_EQ(stored("MessInfo_G", "X_Genauigkeit"), "0.1");
  EXPECT_EQ(stored("MessInfo_G", "Y_Genauigkeit"), "0.2");
  EXPECT_EQ(stored("MessInfo_G", "MessZeitMin"), "20");
  EXPECT_EQ(stored("MessInfo_G", "MessZeitMax"), "30");
  EXPECT_EQ(stored("MessInfo_G", "Beta5"), "0");
  EXPECT_EQ(stored("MessInfo_G", "Beta1"), "-1");
  EXPECT_EQ(stored("KorInfo", "NKStellen"), "1");
  EXPECT_EQ(stored("MessInfo_G", "SFak"), "3");
  for (const char* key : {"CheckXDiagramm", "CheckYDiagramm", "CheckXTabelle", "CheckYTabelle"})
    EXPECT_EQ(stored("DruckInfo_G", key), "-1") << key;
  EXPECT_EQ(stored("KorInfo", "AsciiDatei"), "-1");
  EXPECT_EQ(line().AnzMPs, 11);
  EXPECT_EQ(line().Distanz, 1000.5);
  EXPECT_EQ(info().Montage, 3);
}

TEST_F(FormOptionsGTest, InInchWhatIsEnteredBecomesMillimetres) {
  system.Masssystem = 1;
  showFromSeries();
  EXPECT_FALSE(applicable());
  openTab("TabMessobjekt");
  EXPECT_EQ(text(9), "98.4");
  enter(9, "100.5");
  enter(10, "2");
  enter(12, "10");
  leave(12);
  EXPECT_EQ(text(10), "2.00");
  openTab("TabMessinstrument");
  EXPECT_EQ(text(16), "0.39");
  click(check("CheckAdaptOn"));
  enter(17, "1.5");
  ok();
  EXPECT_TRUE(closed());
  EXPECT_EQ(stored("MessInfo_G", "Distanz"), "2552.7");
  EXPECT_EQ(stored("Toleranz_G", "XGesamt"), "0.0508");
  EXPECT_EQ(stored("Toleranz_G", "XProEinheit"), "254");
  EXPECT_EQ(stored("MessInfo_G", "X_Genauigkeit"), "0.01") << "untouched, though below what may be entered";
  EXPECT_EQ(stored("MessInfo_G", "Y_Genauigkeit"), "0.0381");
  EXPECT_EQ(line().Distanz, 2552.7);
}

TEST_F(FormOptionsGTest, ApplyTakesOverAndStays) {
  showFromSeries();
  EXPECT_FALSE(applicable());
  EXPECT_FALSE(command(2)->isEnabled());
  EXPECT_TRUE(command(1)->isEnabled());
  enter(0, "Maker");
  EXPECT_TRUE(applicable());
  EXPECT_TRUE(command(2)->isEnabled());
  apply();
  EXPECT_FALSE(closed());
  EXPECT_EQ(stored("KorInfo", "FirmaName"), "Maker");
  EXPECT_FALSE(applicable());
  EXPECT_FALSE(command(2)->isEnabled());
  enter(0, "Other");
  cancel();
  EXPECT_TRUE(closed());
  EXPECT_EQ(stored("KorInfo", "FirmaName"), "Maker");
}

TEST_F(FormOptionsGTest, AnyChangeEnablesTakingOver) {
  store("MessInfo_G", "AutoAdapt", "-1");
  const auto enables = [this](const char* page, const std::function<void()>& change, const char* what) {
    showFromSeries();
    openTab(page);
    EXPECT_FALSE(applicable()) << what;
    change();
    EXPECT_TRUE(applicable()) << what;
  };
  for (const int index : {0, 2, 3, 4, 5})
    enables(
        "TabAllgemein", [&] { QTest::keyClicks(box(index), QStringLiteral("1")); }, "text");
  for (const int index : {8, 9, 10, 11, 12, 13, 14, 15})
    enables(
        "TabMessobjekt", [&] { QTest::keyClicks(box(index), QStringLiteral("1")); }, "object");
  for (const int index : {16, 17, 18, 19, 21})
    enables(
        "TabMessinstrument", [&] { QTest::keyClicks(box(index), QStringLiteral("1")); }, "instrument");
  enables(
      "TabMessobjekt", [&] { choose("cmbTolBezug", 2); }, "cmbTolBezug");
  enables(
      "TabMessobjekt", [&] { click(check("CheckBidirMP")); }, "CheckBidirMP");
  enables(
      "TabMessobjekt", [&] { click(check("CheckzAquidistant")); }, "CheckzAquidistant");
  for (const char* name : {"cmbFilter", "cmbKameraBefestigung"})
    enables(
        "TabMessinstrument", [&] { choose(name, 1); }, name);
  enables(
      "TabMessinstrument", [&] { choose("cmbBpS", 0); }, "cmbBpS");
  for (const char* name : {"CheckAdaptOn", "OptPrio(1)"})
    enables(
        "TabMessinstrument", [&] { click(check(name)); }, name);
  for (const char* name : {"cmbAnzStellen", "cmbSfak"})
    enables(
        "TabDisplay", [&] { choose(name, 1); }, name);
  for (const char* name :
       {"CheckDiagramm(0)", "CheckDiagramm(1)", "CheckTabelle(0)", "CheckTabelle(1)", "CheckAsciiDatei"})
    enables(
        "TabDisplay", [&] { click(check(name)); }, name);
}

TEST_F(FormOptionsGTest, CancelChangesNothing) {
  const auto before = toBytes(series());
  showFromSeries();
  enter(0, "Maker");
  openTab("TabMessobjekt");
  enter(8, "11");
  enter(10, "0.02");
  openTab("TabMessinstrument");
  choose("cmbFilter", 4);
  cancel();
  EXPECT_TRUE(closed());
  EXPECT_EQ(dialog->result(), QDialog::Rejected);
  EXPECT_TRUE(tree.keys.empty());
  EXPECT_EQ(toBytes(series()), before);
  EXPECT_EQ(system.FilterVorgabe, '2');
  EXPECT_EQ(commands, 0);
}

TEST_F(FormOptionsGTest, EscapeCancelsAndEnterTakesOverAndCloses) {
  showFromMainWindow();
  enter(0, "First");
  QTest::keyClick(box(0), Qt::Key_Escape);
  EXPECT_TRUE(closed());
  EXPECT_EQ(stored("KorInfo", "FirmaName"), "none");
  showFromMainWindow();
  enter(0, "Second");
  QTest::keyClick(box(0), Qt::Key_Return);
  EXPECT_TRUE(closed());
  EXPECT_EQ(stored("KorInfo", "FirmaName"), "Second");
}

TEST_F(FormOptionsGTest, HelpOpensTheHelp) {
  showFromMainWindow();
  click(find<QPushButton>("cmdHilfe"));
  EXPECT_EQ(helpOpened, 1);
  EXPECT_FALSE(closed());
}

TEST_F(FormOptionsGTest, TheFilterOfTheSeriesAndTheQuestion) {
  series().X.Wert.at(2) = series().Y.Wert.at(2) = 0.5;
  showFromSeries();
  openTab("TabMessinstrument");
  choose("cmbFilter", 4);
  messages.answers = {MessageAnswer::yes};
  apply();
  ASSERT_EQ(messages.shown.size(), 1U);
  EXPECT_EQ(messages.shown[0].text, "D6016 ?");
  EXPECT_EQ(info().Filter.full(), "4");
  EXPECT_EQ(series().X.Wert.at(2), Leerwert);
  EXPECT_FALSE(applicable());
}

// ---- Even distances ----

TEST_F(FormOptionsGTest, EvenDistancesActAtOnceWhateverCancelSays) {
  line().Z.at(3) = 1100;
  showFromSeries();
  openTab("TabMessobjekt");
  EXPECT_FALSE(check("CheckzAquidistant")->isChecked());
  EXPECT_EQ(utf8Text(label("HinweisVerschoben")->text()), "D7655");
  click(check("CheckzAquidistant"));
  EXPECT_EQ(line().Z.at(3), 1000);
  EXPECT_TRUE(check("CheckzAquidistant")->isChecked());
  EXPECT_EQ(utf8Text(label("HinweisVerschoben")->text()), "");
  cancel();
  EXPECT_TRUE(closed());
  EXPECT_EQ(line().Z.at(3), 1000);
  EXPECT_TRUE(info().Geaendert);
}

TEST_F(FormOptionsGTest, OfEvenPointsItStaysSet) {
  showFromSeries();
  openTab("TabMessobjekt");
  EXPECT_TRUE(check("CheckzAquidistant")->isChecked());
  click(check("CheckzAquidistant"));
  EXPECT_TRUE(check("CheckzAquidistant")->isChecked());
  EXPECT_FALSE(info().Geaendert);
}

TEST_F(FormOptionsGTest, WithReadingsTheHintIsNotShown) {
  line().Z.at(3) = 1100;
  series().X.Wert.at(2) = 0.5;
  showFromSeries();
  EXPECT_EQ(utf8Text(label("HinweisVerschoben")->text()), "");
}

TEST_F(FormOptionsGTest, ASeriesClearedByApplyingIsEvenAgain) {
  line().Z.at(3) = 1100;
  series().X.Wert.at(2) = 0.5;
  showFromSeries();
  openTab("TabMessobjekt");
  enter(8, "11");
  messages.answers = {MessageAnswer::yes};
  apply();
  EXPECT_TRUE(check("CheckzAquidistant")->isChecked());
}

TEST_F(FormOptionsGTest, FromTheMainWindowThereAreNoPointsToMove) {
  showFromMainWindow();
  openTab("TabMessobjekt");
  EXPECT_FALSE(check("CheckzAquidistant")->isEnabled());
  EXPECT_FALSE(check("CheckzAquidistant")->isChecked());
}

// ---- Adaptive measuring ----

TEST_F(FormOptionsGTest, AdaptiveMeasuringEnablesItsControls) {
  const auto enabled = [this] {
    int count = 0;
    for (const int index : {16, 17, 18, 19}) count += static_cast<int>(box(index)->isEnabled());
    for (const char* name : {"OptPrio(0)", "OptPrio(1)"}) count += static_cast<int>(check(name)->isEnabled());
    return count;
  };
  showFromMainWindow();
  openTab("TabMessinstrument");
  EXPECT_EQ(enabled(), 0);
  click(check("CheckAdaptOn"));
  EXPECT_EQ(enabled(), 6);
  click(check("CheckAdaptOn"));
  EXPECT_EQ(enabled(), 0);
  showAdaptive();
  EXPECT_EQ(enabled(), 6);
}

TEST_F(FormOptionsGTest, TheConfidenceLevelsExcludeEachOther) {
  showAdaptive();
  click(check("OptPrio(1)"));
  EXPECT_FALSE(check("OptPrio(0)")->isChecked());
  click(check("OptPrio(0)"));
  EXPECT_FALSE(check("OptPrio(1)")->isChecked());
}

TEST_F(FormOptionsGTest, ALongerLeastTimeLiftsTheLongestOne) {
  showAdaptive();
  enter(18, "30");
  leave(18);
  EXPECT_EQ(text(19), "30");
  enter(18, "20");
  leave(18);
  EXPECT_EQ(text(19), "30") << "it comes down by hand only";
  enter(18, "4");
  leave(18);
  EXPECT_EQ(messages.shown.size(), 1U);
  EXPECT_EQ(text(19), "30");
  enter(18, "5");
  leave(18);
  enter(19, "7");
  ok();
  EXPECT_EQ(stored("MessInfo_G", "MessZeitMin"), "5");
  EXPECT_EQ(stored("MessInfo_G", "MessZeitMax"), "7");
}

TEST_F(FormOptionsGTest, SoItDoesWhenTakingOverStraightFromTheBox) {
  showAdaptive();
  enter(18, "30");
  ok();
  EXPECT_TRUE(closed());
  EXPECT_EQ(stored("MessInfo_G", "MessZeitMax"), "30");
  EXPECT_EQ(series().Adapt.MessZeitMax, 30);
}

TEST_F(FormOptionsGTest, TheLongestTimeIsNotBelowTheLeast) {
  showAdaptive();
  enter(18, "20");
  leave(18);
  enter(19, "19");
  leave(19);
  ASSERT_EQ(messages.shown.size(), 1U);
  EXPECT_EQ(messages.shown[0].text, "D6015D6014\r\n20 ..99: ");
  EXPECT_EQ(hint(19), "D6014: 20 .. 99");
  EXPECT_TRUE(box(19)->hasFocus());
}

TEST_F(FormOptionsGTest, SwitchingAdaptiveMeasuringOffDropsARefusedEntry) {
  showAdaptive();
  enter(18, "3");
  check("CheckAdaptOn")->click();  // by the screen reader, which moves no focus
  settle();
  EXPECT_FALSE(box(18)->isEnabled());
  ok();
  EXPECT_TRUE(closed());
  EXPECT_EQ(stored("MessInfo_G", "MessZeitMin"), "6");
}

// ---- Mounting ----

TEST_F(FormOptionsGTest, ThePictureFollowsTheMounting) {
  store("MessInfo_G", "Montage", "1");
  showFromMainWindow();
  openTab("TabMessinstrument");
  const QImage quarter = label("ImgMontage")->pixmap().toImage();
  choose("cmbKameraBefestigung", 2);
  EXPECT_NE(label("ImgMontage")->pixmap().toImage(), quarter);
  choose("cmbKameraBefestigung", 1);
  EXPECT_EQ(label("ImgMontage")->pixmap().toImage(), quarter);
}

}  // namespace
}  // namespace korvin
