#pragma once

#include <cstdint>
#include <string>

#include "frame/clock.h"
#include "frame/dictionary.h"
#include "reports/bericht.h"
#include "straightness/record.h"

namespace korvin {

/// What a straightness report shows. Nothing chosen gives a document without any mark.
struct GeradBerichtTeile {
  bool XDiagramm = false;
  bool YDiagramm = false;
  bool XTabelle = false;
  bool YTabelle = false;
};

/// The parts that the record's print choices name.
GeradBerichtTeile gewaehlteTeile(const GeradInfo& info);

/// What a straightness report is made of. Series and dictionary are read at once and not needed any more
/// afterwards; the clock tells the time of printing whenever the report is composed, and outlives it.
struct GeradBerichtQuelle {
  const GeradReihe& reihe;
  Dictionary& dictionary;
  const Clock& clock;
  std::int16_t Masssystem = 0;  ///< unit of what is shown: 1 inch and mil, any other number mm
  /// The file's name as the file dialog returned it, UTF-8; its folder is cut off. Empty: that of the record.
  std::string dateiName;
};

/// The report of a straightness series (module `PRNG`): a page with the diagrams, then the table of its first
/// 100 points on up to three pages. Throws `std::out_of_range` for a series whose counts or points lie
/// outside of every series.
Bericht geradBericht(const GeradBerichtQuelle& quelle, const GeradBerichtTeile& teile);

}  // namespace korvin
