#include "frame/pfade.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <string>

#include "frame/datei_dialog.h"
#include "support/temp_folder.h"
#include "support/test_ports.h"

namespace korvin {
namespace {

namespace fs = std::filesystem;

class PfadeTest : public testing::Test {
 protected:
  std::string inFolder(const std::string& name) const { return folder + "/" + name; }
  void write(const std::string& name) const { std::ofstream(inFolder(name)) << "x"; }

  const test::TempFolder own;
  const std::string folder = own.path().string();
};

TEST_F(PfadeTest, ABlankMeasuringFolderIsMadeBesideTheProgram) {
  EXPECT_EQ(MessOrdner("", folder), inFolder("KorFiles/"));
  EXPECT_TRUE(fs::is_directory(inFolder("KorFiles")));
  EXPECT_EQ(MessOrdner("   ", folder + "/"), inFolder("KorFiles/"))
      << "also if it is there, with one separator only";
}

TEST_F(PfadeTest, TheProgramsFolderIsMadeTooAndMayBeNamedInAnyLanguage) {
  EXPECT_EQ(MessOrdner("", inFolder("Grün/測定")), inFolder("Grün/測定/KorFiles/"));
  EXPECT_TRUE(fs::is_directory(inFolder("Grün/測定/KorFiles")));
}

TEST_F(PfadeTest, AnyOtherMeasuringFolderStandsAsItIsAndIsNotMade) {
  EXPECT_EQ(MessOrdner(inFolder("elsewhere "), folder), inFolder("elsewhere "));
  EXPECT_TRUE(fs::is_empty(folder));
}

TEST_F(PfadeTest, AFolderThatCannotBeMadeIsNoFailure) {
  write("file");
  EXPECT_EQ(MessOrdner("", inFolder("file")), inFolder("file/KorFiles/"));
}

TEST_F(PfadeTest, DeletesAFileAndIgnoresFailures) {
  write("Größe.O");
  dateiLoeschen(inFolder("Größe.O"));
  EXPECT_FALSE(fs::exists(inFolder("Größe.O")));
  dateiLoeschen(inFolder("Größe.O"));
  dateiLoeschen("");
  fs::create_directory(inFolder("empty"));
  dateiLoeschen(inFolder("empty"));
  EXPECT_TRUE(fs::exists(inFolder("empty"))) << "a folder is no file";
}

TEST(Pfade, ExtensionLetterOfAMask) {
  EXPECT_EQ(EndungsBuchstabe("*.O"), "O");
  EXPECT_EQ(EndungsBuchstabe("*.G1"), "G");
  EXPECT_EQ(EndungsBuchstabe("a.b.c"), "b");
  EXPECT_EQ(EndungsBuchstabe("*.???"), "?");
  EXPECT_EQ(EndungsBuchstabe("*.äb"), "ä");
  EXPECT_EQ(EndungsBuchstabe("O"), "?");
  EXPECT_EQ(EndungsBuchstabe(""), "?");
  EXPECT_EQ(EndungsBuchstabe("*."), "?");
}

void expectSplit(const char* path, const char* folder, const char* name) {
  const GeteilterPfad parts = pfadTeilen(path);
  EXPECT_EQ(parts.ordner, folder) << path;
  EXPECT_EQ(parts.name, name) << path;
}

TEST(Pfade, SplitsAtTheLastSeparator) {
  expectSplit("/home/user/KorFiles/A.O", "/home/user/KorFiles", "A.O");
  expectSplit("folder/A.O", "folder", "A.O");
  expectSplit("/A.O", "/", "A.O");
  expectSplit("folder/", "folder", "");
  expectSplit("folder//A.O", "folder/", "A.O");
  expectSplit("A.O", "", "A.O");
  expectSplit("", "", "");
  expectSplit("/Mess Ünder/測.O", "/Mess Ünder", "測.O");
}

TEST(Pfade, SplitsPathsOfAnotherSystem) {
  expectSplit("C:\\KorFiles\\Punkt.O", "C:\\KorFiles", "Punkt.O");
  expectSplit("\\A.O", "\\", "A.O");
  expectSplit("/home/a\\b.O", "/home", "a\\b.O");
}

const std::string positionFilter = "Pos. (*.O)|*.O";
const std::string allKinds = "Geradheit(*.G)|*.G|Parallelität(*.P)|*.P";

TEST(DateiDialog, AppendsTheExtensionUnlessTheNameHasIt) {
  EXPECT_EQ(vervollstaendigterName("/tmp/a", positionFilter), "/tmp/a.O");
  EXPECT_EQ(vervollstaendigterName("/tmp/a.O", positionFilter), "/tmp/a.O");
  EXPECT_EQ(vervollstaendigterName("/tmp/a.o", positionFilter), "/tmp/a.o");
  EXPECT_EQ(vervollstaendigterName("/tmp/a.txt", positionFilter), "/tmp/a.txt.O");
  EXPECT_EQ(vervollstaendigterName("/tmp/foO", positionFilter), "/tmp/foO.O");
  EXPECT_EQ(vervollstaendigterName("/tmp.O/a", positionFilter), "/tmp.O/a.O");
  EXPECT_EQ(vervollstaendigterName(std::string_view("a.O").substr(2), positionFilter), "O.O");
  EXPECT_EQ(vervollstaendigterName("a", "Position(*.O)|"), "a.O");
  EXPECT_EQ(vervollstaendigterName("a", "*.O"), "a.O");
  EXPECT_EQ(vervollstaendigterName("", positionFilter), "");
}

TEST(DateiDialog, AnyExtensionOfTheFilterWillDo) {
  EXPECT_EQ(vervollstaendigterName("a.P", allKinds), "a.P");
  EXPECT_EQ(vervollstaendigterName("a.p", allKinds), "a.p");
  EXPECT_EQ(vervollstaendigterName("a", allKinds), "a.G");
  EXPECT_EQ(vervollstaendigterName("a.O", allKinds), "a.O.G");
}

TEST(DateiDialog, AWildcardAppendsNothing) {
  EXPECT_EQ(vervollstaendigterName("a", "*.*"), "a");
  EXPECT_EQ(vervollstaendigterName("a", "Alle(*.?)|*.?|" + allKinds), "a");
  EXPECT_EQ(vervollstaendigterName("a", "*.???"), "a");
  EXPECT_EQ(vervollstaendigterName("a", ""), "a");
  EXPECT_EQ(vervollstaendigterName("a", "*."), "a");
}

TEST(DateiDialog, AsksWithItsDefaults) {
  test::TestFileDialog dialog;
  EXPECT_EQ(dateiErfragen(dialog, "/mess", "", "", true), "") << "Cancel";
  ASSERT_EQ(dialog.requests.size(), 1U);
  EXPECT_EQ(dialog.requests[0].folder, "/mess");
  EXPECT_EQ(dialog.requests[0].filter, "*.*");
  EXPECT_EQ(dialog.requests[0].title, "Dateiauswahl");
  EXPECT_TRUE(dialog.requests[0].open);
}

TEST(DateiDialog, HandsItsRequestOnAndCompletesTheAnswer) {
  test::TestFileDialog dialog;
  dialog.answers = {"/mess/a"};
  EXPECT_EQ(dateiErfragen(dialog, "/mess", positionFilter, "Speichern", false), "/mess/a.O");
  EXPECT_EQ(dialog.requests.at(0).filter, positionFilter);
  EXPECT_EQ(dialog.requests.at(0).title, "Speichern");
  EXPECT_FALSE(dialog.requests.at(0).open);
}

TEST_F(PfadeTest, AFileToBeOpenedStandsAsItIsIfItIsThere) {
  test::TestFileDialog dialog;
  write("x.bag");
  write("y.bag");
  dialog.answers = {inFolder("x.bag"), inFolder("z"), inFolder("y.bag")};
  EXPECT_EQ(dateiErfragen(dialog, folder, allKinds, "", true), inFolder("x.bag"));
  EXPECT_EQ(dateiErfragen(dialog, folder, allKinds, "", true), inFolder("z.G"));
  EXPECT_EQ(dateiErfragen(dialog, folder, allKinds, "", false), inFolder("y.bag.G"));
}

}  // namespace
}  // namespace korvin
