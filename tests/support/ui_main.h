#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QStandardPaths>

#include "frame/ui/theme.h"

namespace korvin::test {

/// The main of a program of window tests: an offscreen screen of 1024 by 768, unless the environment names
/// another platform, and folders of its own for settings.
inline int runWindowTests(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  if (qEnvironmentVariable("QT_QPA_PLATFORM", QStringLiteral("offscreen")) == QLatin1String("offscreen")) {
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" KORVIN_TEST_DATA "/screen-1024x768.json");
  }
  QStandardPaths::setTestModeEnabled(true);
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  applyTheme(Appearance::light, screenScale(1024 / 1280.0, 768 / 1024.0), 0);
  return RUN_ALL_TESTS();
}

}  // namespace korvin::test
