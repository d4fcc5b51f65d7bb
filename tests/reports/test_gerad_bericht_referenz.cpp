// The reports of the reference series, text by text. What they have to say is worked out here from the
// references' own evaluations, which another program computed.
#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "frame/leerwert.h"
#include "frame/number_format.h"
#include "frame/zahl_text.h"
#include "reports/gerad_stand.h"
#include "reports/paper_texts.h"
#include "support/json.h"

namespace korvin {
namespace {

using test::DruckMarke;
using test::Json;
using test::PaperText;

constexpr double charWidth = 0.5 * 25.4 / 72;  // of the recording printer, mm a point of the font

/// The look of the words that differ by file.
struct Head {
  std::string designation;
  std::string saved;
  std::string mounting;
  std::string filter;
};

const std::map<std::string, Head>& heads() {
  static const std::map<std::string, Head> all{
      {"six.G", {"Führungsbahn Fräsmaschine 164", " 21.08.03 14:03:07", "D3029", "5s"}},
      {"holes.G", {"Führungsbahn Fräsmaschine 454", " 23.07.03 14:15:07", "D3029", "10s"}},
      {"full.G", {"Führungsbahn Fräsmaschine 20", " 20.12.03 14:11:07", "D3030", "5s"}}};
  return all;
}

struct Case {
  std::string file;
  bool inch;
  friend std::ostream& operator<<(std::ostream& to, const Case& its) {
    return to << its.file << (its.inch ? " in mil" : " in mm");
  }
};

class GeradReferenz : public test::GeradStand, public ::testing::WithParamInterface<Case> {
 protected:
  GeradReferenz() {
    reference(GetParam().file);
    Masssystem = GetParam().inch ? 1 : 0;
    json = test::parseJson(test::readFile(test::dataFile("reference/" + GetParam().file + ".json")));
  }

  bool inch() const { return GetParam().inch; }
  double fieldNumber(const std::string& name) const { return json["fields"][name].number; }
  const Json& evaluated(const std::string& axis) const {
    static const std::array<std::string, 3> modes{"ROH", "ISO", "REF"};
    const auto mode = static_cast<std::size_t>(fieldNumber("Auswertung"));
    return json["evaluated"][modes.at(mode) + (inch() ? "_mil" : "_mm")][axis];
  }
  const Json& section(const std::string& axis) const {
    static const std::array<std::string, 3> modes{"ROH", "ISO", "REF"};
    const auto mode = static_cast<std::size_t>(fieldNumber("Auswertung"));
    return json["evaluated"][modes.at(mode) + "_mm"][axis]["section"];
  }
  std::string mode() const {
    static const std::array<std::string, 3> words{"D3060", "D3059 1101", "D3058"};
    return words.at(static_cast<std::size_t>(fieldNumber("Auswertung")));
  }
  std::string number(double value) const {
    return formatNumber(value, ZahlMuster(static_cast<int>(fieldNumber("NKStellen"))));
  }
  double mil(double mm) const { return inch() ? mm / 0.0254 : mm; }
  double in(double mm) const { return inch() ? mm / 25.4 : mm; }

  std::vector<PaperText> information() const {
    const Head& its = heads().at(GetParam().file);
    return {{20, 25, "D3001:", 9, true},
            {20, 29, "D3044:"},
            {45, 29, its.designation},
            {20, 33, "D3048:"},
            {45, 33, "Kamera 0°"},
            {20, 37, "D3050:"},
            {45, 37, GetParam().file},
            {20, 41, "D3008:"},
            {45, 41, "M. Größ"},
            {20, 45, "D3050 (t):"},
            {45, 45, its.saved},
            {90, 45, "D3051 (t):"},
            {120, 45, "06.07.09 06:00:00"},
            {20, 49, "D3010:"},
            {45, 49, formatNumber(fieldNumber("AnzMPs"), "0")},
            {90, 49, "D3000:"},
            {120, 49, formatNumber(in(fieldNumber("Distanz")), "0.0") + (inch() ? " in" : " mm")},
            {20, 53, "D3003°:"},
            {45, 53, its.mounting},
            {90, 53, "D3013:"},
            {120, 53, its.filter},
            {20, 57, "D3009:"},
            {45, 57, "nach Überholung, 20 °C ±1"}};
  }

  std::string extremes(const std::string& axis) const {
    const Json& its = evaluated(axis);
    if (fieldNumber(axis + ".ToleranzBezug") != 1) return number(its["max"].number - its["min"].number);
    return number(its["max"].number) + " , " + number(its["min"].number);
  }
  std::string worstSection(const std::string& axis) const {
    const Json& its = section(axis);
    if (its["found"].number == 0) return "?.?/? z?";
    return number(mil(its["value"].number)) + " / " + formatNumber(in(its["length"].number), "0.0") + " z" +
           formatNumber(its["start"].number, "0");
  }
  std::vector<PaperText> block(const std::string& axis, const std::string& title, double x0, double y) const {
    const Json& its = evaluated(axis);
    const double factor = fieldNumber("SFak");
    const bool around = fieldNumber(axis + ".ToleranzBezug") == 1;
    const double whole = mil(fieldNumber(axis + ".Gesamt"));
    const double labelSize = 9 * 3.5 / (3 * 9 * charWidth);  // three characters on 3.5 mm
    return {{x0 + 25, y + 1, title + mode()},
            {x0 + 103, y + 1, "x " + number(its["mean"].number)},
            {x0 + 128, y + 1, formatNumber(factor, "0") + "s " + number(factor * its["deviation"].number)},
            {x0 + 153, y + 1, "R " + number(its["max"].number - its["min"].number)},
            {x0 + 21, y + 6, axis + " t", labelSize},
            {x0 + 25, y + 6, (around ? "±" : "") + formatNumber(around ? whole / 2 : whole, "0.000")},
            {x0 + 50, y + 6,
             formatNumber(mil(fieldNumber(axis + ".WertPro")), inch() ? "0.00" : "0.000") + "/" +
                 formatNumber(in(fieldNumber(axis + ".ProEinheit")), "0.0")},
            {x0 + 85, y + 6, "D5001"},
            {x0 + 95, y + 6, extremes(axis)},
            {x0 + 130, y + 6, worstSection(axis)}};
  }

  std::vector<PaperText> tableHead(double y) const {
    return {{20, y, mode() + ": D3018"},
            {60, y, "D3066"},
            {inch() ? 90.0 : 85.0, y, inch() ? "Z[in]" : "Z[mm]", 9, false, true},
            {125, y, inch() ? "X[mil]" : "X[mm]"},
            {165, y, inch() ? "Y[mil]" : "Y[mm]"}};
  }
  /// The footnotes' pieces; they stand in one line, one after the other.
  std::vector<std::string> footnotes() const {
    return {"D3064: " + mode(), "D3065?.?=", "D3011 (D3027: 0= ", "D3028; 1= ", "D3026; 2= )"};
  }
  void expectFootnotes(int page, std::vector<std::string>& others) const {
    double end = 20;
    for (const std::string& piece : footnotes()) {
      const auto found = std::find(others.begin(), others.end(), piece);
      ASSERT_NE(found, others.end()) << piece;
      others.erase(found);
      for (const DruckMarke& mark : paper.texte(page)) {
        if (mark.text != piece) continue;
        EXPECT_NEAR(mark.y, 268, 1e-4) << piece;
        EXPECT_EQ(mark.groesse, 7) << piece;
        EXPECT_GE(mark.x, end - 1e-4) << piece;
        EXPECT_LE(mark.x, end + 5 + 1e-4) << piece;
        end = mark.x2;
      }
    }
    EXPECT_LE(end, 190);
  }

  std::string mark(const std::string& axis, double value) const {
    const double whole = mil(fieldNumber(axis + ".Gesamt"));
    const Json& its = evaluated(axis);
    const auto reference = static_cast<int>(fieldNumber(axis + ".ToleranzBezug"));
    const bool beyond = reference == 0   ? its["min"].number + whole < value
                        : reference == 1 ? whole / 2 < std::abs(value)
                                         : value < its["max"].number - whole;
    return beyond ? " *" + std::to_string(reference) : "";
  }
  std::vector<PaperText> row(int i, double y) const {
    std::vector<PaperText> texts{
        {55, y, std::to_string(i), 9, false, true},
        {85, y, formatNumber(in(json["fields"]["Z"].list.at(static_cast<std::size_t>(i)).number), "0.0"), 9,
         false, true}};
    for (const auto& [axis, x] : {std::pair{"X", 125.0}, std::pair{"Y", 165.0}}) {
      const double value = evaluated(axis)["values"].list.at(static_cast<std::size_t>(i - 1)).number;
      const bool open = istLeer(value);
      texts.push_back({x, y, open ? "?.?" : number(value), 9, false, true});
      if (const std::string its = open ? "" : mark(axis, value); !its.empty()) texts.push_back({x, y, its});
    }
    return texts;
  }

  Json json;
};

TEST_P(GeradReferenz, DiagramPage) {
  print(all);
  std::vector<PaperText> expected = test::headAndFoot("Prüfstelle Süd – Meßraum 3", "01");
  test::add(expected, information());
  test::add(expected, block("X", "X-D3017:  ", 12.4, 68.8));
  test::add(expected, block("Y", "Y-D3017:  ", 12.4, 170.8));
  const std::vector<std::string> others = othersThan(expected, paper, 1);
  EXPECT_GT(others.size(), 30U) << "numbers and heights of the diagrams";
}

TEST_P(GeradReferenz, NoTextOfTheDiagramPageCoversAnother) {
  print(all);
  const std::vector<DruckMarke> texts = paper.texte(1);
  for (std::size_t i = 0; i < texts.size(); ++i) {
    for (std::size_t k = i + 1; k < texts.size(); ++k) {
      const double wide = std::min(texts[i].x2, texts[k].x2) - std::max(texts[i].x, texts[k].x);
      const double high = std::min(texts[i].y2, texts[k].y2) - std::max(texts[i].y, texts[k].y);
      EXPECT_FALSE(wide > 0.01 && high > 0.01) << texts[i].text << " and " << texts[k].text;
    }
  }
}

TEST_P(GeradReferenz, TablePages) {
  print(all);
  const int count = std::min(100, static_cast<int>(fieldNumber("AnzMPs")));
  const std::array<int, 4> begins{1, 28, 65, 101};
  int page = 2;
  for (std::size_t i = 0; i < 3 && begins[i] <= count; ++i, ++page) {
    const double table = i == 0 ? 95 : 30;
    std::vector<PaperText> expected =
        test::headAndFoot("Prüfstelle Süd – Meßraum 3", "0" + std::to_string(page));
    if (i == 0) {
      test::add(expected, information());
      test::add(expected, block("X", "X-D3018:   ", 0, 64));
      test::add(expected, block("Y", "Y-D3018:  ", 0, 79));
    }
    test::add(expected, tableHead(table));
    const int last = std::min(count, begins[i + 1] - 1);
    for (int point = begins[i]; point <= last; ++point)
      test::add(expected, row(point, table + (point - begins[i] + 1) * 6));
    std::vector<std::string> others = othersThan(expected, paper, page);
    expectFootnotes(page, others);
    EXPECT_EQ(others, std::vector<std::string>{}) << "page " << page;
  }
  EXPECT_EQ(paper.seite(), page - 1);
  EXPECT_EQ(paper.enden, 1);
}

INSTANTIATE_TEST_SUITE_P(Files, GeradReferenz,
                         ::testing::Values(Case{"six.G", false}, Case{"six.G", true}, Case{"holes.G", false},
                                           Case{"holes.G", true}, Case{"full.G", false},
                                           Case{"full.G", true}),
                         [](const auto& its) {
                           return its.param.file.substr(0, its.param.file.size() - 2) +
                                  (its.param.inch ? "mil" : "mm");
                         });

}  // namespace
}  // namespace korvin
