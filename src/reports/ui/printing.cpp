#include "reports/ui/printing.h"

#include <QPageRanges>
#include <algorithm>

#include "frame/ui/qt_text.h"
#include "reports/ui/device_pages.h"

namespace korvin {
namespace {

bool isWanted(const QPrinter& printer, const QPageRanges& ranges, int page) {
  return printer.printRange() != QPrinter::PageRange || ranges.isEmpty() || ranges.contains(page);
}

std::vector<int> onceEach(const QPrinter& printer, int all) {
  QPageRanges ranges = printer.pageRanges();
  if (ranges.isEmpty() && printer.fromPage() > 0) ranges.addRange(printer.fromPage(), printer.toPage());
  std::vector<int> pages;
  for (int page = 1; page <= all; ++page) {
    if (isWanted(printer, ranges, page)) pages.push_back(page);
  }
  if (printer.pageOrder() == QPrinter::LastPageFirst) std::reverse(pages.begin(), pages.end());
  return pages;
}

}  // namespace

std::vector<int> wantedPages(const QPrinter& printer, int all) {
  const std::vector<int> once = onceEach(printer, all);
  const int copies = printer.supportsMultipleCopies() ? 1 : std::max(1, printer.copyCount());
  std::vector<int> pages;
  if (printer.collateCopies()) {
    for (int copy = 0; copy < copies; ++copy) pages.insert(pages.end(), once.begin(), once.end());
  } else {
    for (const int page : once) pages.insert(pages.end(), static_cast<std::size_t>(copies), page);
  }
  return pages;
}

void handOver(QPrinter& printer, const std::string& titel, const std::vector<PageMarks>& pages,
              TextShaper& shaper, const PageWatch& watch) {
  printer.setDocName(qText(titel));
  printer.setCreator(QStringLiteral("KORVIN"));
  DevicePages out(printer, shaper);
  int number = 0;
  for (const int page : wantedPages(printer, static_cast<int>(pages.size()))) {
    out.add(pages.at(static_cast<std::size_t>(page - 1)));
    if (watch) watch(++number);
  }
  out.end();
}

}  // namespace korvin
