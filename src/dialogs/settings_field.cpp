#include "dialogs/settings_field.h"

#include <algorithm>

#include "frame/number_format.h"
#include "frame/werte.h"
#include "frame/zahl_text.h"

namespace korvin {
namespace {

/// The place `wert` within a list of `umfang` entries. The bound lets negative numbers pass, which name no
/// entry.
int imUmfang(double wert, int umfang) {
  return std::max(0, static_cast<int>(begrenzen(umfang - 1, wert)));
}

int faktorAlsPlatz(int faktor, int umfang) {
  return faktor >= 1 && faktor <= umfang ? faktor - 1 : 0;
}

}  // namespace

FeldWert feldWert(const EinstellFeld& feld, std::string_view gespeichert) {
  switch (feld.form) {
    case FeldForm::index:
      return imUmfang(ganzzahlAusText(gespeichert), feld.umfang);
    case FeldForm::faktor:
      return faktorAlsPlatz(ganzzahlAusText(gespeichert), feld.umfang);
    case FeldForm::schalter:
      return flagAusText(gespeichert);
    case FeldForm::text:
      break;
  }
  return std::string(gespeichert);
}

std::string gespeicherterText(const EinstellFeld& feld, const FeldWert& wert) {
  switch (feld.form) {
    case FeldForm::index:
      return formatNumber(std::get<int>(wert), "0");
    case FeldForm::faktor:
      return formatNumber(std::get<int>(wert) + 1, "0");
    case FeldForm::schalter:
      return std::string(FlagText(std::get<bool>(wert)));
    case FeldForm::text:
      break;
  }
  return std::get<std::string>(wert);
}

FeldWert feldLesen(Profil& profil, const EinstellFeld& feld) {
  return feldWert(feld, profil.wert(feld.einstellung));
}

void feldSchreiben(Profil& profil, const EinstellFeld& feld, const FeldWert& wert) {
  profil.schreiben(feld.einstellung, gespeicherterText(feld, wert));
}

}  // namespace korvin
