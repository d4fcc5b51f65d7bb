#pragma once

#include <QProxyStyle>

namespace korvin {

/// Fusion with the program's own pictures in message boxes and file dialogs.
class KorvinStyle : public QProxyStyle {
  Q_OBJECT

 public:
  KorvinStyle();

  QIcon standardIcon(StandardPixmap standard, const QStyleOption* option,
                     const QWidget* widget) const override;
  QPixmap standardPixmap(StandardPixmap standard, const QStyleOption* option,
                         const QWidget* widget) const override;
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* returned) const override;
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
};

}  // namespace korvin
