// Reading leaves no trace, and gives files of one save whatever another program is doing.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/file.h>

#include <cstring>
#include <filesystem>
#include <functional>
#include <map>
#include <system_error>

#include "file_tool/tool_run.h"
#include "frame/file_group_reader.h"
#include "korvin-file/measuring_kind.h"
#include "korvin-file/read_only_files.h"
#include "support/child_process.h"
#include "support/faulty_file_system.h"
#include "support/power_cut_disk.h"
#include "support/saved_pair.h"

namespace korvin::file {
namespace {

namespace fs = std::filesystem;
using test::SavedPair;
using test::TestFolder;
using test::ToolRun;

std::map<std::string, std::string> contents(const TestFolder& folder) {
  std::map<std::string, std::string> all;
  for (const std::string& name : folder.names()) all[name] = test::readFile(folder.path(name));
  return all;
}

/// A save of the generation "new" that dies at call `at`. False if it has fewer calls.
bool saveDies(const SavedPair& pair, int at) {
  test::FaultyFileSystem dying;
  dying.dieAt = at;
  try {
    pair.save(dying, "new");
  } catch (const test::Died&) {
    return true;
  }
  return dying.calls >= at;  // closing a file kills no process
}

TEST(ReadOnlyFiles, SaveThatWasCutOffIsReadAsItsEndWouldGiveItAndStaysAsItIs) {
  int asNew = 0;
  int asOld = 0;
  bool reached = true;
  for (int at = 1; reached; ++at) {
    SCOPED_TRACE(at);
    TestFolder folder;
    const SavedPair pair(folder);
    test::UnflushedFileSystem system;
    pair.save(system, "old");
    reached = saveDies(pair, at);
    const auto before = contents(folder);

    ReadOnlyFiles view(system);
    const auto seen = pair.read(view);
    EXPECT_FALSE(view.overtaken());
    EXPECT_EQ(contents(folder), before) << "reading changed something";
    EXPECT_EQ(seen, pair.read(system)) << "the end of the save gives something else";
    asNew += seen == "new" ? 1 : 0;
    asOld += seen == "old" ? 1 : 0;
  }
  EXPECT_GT(asNew, 3);
  EXPECT_GT(asOld, 3);
}

TEST(ReadOnlyFiles, FailedExchangeThatWasTakenBackIsReadAsOld) {
  // The second rename fails, then everything: the journal says "undo", but nothing was taken back.
  int undone = 0;
  for (int at = 1; at < 60; ++at) {
    for (const bool isNew : {false, true}) {
      SCOPED_TRACE(at);
      TestFolder folder;
      const SavedPair pair(folder);
      test::UnflushedFileSystem system;
      if (!isNew) pair.save(system, "old");
      test::FaultyFileSystem faulty;
      faulty.failAt = at;
      faulty.dieAt = at + 3;
      try {
        pair.save(faulty, "new");
      } catch (const test::Died&) {
      }
      const auto before = contents(folder);
      for (const auto& [name, content] : before) undone += content.find("undo") != std::string::npos ? 1 : 0;
      ReadOnlyFiles view(system);
      const auto seen = pair.read(view);
      EXPECT_EQ(contents(folder), before);
      EXPECT_EQ(seen, pair.read(system));
      EXPECT_TRUE(seen.has_value());
    }
  }
  EXPECT_GT(undone, 0);
}

TEST(ReadOnlyFiles, UnfinishedSaveIsSeenBehindSymbolicLinks) {
  TestFolder folder;
  const SavedPair pair(folder);
  test::UnflushedFileSystem system;
  SavedPair linked;
  linked.head = folder.path("link.O");
  linked.points = folder.path("link.O1");
  fs::create_symlink("F.O", linked.head);
  fs::create_symlink(pair.points, linked.points);
  int asNew = 0;
  for (int at = 1; at < 50; ++at) {
    pair.save(system, "old");
    saveDies(pair, at);
    ReadOnlyFiles view(system);
    const auto seen = linked.read(view);
    ASSERT_TRUE(seen.has_value());
    EXPECT_EQ(seen, pair.read(system)) << at;
    asNew += seen == "new" ? 1 : 0;
  }
  EXPECT_GT(asNew, 5);
}

TEST(ReadOnlyFiles, NothingCanBeChangedThroughThem) {
  TestFolder folder;
  test::writeFile(folder.path("a"), "a");
  const auto before = contents(folder);
  test::UnflushedFileSystem system;
  ReadOnlyFiles view(system);
  using Open = FileSystem::Open;
  EXPECT_EQ(view.open(folder.path("b"), Open::createNew), -EROFS);
  EXPECT_EQ(view.open(folder.path("a"), Open::update), -EROFS);
  const int file = view.open(folder.path("a"), Open::updatePresent);
  ASSERT_GE(file, 0);
  EXPECT_EQ(view.write(file, test::bytesOf("x")), -EROFS);
  EXPECT_EQ(view.setPermissions(file, 0777), -EROFS);
  EXPECT_EQ(view.setOwner(file, 1, 1), -EROFS);
  EXPECT_LT(system.write(file, test::bytesOf("x")), 0) << "the handle itself is for reading only";
  EXPECT_EQ(view.close(file), 0);
  EXPECT_EQ(view.mayWrite(folder.path("a")), -EROFS);
  EXPECT_EQ(view.link(folder.path("a"), folder.path("b")), -EROFS);
  EXPECT_EQ(view.rename(folder.path("a"), folder.path("b")), 0);
  FileInfo info;
  EXPECT_EQ(view.infoOf(folder.path("a"), info), -ENOENT);
  EXPECT_EQ(view.infoOf(folder.path("b"), info), 0);
  EXPECT_EQ(view.remove(folder.path("b")), 0);
  EXPECT_EQ(view.infoOf(folder.path("b"), info), -ENOENT);
  EXPECT_EQ(view.rename(folder.path("b"), folder.path("c")), -ENOENT);
  EXPECT_EQ(view.remove(folder.path("b")), -ENOENT);
  EXPECT_EQ(contents(folder), before);
}

TEST(ReadOnlyFiles, NameThatLedElsewhereIsGoneWithWhatLayThere) {
  TestFolder folder;
  test::writeFile(folder.path("a"), "a");
  test::writeFile(folder.path("b"), "bb");
  test::UnflushedFileSystem system;
  ReadOnlyFiles view(system);
  ASSERT_EQ(view.rename(folder.path("a"), folder.path("b")), 0);
  ASSERT_EQ(view.remove(folder.path("b")), 0);
  FileInfo info;
  EXPECT_EQ(view.infoOf(folder.path("b"), info), -ENOENT);
  EXPECT_FALSE(view.overtaken());
}

TEST(ReadOnlyFiles, TellsThatItWasOvertaken) {
  TestFolder folder;
  test::writeFile(folder.path("a"), "a");
  test::UnflushedFileSystem system;
  ReadOnlyFiles view(system);
  ASSERT_EQ(view.rename(folder.path("a"), folder.path("b")), 0);
  EXPECT_FALSE(view.overtaken());
  test::writeFile(folder.path("new"), "another");
  fs::rename(folder.path("new"), folder.path("a"));
  FileInfo info;
  EXPECT_EQ(view.infoOf(folder.path("a"), info), 0) << "the view fell back to what lies there";
  EXPECT_TRUE(view.overtaken());
  EXPECT_EQ(view.infoOf(folder.path("b"), info), -ENOENT);
}

/// Saves a measurement of the reference with one reading that tells the generation, in head and points.
struct Generations {
  explicit Generations(const TestFolder& folder)
      : name(test::referenceIn(folder)), head(test::readFile(name)), points(test::readFile(name + "1")) {}

  void save(FileSystem& system, double generation) {
    std::memcpy(head.data(), &generation, sizeof(generation));              // X.Aktuell
    std::memcpy(points.data() + 40 * 24, &generation, sizeof(generation));  // X of the last point
    saveTogether(system, {{name, [this](SaveSink& sink) { sink.write(test::bytesOf(head)); }},
                          {name + "1", [this](SaveSink& sink) { sink.write(test::bytesOf(points)); }}});
  }

  std::string name;
  std::string head;
  std::string points;
};

std::string generationOfHead(const Value& told) {
  return told.members.at(1).second.members.at(0).second.text;
}
std::string generationOfPoints(const Value& told) {
  return told.members.at(2).second.list.back().members.at(2).second.text;
}

TEST(Reading, NeverMixesTwoSavesOfAProgramThatIsKilledAgainAndAgain) {
  TestFolder folder;
  Generations generations(folder);
  test::UnflushedFileSystem system;
  generations.save(system, 0);
  int read = 0;
  for (int round = 0; round < 15; ++round) {
    test::KillableChild saver([&](const std::function<void()>& beat) {
      for (double generation = 1;; generation += 1) {
        generations.save(system, round * 1e6 + generation);
        beat();
      }
    });
    ASSERT_TRUE(saver.awaitBeats(2));
    for (int i = 0; i < 20; ++i) {
      Value told = Value::ofObject();
      readMeasuringFile(system, generations.name)->tell(told, {});
      ASSERT_EQ(generationOfHead(told), generationOfPoints(told));
      ++read;
    }
    saver.kill();
    const auto before = contents(folder);
    EXPECT_NO_THROW(readMeasuringFile(system, generations.name));
    EXPECT_EQ(contents(folder), before);
  }
  EXPECT_EQ(read, 300);
}

/// The files of a program that finds a journal taken at once, and may die at one of its calls.
class Rival : public test::FaultyFileSystem {
 public:
  int lock(int file) override { return ::flock(file, LOCK_EX | LOCK_NB) == 0 ? 0 : -EWOULDBLOCK; }
};

/// Saves as a rival that dies at call `dieAt`, 0: it lives.
void saveAsRival(Generations& generations, double generation, int dieAt) {
  Rival rival;
  rival.dieAt = dieAt;
  try {
    generations.save(rival, generation);
  } catch (const test::Died&) {
  }
}

/// Runs `meddle` once, right before the call number `at`.
class MeddledFiles : public test::UnflushedFileSystem {
 public:
  int open(const std::string& path, Open how, std::uint32_t permissions) override {
    count();
    return UnflushedFileSystem::open(path, how, permissions);
  }
  int info(int file, FileInfo& to) override {
    count();
    return UnflushedFileSystem::info(file, to);
  }
  int infoOf(const std::string& path, FileInfo& to) override {
    count();
    return UnflushedFileSystem::infoOf(path, to);
  }
  long read(int file, std::span<std::byte> to) override {
    count();
    return UnflushedFileSystem::read(file, to);
  }

  int calls = 0;
  int at = 0;
  std::function<void()> meddle;

 private:
  void count() {
    if (++calls == at) meddle();
  }
};

/// For each state in which a save can be cut off, one call at which it dies; 0 for the one that lives.
std::vector<int> deaths(const TestFolder& folder, Generations& generations) {
  test::UnflushedFileSystem system;
  Rival counting;
  generations.save(counting, 0);
  std::map<std::vector<std::string>, int> states;
  for (int at = 1; at <= counting.calls; ++at) {
    generations.save(system, 1);
    saveAsRival(generations, 2, at);
    const auto files = contents(folder);
    std::vector<std::string> state;
    for (const char* name : {".point.O.korvin-save", "point.O", "point.O1", ".point.O.korvin-new"})
      state.push_back(files.contains(name) ? files.at(name) : "none");
    states[state] = at;
  }
  std::vector<int> all{0};
  for (const auto& [state, at] : states) all.push_back(at);
  return all;
}

TEST(Reading, NeverMixesTwoSavesWhateverARivalDoesBetweenTwoCalls) {
  TestFolder folder;
  Generations generations(folder);
  test::UnflushedFileSystem system;
  const std::vector<int> all = deaths(folder, generations);
  EXPECT_GE(all.size(), 6U);
  int meddled = 0;
  for (const int firstDeath : all) {
    for (const int secondDeath : all) {
      bool reached = true;
      for (int at = 1; reached; ++at) {
        SCOPED_TRACE(testing::Message() << firstDeath << ", " << secondDeath << " at " << at);
        generations.save(system, 1);
        saveAsRival(generations, 2, firstDeath);
        MeddledFiles files;
        files.at = at;
        files.meddle = [&] { saveAsRival(generations, 3, secondDeath); };
        Value told = Value::ofObject();
        ASSERT_NO_THROW(readMeasuringFile(files, generations.name)->tell(told, {}));
        ASSERT_EQ(generationOfHead(told), generationOfPoints(told));
        reached = files.calls >= at;
        meddled += reached ? 1 : 0;
      }
    }
  }
  EXPECT_GT(meddled, 500);
}

TEST(ReadOnlyFiles, TellsThatItWasOvertakenWhileItOpened) {
  TestFolder folder;
  test::writeFile(folder.path("a"), "a");
  test::writeFile(folder.path("new"), "another");
  MeddledFiles files;
  ReadOnlyFiles view(files);
  ASSERT_EQ(view.rename(folder.path("a"), folder.path("b")), 0);
  files.at = files.calls + 2;  // after the look at the file, before it is opened
  files.meddle = [&] { fs::rename(folder.path("new"), folder.path("a")); };
  view.close(view.open(folder.path("b"), FileSystem::Open::read));
  EXPECT_TRUE(view.overtaken());
}

TEST(Reading, ReadOnlyArchiveWithAnUnfinishedSaveIsRead) {
  TestFolder folder;
  Generations generations(folder);
  test::UnflushedFileSystem system;
  int committed = 0;
  for (int at = 1; at < 60; ++at) {
    generations.save(system, 1);
    test::FaultyFileSystem dying;
    dying.dieAt = at;
    try {
      generations.save(dying, 2);
    } catch (const test::Died&) {
      std::error_code none;
      const auto journal = fs::file_size(folder.path(".point.O.korvin-save"), none);
      committed += !none && journal > 0 ? 1 : 0;
    }
    fs::permissions(folder.path(), fs::perms::owner_all | fs::perms::others_read | fs::perms::others_exec);
    EXPECT_TRUE(test::inChildWithoutRights([&] {
      ToolRun run;
      return run({"check", generations.name}) == 0;
    })) << at;
    FileGroupReader finish(system, {generations.name, generations.name + "1"});
  }
  EXPECT_GT(committed, 3);
}

TEST(Reading, EachCallThatFailsIsToldAndNothingIsWritten) {
  TestFolder folder;
  const std::string file = test::referenceIn(folder);
  const auto before = contents(folder);
  bool reached = true;
  for (int at = 1; reached; ++at) {
    SCOPED_TRACE(at);
    test::FaultyFileSystem faulty;
    faulty.failAt = at;
    ToolRun run(faulty);
    const int status = run({"csv", file});
    reached = faulty.calls >= at;
    EXPECT_EQ(status == 0, run.errors.empty());
    EXPECT_EQ(status == 0, !run.output.empty());
    EXPECT_THAT(run.errors,
                ::testing::HasSubstr(status == 0 ? "" : "the disk or the connection to it fails"));
  }
  EXPECT_EQ(contents(folder), before);
}

}  // namespace
}  // namespace korvin::file
