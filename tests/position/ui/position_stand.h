#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <functional>
#include <memory>
#include <string>

#include "frame/posix_file_system.h"
#include "frame/ui/qt_text.h"
#include "position/ui/form_position.h"
#include "support/recording_view.h"
#include "support/test_files.h"

namespace korvin::test {

/// A measuring station with the real window `FormPosition`, on the tests' clock and with a scripted head.
class PositionStand : public ::testing::Test {
 protected:
  PositionStand() {
    world.system.DbPfad = "/nowhere/korvin.mdb";
    world.profil.ProfilSchreiben("", "KorInfo", "PfadMessFile", folder.path(""));
  }

  virtual Dictionary& dictionary() { return world.dictionary; }

  /// Builds the window and shows it with 1024 by 768 pixels.
  void show() {
    ZyklusUmgebung zyklus{world.clock,  world.clock,   world.clock,  world.messages, dictionary(),
                          world.profil, world.meldung, world.korCom, world.answer,   world.system};
    form = std::make_unique<FormPosition>(
        PositionUmgebung{zyklus, world.head, formpos, erfassung(), dateien, services()});
    form->resize(1024, 768);
    form->show();
    form->zeigen();
    QApplication::setActiveWindow(form.get());
    settle();
  }
  FensterDienste services() {
    return {fileDialog, fileSystem, [this] { ++helpOpened; }, settingsHook(),
            [this](QWidget* over) { printed(over); }};
  }
  EinrichtenDialog settingsHook() {
    return [this](QWidget& window, const auto& outsideOfTicks) {
      if (settings) settings(window, outsideOfTicks);
    };
  }
  /// Handles what waits in Qt's queue; no time passes.
  static void settle() { QApplication::processEvents(); }
  void run(double seconds) {
    world.clock.advance(seconds);
    settle();
  }

  KeyToolBar& bar() { return *form->findChild<KeyToolBar*>(QStringLiteral("tbrPosition")); }
  QToolButton* key(const char* name) { return bar().button(QString::fromUtf8(name)); }
  void click(const char* name) {
    ASSERT_NE(key(name), nullptr) << name;
    QTest::mouseClick(key(name), Qt::LeftButton);
  }
  bool pressed(const char* name) { return bar().isPressed(QString::fromUtf8(name)); }
  void type(Qt::Key k, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(form.get(), k, modifiers); }
  QAction* entry(const char* name) { return form->findChild<QAction*>(QString::fromUtf8(name)); }
  QLabel* label(const char* name) { return form->findChild<QLabel*>(QString::fromUtf8(name)); }
  std::string text(const char* name) { return utf8Text(label(name)->text()); }
  QColor colour(const char* name) { return label(name)->palette().color(QPalette::WindowText); }
  /// True if the control itself is not hidden, wherever it stands.
  bool shown(const char* name) {
    return form->findChild<QWidget*>(QString::fromUtf8(name))->isVisibleTo(form.get());
  }
  void headKey(char letter) { world.head.key = letter; }
  void takePoints(int count) {
    for (int i = 0; i < count; ++i) {
      world.head.x = 250000 + 1000 * (i + 1);
      click("XYMP1");
      run(0.2);
    }
    ASSERT_EQ(info().AnzahlMP, count);
  }

  PositionsInfo& info() { return formpos.Info(); }
  PositionsErfassung& erfassung() {
    if (!erfassung_) {
      erfassung_ = std::make_unique<PositionsErfassung>(ErfassungUmgebung{
          world.clock, world.messages, dictionary(), world.profil, world.meldung, world.system, formpos});
    }
    return *erfassung_;
  }

  TestFolder folder;
  PosixFileSystem fileSystem;
  CycleWorld world;
  FORMPOS formpos;
  PositionsDateien dateien{
      {fileSystem, world.messages, world.meldung, world.dictionary, world.profil, formpos}};
  TestFileDialog fileDialog;
  std::unique_ptr<PositionsErfassung> erfassung_;
  std::unique_ptr<FormPosition> form;
  int helpOpened = 0;
  EinrichtenDialog settings;  ///< stands in for the settings dialog
  std::function<void(QWidget* over)> printed = [](QWidget*) {};
};

}  // namespace korvin::test
