#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <memory>
#include <string>

#include "dialogs/ui/settings_dialog.h"
#include "frame/ui/qt_text.h"
#include "support/test_clock.h"
#include "support/test_ports.h"

namespace korvin::test {

/// A real settings dialog, with settings in memory, and the user's hands.
class DialogsStand : public ::testing::Test {
 protected:
  virtual Dictionary& dictionary() { return testDictionary; }

  SettingsDialogUmgebung surroundings() {
    return {{dictionary(), messages, meldung, profil, system},
            [this] { ++helpOpened; },
            [this](const std::function<void()>& command) {
              ++commands;
              command();
            }};
  }
  void present(std::unique_ptr<SettingsDialog> made) {
    dialog = std::move(made);
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
  std::string entries(const char* name) {
    std::string all;
    for (int i = 0; i < list(name)->count(); ++i) all += utf8Text(list(name)->itemText(i)) + "|";
    return all;
  }
  QAbstractButton* check(const char* name) { return find<QAbstractButton>(name); }
  QLabel* label(const char* name) { return find<QLabel>(name); }
  QPushButton* command(int index) {
    return dialog->findChild<QPushButton*>(QStringLiteral("Commands(%1)").arg(index));
  }
  QTabWidget& tabs() { return *dialog->findChild<QTabWidget*>(); }

  /// A click on the tab with this page.
  void openTab(const char* page) {
    const int index = tabs().indexOf(find<QWidget>(page));
    ASSERT_GE(index, 0) << page;
    QTest::mouseClick(tabs().tabBar(), Qt::LeftButton, {}, tabs().tabBar()->tabRect(index).center());
    settle();
  }
  void click(QWidget* control) {
    const bool mark =
        qobject_cast<QAbstractButton*>(control) != nullptr && qobject_cast<QPushButton*>(control) == nullptr;
    const QPoint place =
        mark ? QPoint(control->height() / 2, control->height() / 2) : control->rect().center();
    QTest::mouseClick(control, Qt::LeftButton, {}, place);
    settle();
  }
  void press(int index) { click(command(index)); }
  void cancel() { press(1); }

  /// Clicks into the box and types over what stands there.
  void enter(int index, const char* what) {
    click(box(index));
    QTest::keyClick(box(index), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(box(index), Qt::Key_Delete);
    QTest::keyClicks(box(index), QString::fromUtf8(what));
    settle();
  }
  /// Leaves a box by the tabulator.
  void leave(int index) {
    QTest::keyClick(box(index), Qt::Key_Tab);
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
  bool closed() const { return !dialog->isVisible(); }

  MemorySettingsTree tree;
  Profil profil{tree};
  TestDictionary testDictionary;
  TestMessages messages;
  TestClock clock;
  Meldung meldung;
  Systemwerte system;
  std::unique_ptr<SettingsDialog> dialog;
  int helpOpened = 0;
  int commands = 0;
};

}  // namespace korvin::test
