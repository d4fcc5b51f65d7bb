#pragma once

#include <QHash>
#include <QString>
#include <functional>

#include "frame/dictionary.h"

class QAction;
class QActionGroup;
class QMenu;
class QMenuBar;

namespace korvin {

/// The menu of the main window. Entries and submenus bear the control names as object names: "M_Position",
/// "M_SprachArt(0)".
///
/// To add an entry: one line in the table of main_menu.cpp, and its handling in `MDIKorvin`.
class MainMenu {
 public:
  explicit MainMenu(QMenuBar& bar);

  /// The caption pass. Disabled entries say why in their tooltips.
  void setCaptions(Dictionary& dictionary);

  QAction* action(const QString& name) const { return actions_.value(name); }
  void setEnabled(const QString& name, bool enabled);
  /// Checks the entry `index` of a control array, and only it.
  void check(const QString& array, int index);

  /// An entry was chosen: its control name, and its index in a control array or -1.
  std::function<void(const QString& name, int index)> onEntry;

 private:
  void build(QMenuBar& bar);
  QAction* addEntry(QMenu& menu, const struct MenuEntry& entry);

  QHash<QString, QAction*> actions_;
};

}  // namespace korvin
