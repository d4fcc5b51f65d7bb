#pragma once

#include <QString>
#include <QWidget>
#include <functional>
#include <string>
#include <vector>

#include "frame/file_dialog.h"
#include "frame/file_system.h"
#include "reports/druck_start.h"
#include "reports/ui/byte_blocks.h"
#include "reports/ui/compose.h"
#include "reports/ui/print_progress.h"
#include "reports/ui/printer_choice.h"

namespace korvin {

/// What putting out reports works with. All outlive it.
struct AusgabeUmgebung {
  ProgressUmgebung progress;
  DruckUmgebung druck;
  FileDialog& fileDialog;
  FileSystem& fileSystem;
  PrinterChoice& printers;
  std::function<int()> sprache;         ///< index 0 to 7 of the present language
  std::function<std::string()> ordner;  ///< where the PDFs are offered to lie
};

/// Puts a report out: to the system's printers, into a preview, into a PDF file. All three use the same
/// composition. A failure is told in a message; a cancelled print leaves nothing. While one report is being
/// put out a second one is refused.
///
/// A printer gets its pages only when all are composed: until then Cancel leaves nothing behind, from then on
/// the system's own queue can be asked to drop the job.
class Berichtsausgabe {
 public:
  explicit Berichtsausgabe(AusgabeUmgebung umgebung) : u_(std::move(umgebung)) {}

  bool druckerDa() { return u_.printers.available(); }

  /// These return true if the report was put out: printed, seen, saved. Boxes lie over `parent`.
  bool drucken(const Bericht& bericht, QWidget* parent);
  bool vorschau(const Bericht& bericht, QWidget* parent);
  bool alsPdf(const Bericht& bericht, QWidget* parent);

 private:
  using Pages = std::vector<PageMarks>;

  bool einmal(const std::function<bool()>& ausgabe);
  /// Runs the trap of the print entry; false after a failure or Cancel.
  bool komponiert(const Bericht& bericht, const std::function<void(const Bericht&)>& ausgabe);
  bool seitenVon(const Bericht& bericht, QWidget* parent, Pages& pages);
  bool seitenDrucken(const Bericht& bericht, const Pages& pages, QWidget* parent);
  std::string pdfName(const Bericht& bericht);
  bool pdfSichern(const std::string& name, const ByteBlocks& pdf);
  QString pdfDerSeiten(const Bericht& bericht, const Pages& pages, QWidget* parent);

  AusgabeUmgebung u_;
  bool laeuft_ = false;
};

}  // namespace korvin
