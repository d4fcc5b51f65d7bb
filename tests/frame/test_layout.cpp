#include "frame/layout.h"

#include <gtest/gtest.h>

#include <limits>

#include "support/test_files.h"

namespace korvin {
namespace {

struct Inner {
  double Wert = 0;
  Flagge An;
};

template <class A>
constexpr void felder(A& archive, Inner& r) {
  archive("Wert", r.Wert);
  archive("An", r.An);
}

struct Outer {
  std::int16_t Nr = 0;
  Inner X;
  Inner Rest;
  FesterText<3> Text;
  Reserve<2> Reserve1;
  std::array<double, 2> Z{};
  Zaehlfeld<1> Punkte;
};

template <class A>
constexpr void felder(A& archive, Outer& r) {
  archive("Nr", r.Nr);
  archive("X", r.X);
  archive("", r.Rest);
  archive("Text", r.Text);
  archive("Reserve1", r.Reserve1);
  archive("Z", r.Z);
  archive("Punkte", r.Punkte);
}

static_assert(recordSize<Inner>() == 10);
static_assert(recordSize<Outer>() == 2 + 10 + 10 + 3 + 2 + 16 + 16);

Outer sample() {
  Outer r;
  r.Nr = -2;
  r.X.Wert = 1;
  r.X.An = true;
  r.Rest.An = Flagge::ofRaw(0x0102);
  r.Text = "\xDC";
  r.Reserve1.bytes = {0xAB, 0x01};
  r.Z = {0.1, -std::numeric_limits<double>::infinity()};
  r.Punkte.setAnzahl(1);
  return r;
}

const std::string sampleBytes(
    "\xFE\xFF"
    "\x00\x00\x00\x00\x00\x00\xF0\x3F\xFF\xFF"
    "\x00\x00\x00\x00\x00\x00\x00\x00\x02\x01"
    "\xDC  "
    "\xAB\x01"
    "\x9A\x99\x99\x99\x99\x99\xB9\x3F\x00\x00\x00\x00\x00\x00\xF0\xFF"
    "\x00\x00\x00\x00\x00\x00\xF0\x3F\x00\x00\x00\x00\x00\x38\x8F\x40",
    59);

TEST(Layout, WritesFieldsPackedAndLittleEndian) {
  EXPECT_EQ(test::textOf(toBytes(sample())), sampleBytes);
}

TEST(Layout, ReadsEveryFieldBack) {
  const auto r = fromBytes<Outer>(test::bytesOf(sampleBytes));
  EXPECT_EQ(r.Nr, -2);
  EXPECT_EQ(r.X.Wert, 1);
  EXPECT_EQ(r.Rest.An.raw(), 0x0102);
  EXPECT_EQ(r.Text.trimmed(), "\xDC");
  EXPECT_EQ(r.Reserve1.bytes[0], 0xAB);
  EXPECT_EQ(r.Z[0], 0.1);
  EXPECT_EQ(r.Punkte.anzahl(), 1U);
}

TEST(Layout, CarriesAnyBytesUnchanged) {
  std::string bytes(recordSize<Outer>(), '\0');
  for (std::size_t i = 0; i < bytes.size(); ++i) bytes[i] = static_cast<char>(i * 37 + 1);
  EXPECT_EQ(test::textOf(toBytes(fromBytes<Outer>(test::bytesOf(bytes)))), bytes);
}

TEST(Layout, AShortRecordIsCompletedAsANewOne) {
  const auto r = fromBytes<Outer>(test::bytesOf(sampleBytes.substr(0, 23)));
  EXPECT_EQ(r.X.Wert, 1);
  EXPECT_EQ(r.Text.full(), "\xDC  ");
  EXPECT_EQ(r.Z[0], 0);
  EXPECT_EQ(r.Punkte.anzahl(), 0U);
  EXPECT_EQ(fromBytes<Outer>({}).Text.full(), "   ");
}

TEST(Layout, LeavesWhatStandsBehindTheRecordAside) {
  EXPECT_EQ(toBytes(fromBytes<Outer>(test::bytesOf(sampleBytes + "more"))), toBytes(sample()));
}

TEST(Layout, DumpTellsNamesPlacesAndValues) {
  const auto lines = dump(sample());
  const auto expectLine = [&lines](std::size_t i, std::string_view name, std::size_t offset,
                                   std::size_t width, FieldKind kind, std::string_view text) {
    EXPECT_EQ(lines.at(i).name, name);
    EXPECT_EQ(lines.at(i).offset, offset) << name;
    EXPECT_EQ(lines.at(i).width, width) << name;
    EXPECT_EQ(lines.at(i).kind, kind) << name;
    EXPECT_EQ(lines.at(i).text, text) << name;
  };
  ASSERT_EQ(lines.size(), 9U);
  expectLine(0, "Nr", 0, 2, FieldKind::number, "-2");
  expectLine(1, "X.Wert", 2, 8, FieldKind::number, "1");
  expectLine(2, "X.An", 10, 2, FieldKind::number, "-1");
  expectLine(3, "Wert", 12, 8, FieldKind::number, "0");
  expectLine(4, "An", 20, 2, FieldKind::number, "258");
  expectLine(5, "Text", 22, 3, FieldKind::text, "Ü");
  expectLine(6, "Reserve1", 25, 2, FieldKind::reserved, "ab01");
  expectLine(7, "Z", 27, 16, FieldKind::numbers, "[0.1, -inf]");
  expectLine(8, "Punkte", 43, 16, FieldKind::numbers, "[1, 999]");
}

TEST(Layout, IsReadAndWrittenAtCompileTimeToo) {
  constexpr auto bytes = toBytes(Inner{.Wert = 2, .An = true});
  static_assert(bytes[7] == std::byte{0x40} && bytes[8] == std::byte{0xFF});
  static_assert(fromBytes<Inner>(bytes).Wert == 2);
}

}  // namespace
}  // namespace korvin
