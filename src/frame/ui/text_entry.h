#pragma once

#include <QLineEdit>
#include <QTimer>
#include <string>

#include "frame/dictionary.h"

namespace korvin {

/// An entry box for a record's text: it takes only what Windows-1252 holds, and no more characters than the
/// field. What it refuses it refuses visibly: the frame turns red for a moment and a hint says why; what
/// stood there before stays.
class TextEntry : public QLineEdit {
  Q_OBJECT

 public:
  /// `longest`: characters of the record's field.
  TextEntry(Dictionary& dictionary, int longest, QWidget* parent = nullptr);

  /// The text without blanks on the right, as UTF-8.
  std::string value() const;
  void setValue(const std::string& utf8);
  /// Says in the same way that a text from elsewhere does not fit, which was not put here.
  void refuse();

 private:
  class Cp1252Validator;

  Dictionary& dictionary_;
  QTimer redFrame_;
};

}  // namespace korvin
