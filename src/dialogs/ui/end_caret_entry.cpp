#include "dialogs/ui/end_caret_entry.h"

#include <QCoreApplication>
#include <QFocusEvent>
#include <QKeyEvent>

namespace korvin {

void EndCaretEntry::focusInEvent(QFocusEvent* event) {
  TextEntry::focusInEvent(event);
  // The context menu gives the focus back: what was marked for it stays marked.
  if (event->reason() == Qt::PopupFocusReason) return;
  // Sent, not done at once: a click that brings the focus places the caret after this.
  QCoreApplication::postEvent(this, new QKeyEvent(QEvent::KeyPress, Qt::Key_End, Qt::NoModifier));
}

}  // namespace korvin
