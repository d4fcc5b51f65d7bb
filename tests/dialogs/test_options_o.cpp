// The settings of position measuring: what the dialog shows, what OK stores and does to the measurement.

#include <gtest/gtest.h>

#include "dialogs/options_o.h"
#include "ordered_tree.h"
#include "support/test_clock.h"

namespace korvin {
namespace {

class OptionsOTest : public testing::Test {
 protected:
  OptionsOTest() {
    info().AnzahlMP = 0;
    info().RestMP = -1;
    info().Filter = "2";
    info().Montage = 0;
    info().NKStellen = 3;
    system.FilterVorgabe = '2';
  }

  PositionsInfo& info() { return formpos.Info(); }
  OptionsO fromMainWindow() { return {{dictionary, messages, meldung, profil, system}, nullptr}; }
  OptionsO fromPosition() { return {{dictionary, messages, meldung, profil, system}, &open}; }

  /// The dialog's value of this control.
  static FeldWert& at(FeldWerte& values, std::string_view control) {
    for (std::size_t i = 0; i < FelderO().size(); ++i)
      if (FelderO()[i].control == control) return values.at(i);
    throw std::out_of_range("no such control");
  }
  FeldWert shown(std::string_view control) {
    FeldWerte values = fromMainWindow().lesen();
    return at(values, control);
  }
  void store(std::string_view section, std::string_view key, std::string_view value) {
    profil.ProfilSchreiben("", section, key, value);
  }

  /// A measurement of two points with an offset.
  void measure() {
    for (const double value : {0.5, 0.7}) {
      formpos.arbeit().X.Aktuell = value;
      formpos.punktHinzufuegen(45000);
    }
    erfassung.offsetSchalten(true);
    info().ZeigeMittel = true;
  }
  /// OK with this filter and mounting in the dialog that the measuring window opened.
  void confirm(int filter, int montage, int decimals = 3) {
    OptionsO dialog = fromPosition();
    FeldWerte values = dialog.lesen();
    at(values, "cmbFilter") = filter;
    at(values, "cmbKameraBefestigung") = montage;
    at(values, "cmbAnzStellen") = decimals;
    dialog.uebernehmen(values, dialog.messplan());
  }
  std::string_view filter() { return info().Filter.full(); }

  test::OrderedTree tree;
  Profil profil{tree};
  test::TestDictionary dictionary;
  test::TestMessages messages;
  test::TestClock clock;
  Meldung meldung;
  Systemwerte system;
  FORMPOS formpos;
  PositionsErfassung erfassung{{clock, messages, dictionary, profil, meldung, system, formpos}};
  OffeneMessung open{formpos, erfassung};
};

// ---- Reading ----

TEST_F(OptionsOTest, AnEmptyStoreShowsTheDialogsOwnDefaults) {
  const FeldWerte expected{"", "?", "", "?", "?", "1", 1, 2, 0, 1, 0, false, false, false, false};
  EXPECT_EQ(fromMainWindow().lesen(), expected);
}

TEST_F(OptionsOTest, EachControlShowsItsSetting) {
  store("KorInfo", "FirmaName", "Maker");
  store("MessInfo_O", "Bezeichnung", "Rail");
  store("KorInfo", "PfadMessFile", "/data/");
  store("MessInfo_O", "Bediener", "Anna");
  store("MessInfo_O", "Kommentar", "cold");
  store("KorInfo", "PortNr", "7");
  store("KorInfo", "BaudRate", "0");
  store("MessInfo_O", "Filter", "4");
  store("MessInfo_O", "Montage", "3");
  store("KorInfo", "NKStellen", "2");
  store("MessInfo_O", "SFak", "3");
  store("DruckInfo_O", "CheckXYDiagramm", "-1");
  store("DruckInfo_O", "CheckXTabelle", "0");
  store("DruckInfo_O", "CheckYTabelle", "-1");
  store("KorInfo", "AsciiDatei", "-1");
  EXPECT_EQ(shown("TextEinstellung(0)"), FeldWert("Maker"));
  EXPECT_EQ(shown("TextEinstellung(2)"), FeldWert("Rail"));
  EXPECT_EQ(shown("TextEinstellung(3)"), FeldWert("/data/"));
  EXPECT_EQ(shown("TextEinstellung(4)"), FeldWert("Anna"));
  EXPECT_EQ(shown("TextEinstellung(5)"), FeldWert("cold"));
  EXPECT_EQ(shown("TextEinstellung(6)"), FeldWert("7"));
  EXPECT_EQ(shown("cmbBpS"), FeldWert(0));
  EXPECT_EQ(shown("cmbFilter"), FeldWert(4));
  EXPECT_EQ(shown("cmbKameraBefestigung"), FeldWert(3));
  EXPECT_EQ(shown("cmbAnzStellen"), FeldWert(2));
  EXPECT_EQ(shown("cmbSfak"), FeldWert(2)) << "the key is one, whatever its letters' case";
  EXPECT_EQ(shown("CheckDiagramm"), FeldWert(true));
  EXPECT_EQ(shown("CheckTabelle(0)"), FeldWert(false));
  EXPECT_EQ(shown("CheckTabelle(1)"), FeldWert(true));
  EXPECT_EQ(shown("CheckAsciiDatei"), FeldWert(true));
}

TEST_F(OptionsOTest, ListsStayWithinTheirRange) {
  store("KorInfo", "BaudRate", "9");
  store("MessInfo_O", "Filter", "7");
  store("MessInfo_O", "Montage", "-4");
  store("KorInfo", "NKStellen", "12");
  store("MessInfo_O", "SFAK", "99");
  EXPECT_EQ(shown("cmbBpS"), FeldWert(1));
  EXPECT_EQ(shown("cmbFilter"), FeldWert(4));
  EXPECT_EQ(shown("cmbKameraBefestigung"), FeldWert(0));
  EXPECT_EQ(shown("cmbAnzStellen"), FeldWert(3));
  EXPECT_EQ(shown("cmbSfak"), FeldWert(0));
}

// ---- Writing ----

TEST_F(OptionsOTest, OkStoresEverythingInItsOrder) {
  const FeldWerte values{"Maker", "Rail", "/data/", "Anna", "cold", "7",  0,    4,
                         3,       2,      2,        true,   false,  true, false};
  fromMainWindow().uebernehmen(values, {});
  EXPECT_EQ(tree.written,
            (std::vector<std::string>{
                "KorInfo/FirmaName=Maker", "MessInfo_O/Bezeichnung=Rail", "KorInfo/PfadMessFile=/data/",
                "MessInfo_O/Bediener=Anna", "MessInfo_O/Kommentar=cold", "KorInfo/PortNr=7",
                "KorInfo/BaudRate=0", "MessInfo_O/Filter=4", "MessInfo_O/Montage=3", "KorInfo/NKStellen=2",
                "MessInfo_O/SFAK=3", "DruckInfo_O/CheckXYDiagramm=-1", "DruckInfo_O/CheckXTabelle=0",
                "DruckInfo_O/CheckYTabelle=-1", "KorInfo/AsciiDatei=0"}));
}

TEST_F(OptionsOTest, AStoreThatCannotBeWrittenIsPassedOverInSilence) {
  tree.writable = false;
  fromMainWindow().uebernehmen(fromMainWindow().lesen(), {});
  EXPECT_TRUE(messages.shown.empty());
}

// ---- The main window's dialog ----

TEST_F(OptionsOTest, FromTheMainWindowThePlanHasNoEffect) {
  info().StartZeit = 7;
  const PositionsInfo before = info();
  OptionsO dialog = fromMainWindow();
  EXPECT_FALSE(dialog.mitMessung());
  EXPECT_EQ(dialog.messplan(), MessplanTexte{});
  FeldWerte values = dialog.lesen();
  at(values, "cmbFilter") = 4;
  dialog.uebernehmen(values, {"5", "2", "15.03.23", "12:00:00", "", ""});
  EXPECT_EQ(toBytes(info()), toBytes(before));
  EXPECT_EQ(system.FilterVorgabe, '2');
}

// ---- The measuring window's dialog ----

TEST_F(OptionsOTest, ThePlanComesFromTheRecordAndGoesThere) {
  info().RestMP = 4;
  info().Intervall = 2;
  OptionsO dialog = fromPosition();
  EXPECT_TRUE(dialog.mitMessung());
  EXPECT_EQ(dialog.messplan(), (MessplanTexte{"4", "2", "", "", "", ""}));
  dialog.uebernehmen(dialog.lesen(), {"", "3.5", "15.03.23", "12:00:00", "16.03.23", "01:00:00"});
  EXPECT_EQ(info().RestMP, -1);
  EXPECT_EQ(info().Intervall, 3.5);
  EXPECT_TRUE(info().StartAktiv);
  EXPECT_EQ(info().StartZeit, 45000.5);
  EXPECT_TRUE(info().StopAktiv);
  EXPECT_EQ(info().StopZeit, 45001 + 1 / 24.0);
}

TEST_F(OptionsOTest, DecimalsAndTheChosenFilterHoldAtOnce) {
  confirm(3, 0, 1);
  EXPECT_EQ(info().NKStellen, 1);
  EXPECT_EQ(system.FilterVorgabe, '3');
}

TEST_F(OptionsOTest, TheSameFilterAndMountingLeaveThePointsAlone) {
  measure();
  confirm(2, 0);
  EXPECT_EQ(info().AnzahlMP, 2);
  EXPECT_TRUE(info().OffsetAktiv);
  EXPECT_TRUE(messages.shown.empty());
}

TEST_F(OptionsOTest, WithoutPointsNewValuesAreTakenUnasked) {
  info().ZeigeMittel = true;
  confirm(4, 2);
  EXPECT_TRUE(messages.shown.empty());
  EXPECT_EQ(filter(), "4");
  EXPECT_EQ(info().Montage, 2);
  EXPECT_FALSE(info().ZeigeMittel) << "the measurement is cleared";
}

TEST_F(OptionsOTest, WithPointsAQuestionComes) {
  measure();
  confirm(3, 0);
  ASSERT_EQ(messages.shown.size(), 1U);
  EXPECT_EQ(messages.shown[0].title, "KORVIN D5502");
  EXPECT_EQ(messages.shown[0].text, "D2038 ?");
  EXPECT_EQ(messages.shown[0].icon, MessageIcon::question);
  EXPECT_EQ(messages.shown[0].buttons, MessageButtons::yesNo);
}

TEST_F(OptionsOTest, YesClearsTheMeasurementAndTakesTheNewValues) {
  measure();
  messages.answers = {MessageAnswer::yes};
  confirm(3, 1);
  EXPECT_EQ(info().AnzahlMP, 0);
  EXPECT_EQ(formpos.punkte().X().anzahl(), 0U);
  EXPECT_FALSE(info().ZeigeMittel);
  EXPECT_FALSE(info().OffsetAktiv);
  EXPECT_EQ(info().OffsetMP, 0);
  EXPECT_EQ(formpos.arbeit().X.Offset, 0);
  EXPECT_EQ(filter(), "3");
  EXPECT_EQ(info().Montage, 1);
  EXPECT_EQ(system.FilterVorgabe, '3');
}

TEST_F(OptionsOTest, NoKeepsTheMeasurementButTheChosenFilterComesNext) {
  measure();
  messages.answers = {MessageAnswer::no};
  confirm(3, 1, 0);
  EXPECT_EQ(info().AnzahlMP, 2);
  EXPECT_TRUE(info().OffsetAktiv);
  EXPECT_EQ(filter(), "2");
  EXPECT_EQ(info().Montage, 0);
  EXPECT_EQ(system.FilterVorgabe, '3');
  EXPECT_EQ(info().NKStellen, 0);
  EXPECT_EQ(profil.wert("MessInfo_O", "Filter", ""), "3");
  EXPECT_EQ(profil.wert("MessInfo_O", "Montage", ""), "1");
}

TEST_F(OptionsOTest, AMountingAloneIsAskedForToo) {
  measure();
  messages.answers = {MessageAnswer::yes};
  confirm(2, 3);
  EXPECT_EQ(messages.shown.size(), 1U);
  EXPECT_EQ(info().AnzahlMP, 0);
  EXPECT_EQ(info().Montage, 3);
}

TEST_F(OptionsOTest, PortAndSpeedAreThereForTheNextGoingOnline) {
  OptionsO dialog = fromPosition();
  FeldWerte values = dialog.lesen();
  at(values, "TextEinstellung(6)") = "9";
  at(values, "cmbBpS") = 0;
  dialog.uebernehmen(values, {});
  EXPECT_EQ(erfassung.linkAngaben().port, 9);
  EXPECT_EQ(erfassung.linkAngaben().settings, "19200,N,8,1");
}

TEST_F(OptionsOTest, WhatBelongsToNewMeasurementsLeavesThisOneAlone) {
  info().Bezeichnung = "Old rail";
  info().SFak = 1;
  OptionsO dialog = fromPosition();
  FeldWerte values = dialog.lesen();
  at(values, "TextEinstellung(2)") = "New rail";
  at(values, "cmbSfak") = 2;
  dialog.uebernehmen(values, {});
  EXPECT_EQ(info().Bezeichnung.trimmed(), "Old rail");
  EXPECT_EQ(info().SFak, 1);
}

}  // namespace
}  // namespace korvin
