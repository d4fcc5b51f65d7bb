#include "frame/ui/mouse_pointer.h"

#include <QApplication>

namespace korvin {

void showHourglass() {
  if (!hourglassShown()) QApplication::setOverrideCursor(Qt::WaitCursor);
}

void showNormalPointer() {
  while (QApplication::overrideCursor() != nullptr) QApplication::restoreOverrideCursor();
}

bool hourglassShown() {
  return QApplication::overrideCursor() != nullptr;
}

NormalPointerScope::NormalPointerScope() : hourglassBefore_(hourglassShown()) {
  showNormalPointer();
}

NormalPointerScope::~NormalPointerScope() {
  if (hourglassBefore_) showHourglass();
}

HourglassScope::HourglassScope() : hourglassBefore_(hourglassShown()) {
  showHourglass();
}

HourglassScope::~HourglassScope() {
  if (!hourglassBefore_) showNormalPointer();
}

}  // namespace korvin
