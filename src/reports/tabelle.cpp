#include "reports/tabelle.h"

#include <algorithm>

#include "reports/druck_hilfen.h"

namespace korvin {
namespace {

constexpr double schrift = 9;
constexpr double zeilenHoehe = 6;
constexpr double kopfRegel = 6;    // below the headings
constexpr double zeilenRegel = 5;  // below a row
constexpr double fussnoteY = 268;
constexpr double fussnotenSchrift = 7;
constexpr double stueckAbstand = 2;  // between the pieces of a footnote
constexpr double notenAbstand = 5;

double breite(Drucker& drucker, const std::vector<Fussnote>& fussnoten) {
  double breite = -notenAbstand;
  for (const Fussnote& note : fussnoten) {
    breite += notenAbstand - stueckAbstand;
    for (const std::string& stueck : note) breite += stueckAbstand + drucker.textBreite(stueck);
  }
  return breite;
}

/// All footnotes in one line, smaller where they would not fit.
void fussnotenDrucken(Drucker& drucker, const std::vector<Fussnote>& fussnoten) {
  schriftSetzen(drucker, fussnotenSchrift);
  const double raum = RechterRand - LinkerRand;
  for (double groesse = fussnotenSchrift; breite(drucker, fussnoten) > raum && groesse > 1; groesse -= 0.1)
    drucker.setSchriftGroesse(groesse);
  double x = LinkerRand;
  for (const Fussnote& note : fussnoten) {
    for (const std::string& stueck : note) {
      PositionSetzen(drucker, x, fussnoteY);
      drucker.drucke(stueck);
      x += drucker.textBreite(stueck) + stueckAbstand;
    }
    x += notenAbstand - stueckAbstand;
  }
}

void TabellenKopf(Drucker& drucker, const Tabelle& tabelle, double y) {
  fussnotenDrucken(drucker, tabelle.fussnoten);
  schriftSetzen(drucker, schrift);
  PositionSetzen(drucker, LinkerRand, y);
  LinksDruck(drucker, tabelle.titel, tabelle.spalten.front().kopfX);
  for (const TabellenSpalte& spalte : tabelle.spalten) {
    PositionSetzen(drucker, spalte.kopfX, y);
    if (spalte.kopfRechts) {
      RechtsDruck(drucker, spalte.kopf);
    } else {
      drucker.drucke(spalte.kopf);
    }
  }
  regel(drucker, LinkerRand, y + kopfRegel, tabelle.regelRechts, y + kopfRegel);
}

void TabellenZeile(Drucker& drucker, const Tabelle& tabelle, double y, int i) {
  for (const TabellenSpalte& spalte : tabelle.spalten) {
    PositionSetzen(drucker, spalte.x, y);
    if (spalte.rechtsbuendig) {
      RechtsDruck(drucker, spalte.wert(i), spalte.grenze);
    } else {
      LinksDruck(drucker, spalte.wert(i), spalte.grenze);
    }
    const std::string_view marke = spalte.marke ? spalte.marke(i) : std::string_view();
    if (!marke.empty()) drucker.drucke(marke);
  }
  regel(drucker, LinkerRand, y + zeilenRegel, tabelle.regelRechts, y + zeilenRegel);
}

/// Rows from `erste` on; the number of the first that has no room any more.
int zeilenDrucken(Drucker& drucker, const Tabelle& tabelle, const TabellenPlatz& platz, int erste) {
  const int ende = std::min(erste + platz.zeilen, tabelle.anzahl + 1);
  for (int i = erste; i < ende; ++i) {
    TabellenZeile(drucker, tabelle, platz.zeilenY + (i - erste + 1) * zeilenHoehe, i);
  }
  return ende;
}

}  // namespace

void tabellenSeiten(Seitenrahmen& rahmen, const Tabelle& tabelle, const std::function<void()>& ueberTabelle) {
  const TabellenPlatz* platz = &tabelle.erste;
  int naechste = 1;
  do {
    rahmen.SeiteKopf();
    if (naechste == 1) ueberTabelle();
    TabellenKopf(rahmen.drucker(), tabelle, platz->kopfY);
    naechste = zeilenDrucken(rahmen.drucker(), tabelle, *platz, naechste);
    rahmen.SeiteFuss();
    platz = &tabelle.weitere;
  } while (naechste <= tabelle.anzahl);
}

}  // namespace korvin
