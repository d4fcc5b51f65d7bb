// Where results go, and what happens where they cannot be written.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "file_tool/tool_run.h"
#include "korvin-file/file_options.h"
#include "support/child_process.h"
#include "support/faulty_file_system.h"
#include "support/json.h"

namespace korvin::file {
namespace {

namespace fs = std::filesystem;
using test::TestFolder;
using test::ToolRun;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::UnorderedElementsAre;

class FileOutput : public ::testing::Test {
 protected:
  FileOutput() { fs::create_directory(out); }

  std::vector<std::string> namesOut() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(out)) names.push_back(entry.path().filename().string());
    return names;
  }

  TestFolder folder;
  std::string file = test::referenceIn(folder);
  std::string out = folder.path("out");
  ToolRun run;
};

TEST_F(FileOutput, FileHoldsWhatStandardOutputWouldGet) {
  for (const char* command : {"show", "text", "csv", "report"}) {
    ASSERT_EQ(run({command, file, "-o", "-"}), 0);
    const std::string printed = run.output;
    ASSERT_EQ(run({command, file, "-o", folder.path("result")}), 0) << run.errors;
    EXPECT_EQ(run.output, "");
    EXPECT_EQ(test::readFile(folder.path("result")), printed);
  }
  EXPECT_THAT(folder.names(), ElementsAre("out", "point.O", "point.O1", "result"));
}

TEST_F(FileOutput, FolderGetsOneResultForEachFile) {
  const std::string other = folder.path("other.O");
  fs::copy(file, other);
  fs::copy(file + "1", other + "1");
  ASSERT_EQ(run({"csv", file, other, "-o", out}), 0) << run.errors;
  ASSERT_EQ(run({"text", file, other, "-o", out + "/"}), 0);
  ASSERT_EQ(run({"show", "--json", file, other, "-o", out}), 0);
  ASSERT_EQ(run({"report", file, other, "-o", out}), 0);
  ASSERT_EQ(run({"show", file, "-o", out}), 0);
  EXPECT_THAT(namesOut(), UnorderedElementsAre("point.O.csv", "other.O.csv", "point.O.txt", "other.O.txt",
                                               "point.O.json", "other.O.json", "point.O.pdf", "other.O.pdf"));
  EXPECT_EQ(test::parseJson(test::readFile(out + "/other.O.json"))["file"].text, other);
}

TEST_F(FileOutput, BadFileLeavesTheOthersToBeConverted) {
  EXPECT_EQ(run({"csv", folder.path("none.O"), file, "-o", out}), 1);
  EXPECT_THAT(run.errors, HasSubstr("none.O: no such file"));
  EXPECT_THAT(namesOut(), ElementsAre("point.O.csv"));
}

TEST_F(FileOutput, SeveralShownFilesFollowEachOtherInOneFile) {
  ASSERT_EQ(run({"show", "--json", file, file, "-o", folder.path("all.json")}), 0) << run.errors;
  EXPECT_EQ(test::parseJson(test::readFile(folder.path("all.json"))).list.size(), 2U);
}

TEST_F(FileOutput, SeveralFilesNeedAFolder) {
  for (const char* command : {"text", "csv"}) {
    EXPECT_EQ(run({command, file, file}), 2);
    EXPECT_THAT(run.errors,
                HasSubstr(std::string(command) + " of several files needs a folder: -o FOLDER\n"));
    EXPECT_EQ(run({command, file, file, "-o", folder.path("nowhere")}), 2);
    EXPECT_THAT(run.errors, HasSubstr(folder.path("nowhere") + " is none"));
  }
  EXPECT_EQ(run.output, "");
}

TEST_F(FileOutput, TwoResultsOfOneNameAreRefused) {
  fs::create_directory(folder.path("b"));
  fs::copy(file, folder.path("b/point.O"));
  EXPECT_EQ(run({"csv", file, folder.path("b/point.O"), "-o", out}), 2);
  EXPECT_THAT(run.errors, HasSubstr("two results would be written to " + out + "/point.O.csv"));
  EXPECT_TRUE(namesOut().empty());
}

TEST_F(FileOutput, MeasuringFileIsNeverWrittenOver) {
  const std::string before = test::readFile(file);
  const std::string points = test::readFile(file + "1");
  fs::create_symlink(file, folder.path("link"));
  fs::create_hard_link(file + "1", folder.path("twin"));
  for (const std::string& target :
       {file, file + "1", folder.path("other.O"), folder.path("other.o1"), folder.path("link"),
        folder.path("twin"), folder.path("out/../point.O")}) {
    EXPECT_EQ(run({"csv", file, "-o", target}), 2) << target;
    EXPECT_THAT(run.errors, HasSubstr("never written over"));
  }
  EXPECT_EQ(test::readFile(file), before);
  EXPECT_EQ(test::readFile(file + "1"), points);
}

TEST_F(FileOutput, ResultReplacesAnEarlierOne) {
  test::writeFile(folder.path("a.csv"), "old");
  ASSERT_EQ(run({"csv", file, "-o", folder.path("a.csv")}), 0);
  EXPECT_THAT(test::readFile(folder.path("a.csv")), ::testing::StartsWith("number,time,x,y\n1,"));
}

TEST_F(FileOutput, WhatCannotBeWrittenIsTold) {
  EXPECT_EQ(run({"csv", file, "-o", folder.path("no/where.csv")}), 1);
  EXPECT_EQ(run.errors,
            "korvin-file: " + folder.path("no/where.csv") + ": no such folder; nothing was changed\n");
  EXPECT_EQ(run({"csv", file, "-o", folder.path("new/")}), 1);
  EXPECT_THAT(run.errors, HasSubstr("no such folder"));
  EXPECT_EQ(run({"csv", file, "-o", "/dev/null"}), 1);
  EXPECT_THAT(run.errors, HasSubstr("is no plain file"));
  run.outputFull = true;
  EXPECT_EQ(run({"csv", file}), 1);
  EXPECT_EQ(run.errors, "korvin-file: standard output: cannot be written\n");
}

TEST_F(FileOutput, FolderWithoutRightsIsTold) {
  for (const std::string& path : {folder.path(), out})
    fs::permissions(path, fs::perms::owner_all | fs::perms::others_read | fs::perms::others_exec);
  EXPECT_TRUE(test::inChildWithoutRights([&] {
    return run({"csv", file, "-o", out + "/a.csv"}) == 1 &&
           run.errors == "korvin-file: " + out + "/a.csv: may not be written; nothing was changed\n";
  }));
}

TEST_F(FileOutput, FullDiskAtAnyCallLeavesTheOldResultOrTheNew) {
  const std::string result = folder.path("a.csv");
  ASSERT_EQ(run({"csv", file, "-o", result}), 0);
  const std::string whole = test::readFile(result);
  bool reached = true;
  int refused = 0;
  for (int at = 1; reached; ++at) {
    SCOPED_TRACE(at);
    test::writeFile(result, "old");
    test::FaultyFileSystem faulty;
    faulty.failAt = at;
    faulty.number = ENOSPC;
    faulty.stays = true;
    ToolRun onFaulty(faulty);
    const int status = onFaulty({"csv", file, "-o", result});
    reached = faulty.calls >= at;
    const std::string present = test::readFile(result);
    EXPECT_TRUE(present == "old" || present == whole);
    if (status == 0) {
      EXPECT_EQ(present, whole);
    } else {
      EXPECT_THAT(onFaulty.errors, ::testing::StartsWith("korvin-file: "));
      refused += onFaulty.errors.find("the disk is full; nothing was changed") != std::string::npos ? 1 : 0;
    }
  }
  EXPECT_GT(refused, 3) << "a full disk is called by its name";
}

}  // namespace
}  // namespace korvin::file
