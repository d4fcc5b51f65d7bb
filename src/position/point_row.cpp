#include "position/point_row.h"

#include <cstddef>

#include "frame/date_format.h"
#include "frame/leerwert.h"
#include "frame/number_format.h"
#include "frame/zahl_text.h"

namespace korvin {
namespace {

constexpr const char* OhneWert = "?.?";

std::string wertText(double value, double offset, int NKStellen) {
  return istLeer(value) ? OhneWert : formatNumber(value - offset, ZahlMuster(NKStellen));
}

}  // namespace

PunktZeile punktZeile(const PointStore& punkte, const PositionsDatei& record, int nummer) {
  const auto index = static_cast<std::size_t>(nummer);
  const double moment = punkte.T().at(index);
  return {std::to_string(nummer), istLeer(moment) ? OhneWert : formatDate(moment, PunktZeitMuster),
          wertText(punkte.X().at(index), record.X.Offset, record.Info.NKStellen),
          wertText(punkte.Y().at(index), record.Y.Offset, record.Info.NKStellen)};
}

}  // namespace korvin
