// What each command tells of the reference, and what it does with bad files and failing disks.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <filesystem>
#include <set>

#include "file_tool/tool_run.h"
#include "frame/layout.h"
#include "korvin-file/measuring_kind.h"
#include "position/formpos.h"
#include "position/position_file.h"
#include "support/child_process.h"
#include "support/faulty_file_system.h"
#include "support/json.h"
#include "support/test_ports.h"

namespace korvin::file {
namespace {

namespace fs = std::filesystem;
using test::Json;
using test::TestFolder;
using test::ToolRun;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::StartsWith;

// Two ways of summing 40 readings differ by some rounding errors of a double.
constexpr double summing = 1e-14;
// Half of the microsecond to which a moment is written, in days, and the rounding of a double beside it.
constexpr double moment = 0.51e-6 / 86400 + 1e-11;

double daysOf(const std::string& iso) {
  int year = 0, month = 0, day = 0, hour = 0, minute = 0;
  double second = 0;
  EXPECT_EQ(std::sscanf(iso.c_str(), "%d-%d-%dT%d:%d:%lf", &year, &month, &day, &hour, &minute, &second), 6)
      << iso;
  const std::chrono::year_month_day date{std::chrono::year(year), std::chrono::month(month),
                                         std::chrono::day(day)};
  const std::chrono::sys_days zero = std::chrono::year{1899} / 12 / 30;
  return static_cast<double>((std::chrono::sys_days(date) - zero).count()) +
         ((hour * 60 + minute) * 60 + second) / 86400;
}

Json reference() {
  return test::parseJson(test::readFile(test::dataFile("reference/point.O.json")));
}

class FileTool : public ::testing::Test {
 protected:
  TestFolder folder;
  ToolRun run;
};

// ---- show ----

TEST_F(FileTool, JsonAgreesWithTheReferenceInEveryField) {
  ASSERT_EQ(run({"show", "--json", test::referenceIn(folder)}), 0) << run.errors;
  const Json shown = test::parseJson(run.output);
  const Json wanted = reference();
  EXPECT_EQ(shown["kind"].text, "position");
  EXPECT_EQ(shown["length"].number, wanted["length"].number);
  ASSERT_GE(wanted["fields"].object.size(), 60U);
  for (const auto& [name, field] : wanted["fields"].object) {
    ASSERT_TRUE(shown["fields"].object.contains(name)) << name;
    const Json& found = shown["fields"][name];
    EXPECT_EQ(found.kind, field.kind) << name;
    EXPECT_EQ(found.number, field.number) << name;
    EXPECT_EQ(found.text, name == "DateiName" ? "C:\\KorFiles\\Punkt.O" : field.text) << name;
  }
}

TEST_F(FileTool, JsonHasEveryFieldOfTheRecordInItsOrder) {
  ASSERT_EQ(run({"show", "--json", test::referenceIn(folder)}), 0);
  const Json shown = test::parseJson(run.output);
  std::size_t from = run.output.find("\"fields\"");
  for (const FieldDump& field : dump(PositionsDatei{})) {
    EXPECT_TRUE(shown["fields"].object.contains(field.name)) << field.name;
    from = run.output.find("\n  \"" + field.name + "\": ", from);
    ASSERT_NE(from, std::string::npos) << field.name;
  }
}

TEST_F(FileTool, JsonHasThePointsWithTheirTimes) {
  ASSERT_EQ(run({"show", "--json", test::referenceIn(folder)}), 0);
  const auto points = test::parseJson(run.output)["points"].list;
  const auto wanted = reference()["points"].list;
  ASSERT_EQ(points.size(), wanted.size());
  for (std::size_t i = 0; i < wanted.size(); ++i) {
    EXPECT_EQ(points[i]["number"].number, static_cast<double>(i + 1));
    EXPECT_EQ(points[i]["x"].number, wanted[i].list[0].number);
    EXPECT_EQ(points[i]["y"].number, wanted[i].list[1].number);
    EXPECT_NEAR(daysOf(points[i]["time"].text), wanted[i].list[2].number, moment);
  }
}

TEST_F(FileTool, JsonHasTheStatisticsOfTheWindow) {
  ASSERT_EQ(run({"show", "--json", test::referenceIn(folder)}), 0);
  const Json shown = test::parseJson(run.output);
  const Json fields = reference()["fields"];
  for (const auto& [axis, prefix] : {std::pair{"x", std::string("X.")}, std::pair{"y", std::string("Y.")}}) {
    const Json& found = shown["statistics"][axis];
    EXPECT_EQ(found["count"].number, 40);
    EXPECT_EQ(found["offset"].number, fields[prefix + "Offset"].number);
    EXPECT_NEAR(found["mean"].number, fields[prefix + "Mittel"].number, summing);
    EXPECT_NEAR(found["deviation"].number, fields[prefix + "Streuung"].number, summing);
    EXPECT_EQ(found["maximum"].number, fields[prefix + "Maximum"].number);
    EXPECT_EQ(found["minimum"].number, fields[prefix + "Minimum"].number);
    EXPECT_EQ(found["span"].number, fields[prefix + "Maximum"].number - fields[prefix + "Minimum"].number);
  }
}

/// A measurement of a few points, saved by the program's own file operations.
class Measured : public FileTool {
 protected:
  std::string save(const std::vector<std::array<double, 3>>& points) {
    formpos.messungLoeschen();
    formpos.Info().RestMP = -1;
    for (const auto& [x, y, t] : points) {
      formpos.arbeit().X.Aktuell = x;
      formpos.arbeit().Y.Aktuell = y;
      formpos.punktHinzufuegen(t);
    }
    const std::string name = folder.path("m.O");
    PositionsDateien dateien({system, messages, meldung, dictionary, profil, formpos});
    EXPECT_TRUE(dateien.o_DateiSpeichern(name));
    return name;
  }
  Json shown(const std::string& name) {
    EXPECT_EQ(run({"show", "--json", name}), 0) << run.errors;
    return test::parseJson(run.output);
  }

  test::UnflushedFileSystem system;
  test::TestMessages messages;
  test::TestDictionary dictionary;
  test::MemorySettingsTree tree;
  Profil profil{tree};
  Meldung meldung;
  FORMPOS formpos;
};

TEST_F(Measured, OpenReadingsAndResultsAreNull) {
  const Json json = shown(save({{999, 2, 45000}, {1, 999, 999}, {3, 4, 45001}}));
  EXPECT_EQ(json["points"].list[0]["x"].kind, Json::Kind::null);
  EXPECT_EQ(json["points"].list[1]["y"].kind, Json::Kind::null);
  EXPECT_EQ(json["points"].list[1]["time"].kind, Json::Kind::null);
  EXPECT_EQ(json["fields"]["X.Mittel"].kind, Json::Kind::null) << "never drawn";
  EXPECT_EQ(json["statistics"]["x"]["count"].number, 2);
  EXPECT_EQ(json["statistics"]["x"]["mean"].number, 2);
  EXPECT_EQ(json["statistics"]["y"]["mean"].number, 3);
  ASSERT_EQ(run({"csv", folder.path("m.O")}), 0);
  EXPECT_EQ(run.output,
            "number,time,x,y\n1,2023-03-15T00:00:00.000000,,2\n2,,1,\n3,2023-03-16T00:00:00.000000,3,4\n");
}

TEST_F(Measured, EmptyValueIsANumberWhereItCannotMeanNone) {
  formpos.Info().Intervall = 999;
  EXPECT_EQ(shown(save({}))["fields"]["Intervall"].number, 999);
}

TEST_F(Measured, FewPointsHaveFewStatistics) {
  Json json = shown(save({}));
  EXPECT_TRUE(json["points"].list.empty());
  EXPECT_EQ(json["statistics"]["x"]["count"].number, 0);
  for (const char* result : {"mean", "deviation", "maximum", "minimum", "span"})
    EXPECT_EQ(json["statistics"]["x"][result].kind, Json::Kind::null) << result;
  json = shown(save({{0.5, 1, 45000}}));
  EXPECT_EQ(json["statistics"]["x"]["mean"].number, 0.5);
  EXPECT_EQ(json["statistics"]["x"]["span"].number, 0);
  EXPECT_EQ(json["statistics"]["x"]["deviation"].kind, Json::Kind::null);
}

TEST_F(FileTool, ShowForTheEyeNamesFieldsPointsAndStatistics) {
  ASSERT_EQ(run({"show", test::referenceIn(folder)}), 0);
  EXPECT_THAT(run.output, StartsWith("file    " + folder.path("point.O") + "\nkind    position\n"));
  EXPECT_THAT(run.output, HasSubstr("\n  Bediener         M. Größ\n"));
  EXPECT_THAT(run.output, HasSubstr("\n       1  2004-01-14T13:58:47.627268   0.0261  -0.0888\n"));
  EXPECT_THAT(run.output, HasSubstr("\n    count      40\n"));
}

TEST_F(FileTool, SeveralFilesAreAListAndABadOneIsLeftOut) {
  const std::string file = test::referenceIn(folder);
  EXPECT_EQ(run({"show", "--json", file, folder.path("none.O"), file}), 1);
  const Json all = test::parseJson(run.output);
  ASSERT_EQ(all.list.size(), 2U);
  EXPECT_EQ(all.list[1]["points"].list.size(), 40U);
  EXPECT_EQ(run.errors, "korvin-file: " + folder.path("none.O") + ": no such file\n");
}

TEST_F(FileTool, FieldThatIsNoNumberIsNull) {
  ASSERT_EQ(run({"show", "--json", test::dataFile("bad/odd-mean-nan.O").string()}), 0);
  EXPECT_EQ(run.output.find("nan,"), std::string::npos);
  const Json fields = test::parseJson(run.output)["fields"];
  EXPECT_TRUE(fields["X.Mittel"].kind == Json::Kind::null || fields["Y.Mittel"].kind == Json::Kind::null);
}

TEST_F(FileTool, TextsOfRubbishStayJson) {
  ASSERT_EQ(run({"show", "--json", test::dataFile("bad/odd-texts-binary.O").string()}), 0);
  for (const char c : run.output) EXPECT_TRUE(c == '\n' || static_cast<unsigned char>(c) >= 0x20);
  EXPECT_EQ(test::parseJson(run.output)["points"].list.size(), 40U);
}

// ---- text ----

TEST_F(Measured, TextIsTheCopyThatSavingWrites) {
  profil.ProfilSchreiben("", "KorInfo", "AsciiDatei", "-1");
  // The words of the real dictionary stand in the copy of the tool; the save here gets the same.
  for (const int id : {3019, 3048, 3044, 3049, 3056, 3008, 3009, 3010, 3013, 3018})
    dictionary.texts[static_cast<std::int16_t>(id)] = "word " + std::to_string(id);
  formpos.Info().Bezeichnung = "S\xFC\x64";
  const std::string name = save({{0.1, -0.2, 45000.25}, {999, 0.3, 45000.5}});
  ASSERT_EQ(run({"text", name}), 0) << run.errors;
  const std::string saved = test::readFile(name + "$");
  // All but the words: what stands behind the labels, and the lines of the points.
  const auto values = [](const std::string& text) { return text.substr(text.find("WIN-KORVIN"), 33); };
  EXPECT_EQ(values(run.output), values(saved));
  EXPECT_EQ(run.output.substr(run.output.find("MP\t")), saved.substr(saved.find("MP\t")));
  EXPECT_THAT(run.output, HasSubstr("Bezeichnung:\tS\xFC\x64\r\n"));
}

TEST_F(FileTool, TextIsWrittenInTheLanguageAskedFor) {
  const std::string file = test::referenceIn(folder);
  ASSERT_EQ(run({"text", file}), 0);
  EXPECT_THAT(run.output, StartsWith("KORVIN-Messprotokoll:\tPr\xFC\x66stelle S\xFC\x64\r\n"));
  const std::string german = run.output;
  ASSERT_EQ(run({"text", "--language", "1", file}), 0);
  EXPECT_NE(run.output, german);
  EXPECT_THAT(run.output, HasSubstr("Pr\xFC\x66stelle"));
  ASSERT_EQ(run({"text", "--language", "7", file}), 0);
  EXPECT_THAT(run.output, StartsWith("\xEF\xBB\xBFKORVIN-"));
  EXPECT_THAT(run.output, HasSubstr("Prüfstelle"));
}

TEST_F(FileTool, InchConvertsNothing) {
  const std::string file = test::referenceIn(folder);
  for (const std::vector<std::string>& command :
       {std::vector<std::string>{"show", "--json"}, {"show"}, {"csv"}, {"text"}}) {
    std::vector<std::string> arguments = command;
    arguments.push_back(file);
    ASSERT_EQ(run(arguments), 0);
    const std::string metric = run.output;
    arguments.insert(arguments.end(), {"--inch", "--penta", "12.5"});
    ASSERT_EQ(run(arguments), 0);
    EXPECT_EQ(run.output, metric) << command.front();
  }
}

TEST_F(FileTool, WithoutADictionaryOnlyTextIsImpossible) {
  const std::string file = test::referenceIn(folder);
  run.dictionaryPaths = {folder.path("a.mdb"), folder.path("b.mdb")};
  EXPECT_EQ(run({"text", file}), 1);
  EXPECT_EQ(run.errors, "korvin-file: no dictionary: there is neither " + folder.path("a.mdb") + " nor " +
                            folder.path("b.mdb") + "; name one with --dictionary\n");
  EXPECT_EQ(run({"csv", file}), 0);
  EXPECT_EQ(run({"show", file}), 0);
  EXPECT_EQ(run({"check", file}), 0);
  EXPECT_EQ(run({"text", "--dictionary", KORVIN_BIN "/korvin.mdb", file}), 0);
  run.dictionaryPaths.push_back(KORVIN_BIN "/korvin.mdb");
  EXPECT_EQ(run({"text", file}), 0) << "the next place is looked at";
}

TEST_F(FileTool, DictionaryThatIsNoneIsTold) {
  const std::string file = test::referenceIn(folder);
  EXPECT_EQ(run({"text", "--dictionary", file, file}), 1);
  EXPECT_THAT(run.errors, HasSubstr("dictionary " + file + ": file is not a database (26)"));
  EXPECT_EQ(run({"text", "--dictionary", folder.path("none"), file}), 1);
  EXPECT_THAT(run.errors, HasSubstr("dictionary " + folder.path("none") + ": "));
  EXPECT_EQ(run.output, "");
  EXPECT_THAT(folder.names(), ElementsAre("point.O", "point.O1"));
}

// ---- check ----

TEST_F(FileTool, CheckTellsEachFileInALine) {
  const std::string file = test::referenceIn(folder);
  EXPECT_EQ(run({"check", file, file}), 0);
  EXPECT_EQ(run.output, file + ": ok (position, 40 points)\n" + file + ": ok (position, 40 points)\n");
  EXPECT_EQ(run({"check", folder.path("none.O"), file}), 1);
  EXPECT_EQ(run.output,
            folder.path("none.O") + ": bad: no such file\n" + file + ": ok (position, 40 points)\n");
  EXPECT_EQ(run.errors, "");
}

TEST_F(FileTool, EveryBadFileIsRefusedWithAReasonByEveryCommand) {
  std::set<std::string> reasons;
  int bad = 0;
  for (const auto& entry : fs::directory_iterator(test::dataFile("bad"))) {
    if (kindOfHead(entry.path().string()) == nullptr) continue;
    const std::string path = entry.path().string();
    const bool good = entry.path().stem().string().starts_with("odd-");
    SCOPED_TRACE(path);
    const bool hasReport = !kindOfHead(path)->reportParts().empty();
    for (const std::string command : {"show", "text", "csv", "report"}) {
      if (command == "report" && good && !hasReport) continue;
      EXPECT_EQ(run({command, path, "-o", "-"}), good ? 0 : 1);
      EXPECT_EQ(run.output.empty(), !good);
      EXPECT_THAT(run.errors, StartsWith(good ? "" : "korvin-file: " + path + ": "));
    }
    EXPECT_EQ(run({"check", path}), good ? 0 : 1);
    EXPECT_THAT(run.output, StartsWith(path + (good ? ": ok (" : ": bad: ")));
    if (!good) reasons.insert(run.output.substr(path.size()));
    bad += good ? 0 : 1;
  }
  EXPECT_GE(bad, 35);
  EXPECT_GE(reasons.size(), 20U) << "each says what is wrong with it";
}

TEST_F(FileTool, ReasonsAreClear) {
  folder.copyOf("reference/short.O1");
  folder.copyOf("reference/miscount.O1");
  fs::create_directory(folder.path("f.O"));
  fs::create_directory(folder.path("f"));
  test::writeFile(folder.path("a.txt"), "x");
  const std::vector<std::pair<std::string, std::string>> wanted{
      {folder.copyOf("reference/short.O"), "is 780 bytes long, not 789"},
      {folder.copyOf("reference/miscount.O"), "its head counts 41 points, its point file holds 40"},
      {folder.copyOf("reference/point.O"),
       "its points cannot be read: " + folder.path("point.O1") + ": no such file"},
      {folder.path("short.O1"), "is only a part of the measuring file " + folder.path("short.O")},
      {folder.path("none.O"), "no such file"},
      {folder.path("none.txt"), "no such file"},
      {folder.path("f.O"), "is a folder or a device, not a file"},
      {folder.path("f"), "is a folder"},
      {"/dev/null", "is no measuring file: its name does not end in .O, .G"},
      {folder.path("a.txt"), "is no measuring file: its name does not end in .O, .G"},
      {test::dataFile("bad/points-cut-in-a-number.O").string(),
       "its head counts 40 points, its point file is 981 bytes long"},
      {test::dataFile("bad/count-highest.O").string(), "its head counts 32767 points; the most are 29999"},
      {test::dataFile("bad/point-x-nan.O").string(), "one of its values is no finite number"},
  };
  for (const auto& [path, reason] : wanted) {
    EXPECT_EQ(run({"csv", path}), 1);
    EXPECT_EQ(run.errors, "korvin-file: " + path + ": " + reason + "\n");
  }
}

TEST_F(FileTool, FileWithoutRightsIsTold) {
  const std::string file = test::referenceIn(folder);
  fs::permissions(file, fs::perms::none);
  EXPECT_TRUE(test::inChildWithoutRights([&] {
    return run({"show", file}) == 1 && run.errors == "korvin-file: " + file + ": may not be read\n";
  }));
}

TEST_F(FileTool, SmallLettersAreFoundToo) {
  const std::string file = test::referenceIn(folder);
  fs::rename(file, folder.path("point.o"));
  fs::rename(file + "1", folder.path("point.o1"));
  EXPECT_EQ(run({"check", folder.path("point.o")}), 0);
}

TEST_F(FileTool, NameCannotSteerTheTerminal) {
  EXPECT_EQ(run({"check", "\x1b[2J.O"}), 1);
  EXPECT_EQ(run.output, "\\x1b[2J.O: bad: no such file\n");
  EXPECT_EQ(run({"csv", "\x1b[2J.O"}), 1);
  EXPECT_EQ(run.errors, "korvin-file: \\x1b[2J.O: no such file\n");
}

// ---- Wrong use ----

TEST_F(FileTool, WrongUseDoesNothing) {
  EXPECT_EQ(run({"show", "--what", test::referenceIn(folder)}), 2);
  EXPECT_EQ(run.errors, "korvin-file: unknown option --what\nTry korvin-file --help.\n");
  EXPECT_EQ(run.output, "");
}

TEST_F(FileTool, HelpAndVersionArePrinted) {
  EXPECT_EQ(run({"--help"}), 0);
  EXPECT_THAT(run.output, StartsWith("KORVIN-FILE(1)\n"));
  EXPECT_EQ(run({"--version"}), 0);
  EXPECT_EQ(run.output, "korvin-file 5.55\n");
  run.outputFull = true;
  EXPECT_EQ(run({"--help"}), 1);
}

}  // namespace
}  // namespace korvin::file
