#include "position/commands.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>

#include "frame/datum_text.h"
#include "frame/messart.h"
#include "support/faulty_file_system.h"
#include "support/recording_view.h"
#include "support/test_file_info.h"
#include "support/test_files.h"

namespace korvin {
namespace {

/// The commands over a real folder; the file image shows what a save wrote.
class CommandsTest : public ::testing::Test {
 protected:
  CommandsTest() {
    world.system.DbPfad = "/nowhere/korvin.mdb";
    world.profil.ProfilSchreiben("", "KorInfo", "PfadMessFile", folder.path(""));
    task.ersteAktivierung();
  }
  PositionsInfo& info() { return formpos.Info(); }
  const PositionsInfo& written() { return formpos.bild().Info; }
  void change() {
    formpos.punktHinzufuegen(1);
    info().Geaendert = true;
  }
  void saved(const std::string& name) {
    info().DateiStatus = 2;
    info().DateiName = name;
  }
  void diskFails() {
    disk.failAt = disk.calls + 1;
    disk.number = ENOSPC;
    disk.stays = true;
  }
  void diskWorks() { disk.failAt = 0; }
  void answer(MessageAnswer a) { world.messages.answers.push_back(a); }
  void choose(const std::string& name) { fileDialog.answers.push_back(name); }
  bool exists(const std::string& name) { return std::filesystem::exists(folder.path(name)); }

  test::TestFolder folder;
  test::FaultyFileSystem disk;
  test::CycleWorld world;
  FORMPOS formpos;
  PositionsErfassung task{
      {world.clock, world.messages, world.dictionary, world.profil, world.meldung, world.system, formpos}};
  test::TestFileDialog fileDialog;
  test::TestFileInfo fileInfo;
  PositionsDateien files{{disk, world.messages, world.meldung, world.dictionary, world.profil, formpos}};
  PositionsDaten data{formpos, task, files};
  DateiBefehle commands{{world.clock, world.messages, fileDialog, fileInfo, world.dictionary, world.profil,
                         world.meldung, world.system, data}};
  int decided = 0;
  std::function<void()> onDecided = [this] { ++decided; };
};

// ---- The question ----

TEST_F(CommandsTest, UnchangedDataAskNothing) {
  EXPECT_TRUE(commands.aenderungenBehandelt());
  EXPECT_TRUE(world.messages.shown.empty());
  EXPECT_EQ(world.messages.beeps, 0);
}

TEST_F(CommandsTest, ChangedDataAskWithABeep) {
  change();
  answer(MessageAnswer::no);
  EXPECT_TRUE(commands.aenderungenBehandelt());
  ASSERT_EQ(world.messages.shown.size(), 1U);
  EXPECT_EQ(world.messages.shown[0].title, "KORVIN-D5502");
  EXPECT_EQ(world.messages.shown[0].text, "D6009");
  EXPECT_EQ(world.messages.shown[0].icon, MessageIcon::question);
  EXPECT_EQ(world.messages.shown[0].buttons, MessageButtons::yesNoCancel);
  EXPECT_EQ(world.messages.beeps, 1);
  EXPECT_TRUE(info().Geaendert);
}

TEST_F(CommandsTest, CancelAndTheBoxesCornerGiveTheStepUp) {
  change();
  answer(MessageAnswer::cancel);
  EXPECT_FALSE(commands.aenderungenBehandelt());
}

TEST_F(CommandsTest, YesSaves) {
  change();
  saved(folder.path("a.O"));
  answer(MessageAnswer::yes);
  EXPECT_TRUE(commands.aenderungenBehandelt());
  EXPECT_TRUE(exists("a.O"));
}

TEST_F(CommandsTest, YesWithAFailedSaveGivesTheStepUp) {
  change();
  saved(folder.path("a.O"));
  answer(MessageAnswer::yes);
  diskFails();
  EXPECT_FALSE(commands.aenderungenBehandelt());
  EXPECT_TRUE(info().Geaendert);
}

// ---- New ----

TEST_F(CommandsTest, NewStartsAnewWithTheDefaults) {
  change();
  saved(folder.path("a.O"));
  answer(MessageAnswer::no);
  world.profil.ProfilSchreiben("", "MessInfo_O", "Bediener", "Ada");
  EXPECT_TRUE(commands.M_Neu(onDecided));
  EXPECT_EQ(decided, 1);
  EXPECT_EQ(info().AnzahlMP, 0);
  EXPECT_EQ(info().DateiStatus, 0);
  EXPECT_FALSE(info().Geaendert);
  EXPECT_EQ(info().Bediener.trimmed(), "Ada");
}

TEST_F(CommandsTest, NewThatIsGivenUpDecidesNothing) {
  change();
  answer(MessageAnswer::cancel);
  EXPECT_FALSE(commands.M_Neu(onDecided));
  EXPECT_EQ(decided, 0);
  EXPECT_EQ(info().AnzahlMP, 1);
}

// ---- Open ----

TEST_F(CommandsTest, OpenLoadsTheChosenFile) {
  choose(folder.copyOf("reference/point.O"));
  folder.copyOf("reference/point.O1");
  world.system.Messart = 0;
  EXPECT_TRUE(commands.M_Oeffnen([this] {
    ++decided;
    EXPECT_EQ(info().AnzahlMP, 0) << "a run has to end before the points are exchanged";
  }));
  EXPECT_EQ(decided, 1);
  EXPECT_EQ(info().AnzahlMP, 40);
  EXPECT_EQ(info().DateiStatus, 1);
  EXPECT_EQ(world.system.Messart, MessartPosition);
  ASSERT_EQ(fileDialog.requests.size(), 1U);
  EXPECT_EQ(fileDialog.requests[0].filter, "D505(*.O)|*.O");
  EXPECT_EQ(fileDialog.requests[0].title, "D2044");
  EXPECT_EQ(fileDialog.requests[0].folder, folder.path(""));
  EXPECT_TRUE(fileDialog.requests[0].open);
}

TEST_F(CommandsTest, OpenKeepsTheChangedMarkOfAFileWithAnotherLength) {
  choose(folder.copyOf("reference/short.O"));
  folder.copyOf("reference/short.O1");
  answer(MessageAnswer::yes);
  EXPECT_TRUE(commands.M_Oeffnen(onDecided));
  EXPECT_TRUE(info().Geaendert);
  EXPECT_EQ(info().DateiStatus, 1);
}

TEST_F(CommandsTest, OpenWithoutAChosenFileChangesNothing) {
  EXPECT_FALSE(commands.M_Oeffnen(onDecided));
  EXPECT_EQ(decided, 0);
}

TEST_F(CommandsTest, RefusedFileKeepsTheWorkingRecord) {
  saved(folder.path("a.O"));
  info().Bezeichnung = "kept";
  choose(folder.copyOf("reference/miscount.O"));
  folder.copyOf("reference/miscount.O1");
  EXPECT_FALSE(commands.M_Oeffnen(onDecided));
  EXPECT_EQ(world.messages.shown.size(), 1U);
  EXPECT_EQ(info().Bezeichnung.trimmed(), "kept");
  EXPECT_EQ(info().DateiStatus, 2);
}

// ---- Save ----

TEST_F(CommandsTest, SaveOfSavedDataWritesTheSameFileWithTheDate) {
  change();
  saved(folder.path("a.O"));
  EXPECT_TRUE(commands.M_Speichern());
  EXPECT_TRUE(exists("a.O"));
  EXPECT_EQ(written().Datum.trimmed(), "15.03 2023 / 12:00:00");
  EXPECT_FALSE(info().Geaendert);
  EXPECT_TRUE(fileDialog.requests.empty());
  EXPECT_EQ(fileInfo.asked, 0);
}

TEST_F(CommandsTest, FailedSaveTakesTheDateBack) {
  change();
  saved(folder.path("a.O"));
  diskFails();
  EXPECT_FALSE(commands.M_Speichern());
  EXPECT_EQ(info().Datum.trimmed(), LeerDatum);
  EXPECT_TRUE(info().Geaendert);
}

TEST_F(CommandsTest, NewAndLoadedDataAskForTheName) {
  for (const std::int16_t status : {std::int16_t{0}, std::int16_t{1}}) {
    info().DateiStatus = status;
    EXPECT_FALSE(commands.M_Speichern());
  }
  ASSERT_EQ(fileDialog.requests.size(), 2U);
  EXPECT_EQ(fileDialog.requests[0].filter, "D505(*.O)|");
  EXPECT_EQ(fileDialog.requests[0].title, "D2045");
  EXPECT_FALSE(fileDialog.requests[0].open);
}

TEST_F(CommandsTest, SaveAsOffersTheNameThatTheMeasurementHas) {
  info().DateiName = "/mess/*.O";
  commands.M_SpeichernUnter();
  info().DateiName = "/mess/rail.O";
  commands.M_SpeichernUnter();
  info().DateiName = "";
  commands.M_SpeichernUnter();
  ASSERT_EQ(fileDialog.requests.size(), 3U);
  EXPECT_EQ(fileDialog.requests[0].name, "") << "a mask is no name";
  EXPECT_EQ(fileDialog.requests[1].name, "rail.O");
  EXPECT_EQ(fileDialog.requests[2].name, "");
}

TEST_F(CommandsTest, SaveAsAsksForInformationAndWrites) {
  change();
  choose(folder.path("beam"));
  EXPECT_TRUE(commands.M_SpeichernUnter());
  EXPECT_TRUE(exists("beam.O"));
  EXPECT_EQ(written().DateiStatus, 2);
  EXPECT_EQ(written().DateiName.trimmed(), folder.path("beam.O"));
  EXPECT_EQ(written().Datum.trimmed(), "15.03 2023 / 12:00:00");
  EXPECT_EQ(written().Kommentar.trimmed(), "edited");
  EXPECT_FALSE(info().InfoAbbruch);
  EXPECT_FALSE(info().Geaendert);
}

TEST_F(CommandsTest, CancelledInformationWritesNothing) {
  change();
  choose(folder.path("beam.O"));
  fileInfo.accepted = false;
  const std::string name(info().DateiName.trimmed());
  EXPECT_FALSE(commands.M_SpeichernUnter());
  EXPECT_FALSE(exists("beam.O"));
  EXPECT_TRUE(info().InfoAbbruch);
  EXPECT_EQ(info().DateiStatus, 0);
  EXPECT_EQ(info().DateiName.trimmed(), name);
  EXPECT_TRUE(info().Geaendert);
}

TEST_F(CommandsTest, NameIsKeptInWindows1252) {
  choose(folder.path("Prüfling.O"));
  EXPECT_TRUE(commands.M_SpeichernUnter());
  EXPECT_TRUE(exists("Prüfling.O"));
  EXPECT_TRUE(
      written().DateiName.trimmed().ends_with("Pr\xFC"
                                              "fling.O"));
  EXPECT_TRUE(commands.M_Speichern());
}

/// Names that no record can hold are refused with a message; the record keeps its own.
TEST_F(CommandsTest, NameThatDoesNotFitIsRefusedBeforeTheUserTypes) {
  saved(folder.path("a.O"));
  for (const std::string& name : {std::string(80, 'b') + ".O", std::string("測定.O")}) {
    world.messages.shown.clear();
    choose(folder.path(name));
    EXPECT_FALSE(commands.M_SpeichernUnter());
    EXPECT_EQ(world.messages.shown.size(), 1U);
    EXPECT_FALSE(exists(name));
    EXPECT_EQ(info().DateiName.trimmed(), folder.path("a.O"));
    EXPECT_EQ(info().DateiStatus, 2);
    EXPECT_EQ(fileInfo.asked, 0);
  }
}

TEST_F(CommandsTest, AfterAFailedSaveAsTheNextSaveAsksForTheName) {
  change();
  saved(folder.path("a.O"));
  choose(folder.path("b.O"));
  diskFails();
  EXPECT_FALSE(commands.M_SpeichernUnter());
  EXPECT_EQ(info().DateiName.trimmed(), folder.path("a.O"));
  EXPECT_TRUE(info().Geaendert);
  diskWorks();
  choose(folder.path("c.O"));
  EXPECT_TRUE(commands.M_Speichern());
  EXPECT_TRUE(exists("c.O"));
  EXPECT_FALSE(exists("b.O"));
  EXPECT_FALSE(exists("a.O")) << "the user had turned away from it";
}

TEST_F(CommandsTest, RefusedFileDecidesNothing) {
  choose(folder.copyOf("reference/miscount.O"));
  folder.copyOf("reference/miscount.O1");
  EXPECT_FALSE(commands.M_Oeffnen(onDecided));
  EXPECT_EQ(decided, 0) << "a run goes on";
}

TEST_F(CommandsTest, PointsMeasuredBehindTheOpenDialogAreAskedForToo) {
  change();
  answer(MessageAnswer::no);      // the points so far are given up
  answer(MessageAnswer::cancel);  // those that came meanwhile are not
  fileDialog.whileOpen = [this] { change(); };
  choose(folder.copyOf("reference/point.O"));
  folder.copyOf("reference/point.O1");
  EXPECT_FALSE(commands.M_Oeffnen(onDecided));
  EXPECT_EQ(world.messages.shown.size(), 2U);
  EXPECT_EQ(info().AnzahlMP, 2);
}

}  // namespace
}  // namespace korvin
