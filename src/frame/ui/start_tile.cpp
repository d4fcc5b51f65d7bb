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

/// The font at `factor`, made smaller until `text` fits `width`.
QFont fittingFont(const QString& text, int width, double factor) {
  QFont font = themeFont(factor, true);
  while (font.pixelSize() > 8 && QFontMetrics(font).horizontalAdvance(text) > width) {
    font.setPixelSize(font.pixelSize() - 1);
  }
  return font;
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
  return wide_ ? QSize(scaled(420), scaled(92)) : QSize(scaled(236), scaled(196));
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
  const QRect inside = rect().adjusted(edge, edge, -edge, -edge);
  if (wide_) {
    paintPicture(painter, QRect(inside.left(), rect().center().y() - ground / 2, ground, ground));
    paintWords(painter, inside.adjusted(ground + edge, 0, 0, 0));
  } else {
    paintPicture(painter, QRect(inside.left(), inside.top(), ground, ground));
    paintWords(painter, inside.adjusted(0, ground + scaled(14), 0, 0));
  }
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

void StartTile::paintWords(QPainter& painter, QRect place) const {
  const QColor strong =
      palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText);
  const QColor soft = isEnabled() ? themeColour(ThemeColour::softText) : strong;
  const QString foot = isEnabled() ? QString() : reason_;

  painter.setFont(fittingFont(text(), place.width(), 1.22));
  const int nameHeight = painter.fontMetrics().height();
  painter.setPen(strong);
  if (wide_) place.setTop(rect().center().y() - nameHeight - scaled(1));
  painter.drawText(QRect(place.left(), place.top(), place.width(), nameHeight),
                   Qt::AlignLeft | Qt::AlignVCenter, text());

  place.setTop(place.top() + nameHeight + scaled(5));
  painter.setFont(themeFont(0.97));
  painter.setPen(soft);
  painter.drawText(place, Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, line_);
  if (foot.isEmpty() || wide_) return;
  painter.setFont(themeFont(0.82));
  painter.drawText(place, Qt::AlignLeft | Qt::AlignBottom | Qt::TextWordWrap, foot);
}

}  // namespace korvin
