#include "straightness/neue_reihe.h"

#include <cmath>

#include "frame/cp1252.h"
#include "frame/datei_kopf.h"
#include "frame/datum_text.h"
#include "frame/messart.h"
#include "frame/settings_defaults.h"
#include "frame/zahl_text.h"
#include "straightness/auswertung.h"
#include "straightness/formgera.h"

namespace korvin {
namespace {

namespace vorgaben = einstellung::FormGeradheit;

/// The settings as fields of a record take them.
class Leser {
 public:
  explicit Leser(Profil& profil) : profil_(profil) {}

  std::string text(const Einstellung& e) const {
    return zuCp1252(profil_.wert(e)).value_or(std::string(e.vorgabe));
  }
  bool flag(const Einstellung& e) const { return flagAusText(profil_.wert(e)); }
  std::int16_t ganz(const Einstellung& e) const { return ganzzahlAusText(profil_.wert(e)); }
  /// What is no finite number counts as 0.
  double zahl(const Einstellung& e) const {
    const double wert = zahlAusText(profil_.wert(e));
    return std::isfinite(wert) ? wert : 0;
  }

 private:
  Profil& profil_;
};

void angaben(GeradInfo& info, const Leser& leser) {
  info.FirmaName = leser.text(vorgaben::FirmaName);
  info.Bezeichnung = leser.text(vorgaben::Bezeichnung);
  info.Bediener = leser.text(vorgaben::Bediener);
  info.Kommentar = leser.text(vorgaben::Kommentar);
  info.AsciiDatei = leser.flag(vorgaben::AsciiDatei);
  info.CheckXDiagramm = leser.flag(vorgaben::CheckXDiagramm);
  info.CheckYDiagramm = leser.flag(vorgaben::CheckYDiagramm);
  info.CheckXTabelle = leser.flag(vorgaben::CheckXTabelle);
  info.CheckYTabelle = leser.flag(vorgaben::CheckYTabelle);
  info.Filter = leser.text(vorgaben::Filter);
  info.Montage = leser.ganz(vorgaben::Montage);
  info.NKStellen = leser.ganz(vorgaben::NKStellen);
  info.SFak = leser.ganz(vorgaben::SFak);
  info.Datum = LeerDatum;
  info.DateiStatus = DateiNeu;
  info.Auswertung = AuswertungISO;
  info.Gitter = true;
}

void linie(LinienGeometrie& linie, const Leser& leser) {
  const std::int16_t punkte = leser.ganz(vorgaben::AnzMPs);
  const double laenge = leser.zahl(vorgaben::Distanz);
  const bool eineLinie = punkte >= 2 && static_cast<std::size_t>(punkte) <= MaxPunkteG;
  linie.AnzMPs = eineLinie ? punkte : ganzzahlAusText(vorgaben::AnzMPs.vorgabe);
  linie.Distanz = laenge > 0 ? laenge : zahlAusText(vorgaben::Distanz.vorgabe);
}

void toleranzen(GeradReihe& reihe, const Leser& leser) {
  reihe.X.Gesamt = leser.zahl(vorgaben::XGesamt);
  reihe.X.WertPro = leser.zahl(vorgaben::XWertPro);
  reihe.X.ProEinheit = leser.zahl(vorgaben::XProEinheit);
  reihe.Y.Gesamt = leser.zahl(vorgaben::YGesamt);
  reihe.Y.WertPro = leser.zahl(vorgaben::YWertPro);
  reihe.Y.ProEinheit = leser.zahl(vorgaben::YProEinheit);
  reihe.X.ToleranzBezug = reihe.Y.ToleranzBezug = leser.ganz(vorgaben::ToleranzBezug);
}

void adaption(AdaptVorgaben& adapt, const Leser& leser) {
  adapt.AutoAdapt = leser.flag(vorgaben::AutoAdapt);
  adapt.Beta5 = leser.flag(vorgaben::Beta5);
  adapt.Beta1 = leser.flag(vorgaben::Beta1);
  adapt.MessZeitMax = leser.ganz(vorgaben::MessZeitMax);
  adapt.MessZeitMin = leser.ganz(vorgaben::MessZeitMin);
  adapt.X_Genauigkeit = leser.zahl(vorgaben::X_Genauigkeit);
  adapt.Y_Genauigkeit = leser.zahl(vorgaben::Y_Genauigkeit);
}

}  // namespace

GeradReihe neueReihe(Profil& profil, const std::string& messordner) {
  const Leser leser(profil);
  GeradReihe reihe;
  angaben(reihe.Info, leser);
  const std::string maske(MessartEndung(MessartGeradheit));
  reihe.Info.DateiName = zuCp1252(messordner + maske).value_or(maske);
  linie(reihe.Linie, leser);
  ReiheLeeren(reihe);
  toleranzen(reihe, leser);
  adaption(reihe.Adapt, leser);
  return reihe;
}

}  // namespace korvin
