#include "frame/ui/key_tool_bar.h"

#include <QAction>
#include <QActionGroup>
#include <QEvent>
#include <QToolButton>

#include "frame/ui/icons.h"
#include "frame/ui/theme.h"

namespace korvin {
namespace {
constexpr double pictureSide = 26;
}

KeyToolBar::KeyToolBar(const QString& name, QWidget* parent)
    : QToolBar(parent), group_(new QActionGroup(this)) {
  setObjectName(name);
  setMovable(false);
  setContextMenuPolicy(Qt::PreventContextMenu);
  group_->setExclusionPolicy(QActionGroup::ExclusionPolicy::ExclusiveOptional);
  fitToScreen();
}

void KeyToolBar::add(const QString& key, const QString& pictureKey, Kind kind, const QKeySequence& shortcut) {
  auto* action = new QAction(icon(pictureKey), key, this);
  action->setShortcut(shortcut);
  action->setCheckable(kind != Kind::push);
  if (kind == Kind::group) group_->addAction(action);
  connect(action, &QAction::triggered, this, [this, key] {
    if (onButton) onButton(key);
  });
  addAction(action);
  actions_.insert(key, action);
  auto* added = qobject_cast<QToolButton*>(widgetForAction(action));
  added->setObjectName(key);
  added->setFocusPolicy(Qt::TabFocus);
}

QToolButton* KeyToolBar::button(const QString& key) const {
  return qobject_cast<QToolButton*>(widgetForAction(actions_.value(key)));
}

void KeyToolBar::setWords(const QString& key, const QString& words) {
  QAction* action = actions_.value(key);
  if (action == nullptr) return;
  action->setText(words);
  const QString shortcut = action->shortcut().toString(QKeySequence::NativeText);
  action->setToolTip(shortcut.isEmpty() ? words : words + QStringLiteral("  (%1)").arg(shortcut));
}

void KeyToolBar::setPicture(const QString& key, const QString& pictureKey) {
  if (QAction* action = actions_.value(key)) action->setIcon(icon(pictureKey));
}

void KeyToolBar::press(const QString& key) {
  if (QAction* action = actions_.value(key)) action->trigger();
}

void KeyToolBar::setPressed(const QString& key, bool pressed) {
  if (QAction* action = actions_.value(key)) action->setChecked(pressed);
}

bool KeyToolBar::isPressed(const QString& key) const {
  const QAction* action = actions_.value(key);
  return action != nullptr && action->isChecked();
}

void KeyToolBar::setKeyEnabled(const QString& key, bool enabled) {
  if (QAction* action = actions_.value(key)) action->setEnabled(enabled);
}

bool KeyToolBar::isKeyEnabled(const QString& key) const {
  const QAction* action = actions_.value(key);
  return action != nullptr && action->isEnabled();
}

void KeyToolBar::setKeyVisible(const QString& key, bool visible) {
  if (QAction* action = actions_.value(key)) action->setVisible(visible);
}

void KeyToolBar::changeEvent(QEvent* event) {
  QToolBar::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::ApplicationFontChange) fitToScreen();
}

void KeyToolBar::fitToScreen() {
  setIconSize(QSize(scaled(pictureSide), scaled(pictureSide)));
}

}  // namespace korvin
