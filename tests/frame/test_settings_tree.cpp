// What every settings tree keeps to, in memory and in its file.
#include <gtest/gtest.h>

#include "frame/sqlite_settings_tree.h"
#include "support/temp_folder.h"
#include "support/test_ports.h"

namespace korvin {
namespace {

struct InMemory {
  test::MemorySettingsTree tree;
};

struct InAFile {
  test::TempFolder folder;
  SqliteSettingsTree tree{folder / "settings.db"};
};

template <class Store>
class SettingsTreeTest : public testing::Test {
 protected:
  Store store;
  SettingsTree& tree = store.tree;
};

using Stores = testing::Types<InMemory, InAFile>;
TYPED_TEST_SUITE(SettingsTreeTest, Stores);

TYPED_TEST(SettingsTreeTest, ANewTreeIsEmptyAndReadable) {
  EXPECT_FALSE(this->tree.keyExists("A"));
  EXPECT_FALSE(this->tree.readValue("A", "n"));
  EXPECT_FALSE(this->tree.writeValue("A", "n", "x"));
  EXPECT_FALSE(this->tree.deleteKey("A"));
  EXPECT_EQ(this->tree.unreadable(), "");
}

TYPED_TEST(SettingsTreeTest, AKeyIsMadeWithAllAboveIt) {
  EXPECT_EQ(this->tree.createKey(R"(A\B\C)", "class"), SettingsTree::Creation::created);
  EXPECT_TRUE(this->tree.keyExists("A"));
  EXPECT_TRUE(this->tree.keyExists(R"(A\B)"));
  EXPECT_TRUE(this->tree.keyExists(R"(A\B\C)"));
  EXPECT_EQ(this->tree.createKey(R"(A\B)", ""), SettingsTree::Creation::existed);
  EXPECT_EQ(this->tree.createKey(R"(A\B\C)", ""), SettingsTree::Creation::existed);
}

TYPED_TEST(SettingsTreeTest, ValuesComeBackUnchanged) {
  this->tree.createKey("A", "");
  const std::string zeroInside("a\0b", 3);
  const std::string long100k(100000, 'z');
  for (const RegWert& value : {RegWert(std::string()), RegWert("v555"), RegWert("  blanks  "), RegWert("5"),
                               RegWert("1,5"), RegWert("ends in a zero byte" + std::string(1, '\0')),
                               RegWert(zeroInside), RegWert("Öffnen 测量 '\";--"),
                               RegWert("\xFF\xFE no UTF-8"), RegWert(long100k), RegWert(std::int32_t{0}),
                               RegWert(std::int32_t{2147483647}), RegWert(std::int32_t{-2147483647 - 1})}) {
    EXPECT_TRUE(this->tree.writeValue("A", "n", value));
    EXPECT_EQ(this->tree.readValue("A", "n"), value);
  }
}

TYPED_TEST(SettingsTreeTest, NamesCompareWithoutRegardToCase) {
  this->tree.createKey(R"(Software\MessInfo_O)", "");
  EXPECT_TRUE(this->tree.keyExists(R"(SOFTWARE\messinfo_o)"));
  EXPECT_EQ(this->tree.createKey(R"(software\MESSINFO_O)", ""), SettingsTree::Creation::existed);
  EXPECT_TRUE(this->tree.writeValue(R"(software\messinfo_o)", "SFak", "1"));
  EXPECT_TRUE(this->tree.writeValue(R"(Software\MessInfo_O)", "SFAK", "2"));
  EXPECT_EQ(this->tree.readValue(R"(SOFTWARE\MESSINFO_O)", "sfak"), RegWert("2"));
  EXPECT_FALSE(this->tree.deleteKey("SOFTware"));
  EXPECT_TRUE(this->tree.deleteKey(R"(SOFTware\MESSinfo_o)"));
  EXPECT_FALSE(this->tree.keyExists(R"(Software\MessInfo_O)"));
}

TYPED_TEST(SettingsTreeTest, LettersBeyondAsciiCompareByteByByte) {
  this->tree.createKey("Größe", "");
  EXPECT_TRUE(this->tree.keyExists("GRößE"));
  EXPECT_FALSE(this->tree.keyExists("GRÖßE"));
}

TYPED_TEST(SettingsTreeTest, AKeyWithKeysBelowItIsNotDeleted) {
  this->tree.createKey(R"(A\B)", "");
  EXPECT_FALSE(this->tree.deleteKey("A"));
  EXPECT_TRUE(this->tree.keyExists("A"));
  EXPECT_TRUE(this->tree.deleteKey(R"(A\B)"));
  EXPECT_TRUE(this->tree.deleteKey("A"));
  EXPECT_FALSE(this->tree.deleteKey("A"));
}

TYPED_TEST(SettingsTreeTest, OnlyKeysBelowCountNotThoseThatBeginAlike) {
  for (const char* path : {"Toleranz_P", "ToleranzXP", R"(Toleranz%P\Below)", R"(ToleranzXP\Below)"}) {
    this->tree.createKey(path, "");
  }
  EXPECT_TRUE(this->tree.deleteKey("Toleranz_P"));
  EXPECT_TRUE(this->tree.keyExists("ToleranzXP"));
}

TYPED_TEST(SettingsTreeTest, ADeletedKeyTakesItsValuesAlong) {
  this->tree.createKey("A", "");
  this->tree.createKey("B", "");
  this->tree.writeValue("A", "n", "x");
  this->tree.writeValue("B", "n", "y");
  EXPECT_TRUE(this->tree.deleteKey("A"));
  this->tree.createKey("A", "");
  EXPECT_FALSE(this->tree.readValue("A", "n"));
  EXPECT_EQ(this->tree.readValue("B", "n"), RegWert("y"));
}

TYPED_TEST(SettingsTreeTest, OneChangeAnswersWithItsStepsAndKeepsWhatTheyDid) {
  EXPECT_TRUE(this->tree.inOneChange([&] {
    return this->tree.createKey("A", "") == SettingsTree::Creation::created &&
           this->tree.inOneChange([&] { return this->tree.writeValue("A", "n", "x"); });
  }));
  EXPECT_FALSE(this->tree.inOneChange([&] {
    this->tree.writeValue("A", "m", "y");
    return false;
  }));
  EXPECT_EQ(this->tree.readValue("A", "n"), RegWert("x"));
  EXPECT_EQ(this->tree.readValue("A", "m"), RegWert("y"));
}

}  // namespace
}  // namespace korvin
