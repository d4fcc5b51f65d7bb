#pragma once

#include <memory>

#include "dialogs/ui/form_options_g.h"
#include "dialogs_stand.h"
#include "straightness/neue_reihe.h"

namespace korvin::test {

/// The real dialog `FormOptionsG` beside a new series of six points over 2500 mm. Shown without waiting for
/// its end.
class OptionsGStand : public DialogsStand {
 protected:
  OptionsGStand() {
    series() = neueReihe(profil, "/");
    system.FilterVorgabe = '2';
  }

  void showFromMainWindow() { show(nullptr); }
  void showFromSeries() { show(&open); }
  void show(OffeneReihe* reihe) { present(std::make_unique<FormOptionsG>(surroundings(), reihe)); }

  GeradReihe& series() { return formgera.reihe(); }
  GeradInfo& info() { return series().Info; }
  LinienGeometrie& line() { return series().Linie; }
  bool applicable() { return command(0)->isEnabled(); }
  void apply() { press(0); }
  void ok() { press(2); }

  FORMGERA formgera;
  GeradErfassung erfassung{{messages, testDictionary, profil, system, formgera}};
  OffeneReihe open{formgera, erfassung};
};

}  // namespace korvin::test
