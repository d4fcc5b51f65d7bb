#include "korvin-file/file_options.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <regex>

#include "support/test_files.h"

namespace korvin::file {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

std::string complaint(const std::vector<std::string>& arguments) {
  try {
    parseOptions(arguments);
  } catch (const OptionError& error) {
    return error.what();
  }
  return "none";
}

TEST(FileOptions, DefaultsAreGermanMetricToStandardOutput) {
  const FileOptions options = parseOptions({"csv", "a.O"});
  EXPECT_EQ(options.command, Command::csv);
  EXPECT_THAT(options.files, ElementsAre("a.O"));
  EXPECT_TRUE(options.toStandardOutput());
  EXPECT_EQ(options.language, 0);
  EXPECT_FALSE(options.inch || options.json);
  EXPECT_EQ(options.pentaArcseconds, 0);
}

TEST(FileOptions, EachReachesItsPlaceWhereverItStands) {
  const FileOptions options =
      parseOptions({"--language=3", "show", "--json", "a.O", "--inch", "b.O", "--penta", "-3.6",
                    "--dictionary", "d.mdb", "-o", "out", "--", "--json.O"});
  EXPECT_EQ(options.command, Command::show);
  EXPECT_THAT(options.files, ElementsAre("a.O", "b.O", "--json.O"));
  EXPECT_EQ(options.language, 3);
  EXPECT_TRUE(options.json);
  EXPECT_TRUE(options.inch);
  EXPECT_EQ(options.pentaArcseconds, -3.6);
  EXPECT_EQ(options.dictionary, "d.mdb");
  EXPECT_EQ(options.output, "out");
}

std::vector<std::string> callOf(const std::string& command) {
  if (command == "report") return {command, "a.O", "-o", "a.pdf"};
  return {command, "a.O"};
}

TEST(FileOptions, EachCommandIsKnown) {
  for (const std::string& name : commandNames())
    EXPECT_EQ(commandName(parseOptions(callOf(name)).command), name);
}

TEST(FileOptions, PartsStandBetweenCommas) {
  EXPECT_THAT(parseOptions({"report", "a.O", "-o", "-", "--parts", "x,diagram"}).parts,
              ElementsAre("x", "diagram"));
  EXPECT_TRUE(parseOptions({"report", "a.O", "-o", "-"}).parts.empty());
}

TEST(FileOptions, DashIsStandardOutput) {
  EXPECT_TRUE(parseOptions({"csv", "a.O", "-o", "-"}).toStandardOutput());
  EXPECT_FALSE(parseOptions({"csv", "a.O", "--output=b"}).toStandardOutput());
}

TEST(FileOptions, HelpAndVersionNeedNothingElse) {
  EXPECT_TRUE(parseOptions({"--help"}).help);
  EXPECT_TRUE(parseOptions({"--version", "--rubbish"}).version);
  EXPECT_TRUE(parseOptions({"csv", "--help"}).help);
}

TEST(FileOptions, WrongUseIsTold) {
  EXPECT_EQ(complaint({}), "needs a command");
  EXPECT_EQ(complaint({"print", "a.O"}), "unknown command print");
  EXPECT_EQ(complaint({"show"}), "show needs a measuring file");
  EXPECT_EQ(complaint({"show", "--colour", "a.O"}), "unknown option --colour");
  EXPECT_EQ(complaint({"show", "-x", "a.O"}), "unknown option -x");
  EXPECT_EQ(complaint({"show", "a.O", "-o"}), "-o needs a value");
  EXPECT_EQ(complaint({"show", "a.O", "-o", ""}), "-o : needs a path");
  EXPECT_EQ(complaint({"show", "a.O", "--json=yes"}), "--json takes no value");
  EXPECT_EQ(complaint({"csv", "a.O", "--json"}), "csv knows no --json");
  EXPECT_EQ(complaint({"check", "a.O", "-o", "b"}), "check knows no --output");
  EXPECT_EQ(complaint({"report", "a.O"}), "report needs -o OUT.pdf");
  EXPECT_EQ(complaint({"csv", "a.O", "--parts", "x"}), "csv knows no --parts");
  for (const char* parts : {"", ",", "x,", ",x", "x,,y"})
    EXPECT_THAT(complaint({"report", "a.O", "-o", "-", "--parts", parts}), HasSubstr("commas between"))
        << parts;
  EXPECT_THAT(complaint({"show", "-"}), HasSubstr("standard input cannot be read"));
  EXPECT_THAT(complaint({"show", ""}), HasSubstr("needs a name"));
  for (const char* language : {"8", "-1", "1.5", "", "de"})
    EXPECT_THAT(complaint({"text", "a.O", "--language", language}), HasSubstr("0 to 7")) << language;
  for (const char* penta : {"3601", "-3601", "nan", "inf", "1e999", "3,6", ""})
    EXPECT_THAT(complaint({"show", "a.O", "--penta", penta}), HasSubstr("-3600 to 3600")) << penta;
}

// ---- Help and manual page ----

TEST(FileHelp, TellsEveryOptionAndCommand) {
  for (const std::string& name : optionNames())
    EXPECT_TRUE(std::regex_search(helpText(), std::regex("\n +(-o OUT, )?" + name + "[ \n]"))) << name;
  for (const std::string& name : commandNames())
    EXPECT_THAT(helpText(), HasSubstr("    korvin-file " + name + " FILE"));
}

TEST(FileHelp, FitsATerminal) {
  EXPECT_FALSE(std::regex_search(helpText(), std::regex("[^\n]{81}")));
}

TEST(FileHelp, ManualPageTellsTheSame) {
  std::string page = test::readFile(KORVIN_SOURCE "/docs/man/korvin-file.1");
  page = std::regex_replace(page, std::regex(R"(\\-)"), "-");
  for (const std::string& name : optionNames()) EXPECT_THAT(page, HasSubstr(name)) << name;
  for (const std::string& name : commandNames()) EXPECT_THAT(page, HasSubstr("\n.B " + name + "\n")) << name;
}

}  // namespace
}  // namespace korvin::file
