#include "link/messwert.h"

#include <cmath>

#include "frame/cp1252.h"
#include "frame/number_format.h"

namespace korvin {
namespace {

constexpr int NormAbstand = 6;
constexpr int KleinsteIntensitaet = 10;
constexpr int UebersteuertAb = 99;

Farbe farbeDerIntensitaet(int prozent) {
  if (prozent < 40 || prozent >= 98) return FarbeRot;
  return prozent < 60 ? FarbeOrange : FarbeGruen;
}

}  // namespace

Qualitaet qualitaetPruefen(const KameraAntwort& antwort, double norm, double halbbereich,
                           bool imRuhezustand) {
  Qualitaet befund;
  const std::int16_t prozent = antwort.Intensitaet;
  // Whether a norm raised by this very reading counts already makes no difference: no reading lies below
  // itself.
  if (norm < prozent) befund.neueNorm = prozent;
  const bool imBereich = std::abs(antwort.RohX - RohMitte) / RohProMm <= halbbereich &&
                         std::abs(antwort.RohY - RohMitte) / RohProMm <= halbbereich;
  // Out of range only colours: such a reading is accepted.
  if (imBereich) {
    befund.wertFarbe = imRuhezustand ? FarbeWeiss : FarbeGelb;
    befund.schwaecher = norm - NormAbstand > prozent;
  } else {
    befund.wertFarbe = FarbeRot;
  }
  befund.intensitaetFarbe = farbeDerIntensitaet(prozent);
  befund.ok = prozent >= KleinsteIntensitaet && prozent < UebersteuertAb;
  if (!befund.ok) befund.wertFarbe = FarbeWeiss;
  return befund;
}

std::pair<double, double> Spiegeln(std::int16_t montage, double x, double y) {
  switch (montage) {
    case 1:
      return {y, -x};
    case 2:
      return {-x, -y};
    case 3:
      return {-y, x};
    default:
      return {x, y};
  }
}

std::pair<double, double> positionAusRoh(const KameraAntwort& antwort, bool inch, std::int16_t montage) {
  double x = mmAusRoh(antwort.RohX);
  double y = mmAusRoh(antwort.RohY) * -1;
  if (inch) {
    x /= MmProMil;
    y /= MmProMil;
  }
  return Spiegeln(montage, x, y);
}

std::string serviceZeile(const KameraAntwort& antwort) {
  const auto zaehler = [](const char* name, double wert) {
    return "  \u00A6  " + std::string(name) + ":" + formatNumber(wert, "   0");
  };
  return vonCp1252(antwort.LetztesTelegramm) + zaehler("ICA", antwort.ICA) + zaehler("ICM", antwort.ICM) +
         zaehler("BCC", antwort.BCC) + zaehler("COM", antwort.COM) + zaehler("ERR", antwort.ERR);
}

}  // namespace korvin
