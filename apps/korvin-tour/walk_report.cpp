#include <QFile>

#include "names.h"
#include "reports/ui/preview_pages.h"
#include "walk.h"

namespace korvin::tour {
namespace {

/// Of the preview, while its pages are taken: a page is as high as this allows.
constexpr QSize pictureRoom{1000, 1400};

PreviewPages& previewPages() {
  QWidget* preview = findWindow(names::preview);
  auto* pages = preview == nullptr ? nullptr : preview->findChild<PreviewPages*>();
  if (pages == nullptr) throw StepFailed("there is no preview");
  return *pages;
}

void savePage(PreviewPages& pages, int number, const QString& file) {
  pages.showPage(number);
  if (!pages.viewport()->grab(pages.placeOf(number)).save(file))
    throw StepFailed("the picture " + file.toStdString() + " can't be written");
}

}  // namespace

int Walk::pagePictures(const QString& name) {
  return Gui().ask([this, name] {
    PreviewPages& pages = previewPages();
    pages.window()->resize(pictureRoom);
    pages.setFit(PreviewPages::Fit::page);
    for (int number = 1; number <= pages.pageCount(); ++number)
      savePage(pages, number, QStringLiteral("%1/%2-%3.png").arg(places_.pictures, name).arg(number));
    return pages.pageCount();
  });
}

void Walk::openPrintDialog(const PrintPlace& place) {
  hand_.click(place.window, QStringLiteral("DRUCKEN"));
  hand_.waitFor(place.dialog);
  for (const QString& box : place.boxes) set(place.dialog, box);
}

std::string Walk::previewFor(const PrintPlace& place) {
  openPrintDialog(place);
  hand_.picture(place.dialog, place.pictures + QStringLiteral("print-dialog"));
  hand_.click(place.dialog, QStringLiteral("CommandVorschau"));
  hand_.waitFor(names::preview);
  const std::string shown = hand_.label(names::preview, QStringLiteral("PreviewPage")).toStdString();
  hand_.picture(names::preview, place.pictures + QStringLiteral("print-preview"));
  const int pages = pagePictures(place.pictures + QStringLiteral("report"));
  hand_.press(names::preview, Qt::Key_Escape);
  hand_.waitGone(names::preview);
  hand_.click(place.dialog, QStringLiteral("CommandDruckAbbrechen(1)"));
  hand_.waitGone(place.dialog);
  if (pages < place.fewestPages) throw StepFailed(std::to_string(pages) + " pages");
  return shown;
}

std::string Walk::pdfFor(const PrintPlace& place, const QString& file) {
  openPrintDialog(place);
  hand_.click(place.dialog, QStringLiteral("CommandPdf"));
  typeFileAndAccept(file);
  hand_.waitGone(place.dialog);
  QFile pdf(file);
  if (!pdf.open(QIODevice::ReadOnly) || !pdf.read(4).startsWith("%PDF"))
    throw StepFailed("there is no report");
  return std::to_string(pdf.size()) + " bytes";
}

}  // namespace korvin::tour
