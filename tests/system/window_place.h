#pragma once

#include <QLabel>
#include <QMainWindow>
#include <QTest>
#include <QToolButton>
#include <string>

#include "frame/posix_file_system.h"
#include "frame/profil.h"
#include "frame/sqlite_dictionary.h"
#include "frame/sqlite_settings_tree.h"
#include "frame/ui/key_tool_bar.h"
#include "frame/ui/qt_text.h"
#include "link/messzyklus.h"
#include "link/ui/head_panel.h"
#include "system/link_stand.h"

namespace korvin::test {

/// What a real measuring window needs of the program, with the real line, settings and texts.
class WindowPlace {
 public:
  explicit WindowPlace(const Clock& clockOfDay) : clock(clockOfDay) {
    KorRegistry(tree).RegistryAnlegen(link.home.path().string());
    dictionary.DicOeffnen(KORVIN_BIN "/korvin.mdb");
  }
  virtual ~WindowPlace() = default;

  virtual QMainWindow& window() = 0;

  ZyklusUmgebung surroundings() {
    return {clock,  link.pump, timers,      link.messages, dictionary,
            profil, message,   link.korCom, link.answer,   system};
  }
  void click(const char* key) {
    QTest::mouseClick(window().findChild<QToolButton*>(QString::fromUtf8(key)), Qt::LeftButton);
  }
  bool pressed(const char* key) {
    return window().findChild<KeyToolBar*>()->isPressed(QString::fromUtf8(key));
  }
  QLabel* label(const char* name) { return window().findChild<QLabel*>(QString::fromUtf8(name)); }
  std::string text(const char* name) { return utf8Text(label(name)->text()); }
  std::string info() { return window().findChild<HeadPanel*>()->infoSchluessel().toStdString(); }
  bool until(const std::function<bool()>& done, double seconds = 20) { return link.until(done, seconds); }

  const Clock& clock;
  LinkStand link{clock};
  QtTimerSource timers;
  SqliteSettingsTree tree{link.home / "korvin" / "settings.db"};
  Profil profil{tree};
  Systemwerte system;
  Meldung message;
  TestProgramEnd programEnd;
  SqliteDictionary dictionary{system.SpracheSpalte, programEnd};
  PosixFileSystem fileSystem;
  TestFileDialog fileDialog;
};

}  // namespace korvin::test
