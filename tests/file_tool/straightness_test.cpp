// What the tool tells of straightness measurements: fields, points, evaluations, table and text copy.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <regex>

#include "file_tool/tool_run.h"
#include "frame/layout.h"
#include "korvin-file/tool_dictionary.h"
#include "straightness/file_stand.h"
#include "support/child_process.h"
#include "support/json.h"

namespace korvin::file {
namespace {

using test::Json;
using test::TestFolder;
using test::ToolRun;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

constexpr double mmPerMil = 0.0254;
constexpr double mmPerInch = 25.4;

/// Relative to the larger of the number and 1: the reference was computed by another program, with its sums
/// in the same order.
constexpr double referenceTolerance = 1e-12;

void expectNear(double found, double wanted, const std::string& what) {
  EXPECT_NEAR(found, wanted, referenceTolerance * std::max(1.0, std::abs(wanted))) << what;
}

/// `found` is `wanted`, where the empty value and nothing at all are told as null.
void expectOrNull(const Json& found, const Json& wanted, const std::string& what) {
  const bool open = wanted.kind == Json::Kind::null || wanted.number == Leerwert;
  ASSERT_EQ(found.kind, open ? Json::Kind::null : Json::Kind::number) << what;
  if (!open) expectNear(found.number, wanted.number, what);
}

Json referenceOf(const std::string& name) {
  return test::parseJson(test::readFile(test::dataFile("reference/" + name + ".json")));
}

class StraightnessShown : public ::testing::Test {
 protected:
  std::string output(std::vector<std::string> arguments) {
    EXPECT_EQ(run(arguments), 0) << run.errors;
    return run.output;
  }
  Json shown(const std::string& path, bool inch = false) {
    std::vector<std::string> arguments{"show", "--json", path};
    if (inch) arguments.emplace_back("--inch");
    return test::parseJson(output(arguments));
  }
  static std::string reference(const std::string& name) {
    return test::dataFile("reference/" + name).string();
  }
  static std::string odd(const std::string& name) { return test::dataFile("bad/odd-" + name).string(); }

  TestFolder folder;
  ToolRun run;
};

// ---- Every reference ----

class StraightnessReference : public StraightnessShown,
                              public ::testing::WithParamInterface<std::tuple<const char*, bool>> {
 protected:
  static std::string name() { return std::get<0>(GetParam()); }
  static bool inch() { return std::get<1>(GetParam()); }
  static std::string unit() { return inch() ? "mil" : "mm"; }

  Json shown() { return StraightnessShown::shown(reference(name()), inch()); }
};

TEST_P(StraightnessReference, AgreesInEveryField) {
  const Json found = shown();
  const Json wanted = referenceOf(name());
  EXPECT_EQ(found["kind"].text, "straightness");
  EXPECT_EQ(found["length"].number, wanted["length"].number);
  ASSERT_GE(wanted["fields"].object.size(), 82U);
  for (const auto& [field, value] : wanted["fields"].object) {
    ASSERT_TRUE(found["fields"].object.contains(field)) << field;
    const Json& other = found["fields"][field];
    EXPECT_EQ(other.kind, value.kind) << field;
    EXPECT_EQ(other.number, value.number) << field;
    EXPECT_EQ(other.text, value.text) << field;
    ASSERT_EQ(other.list.size(), value.list.size()) << field;
    for (std::size_t i = 0; i < value.list.size(); ++i)
      EXPECT_EQ(other.list[i].number, value.list[i].number) << field << " " << i;
  }
}

TEST_P(StraightnessReference, AgreesInEveryPoint) {
  const Json found = shown();
  const Json fields = referenceOf(name())["fields"];
  const auto& points = found["points"].list;
  ASSERT_EQ(static_cast<double>(points.size()), fields["AnzMPs"].number);
  for (std::size_t i = 1; i <= points.size(); ++i) {
    const Json& point = points[i - 1];
    EXPECT_EQ(point["number"].number, static_cast<double>(i));
    expectNear(point["z"].number * (inch() ? mmPerInch : 1), fields["Z"].list[i].number, "z");
    for (const auto& [member, field] : {std::pair{"x", "X.Wert"}, std::pair{"y", "Y.Wert"}}) {
      Json wanted = fields[field].list[i];
      if (inch() && wanted.number != Leerwert) wanted.number /= mmPerMil;
      expectOrNull(point[member], wanted, member);
    }
  }
  EXPECT_EQ(found["units"]["z"].text, inch() ? "in" : "mm");
  EXPECT_EQ(found["units"]["x"].text, unit());
  EXPECT_EQ(found["units"]["y"].text, unit());
}

TEST_P(StraightnessReference, AgreesInEveryEvaluation) {
  const Json found = shown();
  const Json wanted = referenceOf(name());
  EXPECT_EQ(found["evaluated"].object.size(), 3U) << "none in the other unit";
  for (const char* mode : {"ROH_", "ISO_", "REF_"}) {
    for (const char* axis : {"X", "Y"}) {
      SCOPED_TRACE(std::string(mode) + axis);
      const Json& told = found["evaluated"][mode + unit()][axis];
      const Json& known = wanted["evaluated"][mode + unit()][axis];
      ASSERT_EQ(told["values"].list.size(), known["values"].list.size());
      for (std::size_t i = 0; i < known["values"].list.size(); ++i)
        expectOrNull(told["values"].list[i], known["values"].list[i], "value " + std::to_string(i + 1));
      for (const char* result : {"mean", "deviation", "max", "min"})
        expectOrNull(told[result], known[result], result);
    }
  }
}

TEST_P(StraightnessReference, AgreesInEverySection) {
  const Json found = shown();
  const Json wanted = referenceOf(name());
  for (const char* mode : {"ROH_", "ISO_", "REF_"}) {
    for (const char* axis : {"X", "Y"}) {
      SCOPED_TRACE(std::string(mode) + axis);
      const Json& known = wanted["evaluated"][std::string(mode) + "mm"][axis]["section"];
      // Raw in mil, open readings count as values, and so a section is found over them.
      if (inch() && known["found"].number == 0 && std::string(mode) == "ROH_") continue;
      const Json& told = found["evaluated"][mode + unit()][axis]["section"];
      EXPECT_EQ(told["found"].number, known["found"].number);
      EXPECT_EQ(told["start"].number, known["start"].number);
      ASSERT_EQ(told["value"].kind, known["value"].kind);
      ASSERT_EQ(told["length"].kind, known["length"].kind);
      expectNear(told["value"].number * (inch() ? mmPerMil : 1), known["value"].number, "range");
      expectNear(told["length"].number * (inch() ? mmPerInch : 1), known["length"].number, "length");
    }
  }
}

TEST_P(StraightnessReference, TableAgrees) {
  std::vector<std::string> arguments{"csv", reference(name())};
  if (inch()) arguments.emplace_back("--inch");
  std::istringstream lines(output(arguments));
  std::string line;
  ASSERT_TRUE(std::getline(lines, line));
  EXPECT_EQ(line, inch() ? "number,z_in,x_mil,y_mil,x_ISO_mil,y_ISO_mil,x_REF_mil,y_REF_mil"
                         : "number,z_mm,x_mm,y_mm,x_ISO_mm,y_ISO_mm,x_REF_mm,y_REF_mm");
  const Json wanted = referenceOf(name());
  const Json& fields = wanted["fields"];
  const double count = fields["AnzMPs"].number;
  std::size_t row = 0;
  while (std::getline(lines, line)) {
    SCOPED_TRACE(line);
    ++row;
    std::vector<std::string> cells{""};
    for (const char c : line) c == ',' ? cells.emplace_back() : cells.back() += c;
    ASSERT_EQ(cells.size(), 8U);
    EXPECT_EQ(cells[0], std::to_string(row));
    expectNear(std::stod(cells[1]) * (inch() ? mmPerInch : 1), fields["Z"].list[row].number, "z");
    std::size_t cell = 2;
    for (const char* mode : {"ROH_", "ISO_", "REF_"}) {
      for (const std::string axis : {"X", "Y"}) {
        const bool open = fields[axis + ".Wert"].list[row].number == Leerwert;
        const std::string& text = cells[cell++];
        ASSERT_EQ(text.empty(), open) << mode << axis;
        if (open) continue;
        expectNear(std::stod(text), wanted["evaluated"][mode + unit()][axis]["values"].list[row - 1].number,
                   mode + axis);
      }
    }
  }
  EXPECT_EQ(static_cast<double>(row), count);
}

INSTANTIATE_TEST_SUITE_P(Files, StraightnessReference,
                         ::testing::Combine(::testing::Values("six.G", "holes.G", "moved.G", "full.G",
                                                              "old.G", "older.G", "set1.G", "set2.G",
                                                              "set3.G"),
                                            ::testing::Bool()),
                         [](const auto& each) {
                           const std::string name = std::get<0>(each.param);
                           return name.substr(0, name.find('.')) + (std::get<1>(each.param) ? "Mil" : "Mm");
                         });

// ---- show ----

TEST_F(StraightnessShown, JsonHasEveryFieldOfTheRecordInItsOrder) {
  for (const char* name : {"six.G", "old.G", "older.G"}) {
    output({"show", "--json", reference(name)});
    std::size_t from = run.output.find("\"fields\"");
    for (const FieldDump& field : dump(GeradDatei{})) {
      from = run.output.find("\n  \"" + field.name + "\": ", from);
      ASSERT_NE(from, std::string::npos) << name << " " << field.name;
    }
  }
}

TEST_F(StraightnessShown, OlderFormsTellTheirOwnNumberOfElements) {
  EXPECT_EQ(shown(reference("old.G"))["fields"]["Z"].list.size(), 102U);
  EXPECT_EQ(shown(reference("older.G"))["fields"]["X.Wert"].list.size(), 102U);
  EXPECT_EQ(shown(reference("six.G"))["fields"]["Y.Wert"].list.size(), 202U);
}

TEST_F(StraightnessShown, FoundIsAWordOfJson) {
  output({"show", "--json", reference("holes.G")});
  EXPECT_THAT(run.output, HasSubstr("\"found\": false,"));
  output({"show", "--json", reference("six.G")});
  EXPECT_THAT(run.output, HasSubstr("\"found\": true,"));
}

TEST_F(StraightnessShown, OpenReadingsCountOnlyRawAndInMil) {
  const Json found = shown(reference("holes.G"), true);
  const Json& evaluated = found["evaluated"];
  EXPECT_EQ(evaluated["ROH_mil"]["X"]["values"].list[3].number, Leerwert / mmPerMil);
  EXPECT_EQ(evaluated["ISO_mil"]["X"]["values"].list[3].kind, Json::Kind::null);
  EXPECT_EQ(found["points"].list[3]["x"].kind, Json::Kind::null);
}

TEST_F(StraightnessShown, ForTheEyeFieldsAndListsAreLegible) {
  const std::string path = reference("six.G");
  output({"show", path});
  EXPECT_THAT(run.output, StartsWith("file    " + path + "\nkind    straightness\nlength  5643\n"));
  EXPECT_THAT(run.output, HasSubstr("\n  X.Wert\n    6  -0.043  -0.1213  -0.2125  -0.3269"));
  EXPECT_THAT(run.output, HasSubstr("\n  Bediener           M. Größ\n"));
  EXPECT_THAT(run.output,
              HasSubstr("\n  number     z        x        y\n       1     0   -0.043  -0.2706\n"));
  EXPECT_THAT(run.output, HasSubstr("\n        found   true\n"));
  EXPECT_FALSE(std::regex_search(run.output.substr(path.size() + 8), std::regex("[^\n]{81}")));
}

// ---- What is merely odd ----

TEST_F(StraightnessShown, PointThatOneAxisCountsIsOpenInTheOther) {
  const Json more = shown(odd("count-y-more.G"));
  ASSERT_EQ(more["points"].list.size(), 8U);
  EXPECT_EQ(more["points"].list[6]["x"].kind, Json::Kind::null);
  EXPECT_EQ(more["evaluated"]["ISO_mm"]["X"]["values"].list.size(), 6U);
  EXPECT_EQ(more["evaluated"]["ISO_mm"]["Y"]["values"].list.size(), 8U);
  const Json less = shown(odd("count-y-less.G"));
  ASSERT_EQ(less["points"].list.size(), 6U);
  EXPECT_EQ(less["points"].list[4]["x"].kind, Json::Kind::number);
  EXPECT_EQ(less["points"].list[4]["y"].kind, Json::Kind::null) << "counted by X alone";
  EXPECT_EQ(less["evaluated"]["ROH_mm"]["Y"]["values"].list.size(), 4U);
  EXPECT_THAT(output({"csv", odd("count-y-less.G")}), HasSubstr("\n5,2000,-0.4496,,0.00"));
}

TEST_F(StraightnessShown, SeriesWithoutPointsHasNoResults) {
  const Json found = shown(odd("no-points.G"));
  EXPECT_TRUE(found["points"].list.empty());
  for (const char* mode : {"ROH_mm", "ISO_mm", "REF_mm"}) {
    const Json& axis = found["evaluated"][mode]["X"];
    EXPECT_TRUE(axis["values"].list.empty());
    for (const char* result : {"mean", "deviation", "max", "min"})
      EXPECT_EQ(axis[result].kind, Json::Kind::null) << result;
    EXPECT_EQ(axis["section"]["start"].number, 999);
  }
  EXPECT_EQ(output({"csv", odd("no-points.G")}),
            "number,z_mm,x_mm,y_mm,x_ISO_mm,y_ISO_mm,x_REF_mm,y_REF_mm\n");
}

TEST_F(StraightnessShown, NumbersThatCannotBeToldAreNull) {
  const Json found = shown(odd("nan-in-results.G"));
  EXPECT_EQ(found["fields"]["X.Mittel"].kind, Json::Kind::null);
  EXPECT_EQ(shown(odd("nan-beyond-count.G"))["fields"]["X.Wert"].list[50].kind, Json::Kind::null);
  const Json huge = shown(odd("values-huge.G"));
  EXPECT_EQ(huge["evaluated"]["ROH_mm"]["X"]["deviation"].kind, Json::Kind::null);
  EXPECT_EQ(huge["evaluated"]["REF_mm"]["X"]["values"].list[0].kind, Json::Kind::null);
  output({"show", "--json", odd("values-huge.G")});
  EXPECT_FALSE(std::regex_search(run.output, std::regex("[ -](nan|inf)")));
}

TEST_F(StraightnessShown, PointsOfOnePositionAreShownAsRead) {
  const Json found = shown(odd("positions-equal.G"));
  for (const char* mode : {"ISO_mm", "REF_mm"}) {
    const Json& axis = found["evaluated"][mode]["X"];
    for (std::size_t i = 0; i < 6; ++i)
      EXPECT_EQ(axis["values"].list[i].number, found["points"].list[i]["x"].number);
  }
}

// ---- check ----

TEST_F(StraightnessShown, CheckCountsThePointsOfEveryForm) {
  for (const auto& [name, points] :
       {std::pair{"six.G", "6"}, std::pair{"old.G", "21"}, std::pair{"older.G", "101"}})
    EXPECT_EQ(output({"check", reference(name)}),
              reference(name) + ": ok (straightness, " + points + " points)\n");
}

TEST_F(StraightnessShown, ReasonsAreClear) {
  const auto bad = [](const char* name) { return test::dataFile("bad/" + std::string(name)).string(); };
  const std::vector<std::pair<std::string, std::string>> wanted{
      {reference("short.G"), "is 5642 bytes long, not 5643, 3243 or 3231"},
      {reference("long.G"), "is 5644 bytes long, not 5643, 3243 or 3231"},
      {bad("empty.G"), "is 0 bytes long, not 5643, 3243 or 3231"},
      {folder.path("none.G"), "no such file"},
      {bad("count-nan.G"), "its number of points is not from 0 to 201"},
      {bad("count-one-more.G"), "its number of points is not from 0 to 201"},
      {bad("old-count-one-more.G"), "its number of points is not from 0 to 101"},
      {bad("reference-first-one-more.G"), "its current point or a reference point is not from 0 to 201"},
      {bad("reading-x-nan.G"), "one of its values is no finite number"},
  };
  for (const auto& [path, reason] : wanted) {
    for (const char* command : {"show", "text", "csv", "report"}) {
      EXPECT_EQ(run({command, path, "-o", "-"}), 1);
      EXPECT_EQ(run.errors, "korvin-file: " + path + ": " + reason + "\n");
      EXPECT_EQ(run.output, "");
    }
    EXPECT_EQ(run({"check", path}), 1);
    EXPECT_EQ(run.output, path + ": bad: " + reason + "\n");
  }
  EXPECT_THAT(folder.names(), ElementsAre()) << "nothing is created";
}

TEST_F(StraightnessShown, FileWithoutRightsIsTold) {
  const std::string file = folder.copyOf("reference/six.G");
  std::filesystem::permissions(file, std::filesystem::perms::none);
  EXPECT_TRUE(test::inChildWithoutRights([&] {
    return run({"show", file}) == 1 && run.errors == "korvin-file: " + file + ": may not be read\n";
  }));
}

TEST_F(StraightnessShown, ReadingLeavesTheFileAsItIs) {
  const std::string file = folder.copyOf("reference/old.G");
  const std::string before = test::readFile(file);
  for (const char* command : {"show", "text", "csv", "check"}) output({command, file});
  EXPECT_EQ(test::readFile(file), before);
  EXPECT_THAT(folder.names(), ElementsAre("old.G"));
}

// ---- report ----

/// The texts of the report of a reference, "page: text" a line.
class StraightnessReport : public StraightnessShown {
 protected:
  std::string report(std::vector<std::string> options = {}) {
    options.insert(options.begin(), {"report", file, "-o", "-"});
    return output(options);
  }
  std::string file = folder.copyOf("reference/holes.G");
};

TEST_F(StraightnessReport, HasAllPartsUnlessSomeAreNamed) {
  const std::string all = report();
  EXPECT_THAT(all, HasSubstr("\n1: X-Diagramm:  ISO 1101\n"));
  EXPECT_THAT(all, HasSubstr("\n1: Y-Diagramm:  ISO 1101\n"));
  EXPECT_THAT(all, HasSubstr("\n2: X[mm]\n"));
  EXPECT_THAT(all, HasSubstr("\n2: Y[mm]\n"));
  EXPECT_THAT(all, HasSubstr("\n1: holes.G\n"));
  EXPECT_EQ(report({"--parts", "y,x,y-diagram,x-diagram"}), all) << "the pages keep their order";
}

TEST_F(StraightnessReport, HasOnlyTheNamedParts) {
  const std::vector<std::pair<std::string, std::string>> marks{
      {"x-diagram", "1: X-Diagramm:"}, {"y-diagram", "1: Y-Diagramm:"}, {"x", "1: X[mm]"}, {"y", "1: Y[mm]"}};
  for (const auto& [part, own] : marks) {
    const std::string texts = report({"--parts", part});
    for (const auto& [other, mark] : marks) {
      if (other == part) {
        EXPECT_THAT(texts, HasSubstr(mark)) << part;
      } else {
        EXPECT_THAT(texts, Not(HasSubstr(mark))) << part;
      }
    }
  }
}

TEST_F(StraightnessReport, UnknownPartIsWrongUse) {
  EXPECT_EQ(run({"report", file, "-o", folder.path("a.pdf"), "--parts", "diagram"}), 2);
  EXPECT_THAT(run.errors,
              HasSubstr("--parts diagram: the report of a *.G has the parts x-diagram, y-diagram, x, y"));
  EXPECT_THAT(folder.names(), ElementsAre("holes.G"));
}

TEST_F(StraightnessReport, InInchItTellsMilAndInch) {
  const std::string texts = report({"--inch"});
  EXPECT_THAT(texts, HasSubstr("\n1: 196.9 in\n"));
  EXPECT_THAT(texts, HasSubstr("\n2: X[mil]\n"));
  EXPECT_THAT(texts, HasSubstr("\n2: Z[in]\n"));
  EXPECT_THAT(texts, HasSubstr("\n2: -0.6\n")) << "Y of the first point";
}

TEST_F(StraightnessReport, OlderFormsHaveOneToo) {
  for (const char* name : {"old.G", "older.G"}) {
    file = folder.copyOf("reference/" + std::string(name));
    EXPECT_THAT(report(), HasSubstr("1: " + std::string(name) + "\n"));
  }
}

TEST_F(StraightnessReport, ReportsOfAllKindsAreMadeTogether) {
  const std::string position = test::referenceIn(folder);
  EXPECT_EQ(run({"report", file, position, "-o", folder.path(), "--parts", "x"}), 0) << run.errors;
  EXPECT_THAT(folder.names(), ElementsAre("holes.G", "holes.G.pdf", "point.O", "point.O.pdf", "point.O1"));
}

// ---- text ----

/// The copy that the program itself writes, with the words of the real dictionary.
class StraightnessText : public StraightnessFileStand {
 protected:
  std::string saved(const std::string& name, bool inch, int language) {
    ToolDictionary words(disk, {}, run.dictionaryPaths, language);
    for (const int id : {3019, 3048, 3044, 3049, 3056, 3008, 3009, 3010, 3000, 5000, 3013, 3018})
      dictionary.texts[static_cast<std::int16_t>(id)] =
          words.dictionary().DicText(static_cast<std::int16_t>(id));
    system.Masssystem = inch ? 1 : 0;
    formgera = FORMGERA{};
    messages.answers = {MessageAnswer::yes};
    EXPECT_TRUE(load(test::dataFile("reference/" + name).string()));
    formgera.bildUebernehmen();
    const std::string copy = folder.path("copy");
    EXPECT_TRUE(files(disk).g_AsciiDateiSpeichern(copy));
    return test::readFile(copy);
  }

  std::string told(const std::string& name, bool inch, int language) {
    std::vector<std::string> arguments{"text", "--language", std::to_string(language),
                                       test::dataFile("reference/" + name).string()};
    if (inch) arguments.emplace_back("--inch");
    EXPECT_EQ(run(arguments), 0) << run.errors;
    return run.output;
  }

  ToolRun run;
};

TEST_F(StraightnessText, IsTheCopyThatSavingWrites) {
  for (const char* name : {"six.G", "holes.G", "moved.G", "full.G", "old.G", "older.G"}) {
    for (const bool inch : {false, true}) {
      for (const int language : {0, 6}) EXPECT_EQ(told(name, inch, language), saved(name, inch, language));
    }
  }
}

TEST_F(StraightnessText, HasTheUnitAndTheLanguageAskedFor) {
  const std::string metric = told("six.G", false, 0);
  EXPECT_THAT(metric, StartsWith("KORVIN-Messprotokoll:\tPr\xFC\x66stelle S\xFC\x64"));
  EXPECT_THAT(metric, HasSubstr("\r\nMP\tZ[mm]\tX[mm]\tY[mm]\r\n1\t0.0\t-0.0256\t-0.0120\r\n"));
  const std::string inch = told("six.G", true, 0);
  EXPECT_THAT(inch, HasSubstr("\r\nMP\tZ[in]\tX[mil]\tY[mil]\r\n1\t0.0\t-1.0066\t-0.4736\r\n"));
  EXPECT_THAT(told("six.G", false, 7), StartsWith("\xEF\xBB\xBFKORVIN-"));
}

TEST_F(StraightnessText, OfAnOlderFormHasNoTolerancesOfX) {
  const std::string text = told("old.G", false, 0);
  EXPECT_TRUE(std::regex_search(text, std::regex("\r\nX-t[^\t]*\t\\?\\.\\?  \\?\\.\\? / \\?\r\n"))) << text;
  EXPECT_TRUE(std::regex_search(text, std::regex("\r\nY-t[^\t]*\t0\\.038  0\\.040/300\\.0\r\n"))) << text;
}

}  // namespace
}  // namespace korvin::file
