// The build tool that makes the dictionary's database: what it makes and what it refuses.
#include <gtest/gtest.h>
#include <sqlite3.h>
#include <sys/wait.h>

#include <array>
#include <cstdio>
#include <filesystem>

#include "support/test_files.h"

namespace korvin {
namespace {

const std::string heading =
    "IDNr\tDeutsch\tEnglisch\tFranzoesisch\tItalienisch\tSpanisch\tSchwedisch\tChinese\tJapanese\n";
const std::string start = "#range 10 19\n" + heading;

/// A row of `number` with `text` in German and numbered texts elsewhere.
std::string row(const std::string& number, const std::string& text) {
  return number + "\t" + text + "\te\tf\ti\ts\tv\t中\t日\n";
}

class MakeDictionary : public testing::Test {
 protected:
  void write(const std::string& name, const std::string& text) { test::writeFile(folder.path(name), text); }
  /// Runs the tool in the folder; its output is in `said`.
  int run(const std::string& arguments) {
    said.clear();
    FILE* pipe = popen(
        ("cd '" + folder.path() + "' && " KORVIN_BIN "/make_dictionary " + arguments + " 2>&1").c_str(), "r");
    std::array<char, 256> buffer{};
    while (fgets(buffer.data(), buffer.size(), pipe) != nullptr) said += buffer.data();
    return WEXITSTATUS(pclose(pipe));
  }
  /// What the tool says to one file of this text.
  std::string refusal(const std::string& text) {
    write("a.tsv", text);
    EXPECT_EQ(run("out.mdb a.tsv"), 1) << text;
    EXPECT_FALSE(std::filesystem::exists(folder.path("out.mdb")));
    return said;
  }
  std::string textOf(int number, const std::string& column) {
    sqlite3* database = nullptr;
    sqlite3_stmt* statement = nullptr;
    sqlite3_open_v2(folder.path("out.mdb").c_str(), &database, SQLITE_OPEN_READONLY, nullptr);
    const std::string sql = "SELECT " + column + " FROM DIC WHERE IDNr = " + std::to_string(number);
    sqlite3_prepare_v2(database, sql.c_str(), -1, &statement, nullptr);
    std::string text = "none";
    if (sqlite3_step(statement) == SQLITE_ROW)
      text = reinterpret_cast<const char*>(sqlite3_column_text(statement, 0));
    sqlite3_finalize(statement);
    sqlite3_close(database);
    return text;
  }

  const test::TestFolder folder;
  std::string said;
};

TEST_F(MakeDictionary, EveryRowOfEveryFileIsInTheTable) {
  write("a.tsv", "# of a\n" + start + row("10", "zehn") + "\n# more\n" + row("19", "neunzehn"));
  write("b.tsv", "#range 20 20\n" + heading + row("20", "zwanzig"));
  EXPECT_EQ(run("out.mdb a.tsv b.tsv"), 0);
  EXPECT_EQ(said, "");
  EXPECT_EQ(textOf(10, "Deutsch"), "zehn");
  EXPECT_EQ(textOf(10, "Englisch"), "e");
  EXPECT_EQ(textOf(10, "Schwedisch"), "v");
  EXPECT_EQ(textOf(10, "Japanese"), "日");
  EXPECT_EQ(textOf(19, "Deutsch"), "neunzehn");
  EXPECT_EQ(textOf(20, "Deutsch"), "zwanzig");
  EXPECT_EQ(textOf(11, "Deutsch"), "none");
}

TEST_F(MakeDictionary, EscapesAreResolved) {
  write("a.tsv", start + row("10", "a\\nb\\s") + row("11", "\\s\\\\n"));
  EXPECT_EQ(run("out.mdb a.tsv"), 0);
  EXPECT_EQ(textOf(10, "Deutsch"), "a\nb ");
  EXPECT_EQ(textOf(11, "Deutsch"), " \\n");
}

TEST_F(MakeDictionary, LineEndsOfOtherSystemsAreNoPartOfTheText) {
  write("a.tsv",
        "#range 10 19\r\n" + heading.substr(0, heading.size() - 1) + "\r\n10\td\te\tf\ti\ts\tv\t中\t日\r\n");
  EXPECT_EQ(run("out.mdb a.tsv"), 0) << said;
  EXPECT_EQ(textOf(10, "Japanese"), "日");
}

TEST_F(MakeDictionary, TheSameSourcesGiveTheSameBytes) {
  write("a.tsv", start + row("12", "b") + row("11", "a"));
  write("b.tsv", start + row("11", "a") + row("12", "b"));
  EXPECT_EQ(run("one.mdb a.tsv"), 0);
  EXPECT_EQ(run("two.mdb a.tsv"), 0);
  EXPECT_EQ(run("three.mdb b.tsv"), 0);
  EXPECT_GT(test::readFile(folder.path("one.mdb")).size(), 4096U);
  EXPECT_EQ(test::readFile(folder.path("one.mdb")), test::readFile(folder.path("two.mdb")));
  EXPECT_EQ(test::readFile(folder.path("one.mdb")), test::readFile(folder.path("three.mdb")));
}

TEST_F(MakeDictionary, AMissingGermanTextIsRefused) {
  EXPECT_EQ(refusal(start + row("10", "a") + row("11", "")), "a.tsv:4: the German text is missing\n");
}

TEST_F(MakeDictionary, AMissingLanguageIsRefused) {
  EXPECT_EQ(refusal(start + "10\td\te\tf\t\ts\tv\t中\t\n"),
            "a.tsv:3: the text is missing in Italienisch\na.tsv:3: the text is missing in Japanese\n");
}

TEST_F(MakeDictionary, ADoubleNumberIsRefused) {
  EXPECT_EQ(refusal(start + row("10", "a") + row("11", "b") + row("10", "c")),
            "a.tsv:5: number 10 stands already in a.tsv:3\n");
}

TEST_F(MakeDictionary, ANumberOutOfTheFilesRangeIsRefused) {
  EXPECT_EQ(refusal(start + row("9", "a") + row("20", "b")),
            "a.tsv:3: number 9 is out of the file's range 10 to 19\n"
            "a.tsv:4: number 20 is out of the file's range 10 to 19\n");
}

TEST_F(MakeDictionary, ARowThatHasNoNumberIsRefused) {
  EXPECT_EQ(refusal(start + row("1x", "a")), "a.tsv:3: \"1x\" is no number\n");
  EXPECT_EQ(refusal(start + row("", "a")), "a.tsv:3: \"\" is no number\n");
}

TEST_F(MakeDictionary, AWrongCountOfColumnsIsRefused) {
  EXPECT_EQ(refusal(start + "10\td\te\tf\ti\ts\tv\t中\n"), "a.tsv:3: a row has 9 columns, here are 8\n");
  EXPECT_EQ(refusal(start + "10\td\te\tf\ti\ts\tv\t中\t日\t\n"),
            "a.tsv:3: a row has 9 columns, here are 10\n");
  EXPECT_EQ(refusal(start + "10 d e f\n"), "a.tsv:3: a row has 9 columns, here are 1\n");
}

TEST_F(MakeDictionary, AWrongHeadingIsRefused) {
  const std::string wanted =
      "the heading must be: IDNr Deutsch Englisch Franzoesisch Italienisch Spanisch Schwedisch Chinese "
      "Japanese\n";
  EXPECT_EQ(refusal("#range 10 19\nIDNr\tEnglisch\tDeutsch\n"), "a.tsv:2: " + wanted);
  EXPECT_EQ(refusal("#range 10 19\n" + row("10", "a")), "a.tsv:2: " + wanted);
  EXPECT_EQ(refusal("#range 10 19\n"), "a.tsv:1: the heading is missing\n");
}

TEST_F(MakeDictionary, AWrongRangeIsRefused) {
  const std::string wanted = "a file has one line \"#range FIRST LAST\" with numbers from 1 to 32767\n";
  EXPECT_EQ(refusal("#range 10 19\n" + start), "a.tsv:2: " + wanted);
  for (const std::string range : {"", " 10", " 19 10", " 0 10", " 10 32768", " 10 19 20", " a b"}) {
    EXPECT_EQ(refusal("#range" + range + "\n" + heading).rfind("a.tsv:1: " + wanted, 0), 0U) << range;
  }
  EXPECT_EQ(refusal(heading + row("10", "a")),
            "a.tsv:1: the line \"#range FIRST LAST\" is missing above the heading\n");
}

TEST_F(MakeDictionary, RangesThatOverlapAreRefused) {
  write("b.tsv", "#range 19 30\n" + heading);
  write("a.tsv", start);
  EXPECT_EQ(run("out.mdb a.tsv b.tsv"), 1);
  EXPECT_EQ(said, "b.tsv:1: the range overlaps that of a.tsv\n");
}

TEST_F(MakeDictionary, ABlankAtTheEdgeIsRefused) {
  EXPECT_EQ(refusal(start + row("10", "a ")), "a.tsv:3: a blank at the edge is written \\s, in Deutsch\n");
  EXPECT_EQ(refusal(start + row("10", " a")), "a.tsv:3: a blank at the edge is written \\s, in Deutsch\n");
}

TEST_F(MakeDictionary, AnUnknownEscapeIsRefused) {
  const std::string wanted = "a.tsv:3: behind a backslash stands n, s or a backslash, in Deutsch\n";
  EXPECT_EQ(refusal(start + row("10", "a\\tb")), wanted);
  EXPECT_EQ(refusal(start + row("10", "a\\")), wanted);
}

TEST_F(MakeDictionary, ALatinTextOutsideWindows1252IsRefused) {
  EXPECT_EQ(refusal(start + row("10", "a → b")), "a.tsv:3: the text does not fit Windows-1252 in Deutsch\n");
  EXPECT_EQ(refusal(start + "10\td\te\tf\ti\ts\tv\xE4\t中\t日\n"),
            "a.tsv:3: the text does not fit Windows-1252 in Schwedisch\n");
}

TEST_F(MakeDictionary, ANameInItsOwnScriptIsFreeWhereItIsTheSameInAllLanguages) {
  write("a.tsv", start + "10\t日本語\t日本語\t日本語\t日本語\t日本語\t日本語\t日本語\t日本語\n");
  EXPECT_EQ(run("out.mdb a.tsv"), 0) << said;
  EXPECT_EQ(textOf(10, "Deutsch"), "日本語");
}

TEST_F(MakeDictionary, AMissingFileIsRefused) {
  write("a.tsv", start);
  EXPECT_EQ(run("out.mdb a.tsv b.tsv"), 1);
  EXPECT_EQ(said, "b.tsv:0: the file cannot be read\n");
}

TEST_F(MakeDictionary, EveryMistakeIsToldAtOnce) {
  EXPECT_EQ(refusal(start + row("9", "") + row("x", "a") + row("11", "a ")),
            "a.tsv:3: number 9 is out of the file's range 10 to 19\na.tsv:3: the German text is missing\n"
            "a.tsv:4: \"x\" is no number\na.tsv:5: a blank at the edge is written \\s, in Deutsch\n");
}

TEST_F(MakeDictionary, ARefusedSourceLeavesTheOldDictionary) {
  write("a.tsv", start + row("10", "alt"));
  EXPECT_EQ(run("out.mdb a.tsv"), 0);
  const std::string before = test::readFile(folder.path("out.mdb"));
  write("a.tsv", start + row("10", ""));
  EXPECT_EQ(run("out.mdb a.tsv"), 1);
  EXPECT_EQ(test::readFile(folder.path("out.mdb")), before);
}

TEST_F(MakeDictionary, AProgramThatRunsKeepsItsWholeOldDictionary) {
  write("a.tsv", start + row("10", "alt"));
  EXPECT_EQ(run("out.mdb a.tsv"), 0);
  const std::string before = test::readFile(folder.path("out.mdb"));
  std::filesystem::create_hard_link(folder.path("out.mdb"), folder.path("held.mdb"));
  write("a.tsv", start + row("10", "neu"));
  EXPECT_EQ(run("out.mdb a.tsv"), 0);
  EXPECT_EQ(textOf(10, "Deutsch"), "neu");
  EXPECT_EQ(test::readFile(folder.path("held.mdb")), before);
}

TEST_F(MakeDictionary, AFolderThatIsNotThereIsToldWithoutACrash) {
  write("a.tsv", start + row("10", "a"));
  EXPECT_EQ(run("no/out.mdb a.tsv"), 1);
  EXPECT_EQ(said, "make_dictionary: unable to open database file\n");
  EXPECT_EQ(run("out.mdb"), 2);
}

}  // namespace
}  // namespace korvin
