#include "reports/prng.h"

#include <algorithm>
#include <cstddef>

#include "frame/leerwert.h"
#include "frame/number_format.h"
#include "frame/record_text.h"
#include "frame/zahl_text.h"
#include "reports/linien_tabelle.h"
#include "straightness/masseinheit.h"

namespace korvin {
namespace {

// Older than the record's room for 201 points, and kept: further points are not printed.
constexpr std::size_t meisteZeilen = 100;

constexpr TabellenPlatz ersteSeite{95, 95, 27};
constexpr TabellenPlatz weitereSeiten{30, 30, 37};

/// Everything is computed; what the diagram shows of it is another matter.
AchsenSchalter allesAn(AchsenSchalter schalter) {
  schalter.Mittel = schalter.Streuung = schalter.Spanne = schalter.Abschnitt = true;
  return schalter;
}

bool offen(const GeradAchse& messung, int punkt) {
  const auto i = static_cast<std::size_t>(punkt);
  return i > messung.Wert.anzahl() || istLeer(messung.Wert.at(i));
}

}  // namespace

PRNG::PRNG(const GeradBerichtQuelle& quelle, const GeradBerichtTeile& teile)
    : reihe_(quelle.reihe),
      masssystem_(quelle.Masssystem),
      clock_(quelle.clock),
      dateiName_(protokollDatei(quelle.dateiName.empty() ? utf8(reihe_.Info.DateiName) : quelle.dateiName)),
      auswertung_(auswertungsText(quelle.dictionary, reihe_.Info.Auswertung)),
      bericht_{seitenTexte(quelle.dictionary, utf8(reihe_.Info.FirmaName)),
               ProtokollInfo(quelle.dictionary, angaben()),
               {},
               {},
               {}} {
  bericht_.X.diagramm = teile.XDiagramm;
  bericht_.Y.diagramm = teile.YDiagramm;
  bericht_.X.tabelle = teile.XTabelle;
  bericht_.Y.tabelle = teile.YTabelle;
  auswerten(reihe_.X, x_);
  auswerten(reihe_.Y, y_);
  achseAnlegen(bericht_.X, {"X", reihe_.X, x_}, quelle.dictionary);
  achseAnlegen(bericht_.Y, {"Y", reihe_.Y, y_}, quelle.dictionary);
  tabelleAnlegen(quelle.dictionary);
}

ProtokollAngaben PRNG::angaben() const {
  const GeradInfo& info = reihe_.Info;
  const bool inch = masssystem_ == MasssystemInch;
  return {utf8(info.Bezeichnung),
          utf8(info.KameraText),
          dateiName_,
          utf8(info.Bediener),
          utf8(info.Datum),
          reihe_.Linie.AnzMPs,
          3000,
          formatNumber(anzeigeLaenge(reihe_.Linie.Distanz, masssystem_), "0.0") + (inch ? " in" : " mm"),
          info.Montage,
          info.Filter.full().front(),
          utf8(info.Kommentar)};
}

void PRNG::auswerten(GeradAchse& messung, AchsenAnzeigeDaten& daten) {
  daten = achseBerechnen(achsenQuelle(reihe_, messung, masssystem_),
                         allesAn(achsenSchalter(reihe_.Info, masssystem_)), messung, messung);
}

void PRNG::achseAnlegen(LinienBerichtAchse& ziel, const Achse& achse, Dictionary& dictionary) {
  const AchsenSchalter schalter = achsenSchalter(reihe_.Info, masssystem_);
  const AchsenQuelle quelle = achsenQuelle(reihe_, achse.messung, masssystem_);

  AchsenBlockTexte texte =
      achsenBlockTexte(dictionary, achse.name, {achse.daten, achse.messung, reihe_.Linie, schalter});
  const std::string name = std::string(achse.name) + "-";
  texte.titel = name + dictionary.DicText(3017) + ":  " + auswertung_;
  ziel.diagrammBlock = achsenBlock(texte);
  // The table's title for X has a blank more than that for Y.
  texte.titel = name + dictionary.DicText(3018) + (achse.name == "X" ? ":   " : ":  ") + auswertung_;
  ziel.tabellenBlock = achsenBlock(texte);

  ziel.rahmen = achsenRahmen(quelle, achse.daten, static_cast<bool>(reihe_.Info.Gitter));
  achsenPapierRahmen(ziel.rahmen, achse.daten.bereich, reihe_.Linie.Distanz > 0, masssystem_);
  ziel.inhalt = achsenInhalt(quelle, achse.daten, schalter);
  ziel.inhalt.cursorZ.reset();
  ziel.inhalt.kurven.front().punkte = true;
}

// ---- The table ----

void PRNG::tabelleAnlegen(Dictionary& dictionary) {
  Tabelle& tabelle = bericht_.tabelle;
  tabelle.titel = auswertung_ + ": " + dictionary.DicText(3018);
  tabelle.fussnoten = linienFussnoten(dictionary, auswertung_);
  tabelle.erste = ersteSeite;
  tabelle.weitere = weitereSeiten;
  tabelle.anzahl = static_cast<int>(std::min(reihe_.X.Wert.anzahl(), meisteZeilen));
  nummernSpalte(tabelle, dictionary.DicText(3066));
  zSpalte(tabelle, masssystem_, [this](int i) { return reihe_.Linie.Z.at(static_cast<std::size_t>(i)); });
  std::vector<WertSpalte> spalten;
  const auto spalte = [&](std::string_view name, const GeradAchse& messung, const Auswertefeld& werte) {
    spalten.push_back({name, [this, &messung, &werte](int i) { return wert(messung, werte, i); },
                       [this, &messung, &werte](int i) { return marke(messung, werte, i); }});
  };
  if (bericht_.X.tabelle) spalte("X", reihe_.X, x_.ausgewertet);
  if (bericht_.Y.tabelle) spalte("Y", reihe_.Y, y_.ausgewertet);
  wertSpalten(tabelle, masssystem_, spalten);
}

std::string PRNG::wert(const GeradAchse& messung, const Auswertefeld& ausgewertet, int punkt) const {
  if (offen(messung, punkt)) return std::string(OhneWert);
  return formatNumber(ausgewertet.at(static_cast<std::size_t>(punkt)), ZahlMuster(reihe_.Info.NKStellen));
}

std::string_view PRNG::marke(const GeradAchse& messung, const Auswertefeld& ausgewertet, int punkt) const {
  if (offen(messung, punkt)) return {};
  return ToleranzMarke(ausgewertet.at(static_cast<std::size_t>(punkt)), messung, masssystem_);
}

}  // namespace korvin
