// The user's guide tells the limits of the straightness settings as the boxes have them, in both languages.

#include <gtest/gtest.h>

#include <fstream>
#include <regex>
#include <sstream>

#include "dialogs/field_check.h"
#include "frame/zahl_text.h"
#include "support/test_ports.h"

namespace korvin {
namespace {

constexpr std::int16_t Inch = 1;

class GuideLimits : public testing::Test {
 protected:
  GuideLimits() {
    const std::ifstream in(KORVIN_SOURCE "/help/KorHelpD.HLP", std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    guide = text.str();
  }

  static std::vector<double> numbers(const std::string& text) {
    static const std::regex number("[0-9]+([.,][0-9]+)?");
    std::vector<double> found;
    for (std::sregex_iterator it(text.begin(), text.end(), number), end; it != end; ++it)
      found.push_back(zahlAusText(it->str()));
    return found;
  }

  /// The numbers of the second column, in the row of the table that begins with `box`.
  std::vector<double> told(const std::string& box) const {
    const std::string row = "<tr><td><b class=\"ui\">" + box + "</b>";
    for (auto at = guide.find(row); at != std::string::npos; at = guide.find(row, at + 1)) {
      const auto cell = guide.find("</td><td>", at) + 9;
      const auto found = numbers(guide.substr(cell, guide.find("</td>", cell) - cell));
      if (!found.empty()) return found;
    }
    return {};
  }

  std::vector<double> checked(FeldPruefung check, std::int16_t units = 0) {
    std::string range = Feldpruefer(dictionary, messages, meldung, units).bereichText(check);
    return numbers(range.substr(range.find(':')));
  }

  test::TestDictionary dictionary;
  test::TestMessages messages;
  Meldung meldung;
  std::string guide;
};

TEST_F(GuideLimits, AreThoseOfTheBoxes) {
  struct Row {
    const char* german;
    const char* english;
    FeldPruefung check;
  };
  for (const Row& row : {Row{"Anzahl Messpunkte", "Number of measuring points", FeldPruefung::anzahlPunkte},
                         Row{"Messlänge", "Length", FeldPruefung::messlaenge},
                         Row{"Gesamttoleranz", "Overall tolerance", FeldPruefung::toleranz},
                         Row{"Kürzeste Messzeit", "Shortest measuring time", FeldPruefung::messZeitMin}}) {
    const auto limits = checked(row.check);
    ASSERT_EQ(limits.size(), 2U) << row.english;
    EXPECT_EQ(told(row.german), limits) << row.german;
    EXPECT_EQ(told(row.english), limits) << row.english;
  }
}

TEST_F(GuideLimits, OfTheAccuracyAreToldInBothUnits) {
  auto limits = checked(FeldPruefung::genauigkeit);
  const auto mil = checked(FeldPruefung::genauigkeit, Inch);
  limits.insert(limits.end(), mil.begin(), mil.end());
  ASSERT_EQ(limits.size(), 4U);
  EXPECT_EQ(told("Geforderte Genauigkeit X"), limits);
  EXPECT_EQ(told("Required accuracy X"), limits);
}

}  // namespace
}  // namespace korvin
