#include "korvin-file/value.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "frame/leerwert.h"
#include "korvin-file/csv.h"
#include "korvin-file/iso_time.h"
#include "korvin-file/utf8.h"
#include "korvin-file/value_text.h"
#include "support/json.h"

namespace korvin::file {
namespace {

std::string json(const Value& value) {
  std::string text = jsonText(value);
  text.pop_back();
  return text;
}

TEST(Json, NumbersReadBackToTheSameBits) {
  for (const double number : {0.1, 1.0 / 3, -0.0435999999999999, 5e-324, 1.7976931348623157e308, 1e21, -7.0,
                              2.2250738585072014e-308, 0.30000000000000004}) {
    EXPECT_EQ(std::strtod(json(Value::ofNumber(number)).c_str(), nullptr), number);
    EXPECT_EQ(test::parseJson(json(Value::ofNumber(number))).number, number);
  }
  EXPECT_EQ(json(Value::ofNumber(29999LL)), "29999");
}

TEST(Json, WhatIsNoNumberOrWasNotMeasuredIsNull) {
  EXPECT_EQ(json(Value::ofNumber(std::nan(""))), "null");
  EXPECT_EQ(json(Value::ofNumber(std::numeric_limits<double>::infinity())), "null");
  EXPECT_EQ(json(Value::ofNumber(-std::numeric_limits<double>::infinity())), "null");
  EXPECT_EQ(json(Value::ofReading(Leerwert)), "null");
  EXPECT_EQ(json(Value::ofNumber(Leerwert)), "999");
  EXPECT_EQ(json(Value::ofReading(998.9999999999999)), "998.9999999999999");
}

TEST(Json, TextsAreEscaped) {
  EXPECT_EQ(json(Value::ofText("a\"b\\c\n\r\t")), R"("a\"b\\c\n\r\t")");
  EXPECT_EQ(json(Value::ofText(std::string("\0\x1b\x7f", 3))), R"("\u0000\u001b\u007f")");
  EXPECT_EQ(json(Value::ofText("\xC2\x85\xC2\xA0")), "\"\\u0085\xC2\xA0\"");
  EXPECT_EQ(json(Value::ofText("Größ 測定")), "\"Größ 測定\"");
}

TEST(Json, BytesThatAreNoUtf8BecomeWindows1252) {
  EXPECT_EQ(json(Value::ofText("S\xFC\x64")), "\"Süd\"");
}

TEST(Json, RowsStandOnOneLine) {
  const Value row = Value::ofObject({{"n", Value::ofNumber(1LL)}, {"t", Value{}}});
  EXPECT_EQ(json(Value::ofObject({{"rows", Value::ofList({row, row})}, {"none", Value::ofList()}})),
            "{\n \"rows\": [\n  {\"n\": 1, \"t\": null},\n  {\"n\": 1, \"t\": null}\n ],\n \"none\": []\n}");
}

TEST(PlainText, AlignsNamesAndTables) {
  const auto row = [](const char* t, double x) {
    return Value::ofObject({{"t", Value::ofText(t)}, {"x", Value::ofReading(x)}});
  };
  const Value value = Value::ofObject({{"ä", Value::ofText("")},
                                       {"name", Value::ofText("esc\x1b[31m")},
                                       {"rows", Value::ofList({row("10", 1.5), row("9", Leerwert)})}});
  EXPECT_EQ(plainText(value), "ä\nname  esc\\x1b[31m\nrows\n   t    x\n  10  1.5\n   9    -\n");
}

TEST(Json, TruthIsAWord) {
  EXPECT_EQ(json(Value::ofTruth(true)), "true");
  EXPECT_EQ(json(Value::ofTruth(false)), "false");
}

TEST(PlainText, ListsFillTheLine) {
  const Value list = Value::ofList(std::vector<Value>(20, Value::ofText("12345678")));
  const std::string four = "12345678  12345678  12345678  12345678";
  const std::string eight = "\n  " + four + "  " + four;
  EXPECT_EQ(plainText(Value::ofObject({{"list", list}})), "list" + eight + eight + "\n  " + four + "\n");
  EXPECT_EQ(plainText(Value::ofObject({{"none", Value::ofList()}})), "none\n");
}

TEST(PlainText, WordOfTheWidthOfALineStandsAlone) {
  const auto word = [](std::size_t length) { return Value::ofText(std::string(length, 'a')); };
  EXPECT_EQ(plainText(Value::ofList({word(78), word(100), Value{}, word(77), Value{}})),
            std::string(78, 'a') + "\n" + std::string(100, 'a') + "\n-  " + std::string(77, 'a') + "\n-\n");
}

TEST(PlainText, ControlCharactersCannotSteerATerminal) {
  EXPECT_EQ(printable("a\x1b]0;x\x07\n\xC2\x9B"), "a\\x1b]0;x\\x07\\x0a\\x9b");
  EXPECT_EQ(printable("\x9B"), "›") << "Windows-1252, not a control character";
}

// ---- UTF-8 ----

TEST(Utf8, KnowsWhatIsValid) {
  for (const char* good : {"", "a", "ü", "測", "\xF0\x9F\x98\x80", "\xED\x9F\xBF", "\xF4\x8F\xBF\xBF"})
    EXPECT_TRUE(isUtf8(good)) << good;
  for (const char* bad :
       {"\x80", "\xC3", "\xC0\xAF", "\xC1\xBF", "\xE0\x9F\xBF", "\xED\xA0\x80", "\xF0\x8F\xBF\xBF",
        "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xE6\xB8", "a\xFF", "\xC3\x28"})
    EXPECT_FALSE(isUtf8(bad)) << bad;
}

TEST(Utf8, CountsCharacters) {
  EXPECT_EQ(characters("aü測"), 3U);
}

// ---- Tables ----

TEST(Csv, QuotesOnlyWhereItMust) {
  EXPECT_EQ(csvRow({Value::ofText("a"), Value{}, Value::ofNumber(-0.5), Value::ofText("x,\"y\"\n")}),
            "a,,-0.5,\"x,\"\"y\"\"\n\"\n");
}

// ---- Moments ----

TEST(IsoTime, IsWrittenToTheMicrosecond) {
  EXPECT_EQ(isoTime(38000.58249568597), "2004-01-14T13:58:47.627268");
  EXPECT_EQ(isoTime(0), "1899-12-30T00:00:00.000000");
  EXPECT_EQ(isoTime(-0.25), "1899-12-29T18:00:00.000000");
  EXPECT_EQ(isoTime(38000.5), "2004-01-14T12:00:00.000000");
  EXPECT_EQ(isoTime(36584), "2000-02-28T00:00:00.000000");
  EXPECT_EQ(isoTime(36585), "2000-02-29T00:00:00.000000");
}

TEST(IsoTime, RoundsUpIntoTheNextDay) {
  EXPECT_EQ(isoTime(std::nextafter(38001.0, 0)), "2004-01-14T23:59:59.999999");
  EXPECT_EQ(isoTime(std::nextafter(1.0, 0)), "1899-12-31T00:00:00.000000");
}

TEST(IsoTime, NothingForWhatIsNoMoment) {
  EXPECT_EQ(isoTime(Leerwert), std::nullopt);
  EXPECT_EQ(isoTime(std::nan("")), std::nullopt);
  EXPECT_EQ(isoTime(1e300), std::nullopt);
  EXPECT_EQ(isoTime(-1e300), std::nullopt);
  EXPECT_EQ(isoTime(2958465.5), "9999-12-31T12:00:00.000000");
  EXPECT_EQ(isoTime(2958466), std::nullopt);
  EXPECT_EQ(isoTime(std::nextafter(2958466.0, 0)), "9999-12-31T23:59:59.999960");
  EXPECT_EQ(isoTime(-657434), "0100-01-01T00:00:00.000000");
  EXPECT_EQ(isoTime(-657434.5), std::nullopt);
}

}  // namespace
}  // namespace korvin::file
