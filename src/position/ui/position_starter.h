#pragma once

#include "link/ui/window_starter.h"
#include "position/commands.h"
#include "position/ui/form_position.h"

namespace korvin {

/// Position measuring as the main window starts it.
class PositionStarter : public FensterStarter {
 public:
  /// All outlive it.
  PositionStarter(FensterStart start, FORMPOS& formpos, PositionsErfassung& erfassung,
                  PositionsDateien& dateien)
      : FensterStarter(std::move(start)),
        formpos_(formpos),
        erfassung_(erfassung),
        dateien_(dateien),
        daten_(formpos, erfassung, dateien) {}

 protected:
  Messdaten& daten() override { return daten_; }
  std::unique_ptr<Messfenster> neuesFenster(MSComm& control, QWidget* ueber) override;

 private:
  FORMPOS& formpos_;
  PositionsErfassung& erfassung_;
  PositionsDateien& dateien_;
  PositionsDaten daten_;
};

}  // namespace korvin
