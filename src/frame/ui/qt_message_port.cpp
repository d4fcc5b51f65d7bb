#include "frame/ui/qt_message_port.h"

#include <QApplication>
#include <QGridLayout>
#include <QMessageBox>
#include <QScreen>
#include <algorithm>

#include "frame/ui/mouse_pointer.h"
#include "frame/ui/qt_text.h"
#include "frame/ui/theme.h"

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

/// A title bar holds the window's icon and keys beside the title.
constexpr double titleBarKeys = 150;

/// Makes the box wide enough for its title, which the desktop would cut. Its own width follows from the text.
void fitTitle(QMessageBox& box) {
  auto* rows = qobject_cast<QGridLayout*>(box.layout());
  if (rows == nullptr) return;
  const int title = QFontMetrics(themeFont(1, true)).horizontalAdvance(box.windowTitle());
  const int width = std::min(title + scaled(titleBarKeys), box.screen()->availableSize().width());
  const QMargins edges = rows->contentsMargins();
  rows->addItem(
      new QSpacerItem(width - edges.left() - edges.right(), 0, QSizePolicy::Minimum, QSizePolicy::Fixed),
      rows->rowCount(), 0, 1, rows->columnCount());
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
  fitTitle(box);
  return answerOf(box.exec());
}

void QtMessagePort::beep() {
  QApplication::beep();
}

}  // namespace korvin
