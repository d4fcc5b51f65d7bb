#include "straightness/commands.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>

#include "frame/cp1252.h"
#include "frame/datum_text.h"
#include "straightness/file_stand.h"
#include "support/test_clock.h"
#include "support/test_file_info.h"

namespace korvin {
namespace {

/// New, Open and Save on a straightness series over a real folder; the file image shows what a save wrote.
/// What all kinds share is tested with position.
class StraightnessCommandsTest : public StraightnessFileStand {
 protected:
  StraightnessCommandsTest() {
    system.DbPfad = "/nowhere/korvin.mdb";
    profil.ProfilSchreiben("", "KorInfo", "PfadMessFile", folder.path(""));
    data.neu();
  }
  GeradInfo& info() { return series().Info; }
  void change() { formgera.punktEintragen(0.1, 0.2); }
  void choose(const std::string& name) { fileDialog.answers.push_back(name); }
  bool exists(const std::string& name) { return std::filesystem::exists(folder.path(name)); }
  void diskFails() {
    faulty.failAt = faulty.calls + 1;
    faulty.number = ENOSPC;
    faulty.stays = true;
  }

  test::TestClock clock;
  test::TestFileDialog fileDialog;
  test::TestFileInfo fileInfo;
  test::FaultyFileSystem faulty;
  GeradDateien dateien = files(faulty);
  GeradDaten data{formgera, dateien, profil, system};
  DateiBefehle commands{{clock, messages, fileDialog, fileInfo, dictionary, profil, meldung, system, data}};
  int decided = 0;
  std::function<void()> onDecided = [this] { ++decided; };
};

TEST_F(StraightnessCommandsTest, EveryReadingMarksTheSeriesAsChanged) {
  EXPECT_TRUE(commands.aenderungenBehandelt());
  change();
  answer(MessageAnswer::cancel);
  EXPECT_FALSE(commands.aenderungenBehandelt());
  EXPECT_EQ(onlyMessage().title, "KORVIN-D5500");
  EXPECT_EQ(onlyMessage().text, "D6009");
}

TEST_F(StraightnessCommandsTest, NewTakesTheSettings) {
  change();
  info().DateiStatus = 2;
  profil.ProfilSchreiben("", "MessInfo_G", "AnzMPs", "9");
  answer(MessageAnswer::no);
  EXPECT_TRUE(commands.M_Neu(onDecided));
  EXPECT_EQ(decided, 1);
  EXPECT_EQ(series().Linie.AnzMPs, 9);
  EXPECT_EQ(info().DateiStatus, 0);
  EXPECT_FALSE(info().Geaendert);
  EXPECT_EQ(info().DateiName.trimmed(), folder.path("*.G"));
}

TEST_F(StraightnessCommandsTest, OpenShowsTheFileUnderTheNameStoredInIt) {
  choose(folder.copyOf("reference/six.G"));
  EXPECT_TRUE(commands.M_Oeffnen(onDecided));
  EXPECT_EQ(decided, 1);
  EXPECT_EQ(series().X.Wert.at(1), -0.043);
  EXPECT_EQ(info().DateiStatus, 1);
  EXPECT_FALSE(info().Geaendert);
  EXPECT_EQ(vonCp1252(info().DateiName.trimmed()), "C:\\KorFiles\\Führungsbahn 60.G");
  EXPECT_EQ(system.Messart, MessartGeradheit);
  ASSERT_EQ(fileDialog.requests.size(), 1U);
  EXPECT_EQ(fileDialog.requests[0].filter, "D501(*.G)|*.G");
  EXPECT_EQ(fileDialog.requests[0].title, "D2044");
}

TEST_F(StraightnessCommandsTest, OpenOfAnOlderFormLeavesItToBeSaved) {
  choose(folder.copyOf("reference/old.G"));
  answer(MessageAnswer::yes);
  EXPECT_TRUE(commands.M_Oeffnen(onDecided));
  EXPECT_TRUE(info().Geaendert);
  EXPECT_EQ(info().DateiStatus, 1);
}

TEST_F(StraightnessCommandsTest, RefusedFileKeepsTheSeries) {
  change();
  info().DateiStatus = 2;
  const auto before = toBytes(series());
  answer(MessageAnswer::no);   // the question of the changes
  answer(MessageAnswer::yes);  // the question of the length
  choose(folder.copyOf("reference/short.G"));
  EXPECT_FALSE(commands.M_Oeffnen(onDecided));
  EXPECT_EQ(decided, 0);
  EXPECT_EQ(toBytes(series()), before);
}

TEST_F(StraightnessCommandsTest, ReadingsTakenBehindTheOpenDialogAreAskedForToo) {
  change();
  answer(MessageAnswer::no);
  answer(MessageAnswer::cancel);
  fileDialog.whileOpen = [this] { change(); };
  choose(folder.copyOf("reference/six.G"));
  EXPECT_FALSE(commands.M_Oeffnen(onDecided));
  EXPECT_EQ(messages.shown.size(), 2U);
  EXPECT_EQ(series().X.Wert.at(1), 0.1);
}

TEST_F(StraightnessCommandsTest, ALoadedFileIsNeverSavedOverWithoutTheDialog) {
  const std::string file = folder.copyOf("reference/six.G");
  const std::string before = test::readFile(file);
  choose(file);
  ASSERT_TRUE(commands.M_Oeffnen(onDecided));
  EXPECT_FALSE(commands.M_Speichern()) << "the dialog was left by Cancel";
  ASSERT_EQ(fileDialog.requests.size(), 2U);
  EXPECT_EQ(fileDialog.requests[1].filter, "D501(*.G)|");
  EXPECT_EQ(fileDialog.requests[1].title, "D2045");
  EXPECT_EQ(fileDialog.requests[1].name, "Führungsbahn 60.G") << "the name stored in the file";
  EXPECT_EQ(test::readFile(file), before);
}

TEST_F(StraightnessCommandsTest, SaveAsAsksForInformationAndWrites) {
  change();
  choose(folder.path("rail"));
  EXPECT_TRUE(commands.M_Speichern());
  EXPECT_EQ(fileInfo.asked, 1);
  EXPECT_EQ(folder.names(), std::vector<std::string>{"rail.G"});
  EXPECT_EQ(image().Info.DateiStatus, 2);
  EXPECT_EQ(image().Info.DateiName.trimmed(), folder.path("rail.G"));
  EXPECT_EQ(image().Info.Datum.trimmed(), DatumText(clock));
  EXPECT_EQ(image().Info.Kommentar.trimmed(), "edited");
  EXPECT_EQ(image().X.Wert.at(1), 0.1);
  EXPECT_FALSE(info().Geaendert);
  EXPECT_FALSE(info().InfoAbbruch);
}

TEST_F(StraightnessCommandsTest, CancelledInformationWritesNothing) {
  change();
  choose(folder.path("rail.G"));
  fileInfo.accepted = false;
  EXPECT_FALSE(commands.M_SpeichernUnter());
  EXPECT_TRUE(folder.names().empty());
  EXPECT_TRUE(info().InfoAbbruch);
  EXPECT_EQ(info().DateiStatus, 0);
  EXPECT_TRUE(info().Geaendert);
}

TEST_F(StraightnessCommandsTest, SavedDataAreWrittenAnewWithTheDate) {
  choose(folder.path("rail.G"));
  ASSERT_TRUE(commands.M_SpeichernUnter());
  change();
  EXPECT_TRUE(commands.M_Speichern());
  EXPECT_EQ(fileInfo.asked, 1);
  EXPECT_EQ(fileDialog.requests.size(), 1U);
  EXPECT_EQ(image().X.Wert.at(1), 0.1);
  EXPECT_FALSE(info().Geaendert);
}

TEST_F(StraightnessCommandsTest, FailedSaveTakesTheDateBack) {
  choose(folder.path("rail.G"));
  ASSERT_TRUE(commands.M_SpeichernUnter());
  change();
  diskFails();
  EXPECT_FALSE(commands.M_Speichern());
  EXPECT_EQ(onlyMessage().title.find("D1100 (g_DateiSpeichern): "), 0U);
  EXPECT_EQ(info().Datum.trimmed(), LeerDatum);
  EXPECT_TRUE(info().Geaendert);
}

}  // namespace
}  // namespace korvin
