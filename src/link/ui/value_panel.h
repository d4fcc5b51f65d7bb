#pragma once

#include <QLabel>
#include <QString>

#include "frame/farbe.h"
#include "frame/ui/qt_colour.h"

namespace korvin {

/// A panel for one measured value on a dark ground, in both desktop schemes: the value colours white, yellow
/// and red are made for it. Its digits are as large as the panel allows, and keep their size from value to
/// value.
class ValuePanel : public QLabel {
  Q_OBJECT
 public:
  explicit ValuePanel(const QString& objectName, QWidget* parent = nullptr);

  /// The widest text that is to fit; a longer one gets smaller digits for as long as it is shown.
  void setWidestText(const QString& text);
  void setValueColour(Farbe farbe);
  QColor valueColour() const;
  /// Takes `farbe` as ground, with a dark text on it.
  void setGround(Farbe farbe);
  QColor ground() const;

  /// Shows `text`, fitted.
  void setValue(const QString& text);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void fit();

  QString widest_;
};

/// Ground of the measuring panels, and the tone of the captions on it.
QColor panelGround();
QColor panelCaption();

}  // namespace korvin
