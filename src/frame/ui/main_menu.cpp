#include "frame/ui/main_menu.h"

#include <QAction>
#include <QActionGroup>
#include <QMenu>
#include <QMenuBar>

#include "frame/ui/icons.h"
#include "frame/ui/qt_text.h"

namespace korvin {

struct MenuEntry {
  /// A reserved entry has no job: it is always disabled.
  enum class Form { menu, entry, choice, line, reserved };

  const char16_t* menu;  ///< name of the menu in which it stands; empty: the bar
  const char16_t* name;
  std::int16_t text;
  Form form = Form::entry;
  int index = -1;  ///< place in a control array
  const char16_t* picture = u"";
  const char16_t* shortcut = u"";
};

namespace {

constexpr std::int16_t textComesLater = 7030;
using Form = MenuEntry::Form;

constexpr MenuEntry table[] = {
    {u"", u"M_Messung", 1001, Form::menu},
    {u"M_Messung", u"M_Neu", 1002, Form::menu},
    {u"M_Neu", u"M_Geradheit", 1017, Form::entry, -1, u"ICON31"},
    {u"M_Neu", u"M_Parallel", 1018, Form::entry, -1, u"ICON32"},
    {u"M_Neu", u"M_ParallelForm", 1019, Form::reserved},
    {u"M_Neu", u"M_Rechtwinkligkeit", 1020, Form::entry, -1, u"ICON35"},
    {u"M_Neu", u"M_Position", 1021, Form::entry, -1, u"ICON34"},
    {u"M_Neu", u"", 0, Form::line},
    {u"M_Neu", u"M_GeradheitStatistik", 1022, Form::entry, -1, u"ICON36"},
    {u"M_Neu", u"M_UmgebungsAnalyse", 1023, Form::entry, -1, u"ICON84"},
    {u"M_Messung", u"M_Oeffnen", 1007, Form::menu},
    {u"M_Oeffnen", u"M_DateiOeffnen", 1036, Form::entry, 0},
    {u"M_Oeffnen", u"M_DateiOeffnen", 1037, Form::entry, 1},
    {u"M_Oeffnen", u"M_DateiOeffnen", 1051, Form::entry, 2},
    {u"M_Oeffnen", u"M_DateiOeffnen", 1038, Form::entry, 3},
    {u"M_Oeffnen", u"M_DateiOeffnen", 1050, Form::entry, 4},
    {u"M_Messung", u"", 0, Form::line},
    {u"M_Messung", u"M_Beenden", 1024, Form::entry, -1, u"", u"Ctrl+Q"},
    {u"", u"M_Extras", 1025, Form::menu},
    {u"M_Extras", u"M_IniFile", 1026, Form::menu},
    {u"M_IniFile", u"M_File_G", 1036},
    {u"M_IniFile", u"M_File_P", 1037},
    {u"M_IniFile", u"M_File_R", 1038},
    {u"M_IniFile", u"M_File_O", 1050},
    {u"M_IniFile", u"M_File_F", 1051, Form::reserved},
    {u"M_Extras", u"M_MassSystem", 1027, Form::menu},
    {u"M_MassSystem", u"M_MassArt", 1028, Form::choice, 0},
    {u"M_MassSystem", u"M_MassArt", 1029, Form::choice, 1},
    {u"M_Extras", u"M_Dialogsprache", 1035, Form::menu},
    {u"M_Dialogsprache", u"M_SprachArt", 7000, Form::choice, 0},
    {u"M_Dialogsprache", u"M_SprachArt", 7001, Form::choice, 1},
    {u"M_Dialogsprache", u"M_SprachArt", 7002, Form::choice, 2},
    {u"M_Dialogsprache", u"M_SprachArt", 7003, Form::choice, 3},
    {u"M_Dialogsprache", u"M_SprachArt", 7004, Form::choice, 4},
    {u"M_Dialogsprache", u"M_SprachArt", 7005, Form::choice, 5},
    {u"M_Dialogsprache", u"M_SprachArt", 7006, Form::choice, 6},
    {u"M_Dialogsprache", u"M_SprachArt", 7007, Form::choice, 7},
    {u"", u"M_Hilfe", 1052, Form::menu},
    {u"M_Hilfe", u"M_HilfeInhalt", 7043, Form::entry, -1, u"ICONHILFE", u"F1"},
    {u"M_Hilfe", u"", 0, Form::line},
    {u"M_Hilfe", u"M_Info", 1006, Form::entry, -1, u"ICONKORVIN"},
};

QString name(const char16_t* text) {
  return QString::fromUtf16(text);
}

QString fullName(const QString& name, int index) {
  return index < 0 ? name : QStringLiteral("%1(%2)").arg(name).arg(index);
}

QString fullName(const MenuEntry& entry) {
  return fullName(name(entry.name), entry.index);
}

}  // namespace

MainMenu::MainMenu(QMenuBar& bar) {
  build(bar);
}

void MainMenu::build(QMenuBar& bar) {
  QHash<QString, QMenu*> menus;
  for (const MenuEntry& entry : table) {
    QMenu* parent = menus.value(name(entry.menu));
    if (entry.form == Form::menu) {
      QMenu* menu = parent != nullptr ? parent->addMenu(QString()) : bar.addMenu(QString());
      menu->setObjectName(name(entry.name));
      menu->setToolTipsVisible(true);
      menus.insert(name(entry.name), menu);
      actions_.insert(name(entry.name), menu->menuAction());
    } else if (entry.form == Form::line) {
      parent->addSeparator();
    } else {
      actions_.insert(fullName(entry), addEntry(*parent, entry));
    }
  }
}

QAction* MainMenu::addEntry(QMenu& menu, const MenuEntry& entry) {
  QAction* action = menu.addAction(icon(name(entry.picture)), QString());
  action->setObjectName(fullName(entry));
  action->setCheckable(entry.form == Form::choice);
  action->setEnabled(entry.form != Form::reserved);
  action->setShortcut(QKeySequence(name(entry.shortcut)));
  QObject::connect(action, &QAction::triggered, &menu, [this, &entry] {
    if (onEntry) onEntry(name(entry.name), entry.index);
  });
  return action;
}

void MainMenu::setCaptions(Dictionary& dictionary) {
  const QString later = qText(dictionary.DicText(textComesLater));
  for (const MenuEntry& entry : table) {
    if (entry.form == Form::line) continue;
    QAction* present = actions_.value(fullName(entry));
    present->setText(qText(dictionary.DicText(entry.text)));
    // An entry without a tooltip of its own would repeat its caption.
    const bool comes = !present->isEnabled() && entry.form != Form::reserved;
    if (entry.form != Form::menu) present->setToolTip(comes ? later : QStringLiteral(" "));
  }
}

void MainMenu::setEnabled(const QString& name, bool enabled) {
  if (QAction* present = action(name)) present->setEnabled(enabled);
}

void MainMenu::check(const QString& array, int index) {
  QAction* present = nullptr;
  for (int i = 0; (present = action(fullName(array, i))) != nullptr; ++i) present->setChecked(i == index);
}

}  // namespace korvin
