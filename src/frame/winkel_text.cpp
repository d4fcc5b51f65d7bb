#include "frame/winkel_text.h"

#include <cmath>
#include <string_view>

#include "frame/messart.h"
#include "frame/number_format.h"
#include "frame/zahl_text.h"

namespace korvin {

std::string WinkelText(double grad, int NKStellen) {
  constexpr std::string_view secondsMark = "\"";
  const std::string_view muster = ZahlMuster(NKStellen);
  const double seconds = zahlAusText(formatNumber(std::fabs(grad) * 3600, muster));
  const double minutes = std::floor(seconds / 60);
  const double sign = grad < 0 ? -1 : 1;
  if (!std::isfinite(grad) || minutes == 0) return formatNumber(grad * 3600, muster).append(secondsMark);
  const std::string rest = formatNumber(seconds - minutes * 60, muster).append(secondsMark);
  const double degrees = std::floor(minutes / 60);
  if (degrees == 0) return formatNumber(sign * minutes, "0") + "' " + rest;
  return formatNumber(sign * degrees, "0") + "° " + formatNumber(minutes - degrees * 60, "0") + "' " + rest;
}

double SollWinkel(std::int16_t messart, double PentaFehler) {
  return messart == MessartRechtwinkel ? 90.0 - PentaFehler / 3600 : 0.0;
}

}  // namespace korvin
