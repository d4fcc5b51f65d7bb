#pragma once

#include "link/messzyklus.h"

namespace korvin {

/// What a window's cycle does while the settings dialog is open over it: the head's keys are locked, and the
/// polling stands still where the kind's description says so. Ends with the scope.
class TastenSperre {
 public:
  /// `zyklus` outlives it; `anhalten`: the polling stops, too.
  TastenSperre(Messzyklus& zyklus, bool anhalten)
      : zyklus_(zyklus), angehalten_(anhalten && zyklus.tmrPolling().enabled()) {
    zyklus_.setTastenGesperrt(true);
    if (angehalten_) zyklus_.tmrPolling().setEnabled(false);
  }
  ~TastenSperre() {
    zyklus_.setTastenGesperrt(false);
    if (angehalten_) zyklus_.tmrPolling().setEnabled(true);
  }
  TastenSperre(const TastenSperre&) = delete;
  TastenSperre& operator=(const TastenSperre&) = delete;

 private:
  Messzyklus& zyklus_;
  bool angehalten_;
};

}  // namespace korvin
