#pragma once

#include <QDialog>
#include <QString>

#include "frame/datei_befehle.h"
#include "frame/dictionary.h"
#include "frame/ui/text_entry.h"

namespace korvin {

/// What was measured, by whom, and a comment, before a measurement is written. Named by its kind:
/// `FormDateiInfoO`, `FormDateiInfoG`.
class FormDateiInfo : public QDialog {
  Q_OBJECT
 public:
  FormDateiInfo(Dictionary& dictionary, const QString& name, const DateiKopf& kopf,
                QWidget* parent = nullptr);

  /// Puts what was edited into `kopf`; a text that was not edited keeps its bytes.
  void uebernehmen(const DateiKopf& kopf) const;

 private:
  TextEntry* bezeichnung_;
  TextEntry* bediener_;
  TextEntry* kommentar_;
};

/// Shows the dialog under the kind's `name` over `parent`.
class QtDateiInfoDialog : public DateiInfoDialog {
 public:
  QtDateiInfoDialog(Dictionary& dictionary, const QString& name, QWidget* parent)
      : dictionary_(dictionary), name_(name), parent_(parent) {}
  bool bearbeiten(const DateiKopf& kopf) override;

 private:
  Dictionary& dictionary_;
  QString name_;
  QWidget* parent_;
};

}  // namespace korvin
