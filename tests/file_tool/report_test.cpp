// The report of the command line: which parts, whose words, and what is on the disk when it fails.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <stdexcept>

#include "file_tool/tool_run.h"
#include "korvin-file/pdf_maker.h"

namespace korvin::file {
namespace {

using test::TestFolder;
using test::ToolRun;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

class FileReport : public ::testing::Test {
 protected:
  /// The texts of the report, a line each.
  std::string report(std::vector<std::string> options = {}) {
    options.insert(options.begin(), {"report", file, "-o", "-"});
    EXPECT_EQ(run(options), 0) << run.errors;
    return run.output;
  }

  TestFolder folder;
  std::string file = test::referenceIn(folder);
  ToolRun run;
};

TEST_F(FileReport, HasAllPartsUnlessSomeAreNamed) {
  const std::string all = report();
  EXPECT_THAT(all, HasSubstr("\n1: +80.0\n")) << "the diagram";
  EXPECT_THAT(all, HasSubstr("\n2: X[mm]\n"));
  EXPECT_THAT(all, HasSubstr("\n2: Y[mm]\n"));
  EXPECT_THAT(all, HasSubstr("\n3: 40\n")) << "the last point";
  EXPECT_EQ(report({"--parts", "y,diagram,x"}), all) << "the pages keep their order";
}

TEST_F(FileReport, HasOnlyTheNamedParts) {
  const std::string diagram = report({"--parts", "diagram"});
  EXPECT_THAT(diagram, HasSubstr("\n1: +80.0\n"));
  EXPECT_THAT(diagram, Not(HasSubstr("\n2: ")));
  const std::string x = report({"--parts=x"});
  EXPECT_THAT(x, Not(HasSubstr("+80.0")));
  EXPECT_THAT(x, HasSubstr("\n1: X[mm]\n"));
  EXPECT_THAT(x, Not(HasSubstr("Y[mm]")));
  const std::string y = report({"--parts=y"});
  EXPECT_THAT(y, HasSubstr("\n1: Y[mm]\n"));
  EXPECT_THAT(y, Not(HasSubstr("X[mm]")));
}

TEST_F(FileReport, UnknownPartIsWrongUse) {
  EXPECT_EQ(run({"report", file, "-o", folder.path("a.pdf"), "--parts", "x,z"}), 2);
  EXPECT_THAT(run.errors, HasSubstr("--parts z: the report of a *.O has the parts diagram, x, y"));
  EXPECT_THAT(folder.names(), ElementsAre("point.O", "point.O1"));
}

TEST_F(FileReport, TellsTheFileItIsOfAndTheTimeOfPrinting) {
  std::filesystem::copy(file, folder.path("Läger.O"));
  std::filesystem::copy(file + "1", folder.path("Läger.O1"));
  file = folder.path("Läger.O");
  run.clock.setNow(45000.5);
  const std::string texts = report();
  EXPECT_THAT(texts, HasSubstr("\n1: Läger.O\n"));
  EXPECT_THAT(texts, HasSubstr("15.03.23 12:00:00"));
}

TEST_F(FileReport, SpeaksTheLanguageAskedFor) {
  const std::string german = report();
  EXPECT_THAT(german, HasSubstr("Bezeichnung"));
  EXPECT_THAT(report({"--language", "1"}), Not(HasSubstr("Bezeichnung")));
  int asked = -1;
  run.pdf = [&asked](const Bericht&, int language) {
    asked = language;
    return std::string();
  };
  report({"--language", "7"});
  EXPECT_EQ(asked, 7);
}

TEST_F(FileReport, InchNamesMilAndConvertsNothing) {
  const std::string mm = report({"--parts", "x,y"});
  std::string mil = report({"--parts", "x,y", "--inch"});
  EXPECT_THAT(mil, HasSubstr("X[mil]"));
  for (std::size_t at = 0; (at = mil.find("[mil]")) != std::string::npos;) mil.replace(at, 5, "[mm]");
  EXPECT_EQ(mil, mm);
}

TEST_F(FileReport, WithoutADictionaryThereIsNone) {
  run.dictionaryPaths = {folder.path("none.mdb")};
  EXPECT_EQ(run({"report", file, "-o", folder.path("a.pdf")}), 1);
  EXPECT_THAT(run.errors, HasSubstr("no dictionary"));
  EXPECT_THAT(folder.names(), ElementsAre("point.O", "point.O1"));
}

TEST_F(FileReport, FailureLeavesTheEarlierOne) {
  test::writeFile(folder.path("a.pdf"), "old");
  run.pdf = [](const Bericht&, int) -> std::string { throw std::runtime_error("no fonts"); };
  EXPECT_EQ(run({"report", file, "-o", folder.path("a.pdf")}), 1);
  EXPECT_EQ(run.errors, "korvin-file: " + file + ": no fonts\n");
  EXPECT_EQ(test::readFile(folder.path("a.pdf")), "old");
}

TEST_F(FileReport, IsAPdfTimeAndAgain) {
  PdfMaker maker;
  run.pdf = [&maker](const Bericht& report, int language) { return maker.pdf(report, language); };
  for (const char* language : {"0", "6"}) {
    const std::string pdf = report({"--language", language});
    EXPECT_THAT(pdf, StartsWith("%PDF-1."));
    EXPECT_THAT(pdf, ::testing::EndsWith("%%EOF\n"));
    EXPECT_GT(pdf.size(), 10000U);
  }
}

}  // namespace
}  // namespace korvin::file
