#include "link/ui/led_label.h"

#include <QPainter>

#include "link/ui/value_panel.h"

namespace korvin {

LedLabel::LedLabel(QWidget* parent) : QLabel(parent) {
  setObjectName(QStringLiteral("lblLedKomm"));
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void LedLabel::setFarbe(Farbe farbe) {
  if (farbe == farbe_) return;
  farbe_ = farbe;
  update();
}

QSize LedLabel::sizeHint() const {
  const int side = fontMetrics().height();
  return {side, side};
}

void LedLabel::paintEvent(QPaintEvent* /*event*/) {
  constexpr double edge = 2;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QColor colour = qColour(farbe_);
  painter.setPen(QPen(colour.darker(), 1));
  painter.setBrush(colour);
  painter.drawEllipse(QRectF(rect()).adjusted(edge, edge, -edge, -edge));
}

}  // namespace korvin
