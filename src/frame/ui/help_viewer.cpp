#include "frame/ui/help_viewer.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QStyle>
#include <QVBoxLayout>

#include "frame/ui/help_page.h"
#include "frame/ui/key_tool_bar.h"
#include "frame/ui/qt_text.h"
#include "frame/ui/theme.h"

namespace korvin {
namespace {

constexpr std::int16_t textHelp = 7040;
constexpr std::int16_t textBack = 7041;
constexpr std::int16_t textForward = 7042;
constexpr std::int16_t textContents = 7043;
constexpr std::int16_t textFind = 7044;

const QString keyContents = QStringLiteral("Inhalt");
const QString keyBack = QStringLiteral("Zurück");
const QString keyForward = QStringLiteral("Vorwärts");

}  // namespace

HelpViewer::HelpViewer(Dictionary& dictionary, QWidget* parent)
    : QDialog(parent, Qt::Window),
      bar_(new KeyToolBar(QStringLiteral("tbrHilfe"), this)),
      words_(new QLineEdit(this)),
      page_(new HelpPage(this)) {
  setObjectName(QStringLiteral("CMDialogHilfe"));
  setWindowTitle(QStringLiteral("KORVIN - ") + qText(dictionary.DicText(textHelp)));
  buildBar(dictionary);
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(0);
  rows->addWidget(bar_);
  rows->addWidget(page_);
  connect(page_, &QTextBrowser::backwardAvailable, this,
          [this](bool there) { bar_->setKeyEnabled(keyBack, there); });
  connect(page_, &QTextBrowser::forwardAvailable, this,
          [this](bool there) { bar_->setKeyEnabled(keyForward, there); });
  connect(words_, &QLineEdit::returnPressed, this, &HelpViewer::search);
  connect(words_, &QLineEdit::textEdited, page_, &HelpPage::clearMarks);
  resize(scaled(860), scaled(640));
  page_->setFocus();
}

void HelpViewer::buildBar(Dictionary& dictionary) {
  bar_->add(keyContents, QStringLiteral("ICONINHALT"));
  bar_->add(keyBack, QStringLiteral("ICONZURUECK"), KeyToolBar::Kind::push,
            QKeySequence(QStringLiteral("Alt+Left")));
  bar_->add(keyForward, QStringLiteral("ICONVOR"), KeyToolBar::Kind::push,
            QKeySequence(QStringLiteral("Alt+Right")));
  bar_->setWords(keyContents, qText(dictionary.DicText(textContents)));
  bar_->setWords(keyBack, qText(dictionary.DicText(textBack)));
  bar_->setWords(keyForward, qText(dictionary.DicText(textForward)));
  bar_->setKeyEnabled(keyBack, false);
  bar_->setKeyEnabled(keyForward, false);
  bar_->onButton = [this](const QString& key) { pressed(key); };

  auto* gap = new QWidget(bar_);
  gap->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  bar_->addWidget(gap);
  words_->setObjectName(QStringLiteral("HelpSearch"));
  words_->setPlaceholderText(qText(dictionary.DicText(textFind)));
  words_->setClearButtonEnabled(true);
  words_->setFixedWidth(scaled(240));
  bar_->addWidget(words_);
}

bool HelpViewer::read(const QString& path, const QString& anchor) {
  contents_ = anchor;
  if (!page_->load(path)) return false;
  page_->goTo(anchor);
  return true;
}

void HelpViewer::pressed(const QString& key) {
  if (key == keyBack) {
    page_->backward();
  } else if (key == keyForward) {
    page_->forward();
  } else {
    page_->goTo(contents_);
  }
}

void HelpViewer::search() {
  words_->setProperty("refused", !page_->findNext(words_->text()));
  words_->style()->polish(words_);
}

void HelpViewer::keyPressEvent(QKeyEvent* event) {
  // Enter in the search must not close the window, and Ctrl+F goes there.
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) return;
  if (event->matches(QKeySequence::Find)) {
    words_->setFocus();
    words_->selectAll();
    return;
  }
  QDialog::keyPressEvent(event);
}

}  // namespace korvin
