#pragma once

#include <QTimer>
#include <functional>
#include <memory>

#include "frame/posix_file_system.h"
#include "position/ui/form_position.h"
#include "support/window_stand.h"

namespace korvin::test {

/// A measuring station with the real window `FormPosition`, on the tests' clock and with a scripted head.
class PositionStand : public WindowStand {
 protected:
  QMainWindow& window() override { return *form; }

  /// Builds the window and shows it with 1024 by 768 pixels.
  void show() {
    form = std::make_unique<FormPosition>(
        PositionUmgebung{surroundings(), world.head, formpos, erfassung(), dateien, services()});
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
    return [this](QWidget& over, const auto& outsideOfTicks) {
      if (settings) settings(over, outsideOfTicks);
    };
  }
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

  PosixFileSystem fileSystem;
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
