#include "position/record.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

#include "support/json.h"
#include "support/test_files.h"

namespace korvin {
namespace {

const std::string& golden() {
  static const std::string bytes = test::readFile(test::dataFile("reference/point.O"));
  return bytes;
}

PositionsDatei goldenRecord() {
  return fromBytes<PositionsDatei>(test::bytesOf(golden()));
}

/// Where every field lies and how wide it is, told apart from the record's own list.
const std::map<std::string, std::pair<std::size_t, std::size_t>> places = {
    {"FirmaName", {168, 75}},      {"Reserve1", {243, 20}},     {"DateiName", {263, 75}},
    {"AsciiDatei", {338, 2}},      {"Gitter", {340, 2}},        {"Reserve2", {342, 2}},
    {"NurAktuell", {344, 2}},      {"Reserve3", {346, 2}},      {"ZeigeMittel", {348, 2}},
    {"ZeigeStreuung", {350, 2}},   {"ZeigeSpanne", {352, 2}},   {"OffsetAktiv", {354, 2}},
    {"OffsetMP", {356, 2}},        {"PortNr", {358, 2}},        {"Settings", {360, 12}},
    {"KameraID", {372, 1}},        {"Montage", {373, 2}},       {"Filter", {375, 1}},
    {"NKStellen", {376, 2}},       {"Reserve4", {378, 20}},     {"Bezeichnung", {398, 75}},
    {"Bediener", {473, 75}},       {"Kommentar", {548, 75}},    {"ProgrammText", {623, 40}},
    {"MPAktuell", {663, 2}},       {"MPVorher", {665, 2}},      {"AnzahlMP", {667, 2}},
    {"RestMP", {669, 2}},          {"Reserve5", {671, 2}},      {"StartAktiv", {673, 2}},
    {"StartZeit", {675, 8}},       {"StopAktiv", {683, 2}},     {"StopZeit", {685, 8}},
    {"Reserve6", {693, 2}},        {"Intervall", {695, 8}},     {"Reserve7", {703, 4}},
    {"CheckXYDiagramm", {707, 2}}, {"CheckXTabelle", {709, 2}}, {"CheckYTabelle", {711, 2}},
    {"Reserve8", {713, 2}},        {"Datum", {715, 40}},        {"InfoAbbruch", {755, 2}},
    {"DateiStatus", {757, 2}},     {"Geaendert", {759, 2}},     {"SFak", {761, 2}},
    {"Reserve9", {763, 24}},       {"Reserve10", {787, 2}},
};
const std::map<std::string, std::pair<std::size_t, std::size_t>> axisPlaces = {
    {"Aktuell", {0, 8}},  {"Summe", {8, 8}},       {"Quadratsumme", {16, 8}}, {"Offset", {24, 8}},
    {"Bereich", {32, 8}}, {"BereichAlt", {40, 8}}, {"BereichHand", {48, 2}},  {"NumZoom", {50, 2}},
    {"Mittel", {52, 8}},  {"Streuung", {60, 8}},   {"Maximum", {68, 8}},      {"Minimum", {76, 8}},
};

TEST(PositionRecord, EveryFieldLiesAtItsPlace) {
  std::map<std::string, std::pair<std::size_t, std::size_t>> wanted = places;
  for (const auto& [name, place] : axisPlaces) {
    wanted["X." + name] = place;
    wanted["Y." + name] = {place.first + 84, place.second};
  }
  std::map<std::string, std::pair<std::size_t, std::size_t>> found;
  for (const FieldDump& line : dump(PositionsDatei{})) found[line.name] = {line.offset, line.width};
  EXPECT_EQ(found, wanted);
}

TEST(PositionRecord, GoldenBytesHoldTheReferenceValues) {
  const test::Json reference =
      test::parseJson(test::readFile(test::dataFile("reference/point.O.json")))["fields"];
  std::set<std::string> seen;
  for (const FieldDump& line : dump(goldenRecord())) {
    const auto wanted = reference.object.find(line.name);
    if (wanted == reference.object.end()) {  // fields at rest are not listed
      EXPECT_EQ(line.text.find_first_not_of('0'), std::string::npos) << line.name << " is " << line.text;
      continue;
    }
    seen.insert(line.name);
    if (wanted->second.kind == test::Json::Kind::number) {
      EXPECT_EQ(std::stod(line.text), wanted->second.number) << line.name;
    } else {
      EXPECT_EQ(line.text, wanted->second.text) << line.name;
    }
  }
  EXPECT_EQ(seen.size(), reference.object.size());
}

TEST(PositionRecord, GoldenBytesComeBackUnchanged) {
  ASSERT_EQ(golden().size(), 789U);
  EXPECT_EQ(test::textOf(toBytes(goldenRecord())), golden());
}

TEST(PositionRecord, AnyBytesComeBackUnchanged) {
  std::string bytes(789, '\0');
  for (std::size_t i = 0; i < bytes.size(); ++i) bytes[i] = static_cast<char>(i * 59 + 3);
  EXPECT_EQ(test::textOf(toBytes(fromBytes<PositionsDatei>(test::bytesOf(bytes)))), bytes);
}

TEST(PositionRecord, IsZeroAndBlankWhenNew) {
  for (const FieldDump& line : dump(PositionsDatei{})) {
    EXPECT_EQ(line.text.find_first_not_of('0'), std::string::npos) << line.name << " is " << line.text;
  }
  EXPECT_EQ(PositionsDatei{}.Info.Reserve1.full(), std::string(20, ' '));
}

}  // namespace
}  // namespace korvin
