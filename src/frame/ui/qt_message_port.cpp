#include "frame/ui/qt_message_port.h"

#include <QApplication>
#include <QMessageBox>

#include "frame/ui/mouse_pointer.h"
#include "frame/ui/qt_text.h"

namespace korvin {
namespace {

QMessageBox::Icon boxIcon(MessageIcon icon) {
  switch (icon) {
    case MessageIcon::information:
      return QMessageBox::Information;
    case MessageIcon::question:
      return QMessageBox::Question;
    case MessageIcon::warning:
      return QMessageBox::Warning;
    case MessageIcon::none:
      break;
  }
  return QMessageBox::NoIcon;
}

struct ButtonSet {
  QMessageBox::StandardButtons all;
  QMessageBox::StandardButton first;   ///< answers Enter
  QMessageBox::StandardButton escape;  ///< answers Escape and the corner of the box
};

ButtonSet buttonSet(MessageButtons buttons) {
  switch (buttons) {
    case MessageButtons::okCancel:
      return {QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Ok, QMessageBox::Cancel};
    case MessageButtons::yesNo:
      return {QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes, QMessageBox::No};
    case MessageButtons::yesNoCancel:
      return {QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Yes,
              QMessageBox::Cancel};
    case MessageButtons::ok:
      break;
  }
  return {QMessageBox::Ok, QMessageBox::Ok, QMessageBox::Ok};
}

MessageAnswer answerOf(int pressed) {
  switch (pressed) {
    case QMessageBox::Yes:
      return MessageAnswer::yes;
    case QMessageBox::No:
      return MessageAnswer::no;
    case QMessageBox::Cancel:
      return MessageAnswer::cancel;
    default:
      return MessageAnswer::ok;
  }
}

QString plainLines(const std::string& text) {
  return qText(text).replace(QLatin1String("\r\n"), QLatin1String("\n"));
}

}  // namespace

MessageAnswer QtMessagePort::show(const Meldung& message, MessageIcon icon, MessageButtons buttons) {
  const NormalPointerScope pointer;
  const ButtonSet set = buttonSet(buttons);
  QMessageBox box(boxIcon(icon), qText(message.MsgTitel), plainLines(message.MsgText), set.all,
                  QApplication::activeWindow());
  box.setObjectName(QStringLiteral("MessageBox"));
  box.setTextFormat(Qt::PlainText);
  box.setTextInteractionFlags(Qt::TextSelectableByMouse);
  box.setDefaultButton(set.first);
  box.setEscapeButton(set.escape);
  return answerOf(box.exec());
}

void QtMessagePort::beep() {
  QApplication::beep();
}

}  // namespace korvin
