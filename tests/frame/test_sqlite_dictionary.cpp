#include "frame/sqlite_dictionary.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <filesystem>

#include "frame/sprache.h"
#include "support/test_files.h"
#include "support/test_ports.h"

namespace korvin {
namespace {

using test::ProgramEnded;

void executeOn(const std::string& path, const std::string& sql) {
  sqlite3* database = nullptr;
  ASSERT_EQ(sqlite3_open(path.c_str(), &database), SQLITE_OK);
  EXPECT_EQ(sqlite3_exec(database, ("PRAGMA synchronous = OFF;" + sql).c_str(), nullptr, nullptr, nullptr),
            SQLITE_OK)
      << sqlite3_errmsg(database);
  sqlite3_close(database);
}

class SqliteDictionaryTest : public testing::Test {
 protected:
  void SetUp() override {
    executeOn(path,
              "CREATE TABLE DIC (IDNr INTEGER PRIMARY KEY, Deutsch TEXT, Englisch TEXT, Franzoesisch TEXT,"
              " Italienisch TEXT, Spanisch TEXT, Schwedisch TEXT, Chinese TEXT, Japanese TEXT);"
              "INSERT INTO DIC VALUES (1, 'd1', 'e1', 'f1', 'i1', 's1', 'v1', '直线度', '真直度');"
              "INSERT INTO DIC VALUES (2, 'd2', NULL, '', NULL, NULL, NULL, NULL, NULL);"
              "INSERT INTO DIC VALUES (3, NULL, NULL, 'f3', NULL, NULL, NULL, NULL, NULL);"
              "INSERT INTO DIC VALUES (32767, 'größte', NULL, NULL, NULL, NULL, NULL, NULL, NULL);"
              "INSERT INTO DIC VALUES (-1, 'minus', NULL, NULL, NULL, NULL, NULL, NULL, NULL)");
  }

  /// What the program shows when it ends in `action`; empty if it doesn't end.
  template <class Action>
  std::string endOf(Action action) {
    try {
      action();
    } catch (const ProgramEnded& end) {
      return end.systemText + " " + std::to_string(end.number);
    }
    return "";
  }
  std::string endOfText(std::int16_t id) {
    return endOf([&] { dictionary.DicText(id); });
  }

  const test::TestFolder folder;
  const std::string path = folder.path("wörter.mdb");
  std::string spalte = "Deutsch";
  test::TestProgramEnd programEnd;
  SqliteDictionary dictionary{spalte, programEnd};
};

TEST_F(SqliteDictionaryTest, EachLanguageHasItsColumn) {
  dictionary.DicOeffnen(path);
  const char* const expected[] = {"d1", "e1", "f1", "i1", "s1", "v1", "直线度", "真直度"};
  for (std::int16_t index = 0; index < 8; ++index) {
    spalte = SpalteVonSprache(index);
    EXPECT_EQ(dictionary.DicText(1), expected[index]) << index;
  }
}

TEST_F(SqliteDictionaryTest, AChangeOfLanguageCountsAtTheNextCall) {
  dictionary.DicOeffnen(path);
  for (int round = 0; round < 3; ++round) {
    spalte = "Englisch";
    EXPECT_EQ(dictionary.DicText(1), "e1");
    EXPECT_EQ(dictionary.DicText(1), "e1");
    spalte = "Deutsch";
    EXPECT_EQ(dictionary.DicText(1), "d1");
    spalte = "Schwedisch";
    EXPECT_EQ(dictionary.DicText(1), "v1");
  }
}

TEST_F(SqliteDictionaryTest, NullComesOutInGermanWithNoMark) {
  dictionary.DicOeffnen(path);
  spalte = "Englisch";
  EXPECT_EQ(dictionary.DicText(2), "d2");
  spalte = "Japanese";
  EXPECT_EQ(dictionary.DicText(2), "d2");
}

TEST_F(SqliteDictionaryTest, AnEmptyTextIsReturnedAsItIs) {
  dictionary.DicOeffnen(path);
  spalte = "Franzoesisch";
  EXPECT_EQ(dictionary.DicText(2), "");
}

TEST_F(SqliteDictionaryTest, NumbersAre16BitSigned) {
  dictionary.DicOeffnen(path);
  EXPECT_EQ(dictionary.DicText(32767), "größte");
  EXPECT_EQ(dictionary.DicText(-1), "minus");
}

TEST_F(SqliteDictionaryTest, AnUnknownNumberEndsTheProgram) {
  dictionary.DicOeffnen(path);
  EXPECT_EQ(endOfText(4), "no more rows available 101");
  EXPECT_EQ(endOfText(0), "no more rows available 101");
  EXPECT_EQ(dictionary.DicText(1), "d1") << "the lookup was not ended";
}

TEST_F(SqliteDictionaryTest, AMissingGermanTextEndsTheProgram) {
  dictionary.DicOeffnen(path);
  EXPECT_EQ(endOfText(3), "constraint failed 1299");
  spalte = "Franzoesisch";
  EXPECT_EQ(dictionary.DicText(3), "f3");
}

TEST_F(SqliteDictionaryTest, AMissingColumnEndsTheProgram) {
  dictionary.DicOeffnen(path);
  for (const char* column : {"Klingonisch", "", "Deutsch\"", "Deutsch\" || \"Deutsch", "'x'"}) {
    spalte = column;
    EXPECT_EQ(endOfText(1).rfind("no such column: DIC.", 0), 0U) << column;
  }
  spalte = "Deutsch";
  EXPECT_EQ(dictionary.DicText(1), "d1");
}

TEST_F(SqliteDictionaryTest, AMissingFileEndsTheProgramAndIsNotMade) {
  const std::string missing = folder.path("korvin.mdb");
  EXPECT_EQ(endOf([&] { dictionary.DicOeffnen(missing); }), "unable to open database file 14");
  EXPECT_FALSE(std::filesystem::exists(missing));
}

TEST_F(SqliteDictionaryTest, ABrokenFileEndsTheProgramWhenItIsOpened) {
  test::writeFile(folder.path("text.mdb"), std::string(4096, 'x'));
  EXPECT_EQ(endOf([&] { dictionary.DicOeffnen(folder.path("text.mdb")); }), "file is not a database 26");
  test::writeFile(folder.path("empty.mdb"), "");
  EXPECT_EQ(endOf([&] { dictionary.DicOeffnen(folder.path("empty.mdb")); }), "no such table: DIC 1");
  executeOn(folder.path("other.mdb"), "CREATE TABLE Wort (IDNr INTEGER)");
  EXPECT_EQ(endOf([&] { dictionary.DicOeffnen(folder.path("other.mdb")); }), "no such table: DIC 1");
}

TEST_F(SqliteDictionaryTest, ACutFileEndsTheProgram) {
  std::filesystem::resize_file(path, std::filesystem::file_size(path) - 4096);
  std::string end = endOf([&] { dictionary.DicOeffnen(path); });
  if (end.empty()) end = endOfText(1);
  EXPECT_EQ(end.rfind("database disk image is malformed 11", 0), 0U) << end;
}

TEST_F(SqliteDictionaryTest, AClosedDictionaryEndsTheProgram) {
  EXPECT_EQ(endOfText(1), "bad parameter or other API misuse 21");
  dictionary.DicOeffnen(path);
  EXPECT_EQ(dictionary.DicText(1), "d1");
  dictionary.close();
  dictionary.close();
  EXPECT_EQ(endOfText(1), "bad parameter or other API misuse 21");
}

TEST_F(SqliteDictionaryTest, OpeningAgainTakesTheOtherFile) {
  const std::string other = folder.path("other.mdb");
  std::filesystem::copy_file(path, other);
  executeOn(other, "UPDATE DIC SET Deutsch = 'andere' WHERE IDNr = 1");
  dictionary.DicOeffnen(path);
  EXPECT_EQ(dictionary.DicText(1), "d1");
  dictionary.DicOeffnen(other);
  EXPECT_EQ(dictionary.DicText(1), "andere");
}

TEST_F(SqliteDictionaryTest, AWriterIsKeptOutWhileItIsOpen) {
  dictionary.DicOeffnen(path);
  sqlite3* writer = nullptr;
  ASSERT_EQ(sqlite3_open(path.c_str(), &writer), SQLITE_OK);
  const char* const change = "UPDATE DIC SET Deutsch = 'neu' WHERE IDNr = 1";
  EXPECT_EQ(sqlite3_exec(writer, change, nullptr, nullptr, nullptr), SQLITE_BUSY);
  EXPECT_EQ(dictionary.DicText(1), "d1");
  dictionary.close();
  EXPECT_EQ(sqlite3_exec(writer, change, nullptr, nullptr, nullptr), SQLITE_OK);
  sqlite3_close(writer);
}

TEST_F(SqliteDictionaryTest, AFileWithoutWriteRightIsEnough) {
  std::filesystem::permissions(path, std::filesystem::perms::owner_read);
  dictionary.DicOeffnen(path);
  EXPECT_EQ(dictionary.DicText(1), "d1");
}

TEST(Sprache, IndexesOutsideTheLanguagesAreGerman) {
  EXPECT_STREQ(SpalteVonSprache(0), "Deutsch");
  EXPECT_STREQ(SpalteVonSprache(1), "Englisch");
  EXPECT_STREQ(SpalteVonSprache(7), "Japanese");
  EXPECT_STREQ(SpalteVonSprache(8), "Deutsch");
  EXPECT_STREQ(SpalteVonSprache(-1), "Deutsch");
  EXPECT_STREQ(SpalteVonSprache(32767), "Deutsch");
}

}  // namespace
}  // namespace korvin
