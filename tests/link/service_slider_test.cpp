#include "link/service_slider.h"

#include <gtest/gtest.h>

namespace korvin {
namespace {

TEST(ServiceSlider, StartPositionGivesTheStartInterval) {
  EXPECT_EQ(sliderIntervall(SliderStart, 31), 31);
  EXPECT_EQ(sliderIntervall(SliderStart, 15), 15);
  EXPECT_EQ(sliderIntervall(SliderStart, 500), 500);
}

TEST(ServiceSlider, EndsOfTheRange) {
  EXPECT_EQ(sliderIntervall(SliderKleinster, 31), 3);  // 3.1
  EXPECT_EQ(sliderIntervall(SliderGroesster, 31), 155);
  EXPECT_EQ(sliderIntervall(SliderKleinster, 500), 50);
  EXPECT_EQ(sliderIntervall(SliderGroesster, 500), 2500);
}

TEST(ServiceSlider, HalvesAreRoundedAwayFromZero) {
  EXPECT_EQ(sliderIntervall(1, 15), 2);    // 1.5
  EXPECT_EQ(sliderIntervall(11, 15), 17);  // 16.5
  EXPECT_EQ(sliderIntervall(5, 31), 16);   // 15.5
  EXPECT_EQ(sliderIntervall(3, 31), 9);    // 9.3
}

}  // namespace
}  // namespace korvin
