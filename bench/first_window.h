#pragma once

#include <QApplication>
#include <QEvent>
#include <QMainWindow>
#include <QObject>
#include <QWidget>
#include <cstdlib>

/// Ends the process on the spot as soon as a main window has been painted: its lifetime is then the time to
/// the first window. Made right after the QApplication.
class EndAtFirstWindow : public QObject {
 public:
  EndAtFirstWindow() { qApp->installEventFilter(this); }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    const auto* widget = qobject_cast<QWidget*>(watched);
    if (event->type() == QEvent::Paint && widget && qobject_cast<QMainWindow*>(widget->window())) {
      // Comes after the painting of all that the window shows.
      QMetaObject::invokeMethod(
          this, [] { std::_Exit(EXIT_SUCCESS); }, Qt::QueuedConnection);
      qApp->removeEventFilter(this);
    }
    return false;
  }
};
