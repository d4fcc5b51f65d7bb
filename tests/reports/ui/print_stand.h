#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <functional>
#include <string>
#include <vector>

#include "frame/posix_file_system.h"
#include "frame/sprache.h"
#include "frame/sqlite_dictionary.h"
#include "frame/ui/mouse_pointer.h"
#include "frame/ui/qt_event_pump.h"
#include "frame/ui/qt_text.h"
#include "frame/ui/theme.h"
#include "reports/ui/berichtsausgabe.h"
#include "support/faulty_file_system.h"
#include "support/test_clock.h"
#include "support/test_files.h"
#include "support/test_ports.h"

namespace korvin::test {

/// A printer that prints into a file of its own, and notes what it was asked.
class TestPrinters : public PrinterChoice {
 public:
  bool available() override { return there; }
  bool choose(QPrinter& printer, int pages, QWidget* /*parent*/) override {
    askedPages.push_back(pages);
    if (!accepts) return false;
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(qText(output));
    if (settings) settings(printer);
    return true;
  }
  bool present(const QPrinter& /*printer*/) override { return stays; }

  bool there = true;
  bool accepts = true;
  bool stays = true;
  std::string output;
  std::function<void(QPrinter&)> settings;
  std::vector<int> askedPages;
};

/// What putting out reports takes, with the real windows, on the tests' clock.
class PrintStand : public ::testing::Test {
 protected:
  PrintStand() {
    printers.output = folder.path("printed.pdf");
    texts.DicOeffnen(KORVIN_BIN "/korvin.mdb");
  }
  ~PrintStand() override { look(Appearance::light, 0); }

  void look(Appearance appearance, int language) {
    sprache = language;
    spalte = SpalteVonSprache(static_cast<std::int16_t>(language));
    applyTheme(appearance, screenScale(1024 / 1280.0, 768 / 1024.0), language);
  }

  /// A report of `pages` pages, each with its number; a page takes `seconds`.
  Bericht pages(int count, double seconds = 0) {
    return {"KORVIN-Messprotokoll: Welle.O", "Welle", [this, count, seconds](Drucker& d) {
              for (int page = 1; page <= count; ++page) {
                if (page > 1) d.neueSeite();
                const bool counting = d.textBreite("x") == 0;
                if (!counting) clock.advance(seconds);
                d.setSchrift("ARIAL");
                d.setX(20);
                d.setY(30);
                d.drucke("page-" + std::to_string(page));
                if (whileComposing && !counting) whileComposing(page);
              }
              d.dokumentEnde();
            }};
  }

  static QWidget* window(const char* name) {
    for (QWidget* each : QApplication::topLevelWidgets()) {
      if (each->objectName() == QLatin1String(name) && each->isVisible()) return each;
    }
    return nullptr;
  }
  /// Does `deed` with the window of this name once the event queue is handled.
  void whenShown(const char* name, std::function<void(QWidget&)> deed) {
    QTimer::singleShot(0, [name, deed = std::move(deed)] {
      QWidget* shown = window(name);
      if (shown == nullptr) {
        ADD_FAILURE() << "no window " << name;
        return;
      }
      deed(*shown);
    });
  }
  static void press(QWidget& window, const char* button) {
    auto* found = window.findChild<QAbstractButton*>(QString::fromLatin1(button));
    ASSERT_NE(found, nullptr) << button;
    QTest::mouseClick(found, Qt::LeftButton);
  }

  TestFolder folder;
  TestClock clock;
  QtEventPump pump;
  TestMessages messages;
  Meldung meldung;
  std::string spalte = "Deutsch";
  TestProgramEnd programEnd;
  SqliteDictionary texts{spalte, programEnd};
  TestFileDialog fileDialog;
  FaultyFileSystem disk;
  TestPrinters printers;
  int sprache = 0;
  std::function<void(int)> whileComposing;
  Berichtsausgabe ausgabe{{{clock, pump, texts},
                           {messages, meldung, texts},
                           fileDialog,
                           disk,
                           printers,
                           [this] { return sprache; },
                           [this] { return folder.path(""); }}};
};

}  // namespace korvin::test
