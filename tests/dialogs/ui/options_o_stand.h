#pragma once

#include <memory>

#include "dialogs/ui/form_options_o.h"
#include "dialogs_stand.h"

namespace korvin::test {

/// The real dialog `FormOptionsO`, on the tests' clock, with settings in memory. Shown without waiting for
/// its end.
class OptionsOStand : public DialogsStand {
 protected:
  OptionsOStand() {
    formpos.Info().RestMP = -1;
    formpos.Info().Filter = "2";
    system.FilterVorgabe = '2';
  }

  void showFromMainWindow() { show(nullptr); }
  void showFromPosition() { show(&open); }
  void show(OffeneMessung* measurement) {
    present(std::make_unique<FormOptionsO>(FormOptionsOUmgebung{surroundings(), clock, clock}, measurement));
  }
  void ok() { press(0); }

  PositionsInfo& info() { return formpos.Info(); }

  FORMPOS formpos;
  PositionsErfassung erfassung{{clock, messages, testDictionary, profil, meldung, system, formpos}};
  OffeneMessung open{formpos, erfassung};
};

}  // namespace korvin::test
