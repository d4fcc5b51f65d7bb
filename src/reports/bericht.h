#pragma once

#include <functional>
#include <string>

#include "frame/drucker.h"

/// To add a report: a class like `PRNO` (prno.h) takes a snapshot of the record and makes of it, as data, an
/// information block (info_block.h), blocks of statistics (statistik_block.h) and a `Tabelle` (tabelle.h)
/// with its columns, row limits and page starts. Its `drucken` begins and ends each page with a
/// `Seitenrahmen` (seitenrahmen.h); diagrams draw on a `PageSurface`. A report of points along a line fills a
/// `LinienBericht` (linien_bericht.h) instead, as `PRNG` (prng.h) does. A function like `positionsBericht`
/// makes a `Bericht` of it, for window and command line alike.
namespace korvin {

/// A report that can be composed as often as it is wanted: for the printer, the preview, a PDF. It owns a
/// snapshot of all it prints, so that a measurement that goes on changes nothing in it.
struct Bericht {
  std::string titel;      ///< the document's title, UTF-8
  std::string dateiName;  ///< what a PDF of it would be called, without folder and extension; UTF-8
  /// Composes all pages, `dokumentEnde` included. Throws what the `Drucker` throws, and
  /// `std::runtime_error`, `std::out_of_range` where the data cannot be printed.
  std::function<void(Drucker&)> drucken;
};

}  // namespace korvin
