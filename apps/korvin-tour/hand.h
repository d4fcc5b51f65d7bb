#pragma once

#include <QString>
#include <QStringList>
#include <functional>
#include <string>

#include "gui.h"

class QWidget;

namespace korvin::tour {

/// Hand and eye of the walk: clicks, types, reads and takes pictures of windows that are known by their
/// object names. A click on what a user could not click (hidden, disabled, behind a modal window) fails the
/// step.
class Hand {
 public:
  /// Pictures go into the folder `pictures`.
  explicit Hand(QString pictures) : pictures_(std::move(pictures)) {}

  // ---- Doing ----

  /// Clicks with the left button; does not wait for what comes of it.
  void click(const QString& window, const QString& control);
  /// Clicks the accepting button of a dialog: OK, Yes, Open, Save.
  void accept(const QString& dialog);
  /// Chooses an entry of a window's menus.
  void choose(const QString& window, const QString& entry);
  /// Brings a page of a tabbed dialog to the front.
  void turnTo(const QString& dialog, const QString& tabs, int page);
  /// Presses a key in the window, where its focus is.
  void press(const QString& window, Qt::Key key);
  /// Presses a key in a control.
  void press(const QString& window, const QString& control, Qt::Key key);
  /// Replaces what stands in an entry by `text`, key by key.
  void type(const QString& window, const QString& entry, const QString& text);
  /// Saves a picture of the window as `name`.png.
  void picture(const QString& window, const QString& name);
  /// Puts a picture of every window that is up into the folder, for the search of a failure's cause.
  void pictureOfAll(const QString& name);

  // ---- Seeing ----

  void waitFor(const QString& window, double seconds = 15);
  void waitGone(const QString& window, double seconds = 15);
  QString title(const QString& window);
  /// Text of a label, trimmed.
  QString label(const QString& window, const QString& label);
  void waitForLabel(const QString& window, const QString& label, const QString& part, double seconds = 15);
  /// What stands in an entry.
  QString entry(const QString& window, const QString& entry);
  /// Waits until the control is in sight, or no longer is.
  void waitForControl(const QString& window, const QString& control, bool shown = true, double seconds = 15);
  /// Whether the control comes into sight within so many seconds.
  bool comes(const QString& window, const QString& control, double seconds);
  /// Waits until the control can be used.
  void waitForEnabled(const QString& window, const QString& control, double seconds = 30);
  /// Whether a check box or key is set.
  bool isSet(const QString& window, const QString& control);
  bool isChecked(const QString& window, const QString& entry);
  bool isPressed(const QString& window, const QString& key);
  void waitForKey(const QString& window, const QString& key, bool pressed, double seconds = 15);
  /// All rows of the window's table, cells parted by tabs.
  QStringList rows(const QString& window);
  void waitForRows(const QString& window, int count, double seconds = 30);
  /// Waits until the cell of the table, both counted from 0, holds a number.
  void waitForNumber(const QString& window, int row, int column, double seconds = 30);
  QStringList messageText();

 private:
  Gui gui_;
  QString pictures_;
};

/// The visible window of that object name, or null. In the windows' thread only.
QWidget* findWindow(const QString& name);
/// Whether the window shows a control of that name. In the windows' thread only.
bool isShown(const QString& window, const QString& control);
/// The visible control of that name in the window. Throws `StepFailed` if there is none.
QWidget& findControl(const QString& window, const QString& control);

}  // namespace korvin::tour
