#include "position/ui/position_starter.h"

#include "frame/cp1252.h"

namespace korvin {

bool PositionStarter::laden(const std::string& name) {
  // What a loaded file says about its name replaces this.
  s_.formpos.Info().DateiName = zuCp1252(name).value_or(std::string());
  return s_.dateien.o_DateiLaden(name);
}

void PositionStarter::zeigen(std::int16_t DateiStatus) {
  s_.formpos.Info().DateiStatus = DateiStatus;
  const std::unique_ptr<MSComm> MSCommKamera = s_.neuesMSComm();
  FormPosition fenster({s_.zyklus, *MSCommKamera, s_.formpos, s_.erfassung, s_.dateien, s_.fileDialog,
                        s_.fileSystem, s_.hilfe, s_.einrichten, s_.protokollDrucken},
                       fenster_);
  fenster.ausfuehren();
}

}  // namespace korvin
