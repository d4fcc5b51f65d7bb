#include "straightness/ui/multi_point_host.h"

#include <QMenu>

namespace korvin {
namespace {

/// The menu of measurements goes with its keys.
constexpr std::array<const char*, 4> lockedMenus = {"M_Datei", "M_Extras", "M_Panel", "M_Messung"};

}  // namespace

void MultiPointHost::zeigeRahmen(bool offen) {
  if (offen) focusBefore_ = place_.window.focusWidget();
  if (place_.onOpen) place_.onOpen(offen);
  for (const char* menu : lockedMenus)
    if (auto* found = place_.window.findChild<QMenu*>(QString::fromLatin1(menu))) found->setEnabled(!offen);
  for (QWidget* widget : place_.locked) widget->setEnabled(!offen);
  place_.frame.setVisible(offen);
  place_.bar.setEnabled(!offen);
  place_.bar.setPressed(QStringLiteral("XYMPKMP"), offen);
  if (!offen && focusBefore_ != nullptr) focusBefore_->setFocus();
}

}  // namespace korvin
