#include "frame/messordner.h"

#include "frame/pfade.h"
#include "frame/settings_defaults.h"

namespace korvin {

std::string MessOrdner(Profil& profil, const Systemwerte& system) {
  return MessOrdner(profil.wert(einstellung::Hauptfenster::PfadMessFile), pfadTeilen(system.DbPfad).ordner);
}

}  // namespace korvin
