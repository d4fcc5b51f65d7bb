// docs/file-formats.md tells every field of a record as it lies in the file.

#include <gtest/gtest.h>

#include <cstddef>
#include <fstream>
#include <map>
#include <regex>
#include <sstream>
#include <string>
#include <type_traits>

#include "frame/layout.h"
#include "position/record.h"
#include "straightness/record.h"

namespace {

using korvin::FieldCodec;
using korvin::FieldKind;
using korvin::Flagge;

struct Field {
  std::string name;  ///< "kept" for bytes that no one reads
  std::string type;
  bool operator==(const Field&) const = default;
};

void PrintTo(const Field& field, std::ostream* out) {
  *out << field.type << " " << field.name;
}

using Layout = std::map<std::size_t, Field>;

std::string section(const std::string& from, const std::string& to) {
  const std::ifstream in(KORVIN_SOURCE "/docs/file-formats.md", std::ios::binary);
  std::ostringstream text;
  text << in.rdbuf();
  const std::string page = text.str();
  const auto begin = page.find(from);
  return begin == std::string::npos ? "" : page.substr(begin, page.find(to, begin) - begin);
}

/// The rows of a table "| offset | type | field |"; a field in backticks has a name, any other is kept.
Layout told(const std::string& text) {
  static const std::regex row(R"(\n\| (\d+) \| ([^|]+) \| (`(\w+)`|kept) \|)");
  Layout layout;
  for (std::sregex_iterator it(text.begin(), text.end(), row), end; it != end; ++it) {
    const bool kept = (*it)[3].str() == "kept";
    layout[std::stoul((*it)[1].str())] = {kept ? "kept" : (*it)[4].str(), (*it)[2].str()};
  }
  return layout;
}

template <class T>
std::string typeName() {
  if constexpr (std::is_same_v<T, Flagge>) {
    return "flag";
  } else if constexpr (std::is_same_v<T, double>) {
    return "float";
  } else if constexpr (std::is_same_v<T, std::int16_t>) {
    return "int16";
  } else if constexpr (FieldCodec<T>::kind == FieldKind::numbers) {
    return std::to_string(FieldCodec<T>::width / sizeof(double)) + " floats";
  } else if constexpr (FieldCodec<T>::kind == FieldKind::reserved) {
    return std::to_string(FieldCodec<T>::width) + " bytes";
  } else {
    return "text " + std::to_string(FieldCodec<T>::width);
  }
}

template <class Record>
Layout actual(std::size_t start) {
  Layout layout;
  const Record record{};
  korvin::forEachField(record, [&]<class T>(const korvin::FieldName& field, std::size_t offset, const T&) {
    const bool kept = field.name.starts_with("Reserve");
    layout[start + offset] = {kept ? "kept" : std::string(field.name), typeName<T>()};
  });
  return layout;
}

TEST(FileFormatsPage, TellsTheAxisOfAPosition) {
  EXPECT_EQ(told(section("## Position: the head", "General part")), actual<korvin::AchsenInfo>(0));
}

TEST(FileFormatsPage, TellsTheGeneralPartOfAPosition) {
  const std::size_t start = 2 * korvin::recordSize<korvin::AchsenInfo>();
  EXPECT_EQ(told(section("General part, offsets", "## Position: the points")),
            actual<korvin::PositionsInfo>(start));
}

TEST(FileFormatsPage, TellsTheAxisOfAStraightness) {
  EXPECT_EQ(told(section("## Straightness, *.G", "General part")), actual<korvin::GeradAchse>(0));
}

TEST(FileFormatsPage, TellsTheGeneralPartOfAStraightness) {
  const std::size_t start = 2 * korvin::recordSize<korvin::GeradAchse>();
  const std::string page = section("## Straightness, *.G", "## Straightness: the older forms");
  ASSERT_NE(page, "");
  Layout general = actual<korvin::GeradDatei>(0);
  general.erase(general.begin(), general.lower_bound(start));
  EXPECT_EQ(told(page.substr(page.find("General part"))), general);
}

/// The lengths of the three forms, and where their parts begin.
TEST(FileFormatsPage, TellsTheOlderFormsOfAStraightness) {
  const std::string forms = section("## Straightness: the older forms", "## Straightness: the text copy");
  const auto tells = [&forms](const std::string& words) { return forms.find(words) != std::string::npos; };
  using OldAxis = korvin::GeradAchseMit<korvin::MaxPunkteAlt>;
  EXPECT_TRUE(tells("\n| " + std::to_string(korvin::recordSize<korvin::GeradDatei>()) + " |"));
  EXPECT_TRUE(tells("\n| " + std::to_string(korvin::recordSize<korvin::GeradDateiVorher>()) + " |"));
  EXPECT_TRUE(tells("\n| " + std::to_string(korvin::recordSize<korvin::GeradDateiErste>()) + " |"));
  EXPECT_TRUE(tells("the general part at " + std::to_string(2 * korvin::recordSize<OldAxis>())));
}

}  // namespace
