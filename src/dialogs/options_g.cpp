#include "dialogs/options_g.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>

#include "frame/leerwert.h"
#include "frame/messart.h"
#include "frame/number_format.h"
#include "frame/zahl_text.h"
#include "straightness/toleranz.h"

namespace korvin {
namespace {

namespace vorgaben = einstellung::FormOptionsG;

constexpr std::int16_t TextReiheLeeren = 6016;
constexpr int AnzahlBezuege = 3;

/// How many lines are stored before the series takes its values; the rest comes after that.
constexpr std::size_t VorDerReihe = 2;

constexpr std::array<EinstellFeld, 33> Felder = {
    {{"TextEinstellung(21)", vorgaben::PortNr, FeldForm::text, LaengeZahl, FeldPruefung::port},
     {"cmbBpS", vorgaben::BaudRate, FeldForm::index, AnzahlBaudRaten},
     {"TextEinstellung(0)", vorgaben::FirmaName, FeldForm::text, LaengeRecordText},
     {"TextEinstellung(2)", vorgaben::Bezeichnung, FeldForm::text, LaengeRecordText},
     {"TextEinstellung(3)", vorgaben::PfadMessFile, FeldForm::text, LaengePfad},
     {"TextEinstellung(4)", vorgaben::Bediener, FeldForm::text, LaengeRecordText},
     {"TextEinstellung(5)", vorgaben::Kommentar, FeldForm::text, LaengeRecordText},
     {"TextEinstellung(8)", vorgaben::AnzMPs, FeldForm::text, LaengeZahl, FeldPruefung::anzahlPunkte},
     {"TextEinstellung(9)", vorgaben::Distanz, FeldForm::laenge, LaengeZahl, FeldPruefung::messlaenge},
     {"TextEinstellung(10)", vorgaben::XGesamt, FeldForm::toleranz, LaengeZahl, FeldPruefung::toleranz},
     {"TextEinstellung(11)", vorgaben::XWertPro, FeldForm::toleranz, LaengeZahl, FeldPruefung::toleranz},
     {"TextEinstellung(12)", vorgaben::XProEinheit, FeldForm::laenge, LaengeZahl},
     {"TextEinstellung(13)", vorgaben::YGesamt, FeldForm::toleranz, LaengeZahl, FeldPruefung::toleranz},
     {"TextEinstellung(14)", vorgaben::YWertPro, FeldForm::toleranz, LaengeZahl, FeldPruefung::toleranz},
     {"TextEinstellung(15)", vorgaben::YProEinheit, FeldForm::laenge, LaengeZahl},
     {"TextEinstellung(16)", vorgaben::X_Genauigkeit, FeldForm::genauigkeit, LaengeZahl,
      FeldPruefung::genauigkeit},
     {"TextEinstellung(17)", vorgaben::Y_Genauigkeit, FeldForm::genauigkeit, LaengeZahl,
      FeldPruefung::genauigkeit},
     {"cmbTolBezug", vorgaben::ToleranzBezug, FeldForm::index, AnzahlBezuege},
     {"cmbFilter", vorgaben::Filter, FeldForm::index, AnzahlFilter},
     {"CheckAdaptOn", vorgaben::AutoAdapt, FeldForm::schalter},
     {"CheckBidirMP", vorgaben::BiDi_Messen, FeldForm::schalter},
     {"OptPrio(0)", vorgaben::Beta5, FeldForm::schalter},
     {"OptPrio(1)", vorgaben::Beta1, FeldForm::schalter},
     {"TextEinstellung(19)", vorgaben::MessZeitMax, FeldForm::text, LaengeZahl, FeldPruefung::messZeitMax},
     {"TextEinstellung(18)", vorgaben::MessZeitMin, FeldForm::text, LaengeZahl, FeldPruefung::messZeitMin},
     {"cmbKameraBefestigung", vorgaben::Montage, FeldForm::index, AnzahlMontagen},
     {"cmbAnzStellen", vorgaben::NKStellen, FeldForm::index, AnzahlNKStellen},
     {"cmbSfak", vorgaben::SFak, FeldForm::faktor, AnzahlSFaktoren},
     {"CheckDiagramm(0)", vorgaben::CheckXDiagramm, FeldForm::schalter},
     {"CheckDiagramm(1)", vorgaben::CheckYDiagramm, FeldForm::schalter},
     {"CheckTabelle(0)", vorgaben::CheckXTabelle, FeldForm::schalter},
     {"CheckTabelle(1)", vorgaben::CheckYTabelle, FeldForm::schalter},
     {"CheckAsciiDatei", vorgaben::AsciiDatei, FeldForm::schalter}}};

const std::string& eingabe(const FeldWerte& werte, const Einstellung& e) {
  return std::get<std::string>(werte.at(zeileVon(Felder, e)));
}

char filterVon(const FeldTexte& texte) {
  return static_cast<char>('0' + texte.ganz(vorgaben::Filter));
}

}  // namespace

std::span<const EinstellFeld> FelderG() {
  return Felder;
}

OptionsG::OptionsG(const OptionenUmgebung& umgebung, OffeneReihe* reihe)
    : u_(umgebung), reihe_(reihe), satz_(umgebung.profil, Felder, umgebung.system.Masssystem) {}

FeldWerte OptionsG::lesen() {
  FeldWerte werte = satz_.lesen();
  // The level of 1 % is the only one that measuring asks for.
  const bool einProzent = std::get<bool>(werte.at(zeileVon(Felder, vorgaben::Beta1)));
  werte.at(zeileVon(Felder, vorgaben::Beta5)) = !einProzent;
  return werte;
}

// ---- The points of the series ----

bool OptionsG::ZAequidistant() const {
  return reihe_ != nullptr && korvin::ZAequidistant(reihe().Linie);
}

bool OptionsG::nurFuerNeueReihe() const {
  return reihe_ != nullptr && !ZAequidistant() && !hatMesswerte();
}

void OptionsG::punkteGleichVerteilen() {
  if (reihe_ != nullptr) reihe_->erfassung.punkteGleichVerteilen();
}

bool OptionsG::hatMesswerte() const {
  const GeradReihe& r = reihe();
  for (std::size_t i = 1; i <= MaxPunkteG && static_cast<int>(i) <= r.Linie.AnzMPs; ++i) {
    if (r.X.Wert.at(i) != Leerwert || r.Y.Wert.at(i) != Leerwert) return true;
  }
  return false;
}

// ---- Taking over ----

void OptionsG::uebernehmen(const FeldWerte& werte) {
  const FeldTexte texte = satz_.texte(werte);
  texte.schreiben(u_.profil, 0, VorDerReihe);
  if (reihe_ != nullptr) {
    geometrie(werte, texte);
    // Also where the series keeps its own filter: the next reading goes by the chosen one.
    u_.system.FilterVorgabe = filterVon(texte);
    toleranzenSetzen(texte);
    adaptionSetzen(texte);
    reihe().Info.NKStellen = texte.ganz(vorgaben::NKStellen);
  }
  texte.schreiben(u_.profil, VorDerReihe, Felder.size());
  satz_.merken(werte, texte);
}

bool OptionsG::geometrieAnders(const FeldWerte& werte, const FeldTexte& texte) const {
  const GeradReihe& r = reihe();
  return texte.ganz(vorgaben::AnzMPs) != r.Linie.AnzMPs ||
         eingabe(werte, vorgaben::Distanz) !=
             massText(FeldForm::laenge, r.Linie.Distanz, satz_.Masssystem()) ||
         filterVon(texte) != r.Info.Filter.full().front() || texte.ganz(vorgaben::Montage) != r.Info.Montage;
}

void OptionsG::geometrie(const FeldWerte& werte, const FeldTexte& texte) {
  if (!geometrieAnders(werte, texte)) return;
  if (hatMesswerte()) {
    if (!frageLoeschen()) return;
    reihe().Info.Geaendert = true;
  } else if (!ZAequidistant()) {
    // The user has placed the points: they stay where they are.
    return;
  }
  geometrieSetzen(texte);
}

void OptionsG::geometrieSetzen(const FeldTexte& texte) {
  GeradReihe& r = reihe();
  r.Linie.Distanz = texte.zahl(vorgaben::Distanz);
  r.Linie.AnzMPs = texte.ganz(vorgaben::AnzMPs);
  ReiheLeeren(r);
  const char filter = filterVon(texte);
  r.Info.Filter = std::string_view(&filter, 1);
  r.Info.Montage = texte.ganz(vorgaben::Montage);
}

bool OptionsG::frageLoeschen() {
  u_.meldung.MsgTitel = "KORVIN " + MessartTitel(u_.dictionary, MessartGeradheit);
  u_.meldung.MsgText = u_.dictionary.DicText(TextReiheLeeren) + " ?";
  u_.messages.beep();
  return u_.messages.show(u_.meldung, MessageIcon::question, MessageButtons::yesNo) == MessageAnswer::yes;
}

void OptionsG::toleranzenSetzen(const FeldTexte& texte) {
  GeradReihe& r = reihe();
  r.X.Gesamt = texte.zahl(vorgaben::XGesamt);
  r.X.WertPro = texte.zahl(vorgaben::XWertPro);
  r.X.ProEinheit = texte.zahl(vorgaben::XProEinheit);
  r.Y.Gesamt = texte.zahl(vorgaben::YGesamt);
  r.Y.WertPro = texte.zahl(vorgaben::YWertPro);
  r.Y.ProEinheit = texte.zahl(vorgaben::YProEinheit);
  r.X.ToleranzBezug = r.Y.ToleranzBezug = texte.ganz(vorgaben::ToleranzBezug);
}

void OptionsG::adaptionSetzen(const FeldTexte& texte) {
  AdaptVorgaben& adapt = reihe().Adapt;
  adapt.X_Genauigkeit = texte.zahl(vorgaben::X_Genauigkeit);
  adapt.Y_Genauigkeit = texte.zahl(vorgaben::Y_Genauigkeit);
  adapt.AutoAdapt = texte.flag(vorgaben::AutoAdapt);
  adapt.Beta5 = texte.flag(vorgaben::Beta5);
  adapt.Beta1 = texte.flag(vorgaben::Beta1);
  adapt.MessZeitMax = texte.ganz(vorgaben::MessZeitMax);
  adapt.MessZeitMin = texte.ganz(vorgaben::MessZeitMin);
}

}  // namespace korvin
