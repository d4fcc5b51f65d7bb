// The dictionary as the build made it: every number that the program uses, in every language, fit for its
// use.
#include <gtest/gtest.h>
#include <sqlite3.h>

#include <algorithm>
#include <map>
#include <set>
#include <vector>

#include "frame/cp1252.h"
#include "frame/sprache.h"
#include "frame/sqlite_dictionary.h"
#include "support/test_ports.h"

namespace korvin {
namespace {

constexpr std::int16_t languageCount = 8;
constexpr std::int16_t latinCount = 6;

/// The numbers that are known by themselves, first and last of each run.
const std::vector<std::pair<std::int16_t, std::int16_t>> knownNumbers = {
    {500, 506},   {600, 606},   {1001, 1002}, {1006, 1007}, {1017, 1029}, {1032, 1038}, {1050, 1052},
    {1100, 1102}, {1106, 1107}, {2000, 2003}, {2009, 2012}, {2019, 2019}, {2036, 2039}, {2044, 2045},
    {2100, 2103}, {2107, 2107}, {2200, 2200}, {2208, 2209}, {2217, 2223}, {2225, 2228}, {2240, 2241},
    {2250, 2252}, {2300, 2300}, {3000, 3001}, {3003, 3003}, {3008, 3011}, {3013, 3013}, {3017, 3020},
    {3026, 3032}, {3035, 3035}, {3044, 3044}, {3048, 3051}, {3055, 3066}, {3081, 3082}, {3084, 3084},
    {3086, 3086}, {3088, 3088}, {3090, 3093}, {3100, 3103}, {3200, 3204}, {5000, 5001}, {5005, 5005},
    {5500, 5504}, {6000, 6002}, {6009, 6020}, {6024, 6029}, {6040, 6041}};

class DictionaryTexts : public testing::Test {
 protected:
  void SetUp() override { dictionary.DicOeffnen(KORVIN_BIN "/korvin.mdb"); }

  std::string text(std::int16_t id, std::int16_t language) {
    spalte = SpalteVonSprache(language);
    return dictionary.DicText(id);
  }
  std::string place(std::int16_t id, std::int16_t language) {
    return std::to_string(id) + " " + SpalteVonSprache(language) + ": " + text(id, language);
  }

  std::string spalte;
  test::TestProgramEnd programEnd;
  SqliteDictionary dictionary{spalte, programEnd};
};

/// The results of `sql`, its first column as text, a null as "null".
std::vector<std::string> select(const std::string& sql) {
  sqlite3* database = nullptr;
  sqlite3_stmt* statement = nullptr;
  sqlite3_open_v2(KORVIN_BIN "/korvin.mdb", &database, SQLITE_OPEN_READONLY, nullptr);
  EXPECT_EQ(sqlite3_prepare_v2(database, sql.c_str(), -1, &statement, nullptr), SQLITE_OK) << sql;
  std::vector<std::string> result;
  while (sqlite3_step(statement) == SQLITE_ROW) {
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, 0));
    result.emplace_back(text != nullptr ? text : "null");
  }
  sqlite3_finalize(statement);
  sqlite3_close(database);
  return result;
}

TEST_F(DictionaryTexts, EveryKnownNumberHasItsTextInEveryLanguage) {
  int count = 0;
  for (const auto& [first, last] : knownNumbers) {
    for (std::int16_t id = first; id <= last; ++id) {
      ++count;
      for (std::int16_t language = 0; language < languageCount; ++language)
        EXPECT_NE(text(id, language), "") << id;
    }
  }
  EXPECT_EQ(count, 172);
}

TEST_F(DictionaryTexts, NoTextIsNullOrEmptyInAnyLanguage) {
  EXPECT_GT(select("SELECT IDNr FROM DIC WHERE IDNr >= 7000").size(), 100U);
  for (const std::string column : Sprachspalten) {
    EXPECT_EQ(select("SELECT IDNr FROM DIC WHERE coalesce(" + column + ", '') = ''"),
              std::vector<std::string>{})
        << column;
  }
}

TEST_F(DictionaryTexts, LatinTextsFitWindows1252) {
  for (std::int16_t language = 0; language < latinCount; ++language) {
    const std::string column = SpalteVonSprache(language);
    // The menu names each language in its own script.
    for (const std::string& each : select("SELECT " + column + " FROM DIC WHERE IDNr NOT IN (7006, 7007)")) {
      EXPECT_TRUE(passtInCp1252(each)) << column << ": " << each;
    }
  }
}

TEST_F(DictionaryTexts, ALookupGoesByTheNumbersKey) {
  EXPECT_EQ(select("SELECT name || ' ' || pk FROM pragma_table_info('DIC') WHERE pk > 0"),
            std::vector<std::string>{"IDNr 1"});
}

/// Numbers of characters, not bytes.
std::size_t lengthOf(const std::string& text) {
  return static_cast<std::size_t>(
      std::count_if(text.begin(), text.end(), [](char c) { return (c & 0xC0) != 0x80; }));
}

TEST_F(DictionaryTexts, WhatFilesKeepFitsItsField) {
  for (std::int16_t language = 0; language < languageCount; ++language) {
    for (const std::int16_t id : std::vector<std::int16_t>{5500, 5501, 5502, 5503})
      EXPECT_LE(lengthOf("KORVIN-" + text(id, language)), 40U) << place(id, language);
    EXPECT_LE(lengthOf(text(3086, language)), 40U) << place(3086, language);
  }
}

TEST_F(DictionaryTexts, TheProgramsOwnColonIsNotInTheText) {
  const std::vector<std::int16_t> labels = {600,  1100, 2037, 3000, 3003, 3008, 3009, 3010,
                                            3013, 3017, 3018, 3019, 3044, 3048, 3049, 3050,
                                            3056, 3057, 3081, 3093, 5000, 6000, 6002, 6013};
  for (const std::int16_t id : labels) {
    for (std::int16_t language = 0; language < languageCount; ++language) {
      EXPECT_EQ(text(id, language).find(':'), std::string::npos) << place(id, language);
      EXPECT_EQ(text(id, language).find("："), std::string::npos) << place(id, language);
    }
  }
}

TEST_F(DictionaryTexts, TheProgramsOwnMarksAreNotInTheText) {
  for (std::int16_t language = 0; language < languageCount; ++language) {
    for (const std::int16_t id : std::vector<std::int16_t>{2038, 2218, 6001, 6016, 6017, 6028, 6029}) {
      EXPECT_EQ(std::string("?!:").find(text(id, language).back()), std::string::npos) << place(id, language);
    }
  }
}

/// The menus and the numbers of their entries.
const std::vector<std::vector<std::int16_t>> menus = {
    {1001, 1025, 1052},                          // bar of the main window
    {7043, 1006},                                // help
    {1002, 1007, 1024},                          // M_Messung
    {1017, 1018, 1019, 1020, 1021, 1022, 1023},  // M_Neu
    {1026, 1027, 1035},                          // M_Extras
    {1028, 1029},                                // M_MassSystem
    {1036, 1037, 1038, 1050, 1051},              // M_IniFile and M_Oeffnen
    {1032, 1033, 1034},                          // those of parallelism alone
    {7180, 1001, 1025, 7190, 7100, 1052},        // bar of FormPosition
    {1002, 1007, 7181, 7182, 7183, 1024},        // M_Datei
    {7185, 7186, 7187, 7188},                    // measuring
    {7191, 7192, 7370},                          // M_Panel
    {7185, 7186, 7715, 7716},                    // measuring of an analysis
    {7185, 7530, 7531},                          // measuring of a line
    {7532, 7533, 7192, 7370, 7616},              // M_Panel of FormGeradheit
    {7101, 7102},                                // link
};

/// The letter behind the "&" of a menu entry, in upper case; empty if there is none.
std::string accessKey(const std::string& text) {
  const std::size_t mark = text.find('&');
  if (mark == std::string::npos) return "";
  std::string key = text.substr(mark + 1, static_cast<unsigned char>(text.at(mark + 1)) >= 0x80 ? 2 : 1);
  if (key.size() == 1) key.front() = static_cast<char>(std::toupper(key.front()));
  return key;
}

TEST_F(DictionaryTexts, AccessKeysAreUniqueInTheirMenu) {
  for (std::int16_t language = 0; language < languageCount; ++language) {
    for (const auto& menu : menus) {
      std::set<std::string> keys;
      for (const std::int16_t id : menu) {
        const std::string key = accessKey(text(id, language));
        const bool unique = key.empty() || keys.insert(key).second;
        EXPECT_TRUE(unique) << place(id, language);
      }
    }
  }
}

TEST_F(DictionaryTexts, OnlyMenuEntriesHaveAccessKeys) {
  std::set<std::int16_t> entries;
  for (const auto& menu : menus) entries.insert(menu.begin(), menu.end());
  entries.insert(7189);
  for (std::int16_t language = 0; language < languageCount; ++language) {
    const std::string column = SpalteVonSprache(language);
    for (const std::string& id : select("SELECT IDNr FROM DIC WHERE " + column + " LIKE '%&%'")) {
      EXPECT_TRUE(entries.contains(static_cast<std::int16_t>(std::stoi(id)))) << id << " " << column;
    }
  }
}

}  // namespace
}  // namespace korvin
