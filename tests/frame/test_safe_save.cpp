#include "frame/safe_save.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>

#include "frame/file_group_reader.h"
#include "frame/posix_file_system.h"
#include "frame/save_group.h"
#include "support/child_process.h"
#include "support/faulty_file_system.h"
#include "support/saved_pair.h"
#include "support/test_files.h"

namespace korvin {
namespace {

namespace fs = std::filesystem;
using test::SavedPair;
using test::TestFolder;
using Names = std::vector<std::string>;

constexpr fs::perms readOnlyFile = fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read;
constexpr fs::perms readOnlyFolder =
    readOnlyFile | fs::perms::owner_exec | fs::perms::group_exec | fs::perms::others_exec;

TEST(SafeSave, WritesAndReplacesAPair) {
  TestFolder folder;
  const SavedPair pair(folder);
  PosixFileSystem system;
  EXPECT_EQ(pair.save(system, "one").state, SaveState::saved);
  EXPECT_EQ(pair.read(system), "one");
  EXPECT_EQ(pair.save(system, "two").state, SaveState::saved);
  EXPECT_EQ(pair.read(system), "two");
  EXPECT_EQ(folder.names(), (Names{"F.O", "F.O1"}));
}

TEST(SafeSave, WritesAndReplacesOneFile) {
  TestFolder folder;
  PosixFileSystem system;
  for (const std::string content : {"first", "", "third"}) {
    EXPECT_EQ(saveFile(system, folder.path("a"), content).state, SaveState::saved);
    EXPECT_EQ(test::readFile(folder.path("a")), content);
  }
  EXPECT_EQ(folder.names(), Names{"a"});
}

TEST(SafeSave, ShortWritesGoOn) {
  TestFolder folder;
  test::FaultyFileSystem system;
  system.mostPerWrite = 3;
  const std::string content(1000, 'x');
  EXPECT_EQ(saveFile(system, folder.path("a"), content).state, SaveState::saved);
  EXPECT_EQ(test::readFile(folder.path("a")), content);
}

TEST(SafeSave, KeepsPermissionsAndFollowsLinks) {
  TestFolder folder;
  PosixFileSystem system;
  test::writeFile(folder.path("real"), "old");
  constexpr fs::perms own = fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read;
  fs::permissions(folder.path("real"), own);
  fs::create_symlink("real", folder.path("link"));
  EXPECT_EQ(saveFile(system, folder.path("link"), "new").state, SaveState::saved);
  EXPECT_TRUE(fs::is_symlink(folder.path("link")));
  EXPECT_EQ(test::readFile(folder.path("real")), "new");
  EXPECT_EQ(fs::status(folder.path("real")).permissions(), own);
}

TEST(SafeSave, LinkToNothingMakesTheFileItPointsTo) {
  TestFolder folder;
  PosixFileSystem system;
  fs::create_directory(folder.path("other"));
  fs::create_symlink("other/real", folder.path("link"));
  EXPECT_EQ(saveFile(system, folder.path("link"), "new").state, SaveState::saved);
  EXPECT_EQ(test::readFile(folder.path("other/real")), "new");
  EXPECT_EQ(folder.names(), (Names{"link", "other"}));
}

TEST(SafeSave, LinksInACircleAreTold) {
  TestFolder folder;
  PosixFileSystem system;
  fs::create_symlink("b", folder.path("a"));
  fs::create_symlink("a", folder.path("b"));
  const SaveResult result = saveFile(system, folder.path("a"), "x");
  EXPECT_EQ(result.state, SaveState::unchanged);
  EXPECT_EQ(result.error.number, ELOOP);
  EXPECT_TRUE(fs::is_symlink(folder.path("a")));
}

TEST(SafeSave, HeadBehindALinkAndPointsBesideItBelongTogetherToo) {
  TestFolder folder;
  PosixFileSystem system;
  fs::create_directory(folder.path("other"));
  fs::create_symlink("other/real", folder.path("F.O"));
  const SavedPair pair(folder);
  EXPECT_EQ(pair.save(system, "one").state, SaveState::saved);
  EXPECT_EQ(pair.save(system, "two").state, SaveState::saved);
  EXPECT_EQ(pair.read(system), "two");
  EXPECT_EQ(test::readFile(folder.path("other/real")), "head two");
  EXPECT_EQ(folder.names(), (Names{"F.O", "F.O1", "other"}));
}

TEST(SafeSave, NameOfTheGreatestLengthIsSaved) {
  TestFolder folder;
  PosixFileSystem system;
  const std::string name(255, 'n');
  EXPECT_EQ(saveFile(system, folder.path(name), "x").state, SaveState::saved);
  EXPECT_EQ(folder.names(), Names{name});
  const SaveResult longer = saveFile(system, folder.path(name + "n"), "x");
  EXPECT_EQ(longer.error.kind, FileErrorKind::nameTooLong);
  EXPECT_EQ(folder.names(), Names{name});
}

TEST(SafeSave, NamesBesideAreHiddenInTheSameFolderAndTellLongNamesApart) {
  EXPECT_EQ(besideName("/a/b.O", ".new"), "/a/.b.O.new");
  EXPECT_EQ(besideName("b.O", ".new"), ".b.O.new");
  const std::string common(250, 'n');
  EXPECT_NE(besideName(common + "1", ".new"), besideName(common + "2", ".new"));
  EXPECT_LE(besideName(common + "1", ".new").size(), 255U);
}

TEST(SafeSave, MissingFolderIsToldAndNothingIsLeft) {
  TestFolder folder;
  PosixFileSystem system;
  const SaveResult result = saveFile(system, folder.path("none/a"), "x");
  EXPECT_EQ(result.state, SaveState::unchanged);
  EXPECT_EQ(result.error.kind, FileErrorKind::notFound);
  EXPECT_EQ(result.error.path, folder.path("none/a"));
  EXPECT_TRUE(folder.names().empty());
}

TEST(SafeSave, FolderWithoutRightsIsToldAndTheOldFilesStay) {
  TestFolder folder;
  const SavedPair pair(folder);
  PosixFileSystem system;
  pair.save(system, "old");
  fs::permissions(folder.path(), readOnlyFolder);
  EXPECT_TRUE(test::inChildWithoutRights([&] {
    const SaveResult result = pair.save(system, "new");
    return result.state == SaveState::unchanged && result.error.kind == FileErrorKind::noPermission &&
           pair.read(system) == "old";
  }));
  EXPECT_EQ(folder.names(), (Names{"F.O", "F.O1"}));
}

TEST(SafeSave, WriteProtectedFileIsRefusedEvenInAFolderWithRights) {
  TestFolder folder;
  const SavedPair pair(folder);
  PosixFileSystem system;
  pair.save(system, "old");
  fs::permissions(folder.path(), fs::perms::all);
  fs::permissions(pair.points, readOnlyFile);
  EXPECT_TRUE(test::inChildWithoutRights([&] {
    const SaveResult result = pair.save(system, "new");
    return result.state == SaveState::unchanged && result.error.kind == FileErrorKind::noPermission;
  }));
  EXPECT_EQ(pair.read(system), "old");
  EXPECT_EQ(folder.names(), (Names{"F.O", "F.O1"}));
}

TEST(SafeSave, FolderOfThatNameIsRefused) {
  TestFolder folder;
  PosixFileSystem system;
  fs::create_directory(folder.path("a"));
  const SaveResult result = saveFile(system, folder.path("a"), "x");
  EXPECT_EQ(result.state, SaveState::unchanged);
  EXPECT_EQ(result.error.kind, FileErrorKind::notAFile);
  EXPECT_EQ(folder.names(), Names{"a"});
}

TEST(SafeSave, ContentThatThrowsLeavesTheOldFile) {
  TestFolder folder;
  PosixFileSystem system;
  saveFile(system, folder.path("a"), "old");
  const auto throwing = [](SaveSink& sink) {
    sink.write(test::bytesOf("ne"));
    throw std::out_of_range("index");
  };
  EXPECT_THROW(saveTogether(system, {{folder.path("a"), throwing}}), std::out_of_range);
  EXPECT_EQ(test::readFile(folder.path("a")), "old");
  EXPECT_EQ(saveFile(system, folder.path("a"), "new").state, SaveState::saved);
  EXPECT_EQ(folder.names(), Names{"a"});
}

// ---- Reading what was saved ----

TEST(FileGroupReader, MissingFilesAreToldAndNotMade) {
  TestFolder folder;
  PosixFileSystem system;
  FileGroupReader reader(system, {folder.path("a"), folder.path("b")});
  EXPECT_EQ(reader.error(0).number, ENOENT);
  EXPECT_EQ(reader.error(1).path, folder.path("b"));
  EXPECT_EQ(reader.size(0), 0U);
  EXPECT_TRUE(folder.names().empty());
}

TEST(FileGroupReader, FoldersAndPipesAreNoFiles) {
  TestFolder folder;
  PosixFileSystem system;
  fs::create_directory(folder.path("a"));
  FileGroupReader reader(system, {folder.path("a"), "/dev/null"});
  EXPECT_EQ(reader.error(0).kind, FileErrorKind::notAFile);
  EXPECT_EQ(reader.error(1).kind, FileErrorKind::notAFile);
}

TEST(FileGroupReader, EndBeforeTheToldLengthIsAnError) {
  TestFolder folder;
  PosixFileSystem system;
  test::writeFile(folder.path("a"), "12345");
  FileGroupReader reader(system, {folder.path("a")});
  std::vector<std::byte> bytes(4);
  EXPECT_FALSE(reader.read(0, bytes));
  EXPECT_EQ(test::textOf(bytes), "1234");
  EXPECT_EQ(reader.read(0, bytes).kind, FileErrorKind::inputOutput);
}

/// A folder in which a save of the pair stands as `journal` tells, with new files beside the old ones.
void leaveBehind(const SavedPair& pair, std::string_view journal) {
  test::writeFile(besideName(pair.head, ".korvin-new"), "head new");
  test::writeFile(besideName(pair.points, ".korvin-new"), "points new");
  test::writeFile(besideName(pair.head, ".korvin-save"), journal);
}

TEST(FileGroupReader, JournalTellsIfAnUnfinishedSaveCounts) {
  const std::map<std::string, std::string> journals = {
      {"", "old"},
      {"KORVIN commit oo\n", "new"},
      {"KORVIN commit oo\nund", "new"},
      {"KORVIN commit oo\nundo\n", "old"},
      {"KORVIN commit oo", "old"},       // its end was cut off, so nothing was exchanged yet
      {"KORVIN commit oundo\n", "old"},  // cut off, then called off
      {"KORVIN comm", "old"},
      {"something else\n", "old"},
  };
  for (const auto& [journal, wanted] : journals) {
    SCOPED_TRACE(journal);
    TestFolder folder;
    const SavedPair pair(folder);
    PosixFileSystem system;
    pair.save(system, "old");
    leaveBehind(pair, journal);
    EXPECT_EQ(pair.read(system), wanted);
    EXPECT_EQ(folder.names(), (Names{"F.O", "F.O1"}));
  }
}

TEST(FileGroupReader, FolderWithoutRightsShowsTheOldFilesOfAnUnfinishedSaveButNoHalfOne) {
  TestFolder folder;
  const SavedPair pair(folder);
  PosixFileSystem system;
  pair.save(system, "old");
  leaveBehind(pair, "");
  fs::permissions(folder.path(), readOnlyFolder);
  EXPECT_TRUE(test::inChildWithoutRights([&] { return pair.read(system) == "old"; }));
  fs::permissions(folder.path(), fs::perms::all);
  leaveBehind(pair, "KORVIN commit oo\n");
  fs::permissions(folder.path(), readOnlyFolder);
  EXPECT_TRUE(test::inChildWithoutRights([&] {
    FileGroupReader reader(system, {pair.head, pair.points});
    return reader.error(0).kind == FileErrorKind::noPermission && reader.error(1).number != 0;
  }));
}

TEST(SafeSave, TwoProgramsAndAReaderNeverMixGenerations) {
  TestFolder folder;
  const SavedPair pair(folder);
  test::UnflushedFileSystem system;
  pair.save(system, "0");
  const auto saveOnAndOn = [&](const std::string& who) {
    return [&, who](const std::function<void()>& beat) {
      for (int generation = 0;; ++generation) {
        if (pair.save(system, who + std::to_string(generation)).state == SaveState::saved) beat();
      }
    };
  };
  test::KillableChild first(saveOnAndOn("a"));
  test::KillableChild second(saveOnAndOn("b"));
  for (int i = 0; i < 500; ++i) {
    const auto read = pair.read(system);
    ASSERT_TRUE(read.has_value());
    ASSERT_FALSE(read->empty());
  }
  EXPECT_TRUE(first.awaitBeats(10));
  EXPECT_TRUE(second.awaitBeats(10));
}

}  // namespace
}  // namespace korvin
