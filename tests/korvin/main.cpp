#include <gtest/gtest.h>

#include <QStandardPaths>

#include "korvin/application.h"

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  ::testing::GTEST_FLAG(death_test_style) = "threadsafe";
  qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" KORVIN_TEST_DATA "/screen-1024x768.json");
  QStandardPaths::setTestModeEnabled(true);
  korvin::Application application(argc, argv);
  korvin::Application::setQuitOnLastWindowClosed(false);
  return RUN_ALL_TESTS();
}
