#include "frame/programmstart.h"

#include <gmock/gmock.h>

#include "frame/sqlite_settings_tree.h"
#include "support/temp_folder.h"
#include "support/test_ports.h"

namespace korvin {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// The main window's surroundings on a given store.
struct Start {
  explicit Start(SettingsTree& store) : tree(store) {}

  Startergebnis laden() {
    return start.laden("/opt/korvin", {1280, 1024}, [this] { openedAt = platz.system.DbPfad; });
  }
  std::string wert(const std::string& key) { return profil.wert("KorInfo", key, "missing"); }

  Messplatz platz;
  test::TestDictionary dictionary;
  test::TestMessages messages;
  SessionSettingsTree tree;
  Profil profil{tree};
  Anzeigewahl anzeige{profil, platz.system};
  Programmstart start{platz.system, platz.meldung, tree, anzeige, dictionary, messages};
  std::string openedAt;
};

/// A tree that keeps each write.
class WatchedTree : public test::MemorySettingsTree {
 public:
  bool writeValue(std::string_view path, std::string_view name, const RegWert& value) override {
    ++writes;
    return test::MemorySettingsTree::writeValue(path, name, value);
  }
  Creation createKey(std::string_view path, std::string_view className) override {
    ++writes;
    return test::MemorySettingsTree::createKey(path, className);
  }
  bool deleteKey(std::string_view path) override {
    ++writes;
    if (deletionsLeft-- <= 0) return false;
    return test::MemorySettingsTree::deleteKey(path);
  }

  int writes = 0;
  int deletionsLeft = 1000;
};

class ProgrammstartTest : public testing::Test {
 protected:
  void makeTree(const std::string& version = "v555") {
    KorRegistry(store).RegistryAnlegen("/opt/korvin");
    set("Version", version);
    set("FirmaName", "Muster AG");
    store.writes = 0;
  }
  void set(const std::string& key, const std::string& value) {
    store.writeValue(RegSektionPfad("KorInfo"), key, value);
    store.writes = 0;
  }

  WatchedTree store;
  Start program{store};
  test::TestMessages& messages = program.messages;
};

TEST_F(ProgrammstartTest, TheDictionaryIsOpenedBesideTheProgramBeforeAnythingSpeaks) {
  makeTree();
  program.laden();
  EXPECT_EQ(program.openedAt, "/opt/korvin/korvin.mdb");
  EXPECT_EQ(program.platz.system.DbPfad, "/opt/korvin/korvin.mdb");
}

TEST_F(ProgrammstartTest, TheFirstActivationComesOnceAfterTheLoading) {
  EXPECT_FALSE(program.start.ersteAktivierung());
  makeTree();
  program.laden();
  EXPECT_TRUE(program.start.ersteAktivierung());
  EXPECT_FALSE(program.start.ersteAktivierung());
}

TEST(Skala, TheDesignFor1280By1024FillsTheScreen) {
  EXPECT_DOUBLE_EQ(skalaX(1280), 1);
  EXPECT_DOUBLE_EQ(skalaY(1024), 1);
  EXPECT_DOUBLE_EQ(skalaX(3840), 3);
  EXPECT_DOUBLE_EQ(skalaX(1024), 0.8);
  EXPECT_DOUBLE_EQ(skalaY(768), 0.75);
  EXPECT_DOUBLE_EQ(skalaX(0), 1);
  EXPECT_DOUBLE_EQ(skalaY(-5), 1);
}

TEST_F(ProgrammstartTest, TheFactorsOfTheScreenAreKept) {
  makeTree();
  program.start.laden("/p", {2560, 512}, [] {});
  EXPECT_DOUBLE_EQ(program.platz.system.SkalaX, 2);
  EXPECT_DOUBLE_EQ(program.platz.system.SkalaY, 0.5);
}

TEST_F(ProgrammstartTest, AGoodTreeIsReadAndNothingWritten) {
  makeTree();
  set("Sprache", "6");
  set("MassArt", "1");
  EXPECT_EQ(program.laden(), Startergebnis::weiter);
  EXPECT_EQ(program.platz.system.SpracheSpalte, "Chinese");
  EXPECT_EQ(program.platz.system.Masssystem, 1);
  EXPECT_EQ(program.anzeige.Sprache(), 6);
  EXPECT_EQ(store.writes, 0);
  EXPECT_THAT(messages.shown, IsEmpty());
  EXPECT_EQ(program.platz.meldung.MsgTitel, "D600");
  EXPECT_EQ(program.platz.meldung.MsgText, "D601");
}

TEST_F(ProgrammstartTest, ALanguageOutOfRangeIsGermanAndNotStoredBack) {
  makeTree();
  for (const char* stored : {"9", "8", "-1", "99999999", "nonsense", ""}) {
    set("Sprache", stored);
    EXPECT_EQ(program.laden(), Startergebnis::weiter);
    EXPECT_EQ(program.platz.system.SpracheSpalte, "Deutsch") << stored;
    EXPECT_EQ(program.anzeige.Sprache(), 0);
    EXPECT_EQ(program.wert("Sprache"), stored);
  }
  EXPECT_EQ(store.writes, 0);
}

TEST_F(ProgrammstartTest, LanguagesFrom0To7HaveTheirColumns) {
  makeTree();
  std::vector<std::string> columns;
  for (int i = 0; i < 8; ++i) {
    set("Sprache", std::to_string(i));
    program.laden();
    columns.push_back(program.platz.system.SpracheSpalte);
  }
  EXPECT_THAT(columns, ElementsAre("Deutsch", "Englisch", "Franzoesisch", "Italienisch", "Spanisch",
                                   "Schwedisch", "Chinese", "Japanese"));
}

TEST_F(ProgrammstartTest, AUnitSystemOutOfRangeIsMetricAndNotStoredBack) {
  makeTree();
  for (const char* stored : {"2", "-1", "x"}) {
    set("MassArt", stored);
    program.laden();
    EXPECT_EQ(program.platz.system.Masssystem, 0) << stored;
    EXPECT_EQ(program.wert("MassArt"), stored);
  }
  EXPECT_EQ(store.writes, 0);
}

TEST_F(ProgrammstartTest, TheUsersChoiceIsStoredAndInForceAtOnce) {
  makeTree();
  program.laden();
  program.anzeige.M_SprachArt(5);
  program.anzeige.M_MassArt(1);
  EXPECT_EQ(program.platz.system.SpracheSpalte, "Schwedisch");
  EXPECT_EQ(program.platz.system.Masssystem, 1);
  EXPECT_EQ(program.wert("Sprache"), "5");
  EXPECT_EQ(program.wert("MassArt"), "1");
  Start next(store);
  next.laden();
  EXPECT_EQ(next.platz.system.SpracheSpalte, "Schwedisch");
  EXPECT_EQ(next.platz.system.Masssystem, 1);
}

TEST_F(ProgrammstartTest, AMissingTreeIsToldAndMade) {
  EXPECT_EQ(program.laden(), Startergebnis::weiter);
  ASSERT_EQ(messages.shown.size(), 1U);
  EXPECT_EQ(messages.shown[0].title, "D600");
  EXPECT_EQ(messages.shown[0].text, "D602");
  EXPECT_EQ(messages.shown[0].icon, MessageIcon::question);
  EXPECT_EQ(messages.shown[0].buttons, MessageButtons::ok);
  EXPECT_EQ(messages.beeps, 0);
  EXPECT_EQ(program.wert("Version"), "v555");
  EXPECT_EQ(program.wert("PfadMessFile"), "/opt/korvin/KorFiles/");
  EXPECT_EQ(program.platz.system.SpracheSpalte, "Englisch");
}

TEST_F(ProgrammstartTest, ATreeOfAnyOtherVersionIsMadeAnew) {
  for (const char* version : {"v554", "v556", "V555", "", "v5555"}) {
    makeTree(version);
    store.writeValue(RegSektionPfad("MessInfo_O"), "Filter", "4");
    EXPECT_EQ(program.laden(), Startergebnis::weiter) << version;
    EXPECT_EQ(program.wert("Version"), "v555");
    EXPECT_EQ(program.wert("FirmaName"), "");
    EXPECT_EQ(program.profil.wert("MessInfo_O", "Filter", "gone"), "gone");
    ASSERT_EQ(messages.shown.size(), 1U);
    EXPECT_EQ(messages.shown[0].text, "D602");
    messages.shown.clear();
    store.keys.clear();
  }
}

TEST_F(ProgrammstartTest, TheVersionIsComparedWithoutBlanksAround) {
  makeTree(" v555 ");
  program.laden();
  EXPECT_EQ(program.wert("FirmaName"), "Muster AG");
}

TEST_F(ProgrammstartTest, ATreeWithoutKorInfoIsAnotherVersion) {
  store.createKey(RegSektionPfad("MessInfo_O"), "");
  EXPECT_EQ(program.laden(), Startergebnis::weiter);
  EXPECT_EQ(program.wert("Version"), "v555");
}

TEST_F(ProgrammstartTest, AnotherVersionThatCannotBeDeletedEndsTheProgram) {
  makeTree("v554");
  store.deletionsLeft = 0;
  EXPECT_EQ(program.laden(), Startergebnis::beenden);
  ASSERT_EQ(messages.shown.size(), 1U);
  EXPECT_EQ(messages.shown[0].title, "D600");
  EXPECT_EQ(messages.shown[0].text, "D601");
  EXPECT_EQ(messages.shown[0].icon, MessageIcon::warning);
  EXPECT_EQ(messages.beeps, 1);
  EXPECT_EQ(program.wert("FirmaName"), "Muster AG");
}

TEST_F(ProgrammstartTest, AMissingTreeThatCannotBeMadeEndsTheProgram) {
  store.writable = false;
  EXPECT_EQ(program.laden(), Startergebnis::beenden);
  ASSERT_EQ(messages.shown.size(), 2U);
  EXPECT_EQ(messages.shown[0].text, "D602");
  EXPECT_EQ(messages.shown[1].text, "D601");
  EXPECT_EQ(messages.shown[1].icon, MessageIcon::warning);
  EXPECT_EQ(messages.beeps, 1);
}

TEST_F(ProgrammstartTest, AStoreThatCannotBeReadIsKeptAndTheSessionWorksInMemory) {
  makeTree("v554");
  store.unreadableText = "file is not a database";
  EXPECT_EQ(program.laden(), Startergebnis::weiter);
  ASSERT_EQ(messages.shown.size(), 1U);
  EXPECT_EQ(messages.shown[0].title, "D600");
  EXPECT_EQ(messages.shown[0].text, "D7060\r\n\r\nfile is not a database\r\n\r\nD7062");
  EXPECT_EQ(messages.shown[0].icon, MessageIcon::warning);
  EXPECT_EQ(messages.beeps, 1);
  EXPECT_EQ(program.wert("NKStellen"), "2");
  EXPECT_EQ(program.wert("PfadMessFile"), "/opt/korvin/KorFiles/");
  program.anzeige.M_SprachArt(3);
  EXPECT_EQ(program.wert("Sprache"), "3");
  EXPECT_EQ(store.writes, 0);
  store.unreadableText.clear();
  EXPECT_EQ(Profil(store).wert("KorInfo", "FirmaName", ""), "Muster AG");
}

TEST_F(ProgrammstartTest, ALockHasItsOwnWords) {
  store.unreadableText = "database is locked";
  store.locked = true;
  EXPECT_EQ(program.laden(), Startergebnis::weiter);
  ASSERT_EQ(messages.shown.size(), 1U);
  EXPECT_EQ(messages.shown[0].text, "D7061\r\n\r\ndatabase is locked\r\n\r\nD7062");
}

/// Fails just when the version is read.
class FailingTree : public WatchedTree {
 public:
  std::optional<RegWert> readValue(std::string_view path, std::string_view name) override {
    if (name == "Version") unreadableText = "disk I/O error";
    return WatchedTree::readValue(path, name);
  }
};

TEST(ProgrammstartFailing, AVersionThatCannotBeReadIsNotAnotherVersion) {
  FailingTree store;
  KorRegistry(store).RegistryAnlegen("/opt/korvin");
  store.writes = 0;
  Start program(store);
  EXPECT_EQ(program.laden(), Startergebnis::weiter);
  ASSERT_EQ(program.messages.shown.size(), 1U);
  EXPECT_THAT(program.messages.shown[0].text, HasSubstr("disk I/O error"));
  EXPECT_EQ(store.writes, 0);
}

/// Can't be read any more once something is to be deleted.
class TreeLostOnDeleting : public WatchedTree {
 public:
  bool deleteKey(std::string_view) override {
    unreadableText = "disk I/O error";
    return false;
  }
};

TEST(ProgrammstartFailing, AStoreThatGoesWhileItIsMadeAnewDoesNotEndTheProgram) {
  TreeLostOnDeleting store;
  KorRegistry(store).RegistryAnlegen("/opt/korvin");
  store.writeValue(RegSektionPfad("KorInfo"), "Version", "v554");
  Start program(store);
  EXPECT_EQ(program.laden(), Startergebnis::weiter);
  ASSERT_EQ(program.messages.shown.size(), 1U);
  EXPECT_EQ(program.messages.shown[0].text, "D7060\r\n\r\ndisk I/O error\r\n\r\nD7062");
  EXPECT_EQ(program.wert("Version"), "v555");
}

/// Another start of the program makes the tree while the question stands.
class QuickerStart : public test::TestMessages {
 public:
  explicit QuickerStart(SettingsTree& store) : store_(store) {}
  MessageAnswer show(const Meldung& message, MessageIcon icon, MessageButtons buttons) override {
    KorRegistry(store_).RegistryAnlegen("/other");
    return test::TestMessages::show(message, icon, buttons);
  }

 private:
  SettingsTree& store_;
};

TEST(ProgrammstartTwice, ATreeThatAnotherStartMadeMeanwhileIsAsGood) {
  WatchedTree store;
  SessionSettingsTree tree(store);
  test::TestDictionary dictionary;
  QuickerStart messages(store);
  Meldung meldung;
  EXPECT_EQ(EinstellungsPruefung(tree, dictionary, messages, meldung, "/mine").pruefen(),
            Startergebnis::weiter);
  ASSERT_EQ(messages.shown.size(), 1U);
  EXPECT_EQ(Profil(store).wert("KorInfo", "PfadMessFile", ""), "/other/KorFiles/");
}

/// Another start of the program makes the tree anew just before this one would delete it.
class OvertakenTree : public test::MemorySettingsTree {
 public:
  bool inOneChange(const std::function<bool()>& steps) override {
    writeValue(RegSektionPfad("KorInfo"), "Version", "v555");
    return steps();
  }
};

TEST(ProgrammstartTwice, WhatAnotherStartMadeAnewIsNotDeleted) {
  OvertakenTree store;
  KorRegistry(store).RegistryAnlegen("/p");
  store.writeValue(RegSektionPfad("KorInfo"), "Version", "v554");
  store.writeValue(RegSektionPfad("KorInfo"), "FirmaName", "new");
  Start program(store);
  EXPECT_EQ(program.laden(), Startergebnis::weiter);
  EXPECT_THAT(program.messages.shown, IsEmpty());
  EXPECT_EQ(program.wert("FirmaName"), "new");
}

TEST(ProgrammstartOnFile, GarbageInPlaceOfTheSettingsIsKeptByteForByte) {
  const test::TempFolder folder;
  const std::string garbage = "these are no settings";
  test::writeBytes(folder / "settings.db", garbage);
  SqliteSettingsTree store(folder / "settings.db");
  Start program(store);
  EXPECT_EQ(program.laden(), Startergebnis::weiter);
  program.anzeige.M_MassArt(1);
  EXPECT_EQ(program.wert("MassArt"), "1");
  ASSERT_EQ(program.messages.shown.size(), 1U);
  EXPECT_EQ(program.messages.shown[0].text, "D7060\r\n\r\nfile is not a database\r\n\r\nD7062");
  EXPECT_EQ(test::fileBytes(folder / "settings.db"), garbage);
}

TEST(ProgrammstartOnFile, AFirstStartAndASecondOne) {
  const test::TempFolder folder;
  {
    SqliteSettingsTree store(folder / "korvin" / "settings.db");
    Start first(store);
    EXPECT_EQ(first.laden(), Startergebnis::weiter);
    EXPECT_EQ(first.messages.shown.size(), 1U);
    first.anzeige.M_SprachArt(2);
    EXPECT_EQ(store.className(RegSektionPfad("ToleranzParallel_R")), "RechtwinkelmessungsDaten");
  }
  SqliteSettingsTree store(folder / "korvin" / "settings.db");
  Start second(store);
  EXPECT_EQ(second.laden(), Startergebnis::weiter);
  EXPECT_THAT(second.messages.shown, IsEmpty());
  EXPECT_EQ(second.platz.system.SpracheSpalte, "Franzoesisch");
}

}  // namespace
}  // namespace korvin
