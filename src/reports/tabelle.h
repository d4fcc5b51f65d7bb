#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "reports/seitenrahmen.h"

/// Tables that go on over pages. A report tells its table as data: columns with their place and texts, how
/// many rows a page takes, and where they begin. To give a report a table, fill a `Tabelle` and call
/// `tabellenSeiten`.
namespace korvin {

/// A column; x in mm.
struct TabellenSpalte {
  double kopfX;  ///< where the heading begins or, if `kopfRechts`, ends
  std::string kopf;
  double x;  ///< where the values begin or, if `rechtsbuendig`, end
  bool rechtsbuendig;
  double grenze;  ///< how far a value may reach on its other side; longer ones shrink
  /// The text of row i, from 1. Called for each row as it is printed.
  std::function<std::string(int)> wert;
  /// What stands behind a value; may be missing.
  std::function<std::string_view(int)> marke;
  bool kopfRechts = false;
};

/// A footnote in pieces that belong together but stand a little apart.
using Fussnote = std::vector<std::string>;

/// Where a table stands on a page, in mm, and how many rows it has there at most.
struct TabellenPlatz {
  double kopfY;    ///< of title and headings
  double zeilenY;  ///< the first row stands one row's height (6 mm) below
  int zeilen;
};

struct Tabelle {
  std::string titel;
  std::vector<Fussnote> fussnoten;  ///< in one line at the foot of each page that the table has
  std::vector<TabellenSpalte> spalten;
  double regelRechts = 175;  ///< where the rules end
  TabellenPlatz erste;
  TabellenPlatz weitere;
  int anzahl = 0;  ///< rows in all, any limit of the report observed
};

/// Prints all pages of a table, each with head and foot. `ueberTabelle` prints what stands above the table of
/// the first page. A table without rows has one page, with its headings. No memory is kept from page to page.
void tabellenSeiten(Seitenrahmen& rahmen, const Tabelle& tabelle, const std::function<void()>& ueberTabelle);

}  // namespace korvin
