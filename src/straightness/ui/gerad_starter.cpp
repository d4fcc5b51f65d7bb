#include "straightness/ui/gerad_starter.h"

#include <utility>

namespace korvin {

GeradStarter::GeradStarter(FensterStart start, FORMGERA& formgera, GeradErfassung& erfassung,
                           GeradDateien& dateien)
    : FensterStarter(std::move(start)),
      formgera_(formgera),
      erfassung_(erfassung),
      dateien_(dateien),
      daten_(formgera, dateien, this->start().zyklus.profil, this->start().zyklus.system) {}

std::unique_ptr<Messfenster> GeradStarter::neuesFenster(MSComm& control, QWidget* ueber) {
  return std::make_unique<FormGeradheit>(
      GeradUmgebung{start().zyklus, control, formgera_, erfassung_, dateien_, start().dienste}, ueber);
}

}  // namespace korvin
