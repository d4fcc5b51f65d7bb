#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "reports/positions_bericht.h"
#include "reports/protokoll.h"
#include "reports/seitenrahmen.h"
#include "reports/statistik_block.h"
#include "reports/tabelle.h"

namespace korvin {

/// The module `PRNO`: the report of one position measurement. It works on a snapshot, so that the measurement
/// may go on; composing changes nothing in it and can be repeated.
class PRNO {
 public:
  PRNO(const PositionsBerichtQuelle& quelle, const PositionsBerichtTeile& teile);
  PRNO(const PRNO&) = delete;  // its table reads the points of this very snapshot
  PRNO& operator=(const PRNO&) = delete;

  /// Composes all pages and ends the document.
  void drucken(Drucker& drucker) const;

  const std::string& dateiName() const { return dateiName_; }

 private:
  // The frame's words and blocks, made when the snapshot is taken: no dictionary is asked later.
  ProtokollAngaben angaben() const;
  void achsenBloecke(Dictionary& dictionary);
  Block achsenBlock(std::string_view name, const AchsenInfo& achse, const std::string& titel) const;
  std::string offsetText() const;
  void tabelleAnlegen(Dictionary& dictionary);
  void spaltenAnlegen(Dictionary& dictionary);
  TabellenSpalte wertSpalte(std::string_view name, double x, double links, const PunktFeld& werte) const;

  std::string momentText(int nummer, std::string_view muster) const;
  std::string zahl(double wert) const;
  std::string_view einheit() const { return masssystem_ == 1 ? "mil" : "mm"; }

  void diagrammSeite(Seitenrahmen& rahmen) const;
  void xyDiagramm(Drucker& drucker) const;

  PositionsDatei datei_;
  PointStore punkte_;
  PositionsBerichtTeile teile_;
  int masssystem_;
  int anzahl_;  ///< points
  const Clock& clock_;
  std::string dateiName_;
  SeitenTexte seitenTexte_;
  ProtokollInfo info_;
  Block diagrammX_;
  Block diagrammY_;
  Block tabelleX_;
  Block tabelleY_;
  Tabelle tabelle_;
};

}  // namespace korvin
