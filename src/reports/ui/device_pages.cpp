#include "reports/ui/device_pages.h"

#include <QPageLayout>

#include "reports/ui/page_painter.h"

namespace korvin {
namespace {

constexpr double mmPerInch = 25.4;

void layOutPaper(QPagedPaintDevice& device) {
  device.setPageOrientation(QPageLayout::Portrait);
  QPageLayout layout = device.pageLayout();
  layout.setMode(QPageLayout::FullPageMode);
  device.setPageLayout(layout);
}

PaperPlace paperOn(const QPagedPaintDevice& device) {
  PaperPlace place;
  place.pixelsPerMmX = device.logicalDpiX() / mmPerInch;
  place.pixelsPerMmY = device.logicalDpiY() / mmPerInch;
  const QPageLayout layout = device.pageLayout();
  if (layout.mode() == QPageLayout::FullPageMode) return place;
  // The device counts from within its margins.
  const QMarginsF margins = layout.margins(QPageLayout::Millimeter);
  place.left = -margins.left() * place.pixelsPerMmX;
  place.top = -margins.top() * place.pixelsPerMmY;
  return place;
}

}  // namespace

void DevicePages::begin() {
  layOutPaper(device_);
  if (!painter_.begin(&device_)) throw DeviceRefused("the printer does not begin");
}

void DevicePages::add(const PageMarks& page) {
  if (!painter_.isActive()) {
    begin();
  } else if (!device_.newPage()) {
    throw DeviceRefused("the printer takes no further page");
  }
  PagePainter(painter_, shaper_, paperOn(device_)).paint(page);
}

void DevicePages::end() {
  if (painter_.isActive() && !painter_.end()) throw DeviceRefused("the printer does not end");
}

}  // namespace korvin
