#include "frame/messart.h"

#include <gtest/gtest.h>

#include "support/test_ports.h"

namespace korvin {
namespace {

struct Zeile {
  std::int16_t messart;
  const char* endung;
  const char* suffix;
  const char* name;
  const char* titel;
};

TEST(Messart, EachKindHasItsExtensionSuffixAndTexts) {
  test::TestDictionary dictionary;
  for (const Zeile& row : {Zeile{0, "*.G", "_G", "D501", "D5500"}, Zeile{1, "*.O", "_O", "D505", "D5502"},
                           Zeile{2, "*.P", "_P", "D502", "D5501"}, Zeile{3, "*.R", "_R", "D503", "D5503"}}) {
    EXPECT_EQ(MessartEndung(row.messart), row.endung);
    EXPECT_EQ(MessartSuffix(row.messart), row.suffix);
    EXPECT_EQ(MessartName(dictionary, row.messart), row.name);
    EXPECT_EQ(MessartTitel(dictionary, row.messart), row.titel);
  }
}

TEST(Messart, AnyOtherNumberIsUndefined) {
  test::TestDictionary dictionary;
  for (const std::int16_t messart : std::initializer_list<std::int16_t>{-32768, -1, 4, 32767}) {
    EXPECT_EQ(MessartEndung(messart), "*.???");
    EXPECT_EQ(MessartSuffix(messart), "");
    EXPECT_EQ(MessartName(dictionary, messart), "Undef.");
    EXPECT_EQ(MessartTitel(dictionary, messart), "Undef.");
  }
}

}  // namespace
}  // namespace korvin
