// The measuring files on the command line, as a shell calls them.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>

#include "support/json.h"
#include "support/test_files.h"

namespace fs = std::filesystem;

namespace korvin {
namespace {

using test::Json;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::StartsWith;

class FileProgram : public ::testing::Test {
 protected:
  FileProgram() {
    folder.copyOf("reference/point.O");
    folder.copyOf("reference/point.O1");
  }

  /// Runs korvin-file in the folder of the test; `arguments` as a shell takes them. Answers the exit status.
  int run(const std::string& arguments, const std::string& before = {}) {
    const std::string command = "cd '" + folder.path() + "' && " + before + "'" KORVIN_BIN "/korvin-file' " +
                                arguments + " >'" + results.path("out") + "' 2>'" + results.path("err") + "'";
    const int status = std::system(command.c_str());
    output = test::readFile(results.path("out"));
    errors = test::readFile(results.path("err"));
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }

  /// The words of a PDF in the folder of the test; pages end with a form feed.
  std::string textOf(const std::string& pdf) {
    const std::string command =
        "pdftotext -enc UTF-8 '" + folder.path(pdf) + "' '" + results.path("text") + "'";
    EXPECT_EQ(std::system(command.c_str()), 0);
    return test::readFile(results.path("text"));
  }

  test::TestFolder folder;
  test::TestFolder results;
  std::string output;
  std::string errors;
};

TEST_F(FileProgram, JsonAgreesWithTheReference) {
  ASSERT_EQ(run("show point.O --json"), 0) << errors;
  const Json shown = test::parseJson(output);
  const Json wanted = test::parseJson(test::readFile(test::dataFile("reference/point.O.json")));
  for (const auto& [name, field] : wanted["fields"].object) {
    EXPECT_EQ(shown["fields"][name].number, field.number) << name;
    EXPECT_EQ(shown["fields"][name].text, field.text) << name;
  }
  ASSERT_EQ(shown["points"].list.size(), wanted["points"].list.size());
  for (std::size_t i = 0; i < 40; ++i) {
    EXPECT_EQ(shown["points"].list[i]["x"].number, wanted["points"].list[i].list[0].number);
    EXPECT_EQ(shown["points"].list[i]["y"].number, wanted["points"].list[i].list[1].number);
  }
  EXPECT_EQ(errors, "");
}

TEST_F(FileProgram, StraightnessOfAnyFormIsShownAndConverted) {
  for (const std::string name : {"six.G", "older.G"}) {
    folder.copyOf("reference/" + name);
    ASSERT_EQ(run("show --json --inch " + name), 0) << errors;
    const Json wanted = test::parseJson(test::readFile(test::dataFile("reference/" + name + ".json")));
    const Json shown = test::parseJson(output);
    EXPECT_EQ(shown["length"].number, wanted["length"].number);
    EXPECT_NEAR(shown["evaluated"]["ISO_mil"]["Y"]["max"].number,
                wanted["evaluated"]["ISO_mil"]["Y"]["max"].number, 1e-12);
  }
  EXPECT_EQ(run("csv six.G"), 0);
  EXPECT_THAT(output, HasSubstr("\n6,2500,-0.586,-0.2068,"));
  EXPECT_EQ(run("text --language 1 --inch six.G"), 0) << errors;
  EXPECT_THAT(output, HasSubstr("\r\nMP\tZ[in]\tX[mil]\tY[mil]\r\n"));
  EXPECT_EQ(run("report six.G -o six.pdf --language 0 --inch"), 0) << errors;
  EXPECT_THAT(folder.names(), ElementsAre("older.G", "point.O", "point.O1", "six.G", "six.pdf"));
  const std::string pages = textOf("six.pdf");
  EXPECT_EQ(std::count(pages.begin(), pages.end(), '\f'), 2) << "diagrams and table";
  for (const char* words : {"six.G", "X[mil]", "Z[in]", "-0.932"}) EXPECT_THAT(pages, HasSubstr(words));
}

TEST_F(FileProgram, EachCommandWorksInAFolderThatCannotBeWritten) {
  fs::permissions(folder.path(), fs::perms::owner_read | fs::perms::owner_exec);
  EXPECT_EQ(run("show point.O"), 0);
  EXPECT_THAT(output, HasSubstr("Prüfstelle Süd"));
  EXPECT_EQ(run("text --language=1 point.O"), 0) << errors;
  EXPECT_THAT(output, HasSubstr("\tPr\xFC\x66stelle S\xFC\x64\r\n"));
  EXPECT_EQ(run("csv point.O"), 0);
  EXPECT_THAT(output, StartsWith("number,time,x,y\n1,2004-01-14T13:58:47.627268,0.0261,-0.0888\n2,"));
  EXPECT_EQ(run("check point.O"), 0);
  EXPECT_EQ(output, "point.O: ok (position, 40 points)\n");
  fs::permissions(folder.path(), fs::perms::owner_all);
  EXPECT_THAT(folder.names(), ElementsAre("point.O", "point.O1"));
}

TEST_F(FileProgram, ReportIsAPdfWithTextsAndNeedsNoScreen) {
  ASSERT_EQ(
      run("report point.O -o point.pdf --language 0", "unset DISPLAY QT_QPA_PLATFORM XDG_RUNTIME_DIR; "), 0);
  EXPECT_EQ(errors + output, "");
  EXPECT_THAT(folder.names(), ElementsAre("point.O", "point.O1", "point.pdf"));
  const std::string pages = textOf("point.pdf");
  EXPECT_EQ(std::count(pages.begin(), pages.end(), '\f'), 3) << "one for each page";
  for (const char* words : {"Prüfstelle Süd", "Spindellager", "M. Größ", "point.O", "X[mm]", "0.0261"})
    EXPECT_THAT(pages, HasSubstr(words));
  EXPECT_EQ(run("report point.O -o part.pdf --parts y"), 0);
  EXPECT_EQ(run("report point.O"), 2);
  EXPECT_EQ(run("report point.O -o - --parts z"), 2);
}

TEST_F(FileProgram, StatusTellsHowItWent) {
  folder.copyOf("reference/short.O");
  EXPECT_EQ(run("check *.O"), 1);
  EXPECT_EQ(output, "point.O: ok (position, 40 points)\nshort.O: bad: is 780 bytes long, not 789\n");
  EXPECT_EQ(run("csv short.O"), 1);
  EXPECT_EQ(errors, "korvin-file: short.O: is 780 bytes long, not 789\n");
  EXPECT_EQ(run(""), 2);
  EXPECT_EQ(run("csv point.O short.O"), 2);
  EXPECT_EQ(run("csv -o *.O"), 2) << "a pattern in the wrong place writes over nothing";
  EXPECT_EQ(output, "");
  EXPECT_EQ(run("--help"), 0);
  EXPECT_EQ(run("--version"), 0);
  EXPECT_THAT(output, StartsWith("korvin-file "));
}

TEST_F(FileProgram, FullDiskLeavesTheEarlierResult) {
  test::writeFile(folder.path("a.csv"), "old");
  EXPECT_EQ(run("csv point.O -o a.csv", "ulimit -f 1; "), 1);
  EXPECT_EQ(errors, "korvin-file: a.csv: the disk is full; nothing was changed\n");
  EXPECT_EQ(test::readFile(folder.path("a.csv")), "old");
  EXPECT_THAT(folder.names(), ElementsAre("a.csv", "point.O", "point.O1"));
  EXPECT_EQ(run("csv point.O -o a.csv"), 0);
  EXPECT_THAT(test::readFile(folder.path("a.csv")), StartsWith("number,"));
}

TEST_F(FileProgram, FullStandardOutputIsTold) {
  const std::string command = "'" KORVIN_BIN "/korvin-file' csv '" + folder.path("point.O") +
                              "' >/dev/full 2>'" + results.path("err") + "'";
  EXPECT_EQ(WEXITSTATUS(std::system(command.c_str())), 1);
  EXPECT_EQ(test::readFile(results.path("err")), "korvin-file: standard output: cannot be written\n");
}

}  // namespace
}  // namespace korvin
