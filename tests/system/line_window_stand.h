#pragma once

#include <memory>
#include <string>

#include "frame/leerwert.h"
#include "straightness/ui/form_geradheit.h"
#include "system/window_place.h"

namespace korvin::test {

/// A straightness measurement as the program makes it: the real window over the real line, with the real
/// settings and texts.
class LineWindowStand : public WindowPlace {
 public:
  /// A head will be on port 1. `options` of the measurement: raw values, and the filter level "0", so that
  /// the limits are 2 s.
  explicit LineWindowStand(const Clock& clockOfDay) : WindowPlace(clockOfDay) {
    profil.schreiben(einstellung::FormGeradheit::Filter, "0");
  }

  QMainWindow& window() override { return *form; }

  void show() {
    form = std::make_unique<FormGeradheit>(
        GeradUmgebung{surroundings(), link.port, formgera, erfassung, dateien, {fileDialog, fileSystem, {}}});
    form->resize(1024, 768);
    form->zeigen();
    click("ROH");
  }

  QColor ground() { return label("PanelxWertNormal")->palette().color(QPalette::Window); }
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

  FORMGERA formgera;
  GeradErfassung erfassung{{link.messages, dictionary, profil, system, formgera}};
  GeradDateien dateien{{fileSystem, link.messages, message, dictionary, profil, system, formgera}};
  std::unique_ptr<FormGeradheit> form;
};

}  // namespace korvin::test
