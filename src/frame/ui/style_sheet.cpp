#include "frame/ui/style_sheet.h"

#include <QRegularExpression>

#include "frame/ui/theme.h"

namespace korvin {
namespace {

/// `@name` is a colour of the theme, `$n` are n pixels of the design.
constexpr const char* pattern = R"css(
QMenuBar { background: @card; border-bottom: 1px solid @line; padding: $2 $6; }
QMenuBar::item { padding: $5 $10; border-radius: $5; background: transparent; }
QMenuBar::item:selected { background: @accentGround; }
QMenu { background: @card; border: 1px solid @line; padding: $5; }
QMenu::item { padding: $6 $28 $6 $28; border-radius: $4; }
QMenu::item:selected { background: @accentGround; }
QMenu::item:disabled { color: @softText; }
QMenu::separator { height: 1px; background: @line; margin: $5 $8; }
QMenu::icon { padding-left: $6; }
QMenu::indicator { width: $14; height: $14; left: $7; }

QToolBar { background: @card; border: none; border-bottom: 1px solid @line; padding: $5 $8; spacing: $3; }
QToolBar::separator { width: 1px; background: @line; margin: $6 $6; }
QToolBar[dense="true"] { padding: $3 $6; spacing: $1; }
QToolBar[dense="true"]::separator { margin: $6 $3; }
QToolBar QToolButton { border: 1px solid transparent; border-radius: $6; padding: $5; background: transparent; }
QToolBar[dense="true"] QToolButton { padding: $1; }
QToolBar[embedded="true"] { padding: 0; background: transparent; border: none; }
QToolBar QToolButton:hover { background: @accentGround; }
QToolBar QToolButton:pressed, QToolBar QToolButton:checked { background: @accentGround; border-color: @accent; }
QToolBar QToolButton:focus { border-color: @accent; }

QPushButton { background: @card; border: 1px solid @line; border-radius: $6; padding: $6 $16; min-width: $56; }
QPushButton:hover { background: @cardHover; border-color: @accent; }
QPushButton:pressed, QPushButton:checked { background: @accentGround; border-color: @accent; }
QPushButton:focus { border-color: @accent; }
QPushButton:default { background: @accentFill; color: #ffffff; border-color: @accentFill; }
QPushButton:default:hover { background: @accent; }
QPushButton:disabled { background: transparent; color: @softText; border-color: @line; }

QLineEdit, QPlainTextEdit { border: 1px solid @line; border-radius: $5; padding: $4 $7; background: palette(base); }
QLineEdit:focus, QPlainTextEdit:focus { border-color: @accent; }
QLineEdit:read-only { background: transparent; }
QLineEdit[refused="true"] { border: 1px solid @refuse; }
QToolTip { background: palette(tool-tip-base); color: palette(tool-tip-text); border: none; padding: $5 $8; }
QStatusBar { background: @card; border-top: 1px solid @line; }
QStatusBar::item { border: none; }
QStatusBar QLabel { padding: $4 $10; color: @softText; }
QProgressBar { border: none; border-radius: $3; background: @line; min-height: $8; max-height: $8; }
QProgressBar::chunk { background: @accentFill; border-radius: $3; }
QGroupBox { border: 1px solid @line; border-radius: $8; margin-top: $10; padding: $10 $8 $8 $8; background: @card; }
QGroupBox::title { subcontrol-origin: margin; left: $12; padding: 0 $4; color: @softText; }
QTabWidget::pane { border: 1px solid @line; border-radius: $8; background: @card; top: -1px; }
QTabBar::tab { background: transparent; border: none; border-bottom: $3 solid transparent; padding: $7 $14; }
QTabBar::tab { color: @softText; }
QTabBar::tab:hover { background: @accentGround; }
QTabBar::tab:selected { color: palette(window-text); border-bottom-color: @accent; }
QHeaderView::section { background: @card; border: none; border-bottom: 1px solid @line; padding: $5 $12; }
QScrollBar:vertical { background: transparent; width: $12; margin: 0; }
QScrollBar:horizontal { background: transparent; height: $12; margin: 0; }
QScrollBar::handle { background: @handle; border-radius: $4; margin: $2; }
QScrollBar::handle:vertical { min-height: $28; }
QScrollBar::handle:horizontal { min-width: $28; }
QScrollBar::handle:hover { background: @softText; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }
QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }
)css";

QString hex(const QColor& colour) {
  return colour.name();
}

QString inColours(QString sheet) {
  // Longer names first: one begins with another.
  const std::pair<const char*, QString> colours[] = {
      {"@accentGround", hex(themeColour(ThemeColour::accentGround))},
      {"@accentFill", isDark() ? QStringLiteral("#1f7fb8") : QStringLiteral("#0a78b5")},
      {"@accent", hex(themeColour(ThemeColour::accent))},
      {"@cardHover", hex(themeColour(ThemeColour::cardHover))},
      {"@card", hex(themeColour(ThemeColour::card))},
      {"@line", hex(themeColour(ThemeColour::line))},
      {"@softText", hex(themeColour(ThemeColour::softText))},
      {"@refuse", hex(themeColour(ThemeColour::refuse))},
      {"@handle", isDark() ? QStringLiteral("#465361") : QStringLiteral("#c0cad4")}};
  for (const auto& [name, value] : colours) sheet.replace(QLatin1String(name), value);
  return sheet;
}

QString inPixels(const QString& sheet) {
  static const QRegularExpression size(QStringLiteral("\\$(\\d+)"));
  QString out;
  qsizetype last = 0;
  for (auto matches = size.globalMatch(sheet); matches.hasNext();) {
    const auto match = matches.next();
    out.append(QStringView(sheet).mid(last, match.capturedStart() - last));
    out += QString::number(scaled(match.capturedView(1).toInt())) + QLatin1String("px");
    last = match.capturedEnd();
  }
  return out.append(QStringView(sheet).mid(last));
}

}  // namespace

QString styleSheet() {
  return inPixels(inColours(QString::fromLatin1(pattern)));
}

}  // namespace korvin
