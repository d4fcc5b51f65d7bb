#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <memory>
#include <string>
#include <vector>

#include "frame/kor_registry.h"
#include "frame/memory_settings_tree.h"
#include "frame/messart.h"
#include "frame/settings_defaults.h"
#include "frame/sqlite_dictionary.h"
#include "frame/ui/key_tool_bar.h"
#include "frame/ui/mdi_korvin.h"
#include "frame/ui/mouse_pointer.h"
#include "frame/ui/qt_text.h"
#include "frame/ui/start_tile.h"
#include "support/test_ports.h"

namespace korvin::test {

/// A measuring kind that remembers what it was asked for.
class RecordingKind : public MessartEmpfaenger {
 public:
  bool laden(const std::string& name) override {
    loaded.push_back(name);
    return takesFiles;
  }
  void zeigen(std::int16_t DateiStatus) override {
    shown.push_back(DateiStatus);
    hourglassAtShowing = hourglassShown();
  }

  std::vector<std::string> loaded;
  std::vector<int> shown;
  bool takesFiles = true;
  bool hourglassAtShowing = false;
};

/// The main window with the program's own dictionary and guide, settings in memory, and a kind "position"
/// that only remembers.
class MainWindowStand : public ::testing::Test {
 protected:
  MainWindowStand() {
    KorRegistry(tree).RegistryAnlegen("/nowhere");
    store(einstellung::Hauptfenster::Sprache, "0");
    verteilung.anmelden(MessartPosition, position);
  }
  ~MainWindowStand() override { showNormalPointer(); }

  void store(const Einstellung& setting, const std::string& value) { profil.schreiben(setting, value); }
  std::string stored(const Einstellung& setting) { return profil.wert(setting); }

  void create() {
    window = std::make_unique<MDIKorvin>(
        HauptfensterUmgebung{system, meldung, dictionary, profil, messages, fileDialog, anzeige, start,
                             verteilung, translations, hilfe, KORVIN_BIN, Appearance::light});
    window->beiEntladen = [this] { ++unloaded; };
  }
  Startergebnis loadWindow() {
    return window->laden([this] { dictionary.DicOeffnen(KORVIN_BIN "/korvin.mdb"); });
  }

  Startergebnis load() {
    create();
    return loadWindow();
  }

  void show() {
    ASSERT_EQ(load(), Startergebnis::weiter);
    bringUp();
  }
  void bringUp() {
    window->resize(1024, 768);
    window->show();
    QApplication::setActiveWindow(window.get());
    QApplication::processEvents();
  }

  /// Clicks through the menu with the mouse: "M_Messung", "M_Neu", "M_Position".
  void clickMenu(const QStringList& path) {
    QWidget* level = window->menuBar();
    for (const QString& name : path) {
      QAction* action = this->action(name);
      ASSERT_NE(action, nullptr) << utf8Text(name);
      QApplication::processEvents();
      QTest::mouseClick(level, Qt::LeftButton, Qt::NoModifier, placeOf(level, action));
      auto* menu = window->findChild<QMenu*>(name);
      if (menu == nullptr) continue;
      ASSERT_TRUE(QTest::qWaitFor([menu] { return menu->isVisible(); })) << utf8Text(name);
      level = menu;
    }
  }

  QAction* action(const QString& name) {
    if (auto* menu = window->findChild<QMenu*>(name)) return menu->menuAction();
    return window->findChild<QAction*>(name);
  }

  KeyToolBar& bar() { return *window->findChild<KeyToolBar*>(QStringLiteral("tbrKorvin")); }
  void clickKey(const char* key) {
    QTest::mouseClick(bar().button(QString::fromUtf8(key)), Qt::LeftButton);
    QApplication::processEvents();
  }
  StartTile* tile(const char* key) {
    return window->findChild<StartTile*>(QStringLiteral("StartTile(%1)").arg(QString::fromUtf8(key)));
  }
  QString text(std::int16_t number) { return qText(dictionary.DicText(number)); }

  Systemwerte system;
  Meldung meldung;
  TestProgramEnd programEnd;
  SqliteDictionary dictionary{system.SpracheSpalte, programEnd};
  MemorySettingsTree tree;
  SessionSettingsTree session{tree};
  Profil profil{session};
  TestMessages messages;
  TestFileDialog fileDialog;
  Anzeigewahl anzeige{profil, system};
  Programmstart start{system, meldung, session, anzeige, dictionary, messages};
  DateiVerteilung verteilung{system.Messart, dictionary, messages, meldung};
  RecordingKind position;
  QtTranslations translations;
  Hilfe hilfe{KORVIN_BIN "/KorHelpD.HLP", [this] { return int{anzeige.Sprache()}; }, dictionary, messages};
  std::unique_ptr<MDIKorvin> window;
  int unloaded = 0;

 private:
  static QPoint placeOf(QWidget* level, QAction* action) {
    if (auto* menuBar = qobject_cast<QMenuBar*>(level)) return menuBar->actionGeometry(action).center();
    return qobject_cast<QMenu*>(level)->actionGeometry(action).center();
  }
};

}  // namespace korvin::test
