#include "reports/gerad_bericht.h"

#include <memory>

#include "reports/prng.h"
#include "reports/protokoll.h"

namespace korvin {

GeradBerichtTeile gewaehlteTeile(const GeradInfo& info) {
  return {static_cast<bool>(info.CheckXDiagramm), static_cast<bool>(info.CheckYDiagramm),
          static_cast<bool>(info.CheckXTabelle), static_cast<bool>(info.CheckYTabelle)};
}

Bericht geradBericht(const GeradBerichtQuelle& quelle, const GeradBerichtTeile& teile) {
  const auto bericht = std::make_shared<const PRNG>(quelle, teile);
  return protokoll(quelle.dictionary, bericht->dateiName(),
                   [bericht](Drucker& drucker) { bericht->drucken(drucker); });
}

}  // namespace korvin
