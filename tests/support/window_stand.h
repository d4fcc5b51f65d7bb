#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QTest>
#include <QToolButton>
#include <string>

#include "frame/ui/key_tool_bar.h"
#include "frame/ui/qt_text.h"
#include "support/recording_view.h"
#include "support/test_files.h"

namespace korvin::test {

/// What a user does with a measuring window and sees of it, on the tests' clock and with a scripted head.
class WindowStand : public ::testing::Test {
 protected:
  /// The window under test, once it is built.
  virtual QMainWindow& window() = 0;
  /// Name of its toolbar.
  virtual QString barName() const { return QStringLiteral("tbrPosition"); }
  virtual Dictionary& dictionary() { return world.dictionary; }

  WindowStand() {
    world.system.DbPfad = "/nowhere/korvin.mdb";
    world.profil.ProfilSchreiben("", "KorInfo", "PfadMessFile", folder.path(""));
  }

  ZyklusUmgebung surroundings() {
    return {world.clock,  world.clock,   world.clock,  world.messages, dictionary(),
            world.profil, world.meldung, world.korCom, world.answer,   world.system};
  }
  /// Handles what waits in Qt's queue; no time passes.
  static void settle() { QApplication::processEvents(); }
  void run(double seconds) {
    world.clock.advance(seconds);
    settle();
  }

  KeyToolBar& bar() { return *window().findChild<KeyToolBar*>(barName()); }
  QToolButton* key(const char* name) { return bar().button(QString::fromUtf8(name)); }
  void click(const char* name) {
    ASSERT_NE(key(name), nullptr) << name;
    QTest::mouseClick(key(name), Qt::LeftButton);
  }
  bool pressed(const char* name) { return bar().isPressed(QString::fromUtf8(name)); }
  bool enabled(const char* name) { return bar().isKeyEnabled(QString::fromUtf8(name)); }
  void type(Qt::Key k, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(&window(), k, modifiers); }
  QAction* entry(const char* name) { return window().findChild<QAction*>(QString::fromUtf8(name)); }
  QLabel* label(const char* name) { return window().findChild<QLabel*>(QString::fromUtf8(name)); }
  std::string text(const char* name) { return utf8Text(label(name)->text()); }
  QColor colour(const char* name) { return label(name)->palette().color(QPalette::WindowText); }
  /// True if the control itself is not hidden, wherever it stands.
  bool shown(const char* name) {
    return window().findChild<QWidget*>(QString::fromUtf8(name))->isVisibleTo(&window());
  }
  void headKey(char letter) { world.head.key = letter; }

  TestFolder folder;
  CycleWorld world;
};

}  // namespace korvin::test
