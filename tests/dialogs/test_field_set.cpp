// The lines of a settings dialog between the store and its controls.

#include <gtest/gtest.h>

#include <array>

#include "dialogs/field_set.h"
#include "ordered_tree.h"

namespace korvin {
namespace {

constexpr Einstellung Name{"KorInfo", "Name", "?"};
constexpr Einstellung FirstLength{"First", "Distanz", "2500.0"};
constexpr Einstellung SecondLength{"Second", "Distanz", ""};
constexpr Einstellung Flag{"KorInfo", "Flag", "-1"};
constexpr Einstellung Count{"KorInfo", "Count", "3"};
constexpr std::array<EinstellFeld, 5> table = {{{"name", Name},
                                                {"first", FirstLength, FeldForm::laenge},
                                                {"second", SecondLength, FeldForm::laenge},
                                                {"flag", Flag, FeldForm::schalter},
                                                {"count", Count, FeldForm::index, 5}}};

class FieldSet : public testing::Test {
 protected:
  test::OrderedTree tree;
  Profil profil{tree};
  FeldSatz metric{profil, table};
};

TEST_F(FieldSet, ReadsEachLineUnderItsDefault) {
  EXPECT_EQ(metric.lesen(), (FeldWerte{"?", "2500.0", "0.0", true, 3}));
}

TEST_F(FieldSet, LinesAreFoundBySectionAndKey) {
  EXPECT_EQ(zeileVon(table, FirstLength), 1U);
  EXPECT_EQ(zeileVon(table, SecondLength), 2U);
  EXPECT_THROW(zeileVon(table, Einstellung{"Third", "Distanz", ""}), std::out_of_range);
}

TEST_F(FieldSet, TextsReadAsInTheStore) {
  metric.lesen();
  const FeldTexte texts = metric.texte({"Rail", "12,5", "9e999", false, 4});
  EXPECT_EQ(texts.text(Name), "Rail");
  EXPECT_EQ(texts.zahl(FirstLength), 12.5);
  EXPECT_EQ(texts.zahl(SecondLength), 0) << "what is no finite number";
  EXPECT_FALSE(texts.flag(Flag));
  EXPECT_EQ(texts.ganz(Count), 4);
}

TEST_F(FieldSet, WritesAPartOfTheLinesInTheirOrder) {
  metric.lesen();
  metric.texte({"Rail", "12,5", "1", false, 4}).schreiben(profil, 1, 4);
  EXPECT_EQ(tree.written,
            (std::vector<std::string>{"First/Distanz=12.5", "Second/Distanz=1", "KorInfo/Flag=0"}));
}

TEST_F(FieldSet, AnUntouchedLengthKeepsItsText) {
  profil.schreiben(FirstLength, "1234,5678");
  const FeldWerte shown = metric.lesen();
  EXPECT_EQ(metric.texte(shown).text(FirstLength), "1234,5678");
  EXPECT_EQ(metric.texte(shown).text(SecondLength), "");
  FeldWerte touched = shown;
  touched.at(1) = "1234.5";
  EXPECT_EQ(metric.texte(touched).text(FirstLength), "1234.5");
}

TEST_F(FieldSet, WhatWasTakenOverIsTheNewMeasure) {
  profil.schreiben(FirstLength, "1234.5678");
  FeldSatz inch{profil, table, 1};
  FeldWerte values = inch.lesen();
  EXPECT_EQ(values.at(1), FeldWert("48.6"));
  values.at(2) = "10.0";
  const FeldTexte taken = inch.texte(values);
  inch.merken(values, taken);
  values.at(0) = "Rail";
  EXPECT_EQ(inch.texte(values).text(FirstLength), "1234.5678");
  EXPECT_EQ(inch.texte(values).text(SecondLength), "254");
  values.at(1) = "48.7";
  EXPECT_EQ(inch.texte(values).text(FirstLength), "1236.98");
}

}  // namespace
}  // namespace korvin
