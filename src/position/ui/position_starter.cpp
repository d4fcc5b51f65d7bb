#include "position/ui/position_starter.h"

namespace korvin {

std::unique_ptr<Messfenster> PositionStarter::neuesFenster(MSComm& control, QWidget* ueber) {
  return std::make_unique<FormPosition>(
      PositionUmgebung{start().zyklus, control, formpos_, erfassung_, dateien_, start().dienste}, ueber);
}

}  // namespace korvin
