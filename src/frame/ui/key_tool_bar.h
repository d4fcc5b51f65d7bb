#pragma once

#include <QHash>
#include <QKeySequence>
#include <QToolBar>
#include <functional>

class QToolButton;

namespace korvin {

/// A tool bar whose buttons are known by their keys. Each button bears its key as object name. What does not
/// fit the width is reached through the arrow at the bar's end.
///
/// To add a button: `add` it with key and picture key, give it its words with `setWords` in the caption pass,
/// handle its key in `onButton`.
class KeyToolBar : public QToolBar {
  Q_OBJECT

 public:
  enum class Kind {
    push,   ///< springs back
    check,  ///< each click changes between pressed and not
    group   ///< as `check`; pressing it releases the others of its kind
  };

  explicit KeyToolBar(const QString& name, QWidget* parent = nullptr);

  /// Less room around the keys, for a bar with many of them.
  void setDense() { setProperty("dense", true); }
  /// Without a ground of its own, for a bar within a window.
  void setEmbedded() { setProperty("embedded", true); }

  void add(const QString& key, const QString& pictureKey, Kind kind = Kind::push,
           const QKeySequence& shortcut = {});
  /// A line between two groups of buttons.
  void addGap() { addSeparator(); }

  /// The button, or null if there is no such key.
  QToolButton* button(const QString& key) const;

  /// The tooltip, to which the shortcut is added, and the name for screen readers.
  void setWords(const QString& key, const QString& words);
  void setPicture(const QString& key, const QString& pictureKey);

  /// As a click of the user: nothing happens while the button is disabled.
  void press(const QString& key);

  /// Shows the button as pressed or not, without telling `onButton`.
  void setPressed(const QString& key, bool pressed);
  bool isPressed(const QString& key) const;
  void setKeyEnabled(const QString& key, bool enabled);
  bool isKeyEnabled(const QString& key) const;
  void setKeyVisible(const QString& key, bool visible);

  /// A button was clicked, by mouse, key, shortcut or `press`.
  std::function<void(const QString& key)> onButton;

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void fitToScreen();

  QHash<QString, QAction*> actions_;
  QActionGroup* group_;
};

}  // namespace korvin
