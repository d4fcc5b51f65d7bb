#include "reports/ui/print_preview.h"

#include <QLabel>
#include <QScreen>
#include <QVBoxLayout>
#include <cmath>

#include "frame/ui/qt_text.h"
#include "frame/ui/theme.h"

namespace korvin {
namespace {

constexpr std::int16_t textPage = 3063;
constexpr std::int16_t textPrint = 7424;
constexpr std::int16_t textPdf = 7426;
constexpr std::int16_t textNoPrinter = 7427;
constexpr std::int16_t textTitle = 7429;
constexpr std::int16_t textLarger = 7430;
constexpr std::int16_t textSmaller = 7431;
constexpr std::int16_t textWholePage = 7432;
constexpr std::int16_t textPageWidth = 7433;
constexpr double partOfScreen = 0.92;

const QString keyPrint = QStringLiteral("DRUCKEN");
const QString keyPdf = QStringLiteral("PDF");
const QString keySmaller = QStringLiteral("KLEINER");
const QString keyLarger = QStringLiteral("GROESSER");
const QString keyPage = QStringLiteral("SEITE");
const QString keyWidth = QStringLiteral("BREITE");

}  // namespace

PrintPreview::PrintPreview(Dictionary& dictionary, const std::string& titel,
                           const std::vector<PageMarks>& pages, int language, bool printerThere,
                           QWidget* parent)
    : QDialog(parent, Qt::Window),
      dictionary_(dictionary),
      bar_(new KeyToolBar(QStringLiteral("tbrVorschau"), this)),
      pages_(new PreviewPages(pages, language, this)),
      page_(new QLabel(this)),
      zoom_(new QLabel(this)),
      message_(new QLabel(this)) {
  setObjectName(QStringLiteral("PrintPreview"));
  setWindowModality(Qt::ApplicationModal);
  setWindowTitle(words(textTitle) + QStringLiteral(" - ") + qText(titel));
  buildBar(printerThere);
  page_->setObjectName(QStringLiteral("PreviewPage"));
  zoom_->setObjectName(QStringLiteral("PreviewZoom"));
  message_->setObjectName(QStringLiteral("PreviewMessage"));
  message_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  if (!printerThere) message_->setText(words(textNoPrinter));

  auto* lower = new QHBoxLayout;
  lower->setContentsMargins(scaled(12), scaled(5), scaled(12), scaled(5));
  lower->setSpacing(scaled(20));
  lower->addWidget(message_, 1);
  lower->addWidget(page_);
  lower->addWidget(zoom_);
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(0);
  rows->addWidget(bar_);
  rows->addWidget(pages_, 1);
  rows->addLayout(lower);
  pages_->setAccessibleName(words(textTitle));
  pages_->onView = [this] { showView(); };
  resize(screen()->availableSize() * partOfScreen);
  pages_->setFocus();
  showView();
}

QString PrintPreview::words(std::int16_t id) {
  return qText(dictionary_.DicText(id));
}

void PrintPreview::buildBar(bool printerThere) {
  using Kind = KeyToolBar::Kind;
  bar_->add(keyPrint, QStringLiteral("ICON4"), Kind::push, QKeySequence(QStringLiteral("Ctrl+P")));
  bar_->add(keyPdf, QStringLiteral("ICONPDF"), Kind::push, QKeySequence(QStringLiteral("Ctrl+S")));
  bar_->addGap();
  bar_->add(keySmaller, QStringLiteral("ICONKLEINER"), Kind::push, QKeySequence(QStringLiteral("Ctrl+-")));
  bar_->add(keyLarger, QStringLiteral("ICONGROESSER"), Kind::push, QKeySequence(QStringLiteral("Ctrl++")));
  bar_->add(keyPage, QStringLiteral("ICONSEITE"), Kind::check, QKeySequence(QStringLiteral("Ctrl+0")));
  bar_->add(keyWidth, QStringLiteral("ICONBREITE"), Kind::check, QKeySequence(QStringLiteral("Ctrl+1")));
  bar_->setWords(keyPrint, words(textPrint));
  bar_->setWords(keyPdf, words(textPdf));
  bar_->setWords(keySmaller, words(textSmaller));
  bar_->setWords(keyLarger, words(textLarger));
  bar_->setWords(keyPage, words(textWholePage));
  bar_->setWords(keyWidth, words(textPageWidth));
  bar_->setKeyEnabled(keyPrint, printerThere);
  bar_->onButton = [this](const QString& key) { pressed(key); };
}

void PrintPreview::pressed(const QString& key) {
  if (key == keyPrint && onPrint) onPrint();
  if (key == keyPdf && onPdf) {
    if (const QString said = onPdf(); !said.isEmpty()) message_->setText(said);
  }
  if (key == keySmaller) pages_->zoomOut();
  if (key == keyLarger) pages_->zoomIn();
  if (key == keyPage) pages_->setFit(PreviewPages::Fit::page);
  if (key == keyWidth) pages_->setFit(PreviewPages::Fit::width);
}

void PrintPreview::showView() {
  page_->setText(words(textPage) +
                 QStringLiteral(" %1 / %2").arg(pages_->currentPage()).arg(pages_->pageCount()));
  zoom_->setText(QStringLiteral("%1 %").arg(std::lround(pages_->zoom() * 100)));
  bar_->setPressed(keyPage, pages_->fit() == PreviewPages::Fit::page);
  bar_->setPressed(keyWidth, pages_->fit() == PreviewPages::Fit::width);
}

}  // namespace korvin
