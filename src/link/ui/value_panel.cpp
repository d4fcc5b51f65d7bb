#include "link/ui/value_panel.h"

#include <QFontMetricsF>
#include <QResizeEvent>
#include <algorithm>

namespace korvin {
namespace {

constexpr double heightShare = 0.82;  ///< of the panel's height that a line of digits may take
constexpr int smallestPixels = 9;
constexpr double hintLines = 2.4;  ///< wanted height in lines of the window's font

}  // namespace

QColor panelGround() {
  return {0x14, 0x1b, 0x24};
}

QColor panelCaption() {
  return {0x9f, 0xb2, 0xc6};
}

ValuePanel::ValuePanel(const QString& objectName, QWidget* parent) : QLabel(parent) {
  setObjectName(objectName);
  setTextFormat(Qt::PlainText);
  setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  setAutoFillBackground(true);
  QPalette colours = palette();
  colours.setColor(QPalette::Window, panelGround());
  setPalette(colours);
  setWidestText(QStringLiteral("-00.000"));
  setValueColour(FarbeWeiss);
}

void ValuePanel::setWidestText(const QString& text) {
  if (text == widest_) return;
  widest_ = text;
  fit();
}

void ValuePanel::setValueColour(Farbe farbe) {
  QPalette colours = palette();
  colours.setColor(QPalette::WindowText, qColour(farbe));
  setPalette(colours);
}

QColor ValuePanel::valueColour() const {
  return palette().color(QPalette::WindowText);
}

void ValuePanel::setGround(Farbe farbe) {
  QPalette colours = palette();
  colours.setColor(QPalette::Window, qColour(farbe));
  colours.setColor(QPalette::WindowText, panelGround());
  setPalette(colours);
}

QColor ValuePanel::ground() const {
  return palette().color(QPalette::Window);
}

void ValuePanel::setValue(const QString& value) {
  if (value == text()) return;
  const bool sameLength = value.size() == text().size();
  setText(value);
  if (!sameLength) fit();
}

QSize ValuePanel::sizeHint() const {
  const QFontMetricsF metrics(window()->font());
  const double lines = hintLines;
  return QSizeF(metrics.horizontalAdvance(widest_) * lines, metrics.height() * lines).toSize();
}

QSize ValuePanel::minimumSizeHint() const {
  const QFontMetricsF metrics(window()->font());
  return QSizeF(metrics.horizontalAdvance(widest_), metrics.height() * 1.2).toSize();
}

void ValuePanel::resizeEvent(QResizeEvent* event) {
  QLabel::resizeEvent(event);
  fit();
}

void ValuePanel::fit() {
  const QRect room = contentsRect();
  if (room.isEmpty()) return;
  constexpr int trialPixels = 100;
  QFont trial = font();
  trial.setPixelSize(trialPixels);
  const QFontMetricsF metrics(trial);
  const double widest = std::max(metrics.horizontalAdvance(widest_), metrics.horizontalAdvance(text()));
  const double byWidth = trialPixels * (room.width() - 2.0 * margin()) / std::max(widest, 1.0);
  const double byHeight = trialPixels * room.height() * heightShare / metrics.height();
  trial.setPixelSize(std::max(smallestPixels, static_cast<int>(std::min(byWidth, byHeight))));
  if (trial.pixelSize() != font().pixelSize()) setFont(trial);
}

}  // namespace korvin
