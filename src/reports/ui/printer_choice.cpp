#include "reports/ui/printer_choice.h"

#include <QPrintDialog>
#include <QPrinterInfo>

#include "frame/ui/mouse_pointer.h"

namespace korvin {

bool QtPrinterChoice::available() {
  return !QPrinterInfo::availablePrinterNames().isEmpty();
}

bool QtPrinterChoice::choose(QPrinter& printer, int pages, QWidget* parent) {
  const NormalPointerScope pointer;
  QPrintDialog dialog(&printer, parent);
  // Its files would be written without any check; the program has a PDF of its own.
  dialog.setOption(QAbstractPrintDialog::PrintToFile, false);
  dialog.setOption(QAbstractPrintDialog::PrintPageRange, pages > 1);
  dialog.setMinMax(1, pages);
  dialog.setFromTo(1, pages);
  return dialog.exec() == QDialog::Accepted;
}

bool QtPrinterChoice::present(const QPrinter& printer) {
  return QPrinterInfo::availablePrinterNames().contains(printer.printerName());
}

}  // namespace korvin
