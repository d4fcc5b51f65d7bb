#pragma once

#include <QDialog>

#include "frame/dictionary.h"

class QLineEdit;

namespace korvin {

class HelpPage;
class KeyToolBar;

/// The window in which the user's guide is read: contents, back and forward, search. Not modal.
class HelpViewer : public QDialog {
  Q_OBJECT

 public:
  HelpViewer(Dictionary& dictionary, QWidget* parent);

  /// Reads the guide and goes to `anchor`. False if the file can't be read.
  bool read(const QString& path, const QString& anchor);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void buildBar(Dictionary& dictionary);
  void pressed(const QString& key);
  void search();

  KeyToolBar* bar_;
  QLineEdit* words_;
  HelpPage* page_;
  QString contents_;
};

}  // namespace korvin
