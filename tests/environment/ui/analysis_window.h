#pragma once

#include <QProgressBar>
#include <memory>

#include "environment/ui/form_umgebungs_analyse.h"
#include "frame/posix_file_system.h"
#include "support/window_stand.h"

namespace korvin::test {

/// A measuring station with the real window `FormUmgebungsAnalyse`, on the tests' clock and with a scripted
/// head whose readings scatter.
class AnalysisWindow : public WindowStand {
 protected:
  AnalysisWindow() {
    world.head.delay = 0.09;  // some 295 readings in 31 s
    world.head.behaviour = [this](char command) {
      const int away = 40 * (++answered * 7 % 11 - 5);
      const char kind = command == 'J' ? 'j' : command == 'M' ? 'm' : 'T';
      const char held = std::exchange(world.head.key, 'K');
      return answerFrame(answerBody(kind, held, 250000 + away, 250300 - away / 2, world.head.intensity));
    };
  }
  QMainWindow& window() override { return *form; }

  /// Builds the window and shows it, with 1024 by 768 pixels.
  void show(QSize size = {1024, 768}) {
    form = std::make_unique<FormUmgebungsAnalyse>(
        UmgebungsUmgebung{surroundings(), world.head, formpos, task(), services()});
    form->resize(size);
    form->show();
    form->zeigen();
    QApplication::setActiveWindow(form.get());
    run(0.2);
  }
  FensterDienste services() {
    return {fileDialog, fileSystem, [this] { ++helpOpened; }};
  }
  void start() {
    click("XYMPNN");
    run(0.4);
    ASSERT_TRUE(pressed("XYMPNN"));
  }
  void finish() {
    start();
    run(31.5);
    ASSERT_TRUE(frame().isVisible());
  }
  void takePoint() {
    headKey('M');
    run(0.4);
  }
  QProgressBar& progress() { return *form->findChild<QProgressBar*>(QStringLiteral("AdaptProgress")); }
  QWidget& frame() { return *form->findChild<FrmAdaptSet*>(); }
  PositionsInfo& info() { return formpos.Info(); }
  UmgebungsErfassung& task() {
    if (!task_) {
      task_ = std::make_unique<UmgebungsErfassung>(
          ErfassungUmgebung{world.clock, world.messages, dictionary(), world.profil, world.meldung,
                            world.system, formpos},
          result);
    }
    return *task_;
  }

  PosixFileSystem fileSystem;
  TestFileDialog fileDialog;
  FORMPOS formpos;
  AdaptSet result{world.profil};
  std::unique_ptr<UmgebungsErfassung> task_;
  std::unique_ptr<FormUmgebungsAnalyse> form;
  int answered = 0;
  int helpOpened = 0;
};

}  // namespace korvin::test
