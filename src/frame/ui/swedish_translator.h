#pragma once

#include <QHash>
#include <QTranslator>
#include <span>

namespace korvin {

/// Qt's words in Swedish, which Qt does not bring: those that this program's dialogs show.
class SwedishTranslator : public QTranslator {
  Q_OBJECT

 public:
  struct Word {
    const char* context;
    const char* english;
    const char* swedish;
  };

  explicit SwedishTranslator(QObject* parent = nullptr);

  QString translate(const char* context, const char* sourceText, const char* disambiguation,
                    int n) const override;
  bool isEmpty() const override { return false; }

  /// To add a word: put it here, with Qt's context and English text.
  static std::span<const Word> words();

 private:
  QHash<QByteArray, const char*> swedish_;
};

}  // namespace korvin
