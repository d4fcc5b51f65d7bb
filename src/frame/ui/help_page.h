#pragma once

#include <QTextBrowser>

namespace korvin {

/// The page of the user's guide, its sizes fitted to the screen, its pictures drawn at full sharpness. It
/// stays on a light ground in a dark desktop, as paper does.
class HelpPage : public QTextBrowser {
  Q_OBJECT

 public:
  explicit HelpPage(QWidget* parent = nullptr);

  /// Reads the file; false if it can't be read or is empty.
  bool load(const QString& path);
  /// Goes to an anchor of the page, as a step that Back undoes.
  void goTo(const QString& anchor);

  /// Marks every place with `words` and goes to the next one, from the page's top again after the last. False
  /// if there is none.
  bool findNext(const QString& words);
  /// Takes the marks away.
  void clearMarks();

 protected:
  QVariant loadResource(int type, const QUrl& name) override;

 private:
  QString html_;
};

}  // namespace korvin
