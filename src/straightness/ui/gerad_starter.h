#pragma once

#include "link/ui/window_starter.h"
#include "straightness/commands.h"
#include "straightness/ui/form_geradheit.h"

namespace korvin {

/// Straightness measuring as the main window starts it.
class GeradStarter : public FensterStarter {
 public:
  /// All outlive it.
  GeradStarter(FensterStart start, FORMGERA& formgera, GeradErfassung& erfassung, GeradDateien& dateien);

 protected:
  Messdaten& daten() override { return daten_; }
  std::unique_ptr<Messfenster> neuesFenster(MSComm& control, QWidget* ueber) override;

 private:
  FORMGERA& formgera_;
  GeradErfassung& erfassung_;
  GeradDateien& dateien_;
  GeradDaten daten_;
};

}  // namespace korvin
