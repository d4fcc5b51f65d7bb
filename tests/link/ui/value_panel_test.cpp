#include "link/ui/value_panel.h"

#include <gtest/gtest.h>

namespace korvin {
namespace {

class ValuePanelTest : public ::testing::Test {
 protected:
  ValuePanelTest() {
    panel.setWidestText(QStringLiteral("-00.000"));
    panel.resize(300, 150);
    panel.show();
  }
  int digits() const { return panel.font().pixelSize(); }

  ValuePanel panel{QStringLiteral("PanelxWertNormal")};
};

TEST_F(ValuePanelTest, DigitsKeepTheirSizeFromValueToValue) {
  panel.setValue(QStringLiteral("1.000"));
  const int size = digits();
  panel.setValue(QStringLiteral("-12.345"));
  EXPECT_EQ(digits(), size);
  EXPECT_LE(QFontMetrics(panel.font()).horizontalAdvance(panel.text()), 300);
}

TEST_F(ValuePanelTest, DigitsUseTheRoomThereIs) {
  panel.setValue(QStringLiteral("-12.345"));
  EXPECT_GT(QFontMetrics(panel.font()).horizontalAdvance(panel.text()), 270);
  const int size = digits();
  panel.resize(600, 200);
  EXPECT_GT(digits(), size * 3 / 2);
  panel.resize(600, 60);
  EXPECT_LE(QFontMetrics(panel.font()).height(), 60);
}

TEST_F(ValuePanelTest, LongerTextGetsSmallerDigitsForAsLongAsItIsShown) {
  panel.setValue(QStringLiteral("1.000"));
  const int size = digits();
  panel.setValue(QStringLiteral("-1234567.8901"));
  EXPECT_LT(digits(), size);
  EXPECT_LE(QFontMetrics(panel.font()).horizontalAdvance(panel.text()), 300);
  panel.setValue(QStringLiteral("1.000"));
  EXPECT_EQ(digits(), size);
}

TEST_F(ValuePanelTest, ColoursAreToldAsBlueGreenRed) {
  panel.setValueColour(FarbeRot);
  EXPECT_EQ(panel.valueColour(), QColor(255, 0, 0));
  panel.setValueColour(FarbeGelb);
  EXPECT_EQ(panel.valueColour(), QColor(255, 255, 0));
}

TEST_F(ValuePanelTest, ColouredGroundHasADarkText) {
  for (const Farbe colour : {FarbeWeiss, FarbeGelb, FarbeRot}) {
    panel.setGround(colour);
    EXPECT_EQ(panel.ground(), qColour(colour));
    EXPECT_LT(panel.valueColour().lightness(), 40);
  }
}

}  // namespace
}  // namespace korvin
