#pragma once

#include <QObject>
#include <QTranslator>
#include <memory>

namespace korvin {

/// Qt's own words ("Yes", "Cancel", file dialogs, context menus) in the program's language. Windows get a
/// LanguageChange event. Where Qt's files are missing, its words stay English.
class QtTranslations : public QObject {
  Q_OBJECT

 public:
  explicit QtTranslations(QObject* parent = nullptr);
  ~QtTranslations() override;

  /// `language`: index 0 to 7; any other is English, as 1.
  void setLanguage(int language);

 private:
  std::unique_ptr<QTranslator> present_;
};

}  // namespace korvin
