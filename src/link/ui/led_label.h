#pragma once

#include <QLabel>

#include "frame/farbe.h"

namespace korvin {

/// `lblLedKomm`, the link indicator: a round lamp of the height of a line of text.
class LedLabel : public QLabel {
  Q_OBJECT
 public:
  explicit LedLabel(QWidget* parent = nullptr);

  void setFarbe(Farbe farbe);
  Farbe farbe() const { return farbe_; }
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Farbe farbe_ = FarbeGrau;
};

}  // namespace korvin
