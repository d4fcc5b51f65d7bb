#include "dialogs/settings_field.h"

#include <algorithm>

#include "dialogs/entered_number.h"
#include "frame/number_format.h"
#include "frame/werte.h"
#include "frame/zahl_text.h"
#include "straightness/masseinheit.h"

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

/// How lengths of a form are shown: decimals metric and inch, and mm of one unit in inch.
struct MassForm {
  std::string_view metrisch;
  std::string_view inch;
  double mmProEinheit;
};

MassForm massForm(FeldForm form) {
  switch (form) {
    case FeldForm::toleranz:
      return {"0.000", "0.00", MmProMil};
    case FeldForm::genauigkeit:
      return {"0.0000", "0.00", MmProMil};
    default:
      return {"0.0", "0.0", MmProInch};
  }
}

std::string mmText(FeldForm form, std::string_view eingegeben, std::int16_t Masssystem) {
  const double faktor = Masssystem == MasssystemInch ? massForm(form).mmProEinheit : 1;
  return formatGeneral(endlicheZahl(eingegeben) * faktor);
}

}  // namespace

std::string massText(FeldForm form, double mm, std::int16_t Masssystem) {
  const MassForm m = massForm(form);
  return Masssystem == MasssystemInch ? formatNumber(mm / m.mmProEinheit, m.inch)
                                      : formatNumber(mm, m.metrisch);
}

FeldWert feldWert(const EinstellFeld& feld, std::string_view gespeichert, std::int16_t Masssystem) {
  switch (feld.form) {
    case FeldForm::laenge:
    case FeldForm::toleranz:
    case FeldForm::genauigkeit:
      return massText(feld.form, endlicheZahl(gespeichert), Masssystem);
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

std::string gespeicherterText(const EinstellFeld& feld, const FeldWert& wert, std::int16_t Masssystem) {
  switch (feld.form) {
    case FeldForm::laenge:
    case FeldForm::toleranz:
    case FeldForm::genauigkeit:
      return mmText(feld.form, std::get<std::string>(wert), Masssystem);
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

}  // namespace korvin
