#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QToolButton>
#include <functional>
#include <memory>
#include <string>

#include "frame/posix_file_system.h"
#include "frame/ui/icons.h"
#include "frame/ui/qt_text.h"
#include "straightness/ui/form_geradheit.h"
#include "support/recording_view.h"
#include "support/test_files.h"

namespace korvin::test {

/// A measuring station with the real window `FormGeradheit`, on the tests' clock and with a scripted head.
class GeradStand : public ::testing::Test {
 protected:
  GeradStand() {
    world.system.DbPfad = "/nowhere/korvin.mdb";
    world.profil.ProfilSchreiben("", "KorInfo", "PfadMessFile", folder.path(""));
  }

  virtual Dictionary& dictionary() { return world.dictionary; }

  ZyklusUmgebung cycle() {
    return {world.clock,  world.clock,   world.clock,  world.messages, dictionary(),
            world.profil, world.meldung, world.korCom, world.answer,   world.system};
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

  /// Builds the window and shows it with 1024 by 768 pixels.
  void show() {
    form = std::make_unique<FormGeradheit>(
        GeradUmgebung{cycle(), world.head, formgera, erfassung(), dateien, services()});
    form->resize(1024, 768);
    form->show();
    form->zeigen();
    QApplication::setActiveWindow(form.get());
    settle();
  }
  /// Handles what waits in Qt's queue; no time passes.
  static void settle() { QApplication::processEvents(); }
  void run(double seconds) {
    world.clock.advance(seconds);
    settle();
  }
  /// Long enough for a click to be seen, a reading to be shown and the step after it.
  void measured() { run(3); }

  KeyToolBar& bar(const char* name = "tbrGeradheit") {
    return *form->findChild<KeyToolBar*>(QString::fromUtf8(name));
  }
  QToolButton* key(const char* name) { return bar().button(QString::fromUtf8(name)); }
  void click(const char* name) {
    ASSERT_NE(key(name), nullptr) << name;
    QTest::mouseClick(key(name), Qt::LeftButton);
  }
  bool pressed(const char* name) { return bar().isPressed(QString::fromUtf8(name)); }
  /// The key has this picture.
  bool pictured(const char* name, const char* picture) {
    const auto drawn = [](const QIcon& each) { return each.pixmap(24, 24, QIcon::Normal).toImage(); };
    return drawn(key(name)->icon()) == drawn(icon(QString::fromUtf8(picture)));
  }
  bool enabled(const char* name) { return bar().isKeyEnabled(QString::fromUtf8(name)); }
  bool keyShown(const char* name) {
    settle();  // a tool bar lays itself out anew when the queue runs
    return key(name)->isVisibleTo(form.get());
  }
  void type(Qt::Key k, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(form.get(), k, modifiers); }
  QAction* entry(const char* name) { return form->findChild<QAction*>(QString::fromUtf8(name)); }
  QWidget* widget(const char* name) { return form->findChild<QWidget*>(QString::fromUtf8(name)); }
  QLabel* label(const char* name) { return form->findChild<QLabel*>(QString::fromUtf8(name)); }
  std::string text(const char* name) { return utf8Text(label(name)->text()); }
  QColor ground(const char* name) { return label(name)->palette().color(QPalette::Window); }
  /// True if the control itself is not hidden, wherever it stands.
  bool shown(const char* name) { return widget(name)->isVisibleTo(form.get()); }
  PictureAchsenDiagramm& diagram(const char* axis = "X") {
    return *form->findChild<PictureAchsenDiagramm*>(
        QStringLiteral("Picture%1Diagramm").arg(QLatin1String(axis)));
  }
  QLineEdit& z() { return *form->findChild<QLineEdit*>(QStringLiteral("txtDistanz")); }
  PointList& list() { return *form->findChild<PointList*>(); }
  std::string cell(int row, int column) {
    return utf8Text(list().model()->index(row, column).data().toString());
  }

  /// The beam stands at `x`, `y` mm, as the head counts them.
  void beam(double x, double y) {
    world.head.x = 250000 + static_cast<int>(x * 10000);
    world.head.y = 250000 + static_cast<int>(y * 10000);
  }
  /// Measures the points from the current one on, each with a single measurement.
  void takePoints(std::initializer_list<double> values) {
    for (const double value : values) {
      beam(value, -value);
      click("XYMP1");
      measured();
    }
  }

  GeradReihe& series() { return formgera.reihe(); }
  GeradInfo& info() { return series().Info; }
  LinienGeometrie& line() { return series().Linie; }
  GeradErfassung& erfassung() {
    if (!erfassung_) {
      erfassung_ = std::make_unique<GeradErfassung>(
          GeradErfassungUmgebung{world.messages, dictionary(), world.profil, world.system, formgera});
    }
    return *erfassung_;
  }

  TestFolder folder;
  PosixFileSystem fileSystem;
  CycleWorld world;
  FORMGERA formgera;
  GeradDateien dateien{
      {fileSystem, world.messages, world.meldung, world.dictionary, world.profil, world.system, formgera}};
  TestFileDialog fileDialog;
  std::unique_ptr<GeradErfassung> erfassung_;
  std::unique_ptr<FormGeradheit> form;
  int helpOpened = 0;
  std::function<void(QWidget* over)> printed = [](QWidget*) {};
  EinrichtenDialog settings;  ///< stands in for the settings dialog
};

}  // namespace korvin::test
