#include "straightness/commands.h"

#include "frame/messordner.h"
#include "straightness/neue_reihe.h"

namespace korvin {

void GeradDaten::neu() {
  formgera_.reihe() = neueReihe(profil_, MessOrdner(profil_, system_));
}

}  // namespace korvin
