#pragma once

#include <string>

#include "frame/clock.h"
#include "frame/dictionary.h"
#include "position/point_store.h"
#include "position/record.h"
#include "reports/bericht.h"

namespace korvin {

/// What a position report shows. Nothing chosen gives a document without any mark.
struct PositionsBerichtTeile {
  bool XYDiagramm = false;
  bool XTabelle = false;
  bool YTabelle = false;
};

/// The parts that the record's print choices name.
PositionsBerichtTeile gewaehlteTeile(const PositionsInfo& info);

/// What a position report is made of. Record, points and dictionary are read at once and not needed any more
/// afterwards; the clock tells the time of printing whenever the report is composed, and outlives it.
struct PositionsBerichtQuelle {
  const PositionsDatei& datei;
  const PointStore& punkte;
  Dictionary& dictionary;
  const Clock& clock;
  int Masssystem = 0;  ///< 1 inch (mil), else metric (mm): in which unit was measured. Nothing is converted
  /// The file's name as the file dialog returned it, UTF-8; its folder is cut off. Empty: that of the record.
  std::string dateiName;
};

/// The report of a position measurement (module `PRNO`): a page with the XY diagram, then the table of all
/// points, 28 on its first page and 36 on each further one.
Bericht positionsBericht(const PositionsBerichtQuelle& quelle, const PositionsBerichtTeile& teile);

}  // namespace korvin
