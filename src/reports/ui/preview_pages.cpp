#include "reports/ui/preview_pages.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include "frame/ui/theme.h"
#include "reports/ui/page_painter.h"

namespace korvin {
namespace {

constexpr double paperWidth = 210;
constexpr double paperHeight = 297;
constexpr double mmPerInch = 25.4;
constexpr double leastZoom = 0.1;
constexpr double mostZoom = 5;
constexpr double gapOfDesign = 18;
/// Bytes of pictures that may be kept of pages that are not seen.
constexpr qint64 mostBytes = qint64{64} << 20;

int gap() {
  return scaled(gapOfDesign);
}

qint64 bytesOf(const QPixmap& picture) {
  return qint64{picture.width()} * picture.height() * 4;
}

}  // namespace

PreviewPages::PreviewPages(const std::vector<PageMarks>& pages, int language, QWidget* parent)
    : QAbstractScrollArea(parent), pages_(pages), shaper_(language) {
  setObjectName(QStringLiteral("PreviewPages"));
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::StrongFocus);
  viewport()->setBackgroundRole(isDark() ? QPalette::Base : QPalette::Mid);
}

// ---- Layout ----

double PreviewPages::pixelsPerMm() const {
  return zoom_ * logicalDpiX() / mmPerInch;
}

QSize PreviewPages::pageSize() const {
  return {static_cast<int>(std::lround(paperWidth * pixelsPerMm())),
          static_cast<int>(std::lround(paperHeight * pixelsPerMm()))};
}

QRect PreviewPages::placeOf(int number) const {
  const QSize page = pageSize();
  const int index = number - 1;
  const int row = index / columns_;
  const int wide = columns_ * (page.width() + gap()) + gap();
  const int left =
      wide < viewport()->width() ? (viewport()->width() - wide) / 2 : -horizontalScrollBar()->value();
  return {QPoint(left + gap() + index % columns_ * (page.width() + gap()),
                 gap() + row * (page.height() + gap()) - verticalScrollBar()->value()),
          page};
}

void PreviewPages::layOut() {
  const QSize page = pageSize();
  const int room = (viewport()->width() - gap()) / (page.width() + gap());
  columns_ = std::clamp(room, 1, std::max(1, pageCount()));
  const int rows = (pageCount() + columns_ - 1) / columns_;
  const int high = rows * (page.height() + gap()) + gap();
  const int wide = columns_ * (page.width() + gap()) + gap();
  verticalScrollBar()->setRange(0, std::max(0, high - viewport()->height()));
  verticalScrollBar()->setPageStep(std::max(1, std::min(page.height() + gap(), viewport()->height())));
  verticalScrollBar()->setSingleStep(scaled(40));
  horizontalScrollBar()->setRange(0, std::max(0, wide - viewport()->width()));
  horizontalScrollBar()->setPageStep(viewport()->width());
  horizontalScrollBar()->setSingleStep(scaled(40));
  viewport()->update();
}

void PreviewPages::fitToWindow() {
  const double pixels = logicalDpiX() / mmPerInch;
  const double wide = (viewport()->width() - 2 * gap()) / (paperWidth * pixels);
  const double high = (viewport()->height() - 2 * gap()) / (paperHeight * pixels);
  if (fit_ == Fit::page) setZoom(std::min(wide, high));
  if (fit_ == Fit::width) setZoom(wide);
}

void PreviewPages::setZoom(double zoom) {
  const int page = currentPage();
  const QRect before = placeOf(page);
  // The middle of the window stays on the same spot of the page.
  const double spot = (viewport()->height() / 2.0 - before.top()) / std::max(1, before.height());
  const double wanted = std::clamp(zoom, leastZoom, mostZoom);
  if (wanted != zoom_) pictures_.clear();
  zoom_ = wanted;
  layOut();
  const QRect after = placeOf(page);
  QScrollBar* bar = verticalScrollBar();
  if (fit_ == Fit::page) {
    bar->setValue(bar->value() + after.top() - gap());
  } else {
    bar->setValue(bar->value() + after.top() +
                  static_cast<int>(std::lround(spot * after.height() - viewport()->height() / 2.0)));
  }
  view();
}

void PreviewPages::setFit(Fit fit) {
  fit_ = fit;
  fitToWindow();
}

void PreviewPages::zoomBy(double factor) {
  fit_ = Fit::none;
  setZoom(zoom_ * factor);
}

int PreviewPages::currentPage() const {
  const int rowHeight = pageSize().height() + gap();
  const int row = (verticalScrollBar()->value() + rowHeight / 2 - gap()) / rowHeight;
  return std::clamp(row * columns_ + 1, 1, std::max(1, pageCount()));
}

void PreviewPages::showPage(int number) {
  verticalScrollBar()->setValue(verticalScrollBar()->value() + placeOf(number).top() - gap());
}

void PreviewPages::view() {
  if (onView) onView();
}

// ---- Painting ----

const QPixmap& PreviewPages::picture(int number) {
  const auto found = pictures_.find(number);
  if (found != pictures_.end()) return found->second;
  const double ratio = devicePixelRatioF();
  QImage image(pageSize() * ratio, QImage::Format_RGB32);
  image.fill(Qt::white);
  {
    QPainter painter(&image);
    const double pixels = pixelsPerMm() * ratio;
    PagePainter(painter, shaper_, {0, 0, pixels, pixels})
        .paint(pages_.at(static_cast<std::size_t>(number - 1)));
  }
  QPixmap made = QPixmap::fromImage(std::move(image));
  made.setDevicePixelRatio(ratio);
  return pictures_.emplace(number, std::move(made)).first->second;
}

void PreviewPages::forgetPictures(int firstSeen, int lastSeen) {
  qint64 bytes = 0;
  for (const auto& [number, picture] : pictures_) bytes += bytesOf(picture);
  if (bytes <= mostBytes) return;
  std::erase_if(pictures_,
                [&](const auto& entry) { return entry.first < firstSeen || entry.first > lastSeen; });
}

void PreviewPages::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(viewport());
  const int rowHeight = pageSize().height() + gap();
  const int firstRow = std::max(0, (verticalScrollBar()->value() - gap()) / rowHeight);
  const int lastRow = (verticalScrollBar()->value() + viewport()->height()) / rowHeight;
  const int first = firstRow * columns_ + 1;
  const int last = std::min(pageCount(), (lastRow + 1) * columns_);
  for (int number = first; number <= last; ++number) {
    const QRect place = placeOf(number);
    if (!place.intersects(viewport()->rect())) continue;
    painter.setPen(QColor(0, 0, 0, 60));
    painter.drawRect(place.adjusted(-1, -1, 0, 0));
    painter.drawPixmap(place.topLeft(), picture(number));
  }
  forgetPictures(first, last);
}

void PreviewPages::resizeEvent(QResizeEvent* event) {
  QAbstractScrollArea::resizeEvent(event);
  // The scroll bars that come or go with the new layout resize the viewport once more.
  if (layingOut_) return;
  const QScopedValueRollback<bool> once(layingOut_, true);
  if (fit_ == Fit::none) {
    setZoom(zoom_);
  } else {
    fitToWindow();
  }
}

void PreviewPages::scrollContentsBy(int /*dx*/, int /*dy*/) {
  viewport()->update();
  view();
}

// ---- Keys and wheel ----

void PreviewPages::keyPressEvent(QKeyEvent* event) {
  QScrollBar* bar = verticalScrollBar();
  switch (event->key()) {
    case Qt::Key_Home:
      bar->setValue(bar->minimum());
      return;
    case Qt::Key_End:
      bar->setValue(bar->maximum());
      return;
    case Qt::Key_Plus:
      return zoomIn();
    case Qt::Key_Minus:
      return zoomOut();
    case Qt::Key_0:
      return setFit(Fit::page);
    default:
      QAbstractScrollArea::keyPressEvent(event);
  }
}

void PreviewPages::wheelEvent(QWheelEvent* event) {
  if (!(event->modifiers() & Qt::ControlModifier)) {
    QAbstractScrollArea::wheelEvent(event);
    return;
  }
  if (event->angleDelta().y() > 0) zoomIn();
  if (event->angleDelta().y() < 0) zoomOut();
  event->accept();
}

}  // namespace korvin
