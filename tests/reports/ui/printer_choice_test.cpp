#include "reports/ui/printer_choice.h"

#include <QPrintDialog>
#include <QPrinterInfo>

#include "print_stand.h"

namespace korvin {
namespace {

class PrinterDialog : public test::PrintStand {};

TEST_F(PrinterDialog, AsksForThePagesOfTheReportAndPrintsNoFilesOfItsOwn) {
  QPrinter printer;
  QtPrinterChoice choice;
  bool shown = false;
  showHourglass();
  QTimer::singleShot(0, [&shown] {
    auto* dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    shown = true;
    EXPECT_EQ(dialog->minPage(), 1);
    EXPECT_EQ(dialog->maxPage(), 12);
    EXPECT_FALSE(dialog->testOption(QAbstractPrintDialog::PrintToFile));
    EXPECT_TRUE(dialog->testOption(QAbstractPrintDialog::PrintPageRange));
    EXPECT_FALSE(hourglassShown()) << "the user has to answer";
    dialog->reject();
  });
  EXPECT_FALSE(choice.choose(printer, 12, nullptr));
  EXPECT_TRUE(shown);
  EXPECT_TRUE(hourglassShown());
  showNormalPointer();
}

TEST_F(PrinterDialog, APrinterIsThereIfTheSystemHasOne) {
  EXPECT_EQ(QtPrinterChoice().available(), !QPrinterInfo::availablePrinters().isEmpty());
}

TEST_F(PrinterDialog, APrinterThatTheSystemDoesNotHaveIsGone) {
  QtPrinterChoice choice;
  QPrinter printer;
  printer.setOutputFormat(QPrinter::PdfFormat);  // has no name
  EXPECT_FALSE(choice.present(printer));
  for (const QString& name : QPrinterInfo::availablePrinterNames()) {
    printer.setPrinterName(name);
    EXPECT_TRUE(choice.present(printer));
  }
}

}  // namespace
}  // namespace korvin
