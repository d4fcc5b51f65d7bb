#include "frame/ui/korvin_style.h"

#include <QIcon>
#include <QPainter>
#include <QPainterPath>
#include <QStyleOption>
#include <algorithm>

#include "frame/ui/icons.h"
#include "frame/ui/theme.h"

namespace korvin {
namespace {

const char* pictureKey(QStyle::StandardPixmap standard) {
  switch (standard) {
    case QStyle::SP_MessageBoxInformation:
      return "ICONHINWEIS";
    case QStyle::SP_MessageBoxQuestion:
      return "ICONHILFE";
    case QStyle::SP_MessageBoxWarning:
    case QStyle::SP_MessageBoxCritical:
      return "ICONWARNUNG";
    case QStyle::SP_FileDialogBack:
    case QStyle::SP_ArrowBack:
    case QStyle::SP_ArrowLeft:
      return "ICONZURUECK";
    case QStyle::SP_ArrowForward:
    case QStyle::SP_ArrowRight:
      return "ICONVOR";
    case QStyle::SP_FileDialogToParent:
      return "ICONHOCH";
    case QStyle::SP_FileDialogNewFolder:
      return "ICONORDNERNEU";
    case QStyle::SP_FileDialogListView:
      return "ICONLISTE";
    case QStyle::SP_FileDialogDetailedView:
      return "ICONDETAILS";
    case QStyle::SP_DirIcon:
    case QStyle::SP_DirOpenIcon:
    case QStyle::SP_DirClosedIcon:
    case QStyle::SP_DirHomeIcon:
    case QStyle::SP_DirLinkIcon:
      return "ICONORDNER";
    case QStyle::SP_FileIcon:
    case QStyle::SP_FileLinkIcon:
      return "ICONDATEI";
    case QStyle::SP_ComputerIcon:
    case QStyle::SP_DriveHDIcon:
      return "ICONRECHNER";
    default:
      return "";
  }
}

/// A check mark that fills the height of `place`.
void paintCheckMark(QPainter& painter, const QRectF& place, const QColor& colour) {
  const double side = std::min(place.width(), place.height());
  const QPointF centre = place.center();
  QPainterPath mark;
  mark.moveTo(centre + QPointF(-0.38, 0.02) * side);
  mark.lineTo(centre + QPointF(-0.1, 0.3) * side);
  mark.lineTo(centre + QPointF(0.38, -0.28) * side);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(colour, side / 7, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPath(mark);
  painter.restore();
}

QColor indicatorEdge(const QStyleOption& option) {
  const bool active = (option.state & (QStyle::State_HasFocus | QStyle::State_MouseOver)) != 0;
  if ((option.state & QStyle::State_Enabled) == 0) return themeColour(ThemeColour::line);
  return themeColour(active ? ThemeColour::accent : ThemeColour::softText);
}

/// The empty box of a check box, or with a radius of half its side the ring of a radio button.
void paintIndicator(QPainter& painter, const QPen& edge, const QBrush& ground, const QRectF& frame,
                    double radius) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(edge);
  painter.setBrush(ground);
  painter.drawRoundedRect(frame, radius, radius);
  painter.restore();
}

void paintCheckBox(QPainter& painter, const QStyleOption& option) {
  const QRectF frame = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
  paintIndicator(painter, indicatorEdge(option), option.palette.color(QPalette::Base), frame, scaled(3));
  if ((option.state & QStyle::State_On) == 0) return;
  const double inset = frame.width() * 0.18;
  paintCheckMark(painter, frame.adjusted(inset, inset, -inset, -inset), option.palette.color(QPalette::Text));
}

void paintRadioButton(QPainter& painter, const QStyleOption& option) {
  const QRectF frame = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
  // A ring as thin as the box would be paler: most of it falls between pixels.
  paintIndicator(painter, QPen(indicatorEdge(option), 1.3), option.palette.color(QPalette::Base), frame,
                 frame.height() / 2);
  if ((option.state & QStyle::State_On) == 0) return;
  const double inset = frame.width() * 0.27;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(option.palette.color(QPalette::Text));
  painter.drawEllipse(frame.adjusted(inset, inset, -inset, -inset));
  painter.restore();
}

/// A list that is closed: the frame of an entry box, with an arrow at its right.
void paintComboBox(QPainter& painter, const QStyleOption& option) {
  const bool active = (option.state & (QStyle::State_HasFocus | QStyle::State_On)) != 0;
  const QRectF frame = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
  const double radius = scaled(5);
  const double arrow = scaled(9);
  const QPointF place(frame.right() - scaled(10) - arrow / 2, frame.center().y());
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(themeColour(active ? ThemeColour::accent : ThemeColour::line));
  painter.setBrush(option.palette.color(QPalette::Base));
  painter.drawRoundedRect(frame, radius, radius);
  painter.setPen(
      QPen(themeColour(ThemeColour::softText), scaled(2), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPolyline(QPolygonF({place + QPointF(-arrow / 2, -arrow / 4), place + QPointF(0, arrow / 4),
                                  place + QPointF(arrow / 2, -arrow / 4)}));
  painter.restore();
}

}  // namespace

KorvinStyle::KorvinStyle() : QProxyStyle(QStringLiteral("Fusion")) {
  setObjectName(QStringLiteral("korvin"));
}

QIcon KorvinStyle::standardIcon(StandardPixmap standard, const QStyleOption* option,
                                const QWidget* widget) const {
  const QIcon own = icon(QString::fromLatin1(pictureKey(standard)));
  return own.isNull() ? QProxyStyle::standardIcon(standard, option, widget) : own;
}

QPixmap KorvinStyle::standardPixmap(StandardPixmap standard, const QStyleOption* option,
                                    const QWidget* widget) const {
  const QIcon own = icon(QString::fromLatin1(pictureKey(standard)));
  if (own.isNull()) return QProxyStyle::standardPixmap(standard, option, widget);
  const int side = pixelMetric(PM_SmallIconSize, option, widget);
  return own.pixmap(QSize(side, side));
}

int KorvinStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                           QStyleHintReturn* returned) const {
  // Plain buttons on every desktop.
  if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
  return QProxyStyle::styleHint(hint, option, widget, returned);
}

void KorvinStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                const QWidget* widget) const {
  // Qt's own mark has seven pixels on any screen.
  if (element == PE_IndicatorMenuCheckMark) {
    paintCheckMark(*painter, option->rect, option->palette.color(QPalette::Text));
  } else if (element == PE_IndicatorCheckBox) {
    paintCheckBox(*painter, *option);
  } else if (element == PE_IndicatorRadioButton) {
    paintRadioButton(*painter, *option);
  } else {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
  }
}

void KorvinStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                     QPainter* painter, const QWidget* widget) const {
  const auto* comboBox = qstyleoption_cast<const QStyleOptionComboBox*>(option);
  if (control == CC_ComboBox && comboBox != nullptr && !comboBox->editable) {
    paintComboBox(*painter, *option);
  } else {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
  }
}

QRect KorvinStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                                  const QWidget* widget) const {
  const QRect rect = QProxyStyle::subControlRect(control, option, part, widget);
  // The words begin where those of an entry box do.
  const bool words = control == CC_ComboBox && part == SC_ComboBoxEditField;
  return words ? rect.adjusted(scaled(5), 0, 0, 0) : rect;
}

QSize KorvinStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                                    const QWidget* widget) const {
  const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
  if (type != CT_ComboBox) return size;
  // As high as an entry box beside it, which leaves room for a small icon: padding, frame, margin of the
  // text.
  const int line = std::max(option->fontMetrics.height(), pixelMetric(PM_SmallIconSize, option, widget) - 2);
  const int height = line + 2 * (scaled(4) + 2);
  return {size.width() + scaled(12), std::max(size.height(), height)};
}

int KorvinStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
  switch (metric) {
    case PM_MessageBoxIconSize:
      return scaled(44);
    case PM_SmallIconSize:
    case PM_ButtonIconSize:
    case PM_ListViewIconSize:
      return scaled(20);
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
      return scaled(16);
    case PM_SliderThickness:
    case PM_SliderControlThickness:
    case PM_SliderLength:
      return scaled(15);
    default:
      return QProxyStyle::pixelMetric(metric, option, widget);
  }
}

}  // namespace korvin
