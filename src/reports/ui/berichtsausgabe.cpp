#include "reports/ui/berichtsausgabe.h"

#include <QScopedValueRollback>
#include <stdexcept>
#include <utility>

#include "frame/datei_dialog.h"
#include "frame/file_message.h"
#include "frame/ui/mouse_pointer.h"
#include "frame/ui/qt_text.h"
#include "reports/seiten_zahl.h"
#include "reports/ui/device_pages.h"
#include "reports/ui/pdf_document.h"
#include "reports/ui/print_preview.h"
#include "reports/ui/printing.h"

namespace korvin {
namespace {

constexpr std::int16_t textPdf = 7426;
constexpr std::int16_t textComposing = 7434;
constexpr std::int16_t textHandingOver = 7435;
constexpr std::int16_t textMakingPdf = 7436;
constexpr std::int16_t textSaved = 7437;
constexpr std::int16_t textRefused = 7438;
constexpr std::int16_t textPdfFiles = 7440;

using Cancelling = PrintProgress::Cancelling;

PageWatch watchOf(PrintProgress& progress) {
  return [&progress](int page) { progress.page(page); };
}

}  // namespace

bool Berichtsausgabe::einmal(const std::function<bool()>& ausgabe) {
  if (laeuft_) return false;
  const QScopedValueRollback<bool> scope(laeuft_, true);
  try {
    return ausgabe();
  } catch (const DruckAbgebrochen&) {
    return false;
  } catch (const std::exception& fehler) {
    DruckGescheitert(fehler, u_.druck);
    return false;
  }
}

bool Berichtsausgabe::komponiert(const Bericht& bericht, const std::function<void(const Bericht&)>& ausgabe) {
  bool complete = false;
  Bericht trapped = bericht;
  trapped.drucken = [&](Drucker& drucker) { complete = DruckStart(bericht, drucker, u_.druck); };
  ausgabe(trapped);
  return complete;
}

bool Berichtsausgabe::seitenVon(const Bericht& bericht, QWidget* parent, Pages& pages) {
  PrintProgress progress(
      u_.progress, textComposing, [&bericht] { return SeitenZahl(bericht); }, Cancelling::allowed, parent);
  TextShaper shaper(u_.sprache());
  return komponiert(
      bericht, [&](const Bericht& trapped) { pages = composedPages(trapped, shaper, watchOf(progress)); });
}

// ---- Printer ----

bool Berichtsausgabe::drucken(const Bericht& bericht, QWidget* parent) {
  return einmal([&] {
    Pages pages;
    return seitenVon(bericht, parent, pages) && seitenDrucken(bericht, pages, parent);
  });
}

bool Berichtsausgabe::seitenDrucken(const Bericht& bericht, const Pages& pages, QWidget* parent) {
  QPrinter printer(QPrinter::HighResolution);
  printer.setPageSize(QPageSize(QPageSize::A4));
  if (!u_.printers.choose(printer, static_cast<int>(pages.size()), parent)) return false;
  const auto count = static_cast<int>(wantedPages(printer, static_cast<int>(pages.size())).size());
  PrintProgress progress(
      u_.progress, textHandingOver, [count] { return count; }, Cancelling::tooLate, parent);
  TextShaper shaper(u_.sprache());
  try {
    // The dialog may have been open for long.
    if (!u_.printers.present(printer)) throw DeviceRefused("the printer is gone");
    handOver(printer, bericht.titel, pages, shaper, watchOf(progress));
  } catch (const DeviceRefused&) {
    throw std::runtime_error(u_.druck.dictionary.DicText(textRefused));
  }
  return true;
}

// ---- Preview ----

bool Berichtsausgabe::vorschau(const Bericht& bericht, QWidget* parent) {
  return einmal([&] {
    Pages pages;
    if (!seitenVon(bericht, parent, pages)) return false;
    const NormalPointerScope pointer;
    PrintPreview preview(u_.druck.dictionary, bericht.titel, pages, u_.sprache(), druckerDa(), parent);
    // A print of its own each: what fails or is cancelled in one ends only that.
    const auto within = [this](const std::function<bool()>& ausgabe) {
      laeuft_ = false;
      const bool done = einmal(ausgabe);
      laeuft_ = true;
      return done;
    };
    preview.onPrint = [&] { within([&] { return seitenDrucken(bericht, pages, &preview); }); };
    preview.onPdf = [&] {
      QString said;
      within([&] {
        said = pdfDerSeiten(bericht, pages, &preview);
        return true;
      });
      return said;
    };
    preview.exec();
    return true;
  });
}

// ---- PDF ----

std::string Berichtsausgabe::pdfName(const Bericht& bericht) {
  Dictionary& dictionary = u_.druck.dictionary;
  return dateiErfragen(u_.fileDialog, u_.ordner(), dictionary.DicText(textPdfFiles) + " (*.pdf)|*.pdf",
                       dictionary.DicText(textPdf), false, bericht.dateiName + ".pdf");
}

bool Berichtsausgabe::pdfSichern(const std::string& name, const ByteBlocks& pdf) {
  const SaveResult result = savePdf(u_.fileSystem, name, pdf);
  if (result.state == SaveState::saved) return true;
  u_.druck.meldung = speichernGescheitert(u_.druck.dictionary, "PDF", result);
  u_.druck.messages.beep();
  u_.druck.messages.show(u_.druck.meldung, MessageIcon::warning, MessageButtons::ok);
  return false;
}

bool Berichtsausgabe::alsPdf(const Bericht& bericht, QWidget* parent) {
  return einmal([&] {
    const std::string name = pdfName(bericht);
    if (name.empty()) return false;
    ByteBlocks pdf;
    {
      PrintProgress progress(
          u_.progress, textMakingPdf, [&bericht] { return SeitenZahl(bericht); }, Cancelling::allowed,
          parent);
      const bool complete = komponiert(
          bericht, [&](const Bericht& trapped) { renderPdf(trapped, u_.sprache(), watchOf(progress), pdf); });
      if (!complete) return false;
    }
    return pdfSichern(name, pdf);
  });
}

QString Berichtsausgabe::pdfDerSeiten(const Bericht& bericht, const Pages& pages, QWidget* parent) {
  const std::string name = pdfName(bericht);
  if (name.empty()) return {};
  ByteBlocks pdf;
  {
    const auto count = static_cast<int>(pages.size());
    PrintProgress progress(
        u_.progress, textMakingPdf, [count] { return count; }, Cancelling::allowed, parent);
    renderPdf(bericht.titel, pages, u_.sprache(), watchOf(progress), pdf);
  }
  if (!pdfSichern(name, pdf)) return {};
  return qText(u_.druck.dictionary.DicText(textSaved)) + QStringLiteral(": ") + qText(name);
}

}  // namespace korvin
