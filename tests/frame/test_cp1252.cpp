#include "frame/cp1252.h"

#include <gtest/gtest.h>

#include <set>

namespace korvin {
namespace {

std::string allBytes() {
  std::string bytes;
  for (int i = 0; i < 256; ++i) bytes += static_cast<char>(i);
  return bytes;
}

TEST(Cp1252, EveryByteSurvivesTheWayThereAndBack) {
  EXPECT_EQ(zuCp1252(vonCp1252(allBytes())), allBytes());
}

TEST(Cp1252, EveryByteHasACharacterOfItsOwn) {
  std::set<std::string> characters;
  for (const char byte : allBytes()) characters.insert(vonCp1252(std::string(1, byte)));
  EXPECT_EQ(characters.size(), 256U);
}

TEST(Cp1252, KnownCharactersHaveTheirBytes) {
  EXPECT_EQ(zuCp1252("Prüfstelle Süd"),
            "Pr\xFC"
            "fstelle S\xFC"
            "d");
  EXPECT_EQ(zuCp1252("±2um 0° ¦"),
            "\xB1"
            "2um 0\xB0 \xA6");
  EXPECT_EQ(zuCp1252("€‚ƒ„…†‡ˆ‰Š‹ŒŽ"), "\x80\x82\x83\x84\x85\x86\x87\x88\x89\x8A\x8B\x8C\x8E");
  EXPECT_EQ(zuCp1252("‘’“”•–—˜™š›œžŸ"), "\x91\x92\x93\x94\x95\x96\x97\x98\x99\x9A\x9B\x9C\x9E\x9F");
  EXPECT_EQ(zuCp1252("\u00A0ÿ"), "\xA0\xFF");
  EXPECT_EQ(zuCp1252(std::string("a\0b", 3)), std::string("a\0b", 3));
  EXPECT_EQ(zuCp1252(""), "");
}

TEST(Cp1252, BytesWithoutACharacterStandForTheControlCodesOfTheirNumber) {
  EXPECT_EQ(vonCp1252("\x81\x8D\x8F\x90\x9D"), "\u0081\u008D\u008F\u0090\u009D");
  EXPECT_EQ(zuCp1252("\u0081\u008D\u008F\u0090\u009D"), "\x81\x8D\x8F\x90\x9D");
}

TEST(Cp1252, ACharacterWithoutAPlaceIsRefusedAndNeverReplaced) {
  for (const char* text : {"日本", "Łódź", "a\u0080b", "\u0092", "Ω", "−1", "α", "😀", "\uFFFD", "u\u0308",
                           "\uFEFF"
                           "a"}) {
    EXPECT_FALSE(zuCp1252(text).has_value()) << text;
    EXPECT_FALSE(passtInCp1252(text)) << text;
  }
  EXPECT_TRUE(passtInCp1252("Größe 5µm, 20 €, ½"));
  EXPECT_TRUE(passtInCp1252("?"));
}

TEST(Cp1252, BrokenUtf8IsRefused) {
  for (const char* text : {"\xFC", "\xC3", "a\xC3", "\xC3(", "\xC0\x80", "\xC1\xBF", "\xE2\x82", "\xE2(\xAC",
                           "\xE2\x82(", "\xE0\x80\xA0", "\xE0\x83\xBC", "\xF0\x80\x83\xBC", "\xED\xA0\x80",
                           "\xED\xBF\xBF", "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xFF", "\x80", "\xBF"}) {
    EXPECT_FALSE(zuCp1252(text).has_value()) << testing::PrintToString(std::string(text));
  }
}

TEST(Cp1252, ACutTextIsRefusedWhateverFollowsInMemory) {
  const std::string_view whole = "aü€";
  EXPECT_FALSE(zuCp1252(whole.substr(0, 2)).has_value());
  EXPECT_EQ(zuCp1252(whole.substr(0, 3)), "a\xFC");
  EXPECT_FALSE(zuCp1252(whole.substr(0, 5)).has_value());
}

TEST(Cp1252, ATextCopyIsCp1252IfAllOfItFitsAndElseUtf8WithItsMark) {
  EXPECT_EQ(textkopieBytes("X[mm]\tGrün\r\n"), "X[mm]\tGr\xFCn\r\n");
  EXPECT_EQ(textkopieBytes("測定\tGrün\r\n"), "\xEF\xBB\xBF測定\tGrün\r\n");
}

}  // namespace
}  // namespace korvin
