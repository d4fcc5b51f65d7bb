#include "straightness/linien_texte.h"

#include <gtest/gtest.h>

namespace korvin {
namespace {

LinienGeometrie line() {
  LinienGeometrie made;
  made.AnzMPs = 6;
  made.AktMP = 3;
  made.Distanz = 2500;
  made.Z.at(3) = 1000.06;
  return made;
}

TEST(LinienTexte, TellThePointAndItsPlaceInMm) {
  const LinienTexte texts = linienTexte(line(), 0);
  EXPECT_EQ(texts.MessPkt, "3 / 6");
  EXPECT_EQ(texts.XName, "X3");
  EXPECT_EQ(texts.YName, "Y3");
  EXPECT_EQ(texts.txtDistanz, "1000.1");
  EXPECT_EQ(texts.lblDistanzMax, "2500.0 mm");
}

TEST(LinienTexte, TellThePlaceInInch) {
  const LinienTexte texts = linienTexte(line(), 1);
  EXPECT_EQ(texts.txtDistanz, "39.4");
  EXPECT_EQ(texts.lblDistanzMax, "98.4 in");
}

/// A file may bring any cursor along.
TEST(LinienTexte, PointOutsideTheRecordHasNoPlace) {
  LinienGeometrie odd = line();
  for (const int point : {-1, 202, 32767}) {
    odd.AktMP = static_cast<std::int16_t>(point);
    EXPECT_EQ(linienTexte(odd, 0).txtDistanz, "") << point;
  }
  odd.AktMP = 201;
  EXPECT_EQ(linienTexte(odd, 0).txtDistanz, "0.0");
}

TEST(ZEingegeben, IsMmInEveryUnit) {
  EXPECT_EQ(zEingegeben("1000,5", 0), 1000.5);
  EXPECT_EQ(zEingegeben(" 10 ", 1), 254);
  EXPECT_EQ(zEingegeben("-3", 0), -3);
}

TEST(ZEingegeben, NumberFurtherBackOrBeyondAllMeasureIsNoPlace) {
  EXPECT_FALSE(zEingegeben("abc12", 0));
  EXPECT_FALSE(zEingegeben("z 500", 1));
  EXPECT_FALSE(zEingegeben("1e999", 0));
  EXPECT_FALSE(zEingegeben("1e999", 1));
  EXPECT_EQ(zEingegeben("500 mm", 0), 500);
  EXPECT_EQ(zEingegeben(",5", 0), 0.5);
}

TEST(ZEingegeben, TextWithoutADigitIsNoPlace) {
  EXPECT_FALSE(zEingegeben("", 0));
  EXPECT_FALSE(zEingegeben(" - ", 0));
  EXPECT_FALSE(zEingegeben("abc", 1));
}

}  // namespace
}  // namespace korvin
