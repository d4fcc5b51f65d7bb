#include "link/ui/dark_panel.h"

#include <QPainter>
#include <QVBoxLayout>

#include "frame/ui/theme.h"
#include "link/ui/value_panel.h"

namespace korvin {
namespace {

constexpr double cornerRadius = 8;
constexpr double captionScale = 0.85;
constexpr double valueScale = 1.35;

}  // namespace

void setTextColour(QLabel& label, const QColor& colour) {
  QPalette colours = label.palette();
  colours.setColor(QPalette::WindowText, colour);
  label.setPalette(colours);
}

DarkPanel::DarkPanel(QWidget* parent) : QFrame(parent) {
  QPalette colours = palette();
  colours.setColor(QPalette::Window, panelGround());
  setPalette(colours);
}

void DarkPanel::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  // The edge sets the panel off from a dark window.
  painter.setPen(QPen(panelGround().lighter(190), 1));
  painter.setBrush(panelGround());
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), scaled(cornerRadius),
                          scaled(cornerRadius));
}

CaptionedField::CaptionedField(const QString& captionName, const QString& valueName, QWidget* parent)
    : QWidget(parent), caption_(new QLabel(this)), value_(new QLabel(this)) {
  caption_->setObjectName(captionName);
  value_->setObjectName(valueName);
  caption_->setFont(themeFont(captionScale));
  value_->setFont(themeFont(valueScale));
  for (QLabel* label : {caption_, value_}) label->setTextFormat(Qt::PlainText);
  setTextColour(*caption_, panelCaption());
  setTextColour(*value_, Qt::white);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(1);
  column->addWidget(caption_);
  column->addWidget(value_);
}

}  // namespace korvin
