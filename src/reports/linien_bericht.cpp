#include "reports/linien_bericht.h"

#include "reports/druck_hilfen.h"
#include "reports/page_surface.h"

namespace korvin {
namespace {

constexpr double diagrammEinzug = 12.4;  // lines the block up with the plot
constexpr double blockUeber = 81.2;      // what block and diagram of the upper place stand above it
constexpr double diagrammUeber = 72;
constexpr double naechstesDiagramm = 102;
constexpr double diagrammBreite = 172;
constexpr double diagrammHoehe = 85;
constexpr double diagrammSchrift = 8;

void achseDrucken(Drucker& drucker, double y, const LinienBerichtAchse& achse) {
  AchsenBlock(drucker, diagrammEinzug, y - blockUeber, achse.diagrammBlock);
  AchsenDiagramm(drucker, y - diagrammUeber, achse.rahmen, achse.inhalt);
}

void diagrammSeite(Seitenrahmen& seite, const LinienBericht& bericht, double druckzeit) {
  Drucker& drucker = seite.drucker();
  seite.SeiteKopf();
  bericht.info.drucken(drucker, druckzeit);
  double y = bericht.diagrammY;
  for (const LinienBerichtAchse* achse : {&bericht.X, &bericht.Y}) {
    if (!achse->diagramm) continue;
    achseDrucken(drucker, y, *achse);
    y += naechstesDiagramm;
  }
  seite.SeiteFuss();
}

void ueberTabelle(Drucker& drucker, const LinienBericht& bericht, double druckzeit) {
  bericht.info.drucken(drucker, druckzeit);
  if (bericht.X.tabelle) AchsenBlock(drucker, 0, bericht.tabellenBlock.X, bericht.X.tabellenBlock);
  if (bericht.Y.tabelle) AchsenBlock(drucker, 0, bericht.tabellenBlock.Y, bericht.Y.tabellenBlock);
}

}  // namespace

void AchsenDiagramm(Drucker& drucker, double y, const AchsenRahmen& rahmen, const AchsenInhalt& inhalt) {
  PageSurface flaeche(drucker, {LinkerRand, y, diagrammBreite, diagrammHoehe}, diagrammSchrift);
  achsenRahmenZeichnen(flaeche, rahmen);
  achsenInhaltZeichnen(flaeche, rahmen, inhalt);
  millimeterSkala(drucker);
  drucker.setLinienBreite(1);
}

void linienBerichtDrucken(Drucker& drucker, const LinienBericht& bericht, double druckzeit) {
  Seitenrahmen seite(drucker, bericht.seiten);
  if (bericht.X.diagramm || bericht.Y.diagramm) diagrammSeite(seite, bericht, druckzeit);
  if (bericht.X.tabelle || bericht.Y.tabelle)
    tabellenSeiten(seite, bericht.tabelle, [&] { ueberTabelle(drucker, bericht, druckzeit); });
  drucker.dokumentEnde();
}

}  // namespace korvin
