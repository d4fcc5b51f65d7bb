#pragma once

#include <QPrinter>
#include <QWidget>
#include <string>

namespace korvin {

/// The system's printers. A port.
class PrinterChoice {
 public:
  virtual ~PrinterChoice() = default;

  /// True if the system has a printer.
  virtual bool available() = 0;

  /// Lets the user choose the printer, its settings and which of `pages` pages to print. False after Cancel.
  virtual bool choose(QPrinter& printer, int pages, QWidget* parent) = 0;

  /// True if the system still has the chosen printer. A job for one that is gone would be lost in silence.
  virtual bool present(const QPrinter& printer) = 0;
};

/// Qt's print dialog, which speaks the language of `QtTranslations`.
class QtPrinterChoice : public PrinterChoice {
 public:
  bool available() override;
  bool choose(QPrinter& printer, int pages, QWidget* parent) override;
  bool present(const QPrinter& printer) override;
};

}  // namespace korvin
