#pragma once

#include <QPagedPaintDevice>
#include <QPainter>
#include <stdexcept>

#include "reports/ui/page_marks.h"
#include "reports/ui/text_shaper.h"

namespace korvin {

/// The device takes no page, or does not end: the printer is gone, its queue refuses the job.
struct DeviceRefused : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// Puts pages on a printer or into a PDF, upright, on the device's paper, with millimetres counted from the
/// corner of the paper, also where the device keeps margins. Pages are made for A4; on other paper nothing is
/// stretched. What lies in a margin that a printer can't reach is lost.
class DevicePages : public PageSink {
 public:
  /// Both outlive it. The device's settings (printer, resolution, title) have to be made before.
  DevicePages(QPagedPaintDevice& device, TextShaper& shaper) : device_(device), shaper_(shaper) {}

  /// Throws `DeviceRefused`.
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
