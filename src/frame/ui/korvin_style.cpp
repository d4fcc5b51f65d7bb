#include "frame/ui/korvin_style.h"

#include <QIcon>
#include <QPainter>
#include <QPainterPath>
#include <QStyleOption>

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
  } else {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
  }
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
    default:
      return QProxyStyle::pixelMetric(metric, option, widget);
  }
}

}  // namespace korvin
