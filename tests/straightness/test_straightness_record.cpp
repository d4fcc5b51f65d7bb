#include "straightness/record.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>

#include "support/json.h"
#include "support/test_files.h"

namespace korvin {
namespace {

using Places = std::map<std::string, std::pair<std::size_t, std::size_t>>;

/// Where every field lies and how wide it is, told apart from the record's own list.
const Places axisPlaces = {
    {"Wert", {0, 1616}},          {"Bereich", {1616, 8}},         {"BereichAlt", {1624, 8}},
    {"Bereichsart", {1632, 2}},   {"NumZoom", {1634, 2}},         {"Reserve1", {1636, 2}},
    {"Mittel", {1638, 8}},        {"Streuung", {1646, 8}},        {"MaxWert", {1654, 8}},
    {"MinWert", {1662, 8}},       {"ToleranzBezug", {1670, 2}},   {"Gesamt", {1672, 8}},
    {"WertPro", {1680, 8}},       {"ProEinheit", {1688, 8}},      {"Reserve2", {1696, 8}},
    {"AbschnittWert", {1704, 8}}, {"AbschnittLaenge", {1712, 8}}, {"AbschnittStart", {1720, 2}},
};
const Places generalPlaces = {
    {"Gitter", {3444, 2}},        {"ZeigeMittel", {3446, 2}},    {"ZeigeStreuung", {3448, 2}},
    {"ZeigeSpanne", {3450, 2}},   {"ZeigeAbschnitt", {3452, 2}}, {"ReserveA", {3454, 2}},
    {"Datum", {3456, 40}},        {"InfoAbbruch", {3496, 2}},    {"DateiStatus", {3498, 2}},
    {"Geaendert", {3500, 2}},     {"CheckXDiagramm", {3502, 2}}, {"CheckYDiagramm", {3504, 2}},
    {"CheckXTabelle", {3506, 2}}, {"CheckYTabelle", {3508, 2}},  {"PortNr", {3510, 2}},
    {"BaudRate", {3512, 12}},     {"KameraID", {3524, 1}},       {"Montage", {3525, 2}},
    {"Filter", {3527, 1}},        {"ReserveB", {3528, 2}},       {"ReserveC", {3530, 2}},
    {"ReserveD", {3532, 1}},      {"ReserveE", {3533, 1}},       {"FirmaName", {3534, 75}},
    {"ReserveF", {3609, 20}},     {"DateiName", {3629, 75}},     {"AsciiDatei", {3704, 2}},
    {"Bezeichnung", {3706, 75}},  {"Bediener", {3781, 75}},      {"Kommentar", {3856, 75}},
    {"KameraText", {3931, 40}},   {"NKStellen", {3971, 2}},      {"Auswertung", {3973, 2}},
    {"Ref1", {3975, 2}},          {"Ref2", {3977, 2}},           {"SFak", {3979, 2}},
    {"AktMP", {3981, 2}},         {"Distanz", {3983, 8}},        {"AnzMPs", {3991, 2}},
    {"Z", {3993, 1616}},          {"ZSchritt", {5609, 8}},       {"Beta5", {5617, 2}},
    {"Beta1", {5619, 2}},         {"X_Genauigkeit", {5621, 8}},  {"Y_Genauigkeit", {5629, 8}},
    {"MessZeitMin", {5637, 2}},   {"MessZeitMax", {5639, 2}},    {"AutoAdapt", {5641, 2}},
};

template <class Form>
Places placesOf() {
  Places found;
  for (const FieldDump& line : dump(Form{})) found[line.name] = {line.offset, line.width};
  return found;
}

Places wantedPlaces() {
  Places wanted = generalPlaces;
  for (const auto& [name, place] : axisPlaces) {
    wanted["X." + name] = place;
    wanted["Y." + name] = {place.first + 1722, place.second};
  }
  return wanted;
}

/// The same places where `Wert` and `Z` are 100 elements shorter.
Places earlierPlaces() {
  constexpr std::size_t missing = 800;
  Places earlier;
  for (auto [name, place] : wantedPlaces()) {
    if (name != "X.Wert") place.first -= name.starts_with("X.") || name == "Y.Wert" ? missing : 2 * missing;
    if (place.first > 3993 - 2 * missing) place.first -= missing;
    if (place.second == 1616) place.second -= missing;
    earlier[name] = place;
  }
  return earlier;
}

TEST(StraightnessRecord, EveryFieldLiesAtItsPlace) {
  EXPECT_EQ(placesOf<GeradDatei>(), wantedPlaces());
}

TEST(StraightnessRecord, TheFormBeforeHasAHundredPointsLess) {
  const Places found = placesOf<GeradDateiVorher>();
  EXPECT_EQ(found, earlierPlaces());
  EXPECT_EQ(found.at("Y.Wert").first, 922U);
  EXPECT_EQ(found.at("Gitter").first, 1844U);
}

TEST(StraightnessRecord, TheFirstFormLacksTheLineSettings) {
  Places wanted = earlierPlaces();
  const std::size_t gap = wanted.at("BaudRate").first;
  wanted.erase("BaudRate");
  for (auto& [name, place] : wanted) {
    if (place.first > gap) place.first -= 12;
  }
  EXPECT_EQ(placesOf<GeradDateiErste>(), wanted);
}

TEST(StraightnessRecord, TheGeometryOfTheLineStandsTogether) {
  EXPECT_EQ(placesOf<LinienGeometrie>(), (Places{{"AktMP", {0, 2}},
                                                 {"Distanz", {2, 8}},
                                                 {"AnzMPs", {10, 2}},
                                                 {"Z", {12, 1616}},
                                                 {"ZSchritt", {1628, 8}}}));
}

// ---- Reference files ----

void expectNear(double found, double wanted, const std::string& name) {
  EXPECT_LE(std::abs(found - wanted), 1e-12 * std::max(1.0, std::abs(wanted))) << name;
}

void expectNumbers(const std::string& dumped, const std::vector<test::Json>& wanted,
                   const std::string& name) {
  const test::Json found = test::parseJson(dumped);
  ASSERT_EQ(found.list.size(), wanted.size()) << name;
  for (std::size_t i = 0; i < wanted.size(); ++i) {
    expectNear(found.list[i].number, wanted[i].number, name + " " + std::to_string(i));
  }
}

void expectField(const FieldDump& found, const test::Json& wanted) {
  switch (wanted.kind) {
    case test::Json::Kind::number:
      return expectNear(std::stod(found.text), wanted.number, found.name);
    case test::Json::Kind::list:
      return expectNumbers(found.text, wanted.list, found.name);
    default:
      EXPECT_EQ(found.text, wanted.text) << found.name;
  }
}

/// All fields of a file against the values beside it; those that are not listed there are at rest. The oldest
/// form has no line settings of its own.
template <class Form>
void expectReference(const std::string& file) {
  SCOPED_TRACE(file);
  const std::string bytes = test::readFile(test::dataFile("reference/" + file));
  ASSERT_EQ(bytes.size(), recordSize<Form>());
  const auto record = fromBytes<Form>(test::bytesOf(bytes));
  test::Json reference =
      test::parseJson(test::readFile(test::dataFile("reference/" + file + ".json")))["fields"];
  for (const FieldDump& line : dump(record)) {
    const auto wanted = reference.object.find(line.name);
    if (wanted == reference.object.end()) {
      EXPECT_EQ(line.text, "0") << line.name;
      continue;
    }
    expectField(line, wanted->second);
    reference.object.erase(wanted);
  }
  reference.object.erase("BaudRate");
  EXPECT_TRUE(reference.object.empty()) << reference.object.begin()->first << " is no field";
  EXPECT_EQ(test::textOf(toBytes(record)), bytes) << "the same bytes come back";
}

TEST(StraightnessRecord, ReferencesOfThePresentFormHoldTheirValues) {
  for (const char* file : {"six.G", "holes.G", "moved.G", "full.G", "set1.G", "set2.G", "set3.G"}) {
    expectReference<GeradDatei>(file);
  }
}

TEST(StraightnessRecord, ReferencesOfTheOlderFormsHoldTheirValues) {
  expectReference<GeradDateiVorher>("old.G");
  expectReference<GeradDateiErste>("older.G");
}

TEST(StraightnessRecord, LineSettingsAreReadWhereTheFormHasThem) {
  const auto lineSettings = [](const char* file, auto form) {
    const std::string bytes = test::readFile(test::dataFile(file));
    return std::string(fromBytes<decltype(form)>(test::bytesOf(bytes)).Info.BaudRate.trimmed());
  };
  EXPECT_EQ(lineSettings("reference/six.G", GeradDatei{}), "115200,N,8,1");
  EXPECT_EQ(lineSettings("reference/old.G", GeradDateiVorher{}), "19200,N,8,1");
  EXPECT_EQ(lineSettings("reference/older.G", GeradDateiErste{}), "");
}

TEST(StraightnessRecord, AnyBytesComeBackUnchanged) {
  std::string bytes(5643, '\0');
  for (std::size_t i = 0; i < bytes.size(); ++i) bytes[i] = static_cast<char>(i * 59 + 3);
  EXPECT_EQ(test::textOf(toBytes(fromBytes<GeradDatei>(test::bytesOf(bytes)))), bytes);
}

TEST(StraightnessRecord, HasNoPointsWhenNew) {
  const GeradReihe series;
  EXPECT_EQ(series.X.Wert.anzahl(), 0U);
  EXPECT_EQ(series.Y.Wert.at(201), 999.0);
  EXPECT_EQ(series.Info.FirmaName.full(), std::string(75, ' '));
}

}  // namespace
}  // namespace korvin
