#include "reports/positions_bericht.h"

#include <memory>

#include "reports/prno.h"

namespace korvin {
namespace {

std::string ohneEndung(const std::string& name) {
  const std::size_t punkt = name.rfind('.');
  return punkt == std::string::npos || punkt == 0 ? name : name.substr(0, punkt);
}

}  // namespace

PositionsBerichtTeile gewaehlteTeile(const PositionsInfo& info) {
  return {static_cast<bool>(info.CheckXYDiagramm), static_cast<bool>(info.CheckXTabelle),
          static_cast<bool>(info.CheckYTabelle)};
}

Bericht positionsBericht(const PositionsBerichtQuelle& quelle, const PositionsBerichtTeile& teile) {
  const auto bericht = std::make_shared<const PRNO>(quelle, teile);
  const std::string art = "KORVIN-" + quelle.dictionary.DicText(3057);
  const std::string& datei = bericht->dateiName();
  return {datei.empty() ? art : art + ": " + datei, datei.empty() ? art : ohneEndung(datei),
          [bericht](Drucker& drucker) { bericht->drucken(drucker); }};
}

}  // namespace korvin
