#include "frame/safe_save.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cerrno>
#include <chrono>
#include <filesystem>
#include <optional>

#include "frame/file_group_reader.h"
#include "support/child_process.h"
#include "support/faulty_file_system.h"
#include "support/test_files.h"

namespace korvin {
namespace {

namespace fs = std::filesystem;
using test::FaultyFileSystem;
using test::TestFolder;

SaveItem item(const std::string& path, std::string content) {
  return {path, [content](SaveSink& sink) { sink.write(test::bytesOf(content)); }};
}

/// Two files that belong together, as a head and its points.
class Pair {
 public:
  explicit Pair(const TestFolder& folder) : head(folder.path("F.O")), points(folder.path("F.O1")) {}

  SaveResult save(FileSystem& system, const std::string& generation) const {
    return saveTogether(system, {item(head, "head " + generation), item(points, "points " + generation)});
  }
  /// The generation that both files are of; nothing if they do not belong together.
  std::optional<std::string> read() const {
    PosixFileSystem system;
    FileGroupReader reader(system, {head, points});
    const std::string a = content(reader, 0);
    const std::string b = content(reader, 1);
    if (a.empty() && b.empty()) return "";
    if (!a.starts_with("head ") || !b.starts_with("points ") || a.substr(5) != b.substr(7))
      return std::nullopt;
    return a.substr(5);
  }

  std::string head;
  std::string points;

 private:
  static std::string content(FileGroupReader& reader, std::size_t index) {
    if (reader.error(index)) return {};
    std::vector<std::byte> bytes(reader.size(index));
    reader.read(index, bytes);
    return test::textOf(bytes);
  }
};

TEST(SafeSave, WritesAndReplacesAPair) {
  TestFolder folder;
  const Pair pair(folder);
  PosixFileSystem system;
  EXPECT_EQ(pair.save(system, "one").state, SaveState::saved);
  EXPECT_EQ(pair.read(), "one");
  EXPECT_EQ(pair.save(system, "two").state, SaveState::saved);
  EXPECT_EQ(pair.read(), "two");
  EXPECT_EQ(folder.names(), (std::vector<std::string>{"F.O", "F.O1"}));
}

TEST(SafeSave, ShortWritesGoOn) {
  TestFolder folder;
  FaultyFileSystem system;
  system.mostPerWrite = 3;
  const std::string content(1000, 'x');
  EXPECT_EQ(saveFile(system, folder.path("a"), content).state, SaveState::saved);
  EXPECT_EQ(test::readFile(folder.path("a")), content);
}

TEST(SafeSave, KeepsPermissionsAndFollowsLinks) {
  TestFolder folder;
  PosixFileSystem system;
  test::writeFile(folder.path("real"), "old");
  fs::permissions(folder.path("real"), fs::perms::owner_read | fs::perms::owner_write);
  fs::create_symlink("real", folder.path("link"));
  EXPECT_EQ(saveFile(system, folder.path("link"), "new").state, SaveState::saved);
  EXPECT_TRUE(fs::is_symlink(folder.path("link")));
  EXPECT_EQ(test::readFile(folder.path("real")), "new");
  EXPECT_EQ(fs::status(folder.path("real")).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST(SafeSave, MissingFolderIsToldAndNothingIsLeft) {
  TestFolder folder;
  PosixFileSystem system;
  const SaveResult result = saveFile(system, folder.path("none/a"), "x");
  EXPECT_EQ(result.state, SaveState::unchanged);
  EXPECT_EQ(result.error.kind, FileErrorKind::notFound);
  EXPECT_TRUE(folder.names().empty());
}

TEST(SafeSave, FolderWithoutRightsIsToldAndTheOldFilesStay) {
  EXPECT_TRUE(test::inChildWithoutRights([] {
    PosixFileSystem system;
    const SaveResult result = saveFile(system, "/etc/korvin-test", "x");
    return result.state == SaveState::unchanged && result.error.kind == FileErrorKind::noPermission;
  }));
}

TEST(SafeSave, FolderOfThatNameIsRefused) {
  TestFolder folder;
  PosixFileSystem system;
  fs::create_directory(folder.path("a"));
  const SaveResult result = saveFile(system, folder.path("a"), "x");
  EXPECT_EQ(result.state, SaveState::unchanged);
  EXPECT_EQ(result.error.kind, FileErrorKind::notAFile);
}

/// Calls that a save and its start need when nothing fails.
int callsOfASave(bool withOldFiles) {
  TestFolder folder;
  const Pair pair(folder);
  PosixFileSystem plain;
  if (withOldFiles) pair.save(plain, "old");
  FaultyFileSystem system;
  pair.save(system, "new");
  return system.calls;
}

/// Lets each call of a save fail in turn and looks at what stands on the disk.
void failEachCall(bool withOldFiles, int number, bool stays) {
  const int calls = callsOfASave(withOldFiles);
  ASSERT_GT(calls, 15);
  const std::string before = withOldFiles ? "old" : "";
  for (int at = 1; at <= calls; ++at) {
    SCOPED_TRACE(testing::Message() << "call " << at << " errno " << number
                                    << (stays ? " from there on" : ""));
    TestFolder folder;
    const Pair pair(folder);
    PosixFileSystem plain;
    if (withOldFiles) pair.save(plain, before);
    FaultyFileSystem system;
    system.failAt = at;
    system.number = number;
    system.stays = stays;
    const SaveResult result = pair.save(system, "new");
    EXPECT_EQ(bool(result.error), result.state != SaveState::saved);
    const auto found = pair.read();
    ASSERT_TRUE(found.has_value()) << "head and points do not belong together";
    switch (result.state) {
      case SaveState::saved:
      case SaveState::inPlace:
        EXPECT_EQ(*found, "new");
        break;
      case SaveState::unchanged:
        EXPECT_EQ(*found, before);
        break;
      case SaveState::pending:
        EXPECT_TRUE(*found == "new" || *found == before);
        break;
    }
    // The next save on a healthy disk works and leaves nothing behind.
    EXPECT_EQ(pair.save(plain, "next").state, SaveState::saved);
    EXPECT_EQ(pair.read(), "next");
    EXPECT_EQ(folder.names(), (std::vector<std::string>{"F.O", "F.O1"}));
  }
}

TEST(SafeSaveFaults, EachCallFailingLeavesOldOrNewWhole) {
  for (const int number : {ENOSPC, EIO, EACCES}) {
    failEachCall(true, number, false);
    failEachCall(false, number, false);
  }
}

TEST(SafeSaveFaults, DiskThatIsGoneFromACallOnLeavesOldOrNewWhole) {
  for (const int number : {EIO, EROFS}) {
    failEachCall(true, number, true);
    failEachCall(false, number, true);
  }
}

TEST(SafeSaveFaults, DeathAtEachCallLeavesOldOrNewWhole) {
  for (const bool withOldFiles : {true, false}) {
    const int calls = callsOfASave(withOldFiles);
    for (int at = 1; at <= calls; ++at) {
      SCOPED_TRACE(at);
      TestFolder folder;
      const Pair pair(folder);
      PosixFileSystem plain;
      const std::string before = withOldFiles ? "old" : "";
      if (withOldFiles) pair.save(plain, before);
      FaultyFileSystem system;
      system.failAt = at;
      try {
        pair.save(system, "new");
      } catch (const test::Died&) {
      }
      const auto found = pair.read();
      ASSERT_TRUE(found.has_value());
      EXPECT_TRUE(*found == "new" || *found == before) << *found;
      EXPECT_EQ(pair.save(plain, "next").state, SaveState::saved);
      EXPECT_EQ(folder.names(), (std::vector<std::string>{"F.O", "F.O1"}));
    }
  }
}

TEST(SafeSaveFaults, FullDiskIsToldAsSuch) {
  TestFolder folder;
  const Pair pair(folder);
  PosixFileSystem plain;
  pair.save(plain, "old");
  const int calls = callsOfASave(true);
  bool told = false;
  for (int at = 1; at <= calls; ++at) {
    FaultyFileSystem system;
    system.failAt = at;
    system.number = ENOSPC;
    const SaveResult result = pair.save(system, "old");
    told = told || (result.error.kind == FileErrorKind::noSpace && result.error.number == ENOSPC);
  }
  EXPECT_TRUE(told);
}

TEST(SafeSaveFaults, ReaderFinishesACommittedSave) {
  // Death between the two renames: one file is new, the other old, and the journal says that all are to be
  // new.
  const int calls = callsOfASave(true);
  bool sawHalf = false;
  for (int at = 1; at <= calls; ++at) {
    TestFolder folder;
    const Pair pair(folder);
    PosixFileSystem plain;
    pair.save(plain, "old");
    FaultyFileSystem system;
    system.failAt = at;
    try {
      pair.save(system, "new");
    } catch (const test::Died&) {
    }
    const bool half = test::readFile(pair.head) == "head new" && test::readFile(pair.points) == "points old";
    sawHalf = sawHalf || half;
    if (half) {
      EXPECT_EQ(pair.read(), "new");
    }
  }
  EXPECT_TRUE(sawHalf);
}

TEST(SafeSaveFaults, TwoHundredKillsAtRandomMoments) {
  TestFolder folder;
  const Pair pair(folder);
  PosixFileSystem plain;
  pair.save(plain, "0");
  for (int round = 0; round < 200; ++round) {
    test::KillableChild child([&](const std::function<void()>& beat) {
      PosixFileSystem system;
      for (int generation = 0;; ++generation) {
        pair.save(system, std::to_string(round) + "." + std::to_string(generation));
        beat();
      }
    });
    // From a moment after the start to the middle of the third save.
    ASSERT_TRUE(child.awaitBeats(1 + round % 3));
    const auto moment = std::chrono::steady_clock::now() + std::chrono::microseconds(round * 7919 % 400);
    while (std::chrono::steady_clock::now() < moment) {
    }
    child.kill();
    ASSERT_TRUE(pair.read().has_value()) << "after kill " << round;
  }
  ASSERT_EQ(pair.save(plain, "end").state, SaveState::saved);
  EXPECT_EQ(folder.names(), (std::vector<std::string>{"F.O", "F.O1"}));
}

}  // namespace
}  // namespace korvin
