#include "frame/ui/hilfe.h"

#include <QApplication>
#include <QKeyEvent>

#include "frame/ui/help_viewer.h"
#include "frame/ui/qt_text.h"

namespace korvin {
namespace {
constexpr std::int16_t textHelp = 7040;
constexpr std::int16_t textFileMissing = 7045;
}  // namespace

Hilfe::Hilfe(std::string file, std::function<int()> language, Dictionary& dictionary, MessagePort& messages)
    : file_(std::move(file)), language_(std::move(language)), dictionary_(dictionary), messages_(messages) {
  qApp->installEventFilter(this);
}

Hilfe::~Hilfe() {
  delete viewer_;
}

void Hilfe::zeigen() {
  // A child of the window that is active now: a modal window leaves its own children usable.
  QWidget* owner = QApplication::activeModalWidget();
  if (owner == nullptr) owner = QApplication::activeWindow();
  if (owner != nullptr && owner == viewer_) return;
  bringToFront(owner);
  if (viewer_->read(qText(file_), language_() == 0 ? QStringLiteral("de") : QStringLiteral("en"))) {
    viewer_->show();
    viewer_->raise();
    viewer_->activateWindow();
    return;
  }
  delete viewer_;
  messages_.beep();
  messages_.show({dictionary_.DicText(textHelp), dictionary_.DicText(textFileMissing) + NeueZeile + file_},
                 MessageIcon::warning, MessageButtons::ok);
}

void Hilfe::bringToFront(QWidget* owner) {
  if (viewer_ != nullptr && viewer_->parentWidget() == owner) return;
  delete viewer_;
  viewer_ = new HelpViewer(dictionary_, owner);
}

bool Hilfe::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress || static_cast<QKeyEvent*>(event)->key() != Qt::Key_F1) return false;
  if (!watched->isWidgetType()) return false;
  zeigen();
  return true;
}

}  // namespace korvin
