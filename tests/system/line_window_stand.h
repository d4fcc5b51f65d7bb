#pragma once

#include <QTest>
#include <QToolButton>
#include <memory>
#include <string>
#include <vector>

#include "frame/leerwert.h"
#include "frame/posix_file_system.h"
#include "frame/profil.h"
#include "frame/sqlite_dictionary.h"
#include "frame/sqlite_settings_tree.h"
#include "frame/ui/qt_text.h"
#include "straightness/ui/form_geradheit.h"
#include "system/link_stand.h"

namespace korvin::test {

/// A straightness measurement as the program makes it: the real window over the real line, with the real
/// settings and texts.
class LineWindowStand {
 public:
  /// A head will be on port 1. `options` of the measurement: raw values, and the filter level "0", so that
  /// the limits are 2 s.
  explicit LineWindowStand(const Clock& clockOfDay) : clock(clockOfDay) {
    KorRegistry(tree).RegistryAnlegen(link.home.path().string());
    profil.schreiben(einstellung::FormGeradheit::Filter, "0");
    dictionary.DicOeffnen(KORVIN_BIN "/korvin.mdb");
  }

  void show() {
    form = std::make_unique<FormGeradheit>(GeradUmgebung{{clock, link.pump, timers, link.messages, dictionary,
                                                          profil, message, link.korCom, link.answer, system},
                                                         link.port,
                                                         formgera,
                                                         erfassung,
                                                         dateien,
                                                         {fileDialog, fileSystem, {}}});
    form->resize(1024, 768);
    form->zeigen();
    click("ROH");
  }

  void click(const char* key) {
    QTest::mouseClick(form->findChild<QToolButton*>(QString::fromUtf8(key)), Qt::LeftButton);
  }
  bool pressed(const char* key) {
    return form->findChild<KeyToolBar*>(QStringLiteral("tbrGeradheit"))->isPressed(QString::fromUtf8(key));
  }
  QLabel* label(const char* name) { return form->findChild<QLabel*>(QString::fromUtf8(name)); }
  std::string text(const char* name) { return utf8Text(label(name)->text()); }
  QColor ground() { return label("PanelxWertNormal")->palette().color(QPalette::Window); }
  std::string info() { return form->findChild<HeadPanel*>()->infoSchluessel().toStdString(); }

  bool until(const std::function<bool()>& done, double seconds = 20) { return link.until(done, seconds); }
  bool untilPoint(int number) {
    return until([this, number] { return line().AktMP == number && !pressed("XYMP1"); });
  }
  /// Closes the window as a user does who gives up the data, and waits for its end.
  bool close() {
    link.messages.answers.push_back(MessageAnswer::no);
    form->close();
    return until([this] { return !form->offen(); });
  }

  LinienGeometrie& line() { return formgera.reihe().Linie; }
  double x(std::size_t point) { return formgera.reihe().X.Wert.at(point); }
  double y(std::size_t point) { return formgera.reihe().Y.Wert.at(point); }

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
  FORMGERA formgera;
  GeradErfassung erfassung{{link.messages, dictionary, profil, system, formgera}};
  GeradDateien dateien{{fileSystem, link.messages, message, dictionary, profil, system, formgera}};
  std::unique_ptr<FormGeradheit> form;
};

}  // namespace korvin::test
