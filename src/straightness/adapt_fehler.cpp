#include "straightness/adapt_fehler.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <string_view>

#include "frame/leerwert.h"
#include "frame/number_format.h"
#include "frame/settings_defaults.h"
#include "frame/zahl_text.h"
#include "straightness/masseinheit.h"

namespace korvin {
namespace {

constexpr double Vorhalt = 1.1;  ///< by which a half width has to be lower than the time found suggests
constexpr std::int16_t LaengsterVorschlag = 99;

constexpr std::int16_t TextInformation = 1006;
constexpr std::int16_t TextFehler = 1100;
constexpr std::int16_t TextErhoehen = 2217;
constexpr std::int16_t TextVorschlag = 2218;
constexpr std::int16_t TextNoetig = 2219;
constexpr std::int16_t TextVonHand = 2240;
constexpr std::int16_t TextNichtErreicht = 2241;
constexpr std::int16_t TextAbbrechen = 3020;
constexpr std::int16_t TextSoll = 5000;
constexpr std::int16_t TextIst = 5001;
constexpr std::int16_t TextWert = 5005;

/// How many times the half width reached is the required accuracy; 0 for none.
double verhaeltnis(double erreicht, double gefordert) {
  return erreicht > 0 ? std::abs(erreicht / gefordert) : 0;
}

std::string laenge(double mm, std::int16_t Masssystem) {
  const bool inch = Masssystem == MasssystemInch;
  if (istLeer(mm)) return std::string(inch ? LeerMuster(1) : LeerMuster(3));
  return formatNumber(anzeigeWert(mm, Masssystem), inch ? "0.00" : "0.0000");
}

void achse(AdaptWertText& soll, AdaptWertText& ist, double gefordert, double erreicht,
           std::int16_t Masssystem) {
  const Farbe farbe = erreicht <= gefordert ? FarbeGruen : FarbeRot;
  soll = {laenge(gefordert, Masssystem), farbe};
  ist = {laenge(erreicht, Masssystem), farbe};
}

}  // namespace

Halbweiten AdaptFehler::erreicht() const {
  const AdaptZustand& z = p_.messung.zustand();
  return {z.AdaptKX, z.AdaptKY};
}

std::int16_t AdaptFehler::Vorschlag() const {
  const Halbweiten k = erreicht();
  const double schlechter =
      std::max(verhaeltnis(k.X, p_.vorgaben.X_Genauigkeit), verhaeltnis(k.Y, p_.vorgaben.Y_Genauigkeit));
  const double sekunden = std::round(schlechter / Vorhalt * p_.vorgaben.MessZeitMax);
  constexpr double Groesster = std::numeric_limits<std::int16_t>::max();
  return static_cast<std::int16_t>(std::clamp(sekunden, 1.0, Groesster));
}

bool AdaptFehler::VorschlagMoeglich() const {
  return Vorschlag() <= LaengsterVorschlag;
}

void AdaptFehler::CmdAdaptCont(int index) {
  if (index != 0) {
    p_.messung.aufgeben();
    return;
  }
  if (!VorschlagMoeglich()) return;
  p_.vorgaben.MessZeitMax = Vorschlag();
  p_.profil.ProfilSchreiben(KorvinIni, p_.abschnitt, einstellung::FormGeradheit::MessZeitMax.key,
                            std::to_string(p_.vorgaben.MessZeitMax));
  p_.messung.neuZaehlen(p_.vorgaben, p_.jetzt);
}

AdaptFehlerTexte adaptFehlerTexte(const AdaptFehler& fehler, Dictionary& dictionary,
                                  std::int16_t Masssystem) {
  const auto text = [&](std::int16_t nummer) { return dictionary.DicText(nummer); };
  AdaptFehlerTexte t;
  t.titel = "AutoAdapt Fehlmessung!";
  t.CmdAdaptCont = {text(TextErhoehen), text(TextAbbrechen)};
  t.lblAdaptMsg[0] = text(TextInformation);
  t.lblAdaptMsg[1] = text(TextNichtErreicht);
  t.lblAdaptMsg[3] = "X-" + text(TextFehler);
  t.lblAdaptMsg[5] = fehler.VorschlagMoeglich()
                         ? text(TextVorschlag) + " " + formatNumber(fehler.Vorschlag(), "0") + " s ?"
                         : text(TextNoetig) + " > 100s !!!";
  t.lblAdaptMsg[6] = "Y-" + text(TextFehler);
  t.lblAdaptMsg[9] = text(TextVonHand);
  t.lblAdaptMsg[10] = text(TextIst) + " - " + text(TextWert);
  t.lblAdaptMsg[11] = text(TextSoll) + " - " + text(TextWert);
  const Halbweiten k = fehler.erreicht();
  achse(t.XSoll, t.XIst, fehler.vorgaben().X_Genauigkeit, k.X, Masssystem);
  achse(t.YSoll, t.YIst, fehler.vorgaben().Y_Genauigkeit, k.Y, Masssystem);
  return t;
}

}  // namespace korvin
