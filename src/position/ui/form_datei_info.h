#pragma once

#include <QDialog>

#include "frame/dictionary.h"
#include "frame/ui/text_entry.h"
#include "position/commands.h"

namespace korvin {

/// `FormDateiInfoO`: what was measured, by whom, and a comment, before a measurement is written.
class FormDateiInfoO : public QDialog {
  Q_OBJECT
 public:
  FormDateiInfoO(Dictionary& dictionary, const PositionsInfo& info, QWidget* parent = nullptr);

  /// Puts what was edited into `info`; a text that was not edited keeps its bytes.
  void uebernehmen(PositionsInfo& info) const;

 private:
  TextEntry* bezeichnung_;
  TextEntry* bediener_;
  TextEntry* kommentar_;
};

/// Shows the dialog over `parent`.
class QtDateiInfoDialog : public DateiInfoDialog {
 public:
  QtDateiInfoDialog(Dictionary& dictionary, QWidget* parent) : dictionary_(dictionary), parent_(parent) {}
  bool bearbeiten(PositionsInfo& info) override;

 private:
  Dictionary& dictionary_;
  QWidget* parent_;
};

}  // namespace korvin
