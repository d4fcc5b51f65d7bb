#include "frame/ui/picture_widget.h"

#include <QAction>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>
#include <cmath>

#include "frame/ui/qt_text.h"
#include "frame/ui/theme.h"
#include "frame/ui/vector_registers.h"

namespace korvin {
namespace {

constexpr std::int16_t TextKopieren = 7350;
constexpr std::int16_t TextAlsPng = 7351;
constexpr std::int16_t TextAlsSvg = 7352;
constexpr int pngSide = 1600;  ///< pixels of a saved picture's longer side, enough for a printed page
constexpr int svgSide = 800;
constexpr double wantedSide = 420;
constexpr double smallestSide = 180;
constexpr Qt::GlobalColor ground = Qt::white;

/// Remembers where something was drawn.
class OverlaySurface : public PainterSurface {
 public:
  using PainterSurface::PainterSurface;
  QRect area() const { return area_; }

 protected:
  void touched(const QRectF& area) override { area_ |= area.toAlignedRect(); }

 private:
  QRect area_;
};

/// How much larger than on the screen of the design the window's texts are: those of a flat picture keep up.
double legibleScale() {
  constexpr int fine = 1000;
  return std::max(1.0, static_cast<double>(scaled(fine)) / fine);
}

}  // namespace

PictureWidget::PictureWidget(const PictureDesk& desk, double widthToHeight, QWidget* parent)
    : QWidget(parent),
      desk_(desk),
      widthToHeight_(widthToHeight),
      copy_(new QAction(this)),
      png_(new QAction(this)),
      svg_(new QAction(this)) {
  // Every pixel is painted: Qt need not fill the ground first.
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  copy_->setObjectName(QStringLiteral("BildKopieren"));
  png_->setObjectName(QStringLiteral("BildAlsPng"));
  svg_->setObjectName(QStringLiteral("BildAlsSvg"));
  connect(copy_, &QAction::triggered, this, &PictureWidget::copyPicture);
  connect(png_, &QAction::triggered, this, [this] { savePicture(PictureFormat::png); });
  connect(svg_, &QAction::triggered, this, [this] { savePicture(PictureFormat::svg); });
}

void PictureWidget::setTexts() {
  copy_->setText(qText(desk_.dictionary.DicText(TextKopieren)) + QLatin1Char('\t') +
                 QKeySequence(QKeySequence::Copy).toString(QKeySequence::NativeText));
  png_->setText(qText(desk_.dictionary.DicText(TextAlsPng)));
  svg_->setText(qText(desk_.dictionary.DicText(TextAlsSvg)));
}

// ---- Size and place ----

QSize PictureWidget::sizeHint() const {
  return {scaled(wantedSide), scaled(wantedSide)};
}

QSize PictureWidget::minimumSizeHint() const {
  return {scaled(smallestSide), scaled(smallestSide)};
}

QRect PictureWidget::pictureRect() const {
  if (!(widthToHeight_ > 0)) return rect();
  const double byWidth = std::min(double(width()), height() * widthToHeight_);
  const QSize size(static_cast<int>(byWidth), static_cast<int>(byWidth / widthToHeight_));
  return {QPoint((width() - size.width()) / 2, (height() - size.height()) / 2), size};
}

QSize PictureWidget::pictureSizeInPixels() const {
  return (QSizeF(pictureRect().size()) * devicePixelRatioF()).toSize();
}

QRect PictureWidget::inWidget(const QRect& pixels) const {
  const double ratio = devicePixelRatioF();
  const QRectF area(pixels.x() / ratio, pixels.y() / ratio, pixels.width() / ratio, pixels.height() / ratio);
  return area.translated(pictureRect().topLeft()).toAlignedRect();
}

DataPoint PictureWidget::dataOf(const QPointF& place) const {
  const QRectF area(pictureRect());
  const QPointF share = place - area.topLeft();
  return {window_.left + share.x() / area.width() * (window_.right - window_.left),
          window_.top + share.y() / area.height() * (window_.bottom - window_.top)};
}

std::optional<DataPoint> PictureWidget::dataAt(const QPointF& place) const {
  if (frame_.image.isNull() || !QRectF(pictureRect()).contains(place)) return std::nullopt;
  return dataOf(place);
}

std::optional<QPointF> PictureWidget::placeOf(DataPoint point) const {
  if (frame_.image.isNull()) return std::nullopt;
  const QRectF area(pictureRect());
  return area.topLeft() + QPointF((point.x - window_.left) / (window_.right - window_.left) * area.width(),
                                  (point.y - window_.top) / (window_.bottom - window_.top) * area.height());
}

// ---- Layers ----

void PictureWidget::frameChanged() {
  frame_.valid = false;
  contentsChanged();
}

void PictureWidget::contentsChanged() {
  contents_.valid = false;
  update();
}

void PictureWidget::overlayChanged() {
  // Where the overlay was and where it will be: the second is known by drawing it once, into nothing.
  QImage nothing(1, 1, QImage::Format_RGB32);
  QPainter painter(&nothing);
  update(overlayArea_);
  if (contents_.valid) update(paintOverlay(painter));
}

void PictureWidget::addContents(const DiagramPainter& draw) {
  if (!contents_.valid) return;
  ImageSurface surface(contents_.image, metrics_, stamps_);
  surface.setWindow(window_);
  draw(surface);
  if (!surface.changed().isEmpty()) update(inWidget(surface.changed()));
}

void PictureWidget::drawOn(Layer& layer, const DiagramPainter& draw) {
  ImageSurface surface(layer.image, metrics_, stamps_);
  surface.setWindow(window_);
  draw(surface);
  window_ = surface.window();
  layer.valid = true;
}

void PictureWidget::bringLayersUpToDate() {
  const QSize size = pictureSizeInPixels();
  if (frame_.image.size() != size || frame_.image.devicePixelRatio() != devicePixelRatioF()) {
    frame_.image = QImage(size, QImage::Format_RGB32);
    frame_.image.setDevicePixelRatio(devicePixelRatioF());
    contents_.image = QImage();
    frame_.valid = contents_.valid = false;
    metrics_ = pictureMetrics(size, devicePixelRatioF() * legibleScale());
  }
  if (size.isEmpty()) return;
  if (!frame_.valid) {
    frame_.image.fill(ground);
    drawOn(frame_, [this](DrawingSurface& surface) { drawFrame(surface); });
  }
  if (!contents_.valid) {
    // Into the memory it has: a new picture each time would cost more than the points.
    if (contents_.image.isNull()) {
      contents_.image = frame_.image.copy();
    } else {
      // Line by line: one large copy would go past the cache, and the points come next.
      for (int y = 0; y < size.height(); ++y)
        std::copy_n(frame_.image.constScanLine(y), frame_.image.bytesPerLine(), contents_.image.scanLine(y));
    }
    drawOn(contents_, [this](DrawingSurface& surface) { drawContents(surface); });
  }
}

// ---- Painting ----

void PictureWidget::paintEvent(QPaintEvent* event) {
  bringLayersUpToDate();
  QPainter painter(this);
  const QRect picture = pictureRect();
  if (!picture.contains(event->rect())) painter.fillRect(event->rect(), ground);
  if (!contents_.valid) return;
  const double ratio = devicePixelRatioF();
  const QRect part = picture & event->rect();
  const QRectF source((part.x() - picture.x()) * ratio, (part.y() - picture.y()) * ratio,
                      part.width() * ratio, part.height() * ratio);
  painter.drawImage(part, contents_.image, source);
  // What an earlier overlay left beside the painted part still stands there.
  const QRect before = event->rect().contains(overlayArea_) ? QRect() : overlayArea_;
  overlayArea_ = before | paintOverlay(painter);
  releaseVectorRegisters();
}

QRect PictureWidget::paintOverlay(QPainter& painter) {
  const double ratio = devicePixelRatioF();
  painter.translate(pictureRect().topLeft());
  painter.scale(1 / ratio, 1 / ratio);
  OverlaySurface surface(painter, metrics_, PainterSurface::Edges::crisp);
  surface.setWindow(window_);
  drawOverlay(surface);
  return inWidget(surface.area());
}

void PictureWidget::drawAll(DrawingSurface& surface) {
  drawFrame(surface);
  drawContents(surface);
  drawOverlay(surface);
}

// ---- Pointer and keys ----

void PictureWidget::mousePressEvent(QMouseEvent* event) {
  const auto at = dataAt(event->position());
  if (event->button() != Qt::LeftButton || !at) return;
  held_ = true;
  pressed(*at);
}

void PictureWidget::mouseMoveEvent(QMouseEvent* event) {
  // A box that opened meanwhile may have taken the release.
  if (held_ && !event->buttons().testFlag(Qt::LeftButton)) letGo();
  if (held_) dragged(dataOf(event->position()));
  showHint(event->position(), event->globalPosition().toPoint());
}

void PictureWidget::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) letGo();
}

void PictureWidget::hideEvent(QHideEvent* event) {
  letGo();
  QWidget::hideEvent(event);
}

void PictureWidget::letGo() {
  if (!held_) return;
  held_ = false;
  released();
}

void PictureWidget::showHint(const QPointF& place, const QPoint& onScreen) {
  const auto at = dataAt(place);
  const QString words = at ? hint(*at) : QString();
  showPointer(!words.isEmpty());
  if (words.isEmpty()) {
    QToolTip::hideText();
  } else {
    QToolTip::showText(onScreen, words, this);
  }
}

void PictureWidget::showPointer(bool hinted) {
  if (hinted) {
    setCursor(Qt::PointingHandCursor);
  } else {
    unsetCursor();
  }
}

void PictureWidget::leaveEvent(QEvent* event) {
  showPointer(false);
  QToolTip::hideText();
  QWidget::leaveEvent(event);
}

bool PictureWidget::event(QEvent* event) {
  // The hint follows the pointer by itself.
  return event->type() == QEvent::ToolTip || QWidget::event(event);
}

void PictureWidget::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Copy)) {
    copyPicture();
    event->accept();
    return;
  }
  QWidget::keyPressEvent(event);
}

void PictureWidget::contextMenuEvent(QContextMenuEvent* event) {
  QMenu menu(this);
  menu.setObjectName(QStringLiteral("BildMenu"));
  menu.addAction(copy_);
  menu.addSeparator();
  menu.addAction(png_);
  menu.addAction(svg_);
  menu.exec(event->globalPos());
}

// ---- Copies ----

QSize PictureWidget::exportSize(int longerSide) const {
  const QSize present = pictureRect().size();
  return present.scaled(longerSide, longerSide, Qt::KeepAspectRatio);
}

void PictureWidget::copyPicture() {
  const auto draw = [this](DrawingSurface& surface) { drawAll(surface); };
  QGuiApplication::clipboard()->setImage(diagramImage(draw, exportSize(pngSide)));
}

void PictureWidget::savePicture(PictureFormat format) {
  const auto draw = [this](DrawingSurface& surface) { drawAll(surface); };
  const QByteArray bytes = format == PictureFormat::png
                               ? diagramPng(draw, exportSize(pngSide))
                               : diagramSvg(draw, exportSize(svgSide), accessibleName());
  korvin::savePicture(desk_, format, bytes);
}

}  // namespace korvin
