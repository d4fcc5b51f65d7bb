#include "environment/aussicht_texte.h"

#include "environment/messzahl.h"
#include "frame/zahl_text.h"
#include "link/messwert.h"

namespace korvin {
namespace {

constexpr std::int16_t TextWahrscheinlich = 7730;
constexpr std::int16_t TextFraglich = 7731;
constexpr std::int16_t TextUnwahrscheinlich = 7732;
constexpr std::int16_t TextVerlangt = 7735;
constexpr std::int16_t TextErreichbar = 7736;
constexpr std::int16_t Inch = 1;

std::string paar(const std::string& X, const std::string& Y, std::int16_t Masssystem) {
  return ": X " + X + "  Y " + Y + (Masssystem == Inch ? " mil" : " mm");
}

std::string laenge(double mm, std::int16_t Masssystem) {
  return messzahl(Masssystem == Inch ? mm / MmProMil : mm);
}

}  // namespace

std::string aussichtWorte(const Aussicht& aussicht, Dictionary& dictionary) {
  switch (aussicht.erfolg) {
    case Erfolg::wahrscheinlich:
      return dictionary.DicText(TextWahrscheinlich);
    case Erfolg::fraglich:
      return dictionary.DicText(TextFraglich);
    case Erfolg::unwahrscheinlich:
      break;
  }
  return dictionary.DicText(TextUnwahrscheinlich);
}

std::string aussichtZahlen(const Aussicht& aussicht, std::int16_t Masssystem, Dictionary& dictionary) {
  const AdaptivVorgabe& vorgabe = aussicht.vorgabe;
  const auto halbbreite = [&](double mm) {
    return aussicht.proben < 2 ? std::string(LeerMuster(3)) : laenge(mm, Masssystem);
  };
  return dictionary.DicText(TextVerlangt) +
         paar(laenge(vorgabe.X_Genauigkeit, Masssystem), laenge(vorgabe.Y_Genauigkeit, Masssystem),
              Masssystem) +
         "  " + formatNumber(vorgabe.MessZeitMax, "0") + " s  ¦  " + dictionary.DicText(TextErreichbar) +
         paar(halbbreite(aussicht.halbbreiteX), halbbreite(aussicht.halbbreiteY), Masssystem);
}

}  // namespace korvin
