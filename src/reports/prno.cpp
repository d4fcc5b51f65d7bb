#include "reports/prno.h"

#include <algorithm>
#include <cstddef>

#include "frame/date_format.h"
#include "frame/leerwert.h"
#include "frame/number_format.h"
#include "frame/record_text.h"
#include "frame/zahl_text.h"
#include "position/statistics_texts.h"
#include "position/xy_diagram.h"
#include "reports/druck_hilfen.h"
#include "reports/page_surface.h"

namespace korvin {
namespace {

// Commas in the time of a row, on purpose: sheets that users keep are read in by this.
constexpr std::string_view zeilenZeitMuster = "dd.mm.yy / hh,mm,ss";
constexpr std::string_view offsetMarke = " !";

// The diagram page.
constexpr double blockEinzug = 13;
constexpr double diagrammBlockX = 71;
constexpr double diagrammBlockY = 78;
constexpr SeitenRechteck diagrammRechteck{LinkerRand, 80, 177, 177};
constexpr double diagrammSchrift = 8;

// The table pages.
constexpr double tabellenBlockX = 65;
constexpr double tabellenBlockY = 73;
constexpr TabellenPlatz ersteSeite{85, 88, 28};
constexpr TabellenPlatz weitereSeiten{33, 33, 36};
constexpr double nummerX = 55;
constexpr double zeitX = 75;
constexpr double ersterWertX = 125;
constexpr double zweiterWertX = 165;
constexpr double spaltenLuft = 2;
constexpr double markenPlatz = 4;  // behind the first value, for the mark of the offset

PointStore kopie(const PointStore& punkte) {
  PointStore neu;
  neu.X() = punkte.X();
  neu.Y() = punkte.Y();
  neu.T() = punkte.T();
  return neu;
}

void statistik(AchsenInfo& achse, int anzahl) {
  achse.Mittel = mittelwert(achse, anzahl).value_or(Leerwert);
  achse.Streuung = standardabweichung(achse, anzahl).value_or(Leerwert);
}

}  // namespace

// ---- The snapshot ----

PRNO::PRNO(const PositionsBerichtQuelle& quelle, const PositionsBerichtTeile& teile)
    : datei_(quelle.datei),
      punkte_(kopie(quelle.punkte)),
      teile_(teile),
      masssystem_(quelle.Masssystem),
      anzahl_(std::clamp<int>(quelle.datei.Info.AnzahlMP, 0, MaxPunkteO)),
      clock_(quelle.clock),
      dateiName_(protokollDatei(quelle.dateiName.empty() ? utf8(datei_.Info.DateiName) : quelle.dateiName)),
      seitenTexte_(seitenTexte(quelle.dictionary, utf8(datei_.Info.FirmaName))),
      info_(quelle.dictionary, angaben()) {
  statistik(datei_.X, anzahl_);
  statistik(datei_.Y, anzahl_);
  achsenBloecke(quelle.dictionary);
  tabelleAnlegen(quelle.dictionary);
}

std::string PRNO::zahl(double wert) const {
  return formatNumber(wert, ZahlMuster(datei_.Info.NKStellen));
}

std::string PRNO::momentText(int nummer, std::string_view muster) const {
  if (nummer < 1 || nummer > anzahl_) return std::string(OhneWert);
  const double moment = punkte_.T().at(static_cast<std::size_t>(nummer));
  return istLeer(moment) ? std::string(OhneWert) : formatDate(moment, muster);
}

ProtokollAngaben PRNO::angaben() const {
  const PositionsInfo& info = datei_.Info;
  return {utf8(info.Bezeichnung),
          utf8(info.ProgrammText),
          dateiName_,
          utf8(info.Bediener),
          utf8(info.Datum),
          info.AnzahlMP,
          3084,
          momentText(1, ProtokollZeitMuster) + " - " + momentText(anzahl_, ProtokollZeitMuster),
          info.Montage,
          info.Filter.full().front(),
          utf8(info.Kommentar)};
}

std::string PRNO::offsetText() const {
  if (!datei_.Info.OffsetAktiv) return " --";
  return " " + formatNumber(datei_.Info.OffsetMP, "0") + " / " + zahl(datei_.X.Offset) + " / " +
         zahl(datei_.Y.Offset);
}

Block PRNO::achsenBlock(std::string_view name, const AchsenInfo& achse, const std::string& titel) const {
  const auto wert = [this](const std::string& zeichen, bool vorhanden, double zahlWert) {
    return vorhanden ? zeichen + " " + zahl(zahlWert) : zeichen + "  " + std::string(OhneWert);
  };
  const int SFak = datei_.Info.SFak;
  return statistikBlock({std::string(name), titel, wert("x", !istLeer(achse.Mittel), achse.Mittel),
                         wert(formatNumber(SFak, "0") + "s", !istLeer(achse.Streuung), SFak * achse.Streuung),
                         wert("R", anzahl_ > 0, achse.Maximum - achse.Minimum)});
}

void PRNO::achsenBloecke(Dictionary& dictionary) {
  const std::string offset = "  " + dictionary.DicText(3082) + ":" + offsetText();
  const std::string diagramm = "XY-" + dictionary.DicText(3017) + ":" + offset;
  const std::string tabelle = "XY-" + dictionary.DicText(3018) + offset;
  diagrammX_ = achsenBlock("X", datei_.X, diagramm);
  diagrammY_ = achsenBlock("Y", datei_.Y, diagramm);
  tabelleX_ = achsenBlock("X", datei_.X, tabelle);
  tabelleY_ = achsenBlock("Y", datei_.Y, tabelle);
}

// ---- The table ----

void PRNO::tabelleAnlegen(Dictionary& dictionary) {
  const std::string achsen = teile_.XTabelle && teile_.YTabelle ? "XY-" : (teile_.XTabelle ? "X-" : "Y-");
  tabelle_.titel = achsen + dictionary.DicText(3018) + ": ";
  // Positions are never evaluated: the table has them as they were measured, the offset not taken off.
  tabelle_.fussnoten = {
      {dictionary.DicText(3064) + ": " + dictionary.DicText(3060) + "   ! = " + dictionary.DicText(3090)}};
  tabelle_.erste = ersteSeite;
  tabelle_.weitere = weitereSeiten;
  tabelle_.anzahl = anzahl_;
  spaltenAnlegen(dictionary);
}

void PRNO::spaltenAnlegen(Dictionary& dictionary) {
  tabelle_.spalten.push_back({nummerX,
                              dictionary.DicText(3066),
                              nummerX,
                              true,
                              LinkerRand,
                              [](int i) { return formatNumber(i, "0"); },
                              {}});
  tabelle_.spalten.push_back({zeitX,
                              dictionary.DicText(3056) + " / " + dictionary.DicText(3055),
                              zeitX,
                              false,
                              ersterWertX,
                              [this](int i) { return momentText(i, zeilenZeitMuster); },
                              {}});
  double x = ersterWertX;
  double links = zeitX + 35;
  const auto anhaengen = [&](std::string_view name, const PunktFeld& werte) {
    tabelle_.spalten.push_back(wertSpalte(name, x, links, werte));
    links = x + markenPlatz;
    x = zweiterWertX;
  };
  if (teile_.XTabelle) anhaengen("X", punkte_.X());
  if (teile_.YTabelle) anhaengen("Y", punkte_.Y());
}

TabellenSpalte PRNO::wertSpalte(std::string_view name, double x, double links, const PunktFeld& werte) const {
  const auto wert = [this, &werte](int i) {
    const double zahlWert = werte.at(static_cast<std::size_t>(i));
    return istLeer(zahlWert) ? std::string(OhneWert) : zahl(zahlWert);
  };
  const auto marke = [this](int i) {
    return datei_.Info.OffsetAktiv && i == datei_.Info.OffsetMP ? offsetMarke : std::string_view();
  };
  const std::string kopf = std::string(name) + "[" + std::string(einheit()) + "]";
  return {x, kopf, x, true, links + spaltenLuft, wert, marke};
}

// ---- Composing ----

void PRNO::drucken(Drucker& drucker) const {
  Seitenrahmen rahmen(drucker, seitenTexte_);
  if (teile_.XYDiagramm) diagrammSeite(rahmen);
  if (teile_.XTabelle || teile_.YTabelle) {
    tabellenSeiten(rahmen, tabelle_, [&] {
      info_.drucken(drucker, clock_.now());
      if (teile_.XTabelle) AchsenBlock(drucker, 0, tabellenBlockX, tabelleX_);
      if (teile_.YTabelle) AchsenBlock(drucker, 0, tabellenBlockY, tabelleY_);
    });
  }
  drucker.dokumentEnde();
}

void PRNO::diagrammSeite(Seitenrahmen& rahmen) const {
  Drucker& drucker = rahmen.drucker();
  rahmen.SeiteKopf();
  info_.drucken(drucker, clock_.now());
  AchsenBlock(drucker, blockEinzug, diagrammBlockX, diagrammX_);
  AchsenBlock(drucker, blockEinzug, diagrammBlockY, diagrammY_);
  xyDiagramm(drucker);
  rahmen.SeiteFuss();
}

void PRNO::xyDiagramm(Drucker& drucker) const {
  PositionsDatei datei = datei_;  // drawing writes the ranges back
  XYDiagramm diagramm(datei, punkte_, masssystem_);
  diagramm.bereicheErmitteln();
  PageSurface flaeche(drucker, diagrammRechteck, diagrammSchrift);
  const XYRahmen rahmen = diagramm.rahmen();
  diagramm.zeichnen(flaeche, xyPapierBeschriftung(rahmen.X, rahmen.Y));
}

}  // namespace korvin
