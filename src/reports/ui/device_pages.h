#pragma once

#include <QPagedPaintDevice>
#include <QPainter>

#include "reports/ui/page_marks.h"
#include "reports/ui/text_shaper.h"

namespace korvin {

/// Puts pages on a printer or into a PDF: A4 upright, millimetres counted from the corner of the paper, also
/// where the device keeps margins. What lies in a margin that a printer can't reach is lost.
class DevicePages : public PageSink {
 public:
  /// Both outlive it. The device's settings (printer, resolution, title) have to be made before.
  DevicePages(QPagedPaintDevice& device, TextShaper& shaper) : device_(device), shaper_(shaper) {}

  /// Throws `std::runtime_error` if the device takes no page.
  void page(PageMarks&& page) override { add(page); }
  void add(const PageMarks& page);
  void end() override;

 private:
  void begin();

  QPagedPaintDevice& device_;
  TextShaper& shaper_;
  QPainter painter_;
};

}  // namespace korvin
