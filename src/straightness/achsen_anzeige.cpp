#include "straightness/achsen_anzeige.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string_view>

#include "frame/leerwert.h"
#include "frame/number_format.h"
#include "frame/zahl_text.h"
#include "straightness/achsen_bereich.h"
#include "straightness/masseinheit.h"
#include "straightness/numeric/kennwerte.h"

namespace korvin {
namespace {

using Seite = AchsenZusatzlinie::Seite;

std::string zahl(double wert, const AchsenSchalter& schalter) {
  return formatNumber(wert, ZahlMuster(schalter.NKStellen));
}

bool mitWert(const Messreihe& reihe, std::int16_t punkt) {
  return !istLeer(reihe.Wert[static_cast<std::size_t>(punkt)]);
}

/// Open readings empty, also where the mode has converted them.
Auswertefeld ohneOffene(const Auswertefeld& ausgewertet, const Messreihe& reihe) {
  Auswertefeld kurve = ausgewertet;
  for (std::size_t i = 1; i <= kurve.anzahl(); ++i) {
    if (istLeer(reihe.Wert[i])) kurve.at(i) = Leerwert;
  }
  return kurve;
}

void mittelBerechnen(AchsenAnzeigeDaten& daten, const AchsenSchalter& schalter, AchsenErgebnis& ergebnis) {
  daten.mittel = Mittelwert(daten.ausgewertet.elements());
  ergebnis.Mittel = daten.mittel->wert;
  if (schalter.Mittel)
    daten.texte.Mittel = daten.mittel->gueltig ? "x " + zahl(ergebnis.Mittel, schalter) : "x  ?.?";
}

void streuungBerechnen(AchsenAnzeigeDaten& daten, const AchsenSchalter& schalter, AchsenErgebnis& ergebnis) {
  daten.streuung = Standardabweichung(daten.ausgewertet.elements());
  ergebnis.Streuung = daten.streuung->wert;
  daten.texte.Streuung =
      "±" + formatNumber(schalter.SFak, "0") + "s " +
      (daten.streuung->gueltig ? zahl(schalter.SFak * ergebnis.Streuung, schalter) : "?.?");
}

void extremeBerechnen(AchsenAnzeigeDaten& daten, AchsenErgebnis& ergebnis) {
  daten.extreme = MinMax(daten.ausgewertet.elements());
  ergebnis.MaxWert = daten.extreme->Maximum;
  ergebnis.MinWert = daten.extreme->Minimum;
}

void toleranzBerechnen(AchsenAnzeigeDaten& daten, const AchsenQuelle& quelle, const AchsenSchalter& schalter,
                       AchsenErgebnis& ergebnis) {
  AchsenTexte& texte = daten.texte;
  texte.ToleranzGesamt = gesamtText(ergebnis, schalter.Masssystem);
  texte.ToleranzAbschnitt = abschnittVorgabeText(ergebnis, schalter.Masssystem);
  texte.ErgebnisAbschnitt = abschnittErgebnisText(daten.ausgewertet.elements(), quelle.linie, ergebnis,
                                                  ergebnis, schalter.NKStellen, schalter.Masssystem);
  texte.ErgebnisGesamt = gesamtErgebnisText(ergebnis, *daten.extreme, schalter.NKStellen);
  daten.band = toleranzband(ergebnis, *daten.extreme, schalter.Masssystem);
}

std::string wertText(const AchsenAnzeigeDaten& daten, const AchsenQuelle& quelle,
                     const AchsenSchalter& schalter, std::int16_t punkt) {
  const auto i = static_cast<std::size_t>(punkt);
  if (punkt < 1 || i > daten.ausgewertet.anzahl()) return "?.?";
  return punktWertText(quelle.reihe.Wert[i], daten.ausgewertet.at(i), schalter.NKStellen);
}

}  // namespace

AchsenSchalter achsenSchalter(const GeradInfo& info, std::int16_t Masssystem) {
  return {static_cast<bool>(info.ZeigeMittel),
          static_cast<bool>(info.ZeigeStreuung),
          static_cast<bool>(info.ZeigeSpanne),
          static_cast<bool>(info.ZeigeAbschnitt),
          info.SFak,
          info.NKStellen,
          Masssystem};
}

AchsenQuelle achsenQuelle(const GeradReihe& reihe, const GeradAchse& achse, std::int16_t Masssystem) {
  return {{achse.Wert.elements(), reihe.Linie.Z},
          {reihe.Info.Auswertung, reihe.Info.Ref1, reihe.Info.Ref2, Masssystem},
          reihe.Linie};
}

AchsenAnzeigeDaten achseBerechnen(const AchsenQuelle& quelle, const AchsenSchalter& schalter,
                                  AchsenAnzeige& anzeige, AchsenErgebnis& ergebnis) {
  AchsenAnzeigeDaten daten;
  daten.ausgewertet = ReiheAuswerten(quelle.vorgabe, quelle.reihe);
  daten.kurve = ohneOffene(daten.ausgewertet, quelle.reihe);
  daten.bereich = bereichBestimmen(anzeige, ergebnis, quelle.reihe, daten.ausgewertet, schalter.Masssystem);
  // The lines of the deviation lie about the mean.
  if (schalter.Mittel || schalter.Streuung) mittelBerechnen(daten, schalter, ergebnis);
  if (schalter.Streuung) streuungBerechnen(daten, schalter, ergebnis);
  if (schalter.Spanne || schalter.Abschnitt) extremeBerechnen(daten, ergebnis);
  if (schalter.Spanne) {
    daten.texte.Spanne =
        "R " + (daten.extreme->gueltig ? zahl(ergebnis.MaxWert - ergebnis.MinWert, schalter) : "?.?");
  }
  if (schalter.Abschnitt) toleranzBerechnen(daten, quelle, schalter, ergebnis);
  daten.texte.Bereich = daten.bereich.text;
  daten.texte.Wert = wertText(daten, quelle, schalter, quelle.linie.AktMP);
  return daten;
}

AchsenAnzeigeDaten achseBerechnen(const GeradReihe& reihe, GeradAchse& achse, std::int16_t Masssystem) {
  return achseBerechnen(achsenQuelle(reihe, achse, Masssystem), achsenSchalter(reihe.Info, Masssystem), achse,
                        achse);
}

std::vector<AchsenZusatzlinie> achsenZusatzlinien(const AchsenAnzeigeDaten& daten,
                                                  const AchsenSchalter& schalter) {
  std::vector<AchsenZusatzlinie> linien;
  const double R = daten.bereich.bereich;
  const auto innen = [&](double hoehe, std::string_view text) {
    if (std::fabs(hoehe) < R) linien.push_back({hoehe, std::string(text)});
  };
  const bool mitMittel = daten.mittel && daten.mittel->gueltig;
  if (schalter.Mittel && mitMittel) innen(daten.mittel->wert, "x");
  if (schalter.Streuung && mitMittel && daten.streuung->gueltig) {
    const double s = schalter.SFak * daten.streuung->wert;
    innen(daten.mittel->wert + s, "s");
    innen(daten.mittel->wert - s, "s");
  }
  if (schalter.Spanne && daten.extreme->gueltig) {
    // The range that follows the values has its largest one on the edge at times.
    for (const double hoehe : {daten.extreme->Maximum, daten.extreme->Minimum})
      if (std::fabs(hoehe) <= R) linien.push_back({hoehe, "R"});
  }
  if (!schalter.Abschnitt || !daten.band) return linien;
  for (const double hoehe : {daten.band->oben, daten.band->unten})
    linien.push_back({std::clamp(hoehe, -R, R), std::fabs(hoehe) < R ? "t" : "", LineStyle::dotted,
                      FarbeAchsenLinie, Seite::links});
  return linien;
}

std::vector<AchsenMarke> referenzMarken(const AchsenQuelle& quelle) {
  const Auswertevorgabe& vorgabe = quelle.vorgabe;
  if (vorgabe.Auswertung != AuswertungREF) return {};
  const bool beide = mitWert(quelle.reihe, vorgabe.Ref1) && mitWert(quelle.reihe, vorgabe.Ref2);
  const Farbe farbe = beide ? FarbeRot : FarbeAchsenLinie;
  const auto z = [&](std::int16_t punkt) { return quelle.linie.Z.at(static_cast<std::size_t>(punkt)); };
  return {{z(vorgabe.Ref1), "Ref1", farbe}, {z(vorgabe.Ref2), "Ref2", farbe}};
}

std::string punktHinweis(const AchsenQuelle& quelle, const AchsenAnzeigeDaten& daten,
                         const AchsenSchalter& schalter, std::string_view name, std::int16_t punkt) {
  if (punkt < 1 || punkt > quelle.linie.AnzMPs) return {};
  const bool inch = schalter.Masssystem == MasssystemInch;
  const double z = anzeigeLaenge(quelle.linie.Z.at(static_cast<std::size_t>(punkt)), schalter.Masssystem);
  return "MP " + formatNumber(punkt, "0") + "\nz  " + formatNumber(z, "0.0") + (inch ? " in\n" : " mm\n") +
         std::string(name) + ' ' + wertText(daten, quelle, schalter, punkt) + (inch ? " mil" : " mm");
}

AchsenRahmen achsenRahmen(const AchsenQuelle& quelle, const AchsenAnzeigeDaten& daten, bool Gitter) {
  const bool inch = quelle.vorgabe.Masssystem == MasssystemInch;
  return {daten.bereich.bereich, quelle.linie.Distanz, quelle.linie.Z, quelle.linie.AnzMPs, Gitter,
          inch ? "mil" : "mm"};
}

AchsenInhalt achsenInhalt(const AchsenQuelle& quelle, const AchsenAnzeigeDaten& daten,
                          const AchsenSchalter& schalter) {
  AchsenInhalt inhalt;
  inhalt.marken = referenzMarken(quelle);
  inhalt.linien = achsenZusatzlinien(daten, schalter);
  inhalt.kurven.push_back({{daten.kurve.elements(), quelle.linie.Z}});
  if (quelle.linie.AktMP >= 1 && quelle.linie.AktMP <= quelle.linie.AnzMPs)
    inhalt.cursorZ = quelle.linie.Z.at(static_cast<std::size_t>(quelle.linie.AktMP));
  return inhalt;
}

}  // namespace korvin
