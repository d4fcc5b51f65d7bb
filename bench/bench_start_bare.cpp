// The least that a program with a window can be: what bench_start compares the program with.
#include <QApplication>
#include <QMainWindow>

#include "first_window.h"

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  const EndAtFirstWindow end;
  QMainWindow window;
  window.showMaximized();
  return QApplication::exec();
}
