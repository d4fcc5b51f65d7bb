#include "link/ui/window_starter.h"

#include "frame/cp1252.h"

namespace korvin {

bool FensterStarter::laden(const std::string& name) {
  // What a loaded file says about its name replaces this.
  daten().kopf().DateiName = zuCp1252(name).value_or(std::string());
  return daten().laden(name);
}

void FensterStarter::zeigen(std::int16_t DateiStatus) {
  daten().kopf().DateiStatus = DateiStatus;
  const std::unique_ptr<MSComm> MSCommKamera = start_.neuesMSComm();
  neuesFenster(*MSCommKamera, fenster_)->ausfuehren();
}

}  // namespace korvin
