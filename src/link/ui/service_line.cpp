#include "link/ui/service_line.h"

#include <QMouseEvent>

#include "link/ui/service_panel.h"

namespace korvin {

ServiceLine::ServiceLine(int index, QWidget* parent) : QLabel(parent) {
  setObjectName(QStringLiteral("lblMSCommInput(%1)").arg(index));
  setTextFormat(Qt::PlainText);
  // The line never widens the window.
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void ServiceLine::zeige(const QString& text) {
  setText(ohneSteuerzeichen(text));
}

QSize ServiceLine::minimumSizeHint() const {
  return {0, fontMetrics().height()};
}

void ServiceLine::mouseDoubleClickEvent(QMouseEvent* event) {
  event->accept();
  if (onDoppelklick) onDoppelklick();
}

}  // namespace korvin
