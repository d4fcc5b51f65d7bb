#include "frame/ui/text_entry.h"

#include <QStyle>
#include <QToolTip>
#include <QValidator>

#include "frame/cp1252.h"
#include "frame/ui/qt_text.h"

namespace korvin {
namespace {
constexpr int redFrameMs = 1500;
constexpr std::int16_t textDoesNotFit = 7070;
constexpr std::int16_t textTooLong = 7071;

QString withoutBlanksOnTheRight(QString text) {
  while (text.endsWith(QLatin1Char(' '))) text.chop(1);
  return text;
}
}  // namespace

class TextEntry::Cp1252Validator : public QValidator {
 public:
  using QValidator::QValidator;
  State validate(QString& text, int& /*position*/) const override {
    return passtInCp1252(utf8Text(text)) ? Acceptable : Invalid;
  }
};

TextEntry::TextEntry(Dictionary& dictionary, int longest, QWidget* parent)
    : QLineEdit(parent), dictionary_(dictionary) {
  setMaxLength(longest);
  setValidator(new Cp1252Validator(this));
  redFrame_.setSingleShot(true);
  redFrame_.setInterval(redFrameMs);
  connect(&redFrame_, &QTimer::timeout, this, [this] {
    setProperty("refused", false);
    style()->polish(this);
  });
  connect(this, &QLineEdit::inputRejected, this, &TextEntry::refuse);
}

std::string TextEntry::value() const {
  return utf8Text(withoutBlanksOnTheRight(text()));
}

void TextEntry::setValue(const std::string& utf8) {
  setText(withoutBlanksOnTheRight(qText(utf8)));
  setCursorPosition(0);
}

void TextEntry::refuse() {
  setProperty("refused", true);
  style()->polish(this);
  redFrame_.start();
  const bool full = text().size() >= maxLength() && !hasSelectedText();
  QToolTip::showText(mapToGlobal(QPoint(0, height())),
                     qText(dictionary_.DicText(full ? textTooLong : textDoesNotFit)), this, {},
                     redFrameMs * 2);
}

}  // namespace korvin
