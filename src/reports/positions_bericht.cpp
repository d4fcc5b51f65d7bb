#include "reports/positions_bericht.h"

#include <memory>

#include "reports/prno.h"
#include "reports/protokoll.h"

namespace korvin {

PositionsBerichtTeile gewaehlteTeile(const PositionsInfo& info) {
  return {static_cast<bool>(info.CheckXYDiagramm), static_cast<bool>(info.CheckXTabelle),
          static_cast<bool>(info.CheckYTabelle)};
}

Bericht positionsBericht(const PositionsBerichtQuelle& quelle, const PositionsBerichtTeile& teile) {
  const auto bericht = std::make_shared<const PRNO>(quelle, teile);
  return protokoll(quelle.dictionary, bericht->dateiName(),
                   [bericht](Drucker& drucker) { bericht->drucken(drucker); });
}

}  // namespace korvin
