#include <gtest/gtest.h>

#include <cerrno>
#include <chrono>
#include <functional>
#include <random>

#include "frame/safe_save.h"
#include "frame/save_group.h"
#include "support/child_process.h"
#include "support/faulty_file_system.h"
#include "support/power_cut_disk.h"
#include "support/saved_pair.h"
#include "support/test_files.h"

namespace korvin {
namespace {

using test::FaultyFileSystem;
using test::PowerCutDisk;
using test::SavedPair;
using test::TestFolder;
using Names = std::vector<std::string>;

/// Calls of a save in which nothing fails.
int callsOfASave(bool withOldFiles) {
  TestFolder folder;
  const SavedPair pair(folder);
  FaultyFileSystem system;
  if (withOldFiles) pair.save(system, "old");
  system.calls = 0;
  pair.save(system, "new");
  return system.calls;
}

void expectStandsAs(const SaveResult& result, const std::string& found, const std::string& before) {
  EXPECT_EQ(bool(result.error), result.state != SaveState::saved);
  switch (result.state) {
    case SaveState::saved:
    case SaveState::inPlace:
      EXPECT_EQ(found, "new");
      break;
    case SaveState::unchanged:
      EXPECT_EQ(found, before);
      break;
    case SaveState::pending:
      EXPECT_TRUE(found == "new" || found == before) << found;
      break;
  }
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
    const SavedPair pair(folder);
    test::UnflushedFileSystem healthy;
    if (withOldFiles) pair.save(healthy, before);
    FaultyFileSystem system;
    system.failAt = at;
    system.number = number;
    system.stays = stays;
    const SaveResult result = pair.save(system, "new");
    const auto found = pair.read(healthy);
    ASSERT_TRUE(found.has_value()) << "head and points do not belong together";
    expectStandsAs(result, *found, before);
    // The next save on a healthy disk works and leaves nothing behind.
    EXPECT_EQ(pair.save(healthy, "next").state, SaveState::saved);
    EXPECT_EQ(pair.read(healthy), "next");
    EXPECT_EQ(folder.names(), (Names{"F.O", "F.O1"}));
  }
}

TEST(SafeSaveFaults, EachCallFailingLeavesOldOrNewWhole) {
  for (const int number : {ENOSPC, EIO, EACCES}) {
    failEachCall(true, number, false);
    failEachCall(false, number, false);
  }
}

TEST(SafeSaveFaults, DiskThatIsGoneFromACallOnLeavesOldOrNewWhole) {
  for (const int number : {EIO, EROFS, ENOSPC}) {
    failEachCall(true, number, true);
    failEachCall(false, number, true);
  }
}

TEST(SafeSaveFaults, FailedExchangeLeavesTheFilesThemselvesOldOrNew) {
  // Looked at without the program's reader: who copies the folder elsewhere must find a whole pair too.
  const int calls = callsOfASave(true);
  for (int at = 1; at <= calls; ++at) {
    SCOPED_TRACE(at);
    TestFolder folder;
    const SavedPair pair(folder);
    FaultyFileSystem system;
    pair.save(system, "old");
    system.failAt = system.calls + at;
    system.number = EPERM;
    const SaveResult result = pair.save(system, "new");
    const std::string wanted = result.state == SaveState::unchanged ? "old" : "new";
    EXPECT_NE(result.state, SaveState::pending);
    EXPECT_EQ(test::readFile(pair.head), "head " + wanted);
    EXPECT_EQ(test::readFile(pair.points), "points " + wanted);
  }
}

/// A file system without second names, as on most memory sticks.
class StickFileSystem : public FaultyFileSystem {
 public:
  int link(const std::string&, const std::string&) override { return -EPERM; }
};

TEST(SafeSaveFaults, DiskWithoutSecondNamesLeavesOldOrNewWholeToo) {
  for (int at = 1; at <= callsOfASave(true); ++at) {
    SCOPED_TRACE(at);
    TestFolder folder;
    const SavedPair pair(folder);
    StickFileSystem system;
    ASSERT_EQ(pair.save(system, "old").state, SaveState::saved);
    system.failAt = system.calls + at;
    system.number = EIO;
    const SaveResult result = pair.save(system, "new");
    system.failAt = 0;
    const auto found = pair.read(system);
    ASSERT_TRUE(found.has_value());
    expectStandsAs(result, *found, "old");
  }
}

TEST(SafeSaveFaults, FullDiskIsToldAsSuch) {
  TestFolder folder;
  const SavedPair pair(folder);
  FaultyFileSystem system;
  system.failAt = 1;
  for (bool saved = false; !saved; ++system.failAt) {
    system.calls = 0;
    system.number = ENOSPC;
    const SaveResult result = pair.save(system, "new");
    saved = system.calls < system.failAt;
    if (!result.error) continue;
    EXPECT_EQ(result.error.kind, FileErrorKind::noSpace);
    EXPECT_EQ(result.error.number, ENOSPC);
    EXPECT_TRUE(result.error.path == pair.head || result.error.path == pair.points);
  }
  EXPECT_GT(system.failAt, 15);
}

/// Saves a pair and dies at call `at` of saving the next one; false if that has not so many calls.
bool dieSaving(FileSystem& system, FaultyFileSystem& dying, const SavedPair& pair, int at) {
  pair.save(system, "old");
  dying.dieAt = at;
  dying.calls = 0;
  try {
    pair.save(dying, "new");
  } catch (const test::Died&) {
  }
  return dying.calls >= at;
}

TEST(SafeSaveFaults, DeathAtEachCallLeavesOldOrNewWhole) {
  bool sawHalf = false;
  bool reached = true;
  for (int at = 1; reached; ++at) {
    SCOPED_TRACE(at);
    TestFolder folder;
    const SavedPair pair(folder);
    test::UnflushedFileSystem healthy;
    FaultyFileSystem dying;
    reached = dieSaving(healthy, dying, pair, at);
    const bool half = test::readFile(pair.head) == "head new" && test::readFile(pair.points) == "points old";
    sawHalf = sawHalf || half;
    const auto found = pair.read(healthy);
    ASSERT_TRUE(found.has_value());
    EXPECT_TRUE(*found == "new" || (*found == "old" && !half)) << *found;
    EXPECT_EQ(folder.names(), (Names{"F.O", "F.O1"})) << "reading sweeps";
    EXPECT_EQ(pair.save(healthy, "next").state, SaveState::saved);
  }
  EXPECT_TRUE(sawHalf) << "one death falls between the two exchanges";
}

TEST(SafeSaveFaults, FirstSaveThatDiesLeavesNothingOrAll) {
  const int calls = callsOfASave(false);
  for (int at = 1; at <= calls; ++at) {
    SCOPED_TRACE(at);
    TestFolder folder;
    const SavedPair pair(folder);
    test::UnflushedFileSystem healthy;
    FaultyFileSystem dying;
    dying.dieAt = at;
    try {
      pair.save(dying, "new");
    } catch (const test::Died&) {
    }
    const auto found = pair.read(healthy);
    ASSERT_TRUE(found.has_value());
    EXPECT_EQ(folder.names(), *found == "new" ? (Names{"F.O", "F.O1"}) : Names{});
  }
}

/// A disk on which nothing can take the place of the second file.
template <class Base>
class Stubborn : public Base {
 public:
  int rename(const std::string& from, const std::string& to) override {
    return to.ends_with("/F.O1") || to == "F.O1" ? -EPERM : Base::rename(from, to);
  }
};

TEST(SafeSaveFaults, DeathWhileAnExchangeIsUndoneLeavesTheOldPair) {
  for (const bool withOldFiles : {true, false}) {
    bool reached = true;
    for (int at = 1; reached; ++at) {
      SCOPED_TRACE(at);
      TestFolder folder;
      const SavedPair pair(folder);
      test::UnflushedFileSystem healthy;
      const std::string before = withOldFiles ? "old" : "";
      if (withOldFiles) pair.save(healthy, before);
      Stubborn<FaultyFileSystem> system;
      system.dieAt = at;
      bool died = false;
      try {
        EXPECT_EQ(pair.save(system, "new").state, SaveState::unchanged);
      } catch (const test::Died&) {
        died = true;
      }
      reached = system.calls >= at;
      const auto found = pair.read(healthy);
      ASSERT_TRUE(found == before || (found == "new" && died)) << found.value_or("mixed");
      EXPECT_EQ(pair.save(healthy, "next").state, SaveState::saved);
      EXPECT_EQ(folder.names(), (Names{"F.O", "F.O1"}));
    }
  }
}

// ---- Power cuts ----

using FaultyDisk = test::Faulty<PowerCutDisk>;

/// A disk with an old pair, or none, and a save of a new one that meets faults.
template <class Disk = FaultyDisk>
struct CutSave {
  CutSave(bool withOldFiles, int dieAt, int failAt = 0) : before(withOldFiles ? "old" : "") {
    PowerCutDisk start;
    if (withOldFiles) pair.save(start, "old");
    static_cast<PowerCutDisk&>(disk) = start;
    disk.failAt = failAt;
    disk.dieAt = dieAt;
    try {
      result = pair.save(disk, "new");
    } catch (const test::Died&) {
      died = true;
    }
    reached = disk.calls >= dieAt;
    disk.failAt = disk.dieAt = 0;
  }
  SavedPair pair;
  std::string before;
  Disk disk;
  SaveResult result;
  bool died = false;
  bool reached = false;  ///< the save has so many calls
};

/// What `disk` holds, and that the next save works and outlasts a cut.
template <class Save>
void expectWhole(PowerCutDisk disk, const Save& save) {
  const auto found = save.pair.read(disk);
  ASSERT_TRUE(found.has_value()) << "head and points do not belong together";
  if (save.died) {
    EXPECT_TRUE(*found == "new" || *found == save.before) << *found;
  } else {
    expectStandsAs(save.result, *found, save.before);
  }
  EXPECT_EQ(save.pair.save(disk, "next").state, SaveState::saved);
  disk.cut();
  EXPECT_EQ(save.pair.read(disk), "next") << "what is told to be saved outlasts a cut";
  EXPECT_EQ(disk.names(), (Names{"F.O", "F.O1"}));
}

/// A power cut at each call of a save, each time in many ways.
template <class Disk>
void cutAtEachCall(bool withOldFiles) {
  std::mt19937 random(1);
  bool reached = true;
  for (int at = 1; reached; ++at) {
    const CutSave<Disk> save(withOldFiles, at);
    reached = save.reached;
    for (int way = 0; way < 200; ++way) {
      SCOPED_TRACE(testing::Message() << "call " << at << " way " << way);
      PowerCutDisk disk(save.disk);
      way == 0 ? disk.cut() : disk.cut(random);
      ASSERT_NO_FATAL_FAILURE(expectWhole(disk, save));
    }
  }
}

TEST(SafeSavePowerCut, AtEachCallLeavesOldOrNewWhole) {
  cutAtEachCall<FaultyDisk>(true);
  cutAtEachCall<FaultyDisk>(false);
}

TEST(SafeSavePowerCut, WhileAnExchangeIsUndoneLeavesOldOrNewWhole) {
  cutAtEachCall<test::Faulty<Stubborn<PowerCutDisk>>>(true);
  cutAtEachCall<test::Faulty<Stubborn<PowerCutDisk>>>(false);
}

TEST(SafeSavePowerCut, AfterAFailedCallLeavesOldOrNewWhole) {
  std::mt19937 random(4);
  for (const bool withOldFiles : {true, false}) {
    const int calls = callsOfASave(withOldFiles);
    for (int failAt = 1; failAt <= calls; ++failAt) {
      bool reached = true;
      for (int dieAt = failAt + 1; reached; ++dieAt) {
        const CutSave save(withOldFiles, dieAt, failAt);
        reached = save.reached;
        SCOPED_TRACE(testing::Message() << "call " << failAt << " fails, death at " << dieAt);
        ASSERT_NO_FATAL_FAILURE(expectWhole(save.disk, save));
        for (int way = 0; way < 10 && save.died; ++way) {
          PowerCutDisk disk(save.disk);
          disk.cut(random);
          ASSERT_NO_FATAL_FAILURE(expectWhole(disk, save));
        }
      }
    }
  }
}

TEST(SafeSaveFaults, FailureWhileAnExchangeIsUndoneLeavesOldOrNewWhole) {
  for (const bool withOldFiles : {true, false}) {
    for (int failAt = 1; failAt <= 2 * callsOfASave(withOldFiles); ++failAt) {
      SCOPED_TRACE(failAt);
      const CutSave<test::Faulty<Stubborn<PowerCutDisk>>> save(withOldFiles, 0, failAt);
      expectWhole(save.disk, save);
    }
  }
}

TEST(SafeSaveFaults, JournalThatWasCutOffIsNotWrittenOn) {
  for (const std::string journal : {"KORVIN comm", "KORVIN commit oo", "undo\n"}) {
    bool reached = true;
    for (int at = 1; reached; ++at) {
      SCOPED_TRACE(testing::Message() << journal << " call " << at);
      TestFolder folder;
      const SavedPair pair(folder);
      test::UnflushedFileSystem healthy;
      pair.save(healthy, "old");
      test::writeFile(besideName(pair.head, ".korvin-save"), journal);
      FaultyFileSystem dying;
      dying.dieAt = at;
      try {
        pair.save(dying, "new");
      } catch (const test::Died&) {
      }
      reached = dying.calls >= at;
      const auto found = pair.read(healthy);
      EXPECT_TRUE(found == "old" || found == "new");
    }
  }
}

/// Lets a reader die at its call `at` while it brings an unfinished save to its end; false if it has not so
/// many calls.
bool dieReading(FaultyDisk& disk, const SavedPair& pair, int at) {
  disk.calls = 0;
  disk.dieAt = at;
  try {
    pair.read(disk);
  } catch (const test::Died&) {
  }
  disk.dieAt = 0;
  return disk.calls >= at;
}

TEST(SafeSaveFaults, DeathWhileAnUnfinishedSaveIsBroughtToItsEndLeavesOldOrNewWhole) {
  bool reached = true;
  for (int at = 1; reached; ++at) {
    const CutSave save(true, at);
    reached = save.reached;
    bool reachedAgain = true;
    for (int again = 1; reachedAgain; ++again) {
      SCOPED_TRACE(testing::Message() << "call " << at << ", then " << again);
      FaultyDisk disk(save.disk);
      reachedAgain = dieReading(disk, save.pair, again);
      ASSERT_NO_FATAL_FAILURE(expectWhole(disk, save));
    }
  }
}

TEST(SafeSavePowerCut, WhileAnUnfinishedSaveIsBroughtToItsEndLeavesOldOrNewWhole) {
  std::mt19937 random(2);
  bool reached = true;
  for (int at = 1; reached; ++at) {
    const CutSave save(true, at);
    reached = save.reached;
    for (int way = 0; way < 300; ++way) {
      SCOPED_TRACE(testing::Message() << "call " << at << " way " << way);
      FaultyDisk disk(save.disk);
      disk.cut(random);
      dieReading(disk, save.pair, 1 + way % 25);
      disk.cut(random);
      ASSERT_NO_FATAL_FAILURE(expectWhole(disk, save));
    }
  }
}

/// A disk on which another program does something just before one of this program's calls.
class SharedDisk : public FaultyDisk {
 public:
  int open(const std::string& path, Open how, std::uint32_t permissions) override {
    meet();
    return FaultyDisk::open(path, how, permissions);
  }
  int infoOf(const std::string& path, FileInfo& to) override {
    meet();
    return FaultyDisk::infoOf(path, to);
  }

  int meetAt = 0;  ///< the call, counted from 1
  std::function<void()> other;
  bool met = false;

 private:
  void meet() {
    if (met || --meetAt != 0) return;
    met = true;
    other();
  }
};

TEST(SafeSaveFaults, SaveThatComesBetweenTheCallsOfAReaderIsSeenWholeOrNotAtAll) {
  const int calls = callsOfASave(true);
  for (int dieAt = 1; dieAt <= calls + 1;
       ++dieAt) {  // with the last one the other program's save is complete
    bool met = true;
    for (int meetAt = 1; met; ++meetAt) {
      SCOPED_TRACE(testing::Message() << "before call " << meetAt << ", to its call " << dieAt);
      const SavedPair pair;
      SharedDisk disk;
      pair.save(static_cast<PowerCutDisk&>(disk), "old");
      disk.meetAt = meetAt;
      disk.other = [&] {
        disk.calls = 0;
        disk.dieAt = dieAt;
        try {
          pair.save(disk, "new");
        } catch (const test::Died&) {
        }
        disk.dieAt = 0;
      };
      const auto found = pair.read(disk);
      met = disk.met;
      ASSERT_TRUE(found == "old" || found == "new") << found.value_or("mixed");
    }
  }
}

/// The content of a file on `disk`; "" if there is none.
std::string contentOf(PowerCutDisk& disk, const std::string& name) {
  FileGroupReader reader(disk, {name});
  std::vector<std::byte> bytes(reader.size(0));
  return reader.read(0, bytes) ? std::string() : test::textOf(bytes);
}

TEST(SafeSavePowerCut, OfOneFileLeavesOldOrNew) {
  std::mt19937 random(3);
  PowerCutDisk start;
  saveFile(start, "a", "old");
  bool reached = true;
  for (int at = 1; reached; ++at) {
    FaultyDisk disk;
    static_cast<PowerCutDisk&>(disk) = start;
    disk.dieAt = at;
    SaveResult result{SaveState::unchanged, {}};
    try {
      result = saveFile(disk, "a", "new");
    } catch (const test::Died&) {
    }
    reached = disk.calls >= at;
    for (int way = 0; way < 50; ++way) {
      PowerCutDisk after(disk);
      after.cut(random);
      const std::string found = contentOf(after, "a");
      EXPECT_TRUE(found == "new" || (found == "old" && result.state != SaveState::saved))
          << found << " at " << at;
    }
  }
}

// ---- Kills ----

TEST(SafeSaveFaults, TwoHundredKillsAtRandomMoments) {
  TestFolder folder;
  const SavedPair pair(folder);
  test::UnflushedFileSystem system;
  pair.save(system, "0");
  for (int round = 0; round < 200; ++round) {
    test::KillableChild child([&](const std::function<void()>& beat) {
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
    ASSERT_TRUE(pair.read(system).has_value()) << "after kill " << round;
  }
  ASSERT_EQ(pair.save(system, "end").state, SaveState::saved);
  EXPECT_EQ(folder.names(), (Names{"F.O", "F.O1"}));
}

}  // namespace
}  // namespace korvin
