#include "hand.h"

#include <QAbstractButton>
#include <QAbstractItemModel>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <QTest>
#include <QToolButton>
#include <chrono>
#include <thread>

namespace korvin::tour {
namespace {

[[noreturn]] void fail(const QString& words) {
  throw StepFailed(words.toStdString());
}

QWidget& windowOf(const QString& name) {
  if (QWidget* window = findWindow(name)) return *window;
  fail(QStringLiteral("there is no window \"%1\"").arg(name));
}

QAction& actionOf(const QString& window, const QString& entry) {
  if (auto* action = windowOf(window).findChild<QAction*>(entry)) return *action;
  fail(QStringLiteral("the window \"%1\" has no entry \"%2\"").arg(window, entry));
}

/// Fails for what a user's click would not reach.
void requireInReach(const QWidget& control) {
  if (!control.isEnabled()) fail(QStringLiteral("\"%1\" is disabled").arg(control.objectName()));
  const QWidget* modal = QApplication::activeModalWidget();
  if (modal != nullptr && modal != control.window() && !modal->isAncestorOf(&control)) {
    fail(QStringLiteral("\"%1\" lies behind the window \"%2\"")
             .arg(control.objectName(), modal->objectName()));
  }
}

/// A box or radio button listens where it has its mark and its words, however wide it lies.
QPoint placeToClick(const QWidget& control) {
  const bool marked = qobject_cast<const QCheckBox*>(&control) != nullptr ||
                      qobject_cast<const QRadioButton*>(&control) != nullptr;
  return marked ? QPoint(control.height() / 2, control.height() / 2) : control.rect().center();
}

void postClick(QWidget& control) {
  requireInReach(control);
  Gui::post([target = QPointer<QWidget>(&control)] {
    if (target) QTest::mouseClick(target, Qt::LeftButton, {}, placeToClick(*target));
  });
}

void postKey(QWidget& target, Qt::Key key) {
  requireInReach(target);
  Gui::post([its = QPointer<QWidget>(&target), key] {
    if (its) QTest::keyClick(its, key);
  });
}

QAbstractButton& acceptingButton(const QString& dialog) {
  auto* box = windowOf(dialog).findChild<QDialogButtonBox*>();
  if (box != nullptr) {
    for (QAbstractButton* button : box->buttons()) {
      const auto role = box->buttonRole(button);
      if (role == QDialogButtonBox::AcceptRole || role == QDialogButtonBox::YesRole) return *button;
    }
  }
  fail(QStringLiteral("the dialog \"%1\" has no button that accepts").arg(dialog));
}

QAbstractItemModel& tableOf(const QString& window) {
  if (auto* table = windowOf(window).findChild<QTableView*>()) return *table->model();
  fail(QStringLiteral("the window \"%1\" has no table").arg(window));
}

QString labelText(const QString& window, const QString& label) {
  auto* found = windowOf(window).findChild<QLabel*>(label);
  if (found == nullptr) fail(QStringLiteral("the window \"%1\" has no label \"%2\"").arg(window, label));
  return found->text().trimmed();
}

bool keyPressed(const QString& window, const QString& key) {
  const auto* button = qobject_cast<QToolButton*>(&findControl(window, key));
  return button != nullptr && button->isChecked();
}

QString rowText(const QAbstractItemModel& model, int row) {
  QStringList cells;
  for (int column = 0; column < model.columnCount(); ++column) {
    cells << model.index(row, column).data().toString().trimmed();
  }
  return cells.join(QLatin1Char('\t'));
}

QWidget* shownControl(const QString& window, const QString& control) {
  for (QWidget* found : windowOf(window).findChildren<QWidget*>(control)) {
    if (found->isVisible()) return found;
  }
  return nullptr;
}

}  // namespace

QWidget* findWindow(const QString& name) {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible() && window->objectName() == name) return window;
  }
  return nullptr;
}

bool isShown(const QString& window, const QString& control) {
  return shownControl(window, control) != nullptr;
}

QWidget& findControl(const QString& window, const QString& control) {
  if (QWidget* found = shownControl(window, control)) return *found;
  fail(QStringLiteral("the window \"%1\" shows no \"%2\"").arg(window, control));
}

void Hand::click(const QString& window, const QString& control) {
  gui_.ask([=] { postClick(findControl(window, control)); });
}

void Hand::accept(const QString& dialog) {
  gui_.ask([=] { postClick(acceptingButton(dialog)); });
}

void Hand::choose(const QString& window, const QString& entry) {
  gui_.ask([=] {
    QAction& action = actionOf(window, entry);
    requireInReach(windowOf(window));
    if (!action.isEnabled()) fail(QStringLiteral("\"%1\" is disabled").arg(entry));
    Gui::post([target = QPointer<QAction>(&action)] {
      if (target) target->trigger();
    });
  });
}

void Hand::turnTo(const QString& dialog, const QString& tabs, int page) {
  gui_.ask([=] {
    auto* control = qobject_cast<QTabWidget*>(&findControl(dialog, tabs));
    if (control == nullptr) fail(QStringLiteral("\"%1\" has no pages").arg(tabs));
    requireInReach(*control);
    QTest::mouseClick(control->tabBar(), Qt::LeftButton, {}, control->tabBar()->tabRect(page).center());
    if (control->currentIndex() != page) fail(QStringLiteral("\"%1\" shows another page").arg(tabs));
  });
}

void Hand::press(const QString& window, Qt::Key key) {
  gui_.ask([=] { postKey(windowOf(window), key); });
}

void Hand::press(const QString& window, const QString& control, Qt::Key key) {
  gui_.ask([=] { postKey(findControl(window, control), key); });
}

void Hand::type(const QString& window, const QString& entry, const QString& text) {
  gui_.ask([=] {
    auto* line = qobject_cast<QLineEdit*>(&findControl(window, entry));
    if (line == nullptr) fail(QStringLiteral("\"%1\" takes no text").arg(entry));
    requireInReach(*line);
    // Where there is no window manager nobody makes a window the active one.
    QApplication::setActiveWindow(line->window());
    line->setFocus();
    line->selectAll();
    QTest::keyClicks(line, text);
    if (line->text() != text) fail(QStringLiteral("\"%1\" reads \"%2\"").arg(entry, line->text()));
  });
}

void Hand::picture(const QString& window, const QString& name) {
  gui_.ask([=, this] {
    const QString file = QStringLiteral("%1/%2.png").arg(pictures_, name);
    if (!windowOf(window).grab().save(file))
      fail(QStringLiteral("the picture %1 can't be written").arg(file));
  });
}

void Hand::pictureOfAll(const QString& name) {
  gui_.ask([=, this] {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (!window->isVisible()) continue;
      window->grab().save(QStringLiteral("%1/%2-%3.png").arg(pictures_, name, window->objectName()));
    }
  });
}

void Hand::waitFor(const QString& window, double seconds) {
  Gui::until("the window \"" + window.toStdString() + "\"", seconds,
             [=] { return findWindow(window) != nullptr; });
}

void Hand::waitGone(const QString& window, double seconds) {
  Gui::until("the end of the window \"" + window.toStdString() + "\"", seconds,
             [=] { return findWindow(window) == nullptr; });
}

QString Hand::title(const QString& window) {
  return gui_.ask([=] { return windowOf(window).windowTitle(); });
}

QString Hand::label(const QString& window, const QString& label) {
  return gui_.ask([=] { return labelText(window, label); });
}

void Hand::waitForLabel(const QString& window, const QString& label, const QString& part, double seconds) {
  Gui::until("\"" + part.toStdString() + "\" in the label \"" + label.toStdString() + "\"", seconds,
             [=] { return labelText(window, label).contains(part); });
}

QString Hand::entry(const QString& window, const QString& entry) {
  return gui_.ask([=] {
    const auto* line = qobject_cast<QLineEdit*>(&findControl(window, entry));
    if (line == nullptr) fail(QStringLiteral("\"%1\" takes no text").arg(entry));
    return line->text().trimmed();
  });
}

void Hand::waitForControl(const QString& window, const QString& control, bool shown, double seconds) {
  const std::string name = "\"" + control.toStdString() + "\"";
  Gui::until(name + (shown ? " in sight" : " out of sight"), seconds,
             [=] { return isShown(window, control) == shown; });
}

bool Hand::comes(const QString& window, const QString& control, double seconds) {
  const auto end = std::chrono::steady_clock::now() + std::chrono::duration<double>(seconds);
  while (std::chrono::steady_clock::now() < end) {
    if (gui_.ask([=] { return isShown(window, control); })) return true;
    std::this_thread::sleep_for(std::chrono::milliseconds(15));
  }
  return false;
}

void Hand::waitForEnabled(const QString& window, const QString& control, double seconds) {
  Gui::until("\"" + control.toStdString() + "\" enabled", seconds,
             [=] { return findControl(window, control).isEnabled(); });
}

bool Hand::isSet(const QString& window, const QString& control) {
  bool set = false;
  gui_.ask([&] {
    auto* button = qobject_cast<QAbstractButton*>(&findControl(window, control));
    if (button == nullptr) fail(QStringLiteral("\"%1\" is no button").arg(control));
    set = button->isChecked();
  });
  return set;
}

bool Hand::isChecked(const QString& window, const QString& entry) {
  return gui_.ask([=] { return actionOf(window, entry).isChecked(); });
}

bool Hand::isPressed(const QString& window, const QString& key) {
  return gui_.ask([=] { return keyPressed(window, key); });
}

void Hand::waitForKey(const QString& window, const QString& key, bool pressed, double seconds) {
  Gui::until("the key \"" + key.toStdString() + (pressed ? "\" pressed" : "\" released"), seconds,
             [=] { return keyPressed(window, key) == pressed; });
}

QStringList Hand::rows(const QString& window) {
  return gui_.ask([=] {
    const QAbstractItemModel& model = tableOf(window);
    QStringList rows;
    for (int row = 0; row < model.rowCount(); ++row) rows << rowText(model, row);
    return rows;
  });
}

void Hand::waitForRows(const QString& window, int count, double seconds) {
  Gui::until(std::to_string(count) + " points in the list", seconds,
             [=] { return tableOf(window).rowCount() >= count; });
}

void Hand::waitForNumber(const QString& window, int row, int column, double seconds) {
  Gui::until("a number in row " + std::to_string(row + 1) + " of the table", seconds, [=] {
    bool number = false;
    const QAbstractItemModel& model = tableOf(window);
    model.index(row, column).data().toString().trimmed().toDouble(&number);
    return number;
  });
}

QStringList Hand::messageText() {
  return gui_.ask([] {
    const auto* box = qobject_cast<QMessageBox*>(findWindow(QStringLiteral("MessageBox")));
    return box == nullptr ? QStringList() : QStringList{box->windowTitle(), box->text()};
  });
}

}  // namespace korvin::tour
