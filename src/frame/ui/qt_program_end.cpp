#include "frame/ui/qt_program_end.h"

#include <QApplication>
#include <QMessageBox>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include "frame/ui/mouse_pointer.h"
#include "frame/ui/qt_text.h"

namespace korvin {
namespace {

void showBox(const std::string& text) {
  int count = 1;
  char name[] = "korvin";
  char* arguments[] = {name, nullptr};
  std::unique_ptr<QApplication> own;
  if (QCoreApplication::instance() == nullptr) own = std::make_unique<QApplication>(count, arguments);
  showNormalPointer();
  // No parent: the window that failed must not take the box with it.
  QMessageBox box(QMessageBox::NoIcon, QStringLiteral("KORVIN"), qText(text), QMessageBox::Ok);
  box.setObjectName(QStringLiteral("MessageBox"));
  box.setTextFormat(Qt::PlainText);
  box.exec();
}

}  // namespace

void QtProgramEnd::end(const std::string& systemText, long number) {
  const std::string text = systemText + " " + std::to_string(number);
  std::fprintf(stderr, "%s\n", text.c_str());
  showBox(text);
  std::fflush(nullptr);
  std::_Exit(EXIT_FAILURE);
}

}  // namespace korvin
