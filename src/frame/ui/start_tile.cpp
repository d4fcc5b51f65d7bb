#include "frame/ui/start_tile.h"

#include <QKeyEvent>
#include <QPainter>
#include <QTextLayout>

#include "frame/ui/icons.h"
#include "frame/ui/theme.h"

namespace korvin {
namespace {

constexpr double padding = 20;
constexpr double pictureGround = 60;
constexpr double pictureSide = 38;
constexpr double corner = 12;
constexpr double lineGap = 5;
constexpr double pictureGap = 12;
// Sizes of the words, as factors on plain text.
constexpr double nameFactor = 1.22;
constexpr double lineFactor = 0.97;
constexpr double footFactor = 0.82;

/// The font at `factor`, made smaller until `text` fits `width`.
QFont fittingFont(const QString& text, int width, double factor) {
  QFont font = themeFont(factor, true);
  while (font.pixelSize() > 8 && QFontMetrics(font).horizontalAdvance(text) > width) {
    font.setPixelSize(font.pixelSize() - 1);
  }
  return font;
}

/// What `words` need at `factor`, broken into lines. Chinese and Japanese signs stand taller than the font's
/// own measure.
int heightOf(const QString& words, double factor, int width) {
  return QFontMetrics(themeFont(factor))
      .boundingRect(QRect(0, 0, width, 10000), Qt::TextWordWrap, words)
      .height();
}

}  // namespace

StartTile::StartTile(const QString& pictureKey, bool wide, QWidget* parent)
    : QAbstractButton(parent), pictureKey_(pictureKey), wide_(wide) {
  setFocusPolicy(Qt::StrongFocus);
  setCursor(Qt::PointingHandCursor);
  setSizePolicy(QSizePolicy::Expanding, wide ? QSizePolicy::Fixed : QSizePolicy::Expanding);
}

void StartTile::setWords(const QString& name, const QString& line) {
  setText(name);
  line_ = line;
  setAccessibleName(name);
  setAccessibleDescription(line);
  update();
}

void StartTile::setReason(const QString& reason) {
  reason_ = reason;
  setToolTip(reason);
  setCursor(reason.isEmpty() ? Qt::PointingHandCursor : Qt::ArrowCursor);
  update();
}

QSize StartTile::sizeHint() const {
  return wide_ ? QSize(scaled(420), scaled(92)) : QSize(scaled(236), scaled(214));
}

void StartTile::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    click();
  } else {
    QAbstractButton::keyPressEvent(event);
  }
}

void StartTile::enterEvent(QEnterEvent* event) {
  QAbstractButton::enterEvent(event);
  update();
}

void StartTile::leaveEvent(QEvent* event) {
  QAbstractButton::leaveEvent(event);
  update();
}

void StartTile::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  paintCard(painter);
  const int edge = scaled(padding);
  const int ground = scaled(pictureGround);
  const int top = wide_ ? rect().center().y() - ground / 2 : edge;
  paintPicture(painter, QRect(edge, top, ground, ground));
  paintWords(painter);
}

QRect StartTile::wordsPlace() const {
  const int edge = scaled(padding);
  const int ground = scaled(pictureGround);
  const QRect inside = rect().adjusted(edge, edge, -edge, -edge);
  if (!wide_) return inside.adjusted(0, ground + scaled(pictureGap), 0, 0);
  const QRect beside = inside.adjusted(ground + edge, 0, 0, 0);
  const int height = nameHeight(beside.width()) + heightOf(line_, lineFactor, beside.width());
  return QRect(beside.left(), rect().center().y() - height / 2, beside.width(), height);
}

int StartTile::nameHeight(int width) const {
  return QFontMetrics(fittingFont(text(), width, nameFactor)).boundingRect(text()).height() + scaled(lineGap);
}

void StartTile::paintCard(QPainter& painter) const {
  const bool lively = isEnabled() && (underMouse() || hasFocus());
  const double width = lively ? std::max(1.0, scaled(20) / 10.0) : 1.0;
  const QRectF card = QRectF(rect()).adjusted(width / 2, width / 2, -width / 2, -width / 2);
  painter.setPen(QPen(themeColour(lively ? ThemeColour::accent : ThemeColour::line), width));
  if (!isEnabled()) {
    painter.setBrush(Qt::NoBrush);
  } else if (isDown()) {
    painter.setBrush(themeColour(ThemeColour::accentGround));
  } else {
    painter.setBrush(themeColour(underMouse() ? ThemeColour::cardHover : ThemeColour::card));
  }
  painter.drawRoundedRect(card, scaled(corner), scaled(corner));
}

void StartTile::paintPicture(QPainter& painter, const QRect& place) const {
  painter.setPen(Qt::NoPen);
  painter.setBrush(themeColour(isEnabled() ? ThemeColour::accentGround : ThemeColour::line));
  painter.setOpacity(isEnabled() ? 1.0 : 0.5);
  painter.drawRoundedRect(place, scaled(corner), scaled(corner));
  painter.setOpacity(1.0);
  const int side = scaled(pictureSide);
  const QRect picture(place.center().x() - side / 2 + 1, place.center().y() - side / 2 + 1, side, side);
  korvin::icon(pictureKey_)
      .paint(&painter, picture, Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
}

void StartTile::paintWords(QPainter& painter) const {
  const QColor strong =
      palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText);
  QRect place = wordsPlace();

  painter.setFont(fittingFont(text(), place.width(), nameFactor));
  painter.setPen(strong);
  painter.drawText(place, Qt::AlignLeft | Qt::AlignTop, text());

  place.setTop(place.top() + nameHeight(place.width()));
  painter.setFont(themeFont(lineFactor));
  painter.setPen(isEnabled() ? themeColour(ThemeColour::softText) : strong);
  painter.drawText(place, Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, line_);
  if (isEnabled() || wide_) return;
  painter.setFont(themeFont(footFactor));
  painter.drawText(place, Qt::AlignLeft | Qt::AlignBottom | Qt::TextWordWrap, reason_);
}

bool StartTile::wordsFit() const {
  const QRect place = wordsPlace();
  int height = nameHeight(place.width()) + heightOf(line_, lineFactor, place.width());
  if (!isEnabled() && !wide_) height += heightOf(reason_, footFactor, place.width());
  const QFontMetrics name(fittingFont(text(), place.width(), nameFactor));
  return height <= place.height() && name.horizontalAdvance(text()) <= place.width() && place.top() >= 0;
}

}  // namespace korvin
