#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTest>
#include <memory>
#include <string>

#include "dialogs/ui/form_options_o.h"
#include "frame/ui/qt_text.h"
#include "support/test_clock.h"
#include "support/test_ports.h"

namespace korvin::test {

/// The real dialog `FormOptionsO`, on the tests' clock, with settings in memory. Shown without waiting for
/// its end.
class OptionsOStand : public ::testing::Test {
 protected:
  OptionsOStand() {
    formpos.Info().RestMP = -1;
    formpos.Info().Filter = "2";
    system.FilterVorgabe = '2';
  }

  virtual Dictionary& dictionary() { return testDictionary; }

  void showFromMainWindow() { show(nullptr); }
  void showFromPosition() { show(&open); }
  void show(OffeneMessung* measurement) {
    dialog =
        std::make_unique<FormOptionsO>(FormOptionsOUmgebung{{dictionary(), messages, meldung, profil, system},
                                                            clock,
                                                            clock,
                                                            [this] { ++helpOpened; },
                                                            [this](const std::function<void()>& command) {
                                                              ++commands;
                                                              command();
                                                            }},
                                       measurement);
    dialog->show();
    QApplication::setActiveWindow(dialog.get());
    settle();
  }
  static void settle() { QApplication::processEvents(); }

  template <class Control>
  Control* find(const char* name) {
    return dialog->findChild<Control*>(QString::fromUtf8(name));
  }
  QLineEdit* box(int index) {
    return dialog->findChild<QLineEdit*>(QStringLiteral("TextEinstellung(%1)").arg(index));
  }
  std::string text(int index) { return utf8Text(box(index)->text()); }
  std::string hint(int index) {
    return utf8Text(dialog->findChild<QLabel*>(QStringLiteral("Hinweis(%1)").arg(index))->text());
  }
  QComboBox* list(const char* name) { return find<QComboBox>(name); }
  QCheckBox* check(const char* name) { return find<QCheckBox>(name); }
  QLabel* label(const char* name) { return find<QLabel>(name); }

  /// A click on the tab with this page.
  void openTab(const char* page) {
    auto* tabs = find<QTabWidget>("TabOptO");
    const int index = tabs->indexOf(find<QWidget>(page));
    ASSERT_GE(index, 0) << page;
    QTest::mouseClick(tabs->tabBar(), Qt::LeftButton, {}, tabs->tabBar()->tabRect(index).center());
    settle();
  }
  void click(QWidget* control) {
    const QPoint place = qobject_cast<QCheckBox*>(control) != nullptr
                             ? QPoint(control->height() / 2, control->height() / 2)
                             : control->rect().center();
    QTest::mouseClick(control, Qt::LeftButton, {}, place);
    settle();
  }
  void press(int command) {
    click(dialog->findChild<QPushButton*>(QStringLiteral("Commands(%1)").arg(command)));
  }
  void ok() { press(0); }
  void cancel() { press(1); }

  /// Clicks into the box and types over what stands there.
  void enter(int index, const char* what) {
    click(box(index));
    QTest::keyClick(box(index), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(box(index), Qt::Key_Delete);
    QTest::keyClicks(box(index), QString::fromUtf8(what));
    settle();
  }
  /// Chooses an entry by the keyboard.
  void choose(const char* name, int index) {
    list(name)->setFocus();
    QTest::keyClick(list(name), Qt::Key_Home);
    for (int i = 0; i < index; ++i) QTest::keyClick(list(name), Qt::Key_Down);
    settle();
  }

  void store(const char* section, const char* key, const char* value) {
    profil.ProfilSchreiben("", section, key, value);
  }
  std::string stored(const char* section, const char* key) { return profil.wert(section, key, "none"); }
  PositionsInfo& info() { return formpos.Info(); }
  bool closed() const { return !dialog->isVisible(); }

  MemorySettingsTree tree;
  Profil profil{tree};
  TestDictionary testDictionary;
  TestMessages messages;
  TestClock clock;
  Meldung meldung;
  Systemwerte system;
  FORMPOS formpos;
  PositionsErfassung erfassung{{clock, messages, testDictionary, profil, meldung, system, formpos}};
  OffeneMessung open{formpos, erfassung};
  std::unique_ptr<FormOptionsO> dialog;
  int helpOpened = 0;
  int commands = 0;
};

}  // namespace korvin::test
