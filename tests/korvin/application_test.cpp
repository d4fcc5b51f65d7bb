#include "korvin/application.h"

#include <gtest/gtest.h>

#include <QMessageBox>
#include <QTimer>
#include <stdexcept>
#include <vector>

#include "frame/ui/qt_program_end.h"

namespace korvin {
namespace {

class ApplicationTest : public ::testing::Test {
 protected:
  ApplicationTest() {
    application.onUncaught = [this](const std::string& words) { told.push_back(words); };
  }
  ~ApplicationTest() override { application.onUncaught = nullptr; }

  static void throwInTheQueue(const char* words) {
    QTimer::singleShot(0, qApp, [words] { throw std::runtime_error(words); });
  }

  Application& application = *static_cast<Application*>(qApp);
  std::vector<std::string> told;
};

TEST_F(ApplicationTest, WhatNoHandlerCaughtIsToldAndTheProgramGoesOn) {
  throwInTheQueue("first");
  Application::processEvents();
  throwInTheQueue("second");
  Application::processEvents();
  EXPECT_EQ(told, (std::vector<std::string>{"first", "second"}));
}

TEST_F(ApplicationTest, AFailureWhileOneIsToldShowsNoSecondBox) {
  application.onUncaught = [this](const std::string& words) {
    told.push_back(words);
    throwInTheQueue("inner");
    Application::processEvents();
  };
  throwInTheQueue("outer");
  Application::processEvents();
  EXPECT_EQ(told, std::vector<std::string>{"outer"});
}

TEST(PreparePlatformTest, WithoutADisplayTheProgramSaysSo) {
  const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
  const QByteArray display = qgetenv("DISPLAY");
  const QByteArray wayland = qgetenv("WAYLAND_DISPLAY");
  for (const char* name : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"}) qunsetenv(name);
  EXPECT_FALSE(preparePlatform());
  qputenv("DISPLAY", ":0");
  EXPECT_TRUE(preparePlatform());
  qputenv("DISPLAY", display);
  qputenv("WAYLAND_DISPLAY", wayland);
  qputenv("QT_QPA_PLATFORM", platform);
  EXPECT_TRUE(preparePlatform());
}

void endWithAClick() {
  QTimer::singleShot(0, qApp, [] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr || box->text() != QLatin1String("no such file 14")) std::_Exit(99);
    box->accept();
  });
  QtProgramEnd().end("no such file", 14);
}

TEST(QtProgramEndDeathTest, ShowsTextAndNumberAndEndsOnTheSpot) {
  EXPECT_EXIT(endWithAClick(), ::testing::ExitedWithCode(1), "no such file 14");
}

}  // namespace
}  // namespace korvin
