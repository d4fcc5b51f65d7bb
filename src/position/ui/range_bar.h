#pragma once

#include <QLabel>
#include <QWidget>
#include <functional>

#include "frame/dictionary.h"
#include "frame/ui/key_tool_bar.h"
#include "position/record.h"

namespace korvin {

/// The bar above the diagram that sets its ranges: the toolbar `tbrXYBereich` with the pair "AUTO" and
/// "HAND", and for each axis the keys that make its range smaller and larger around `PanelXBereich` or
/// `PanelYBereich`.
class RangeBar : public QWidget {
  Q_OBJECT
 public:
  explicit RangeBar(QWidget* parent = nullptr);

  void setTexte(Dictionary& dictionary);
  /// Shows the ranges of the record; the four keys are enabled only if the ranges are set by hand.
  void zeige(const PositionsDatei& datei, int Masssystem);

  /// A key was pressed.
  std::function<void(const QString& key)> onKey;

 private:
  void addAxis(const QString& axis, QLabel* range);

  KeyToolBar* keys_;
  QLabel* x_;
  QLabel* y_;
};

}  // namespace korvin
