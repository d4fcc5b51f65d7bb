#pragma once

#include "frame/drucker.h"
#include "reports/protokoll.h"
#include "reports/seitenrahmen.h"
#include "reports/statistik_block.h"
#include "reports/tabelle.h"
#include "straightness/achsen_diagramm.h"

/// The report of a line: a page with the diagrams of its axes, each below its block of statistics, then pages
/// of tables. A report of a line fills a `LinienBericht` and has it printed.
namespace korvin {

/// One axis of the report.
struct LinienBerichtAchse {
  bool diagramm = false;  ///< its diagram is wanted
  bool tabelle = false;   ///< its column of the table
  Block diagrammBlock;    ///< above the diagram
  Block tabellenBlock;    ///< above the table
  AchsenRahmen rahmen;
  AchsenInhalt inhalt;
};

/// Where blocks stand on the first table page, in mm.
struct TabellenBlockPlatz {
  double X = 64;
  double Y = 79;
};

/// All that a report of a line prints. What `rahmen`, `inhalt` and the columns look into outlives it.
struct LinienBericht {
  SeitenTexte seiten;
  ProtokollInfo info;
  LinienBerichtAchse X;
  LinienBerichtAchse Y;
  Tabelle tabelle;
  double diagrammY = 150;  ///< what the upper block and diagram are placed by
  TabellenBlockPlatz tabellenBlock{};
};

/// Draws the diagram of an axis, 172 mm wide and 85 mm high with its margins, with its top at `y`.
void AchsenDiagramm(Drucker& drucker, double y, const AchsenRahmen& rahmen, const AchsenInhalt& inhalt);

/// Composes all pages and ends the document; with nothing chosen it prints nothing. A diagram of Y alone
/// stands where that of X would. `druckzeit` in days is the moment of printing.
void linienBerichtDrucken(Drucker& drucker, const LinienBericht& bericht, double druckzeit);

}  // namespace korvin
