// Reports on their ways to the printer, the preview and a file.

#include "reports/ui/berichtsausgabe.h"

#include <QLabel>
#include <filesystem>

#include "pdf_text.h"
#include "print_stand.h"
#include "reports/ui/preview_pages.h"
#include "reports/ui/printing.h"

namespace korvin {
namespace {

using test::wordOf;
using test::wordsOf;

class Ausgabe : public test::PrintStand {
 protected:
  std::string target() { return folder.path("out.pdf"); }
  void chooseTarget() { fileDialog.answers.push_back(target()); }
  bool printed() const { return std::filesystem::exists(printers.output); }
  /// Cancels at this page, as soon as the queue is handled.
  void cancelAt(int page) {
    whileComposing = [this, page](int composed) {
      if (composed != page) return;
      whenShown("PrintProgress", [](QWidget& box) { press(box, "PrintProgressCancel"); });
    };
  }
};

// ---- PDF ----

TEST_F(Ausgabe, PdfIsSavedUnderTheChosenName) {
  chooseTarget();
  EXPECT_TRUE(ausgabe.alsPdf(pages(2), nullptr));
  EXPECT_EQ(wordOf(wordsOf(target()), "page-2").page, 2);
  EXPECT_EQ(fileDialog.requests.at(0).name, "Welle.pdf");
  EXPECT_EQ(fileDialog.requests.at(0).folder, folder.path(""));
  EXPECT_EQ(fileDialog.requests.at(0).filter, "PDF-Dokumente (*.pdf)|*.pdf");
  EXPECT_FALSE(fileDialog.requests.at(0).open);
  EXPECT_TRUE(messages.shown.empty());
}

TEST_F(Ausgabe, WithoutANameNothingIsComposed) {
  bool composed = false;
  whileComposing = [&composed](int) { composed = true; };
  EXPECT_FALSE(ausgabe.alsPdf(pages(1), nullptr));
  EXPECT_FALSE(composed);
}

TEST_F(Ausgabe, AFolderThatIsNotThereIsToldAndNothingIsLeft) {
  fileDialog.answers.push_back(folder.path("missing/out.pdf"));
  EXPECT_FALSE(ausgabe.alsPdf(pages(1), nullptr));
  ASSERT_EQ(messages.shown.size(), 1U);
  EXPECT_NE(messages.shown[0].title.find("Fehler (PDF)"), std::string::npos) << messages.shown[0].title;
  EXPECT_NE(messages.shown[0].text.find(folder.path("missing/out.pdf")), std::string::npos);
  EXPECT_NE(messages.shown[0].text.find("nicht vorhanden"), std::string::npos) << messages.shown[0].text;
  EXPECT_EQ(messages.beeps, 1);
  EXPECT_TRUE(folder.names().empty());
}

TEST_F(Ausgabe, AFullDiskIsToldAndTheFormerFileStays) {
  test::writeFile(target(), "former");
  disk.failAt = 8;
  disk.number = ENOSPC;
  disk.stays = true;
  chooseTarget();
  EXPECT_FALSE(ausgabe.alsPdf(pages(1), nullptr));
  ASSERT_EQ(messages.shown.size(), 1U);
  EXPECT_NE(messages.shown[0].text.find("Datenträger ist voll"), std::string::npos) << messages.shown[0].text;
  EXPECT_EQ(test::readFile(target()), "former");
}

TEST_F(Ausgabe, AFailureOfTheReportIsToldAndNothingIsLeft) {
  const Bericht broken{"t", "n", [](Drucker&) { throw std::out_of_range("point 7"); }};
  chooseTarget();
  EXPECT_FALSE(ausgabe.alsPdf(broken, nullptr));
  EXPECT_FALSE(ausgabe.drucken(broken, nullptr));
  EXPECT_FALSE(ausgabe.vorschau(broken, nullptr));
  ASSERT_EQ(messages.shown.size(), 3U);
  EXPECT_EQ(messages.shown[0].title, "Fehler (DruckStart): 0");
  EXPECT_NE(messages.shown[0].text.find("point 7"), std::string::npos);
  EXPECT_TRUE(folder.names().empty());
  EXPECT_TRUE(printers.askedPages.empty());
}

// ---- Progress ----

TEST_F(Ausgabe, AShortPrintShowsNoBoxAndTheHourglass) {
  bool hourglass = false;
  whileComposing = [&](int) {
    hourglass = hourglassShown();
    EXPECT_EQ(window("PrintProgress"), nullptr);
  };
  chooseTarget();
  EXPECT_TRUE(ausgabe.alsPdf(pages(5, 0.05), nullptr));
  EXPECT_TRUE(hourglass);
  EXPECT_FALSE(hourglassShown());
}

TEST_F(Ausgabe, ALongPrintShowsItsPagesInPlaceOfTheHourglass) {
  std::vector<std::string> shown;
  whileComposing = [&](int page) {
    if (QWidget* box = window("PrintProgress"); box != nullptr && page > 10) {
      shown.push_back(utf8Text(box->findChild<QLabel*>(QStringLiteral("PrintProgressPage"))->text()));
      EXPECT_FALSE(hourglassShown());
      EXPECT_TRUE(box->isModal());
    }
  };
  chooseTarget();
  EXPECT_TRUE(ausgabe.alsPdf(pages(20, 0.1), nullptr));
  ASSERT_EQ(shown.size(), 10U);
  EXPECT_EQ(shown.front(), "Seite 10 / 20");
  EXPECT_EQ(shown.back(), "Seite 19 / 20");
  EXPECT_EQ(window("PrintProgress"), nullptr);
  EXPECT_FALSE(hourglassShown());
}

TEST_F(Ausgabe, ACancelledPdfLeavesNothing) {
  test::writeFile(target(), "former");
  cancelAt(8);
  chooseTarget();
  EXPECT_FALSE(ausgabe.alsPdf(pages(1000, 0.1), nullptr));
  EXPECT_EQ(test::readFile(target()), "former");
  EXPECT_EQ(folder.names(), std::vector<std::string>{"out.pdf"});
  EXPECT_TRUE(messages.shown.empty()) << "the user knows";
  EXPECT_EQ(window("PrintProgress"), nullptr);
}

TEST_F(Ausgabe, ACancelledPrintLeavesNothing) {
  int last = 0;
  cancelAt(8);
  const auto cancelling = whileComposing;
  whileComposing = [&](int page) {
    last = page;
    cancelling(page);
  };
  EXPECT_FALSE(ausgabe.drucken(pages(1000, 0.1), nullptr));
  EXPECT_LT(last, 12);
  EXPECT_FALSE(printed());
  EXPECT_TRUE(printers.askedPages.empty());
}

TEST_F(Ausgabe, ClosingTheBoxIsCancel) {
  whileComposing = [this](int page) {
    if (page == 8) whenShown("PrintProgress", [](QWidget& box) { box.close(); });
  };
  EXPECT_FALSE(ausgabe.drucken(pages(100, 0.1), nullptr));
  EXPECT_FALSE(printed());
}

TEST_F(Ausgabe, APrintAcrossMidnightShowsItsProgress) {
  clock.setNow(45000 + (86399.5 / 86400));
  bool shown = false;
  whileComposing = [&shown](int) { shown = shown || window("PrintProgress") != nullptr; };
  chooseTarget();
  EXPECT_TRUE(ausgabe.alsPdf(pages(20, 0.1), nullptr));
  EXPECT_TRUE(shown);
}

TEST_F(Ausgabe, ASecondPrintDuringAPrintIsRefused) {
  bool second = true;
  bool asked = false;
  whileComposing = [&](int page) {
    if (page != 8 || asked) return;
    QTimer::singleShot(0, [&] {
      asked = true;
      second = ausgabe.drucken(pages(1), nullptr);
    });
  };
  EXPECT_TRUE(ausgabe.drucken(pages(20, 0.1), nullptr));
  EXPECT_TRUE(asked);
  EXPECT_FALSE(second);
  EXPECT_EQ(printers.askedPages, std::vector<int>{20});
  EXPECT_TRUE(ausgabe.drucken(pages(1), nullptr)) << "the next one is free again";
}

TEST_F(Ausgabe, TheQueueIsHandledWhileALongPrintGoesOn) {
  int turns = 0;
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, [&turns] { ++turns; });
  timer.start(0);
  chooseTarget();
  EXPECT_TRUE(ausgabe.alsPdf(pages(50, 0.1), nullptr));
  EXPECT_GT(turns, 20);
}

TEST_F(Ausgabe, EnterDoesNotCancel) {
  whileComposing = [](int) {
    if (QWidget* box = window("PrintProgress")) QTest::keyClick(box, Qt::Key_Return);
  };
  chooseTarget();
  EXPECT_TRUE(ausgabe.alsPdf(pages(20, 0.1), nullptr));
}

TEST_F(Ausgabe, WhatThePrinterHasCannotBeCancelled) {
  PrintProgress progress(
      {clock, pump, texts}, 7435, [] { return 9; }, PrintProgress::Cancelling::tooLate, nullptr);
  clock.advance(1);
  progress.page(1);
  QWidget* box = window("PrintProgress");
  ASSERT_NE(box, nullptr);
  EXPECT_FALSE(box->findChild<QPushButton*>(QStringLiteral("PrintProgressCancel"))->isEnabled());
  box->close();
  clock.advance(1);
  EXPECT_NO_THROW(progress.page(2));
}

// ---- Printer ----

TEST_F(Ausgabe, ThePrinterGetsAllPagesAtTheirPlaces) {
  EXPECT_TRUE(ausgabe.drucken(pages(3), nullptr));
  EXPECT_EQ(printers.askedPages, std::vector<int>{3});
  const auto words = wordsOf(printers.output);
  ASSERT_EQ(words.size(), 3U);
  EXPECT_EQ(words[2].text, "page-3");
  for (const auto& word : words) {
    EXPECT_NEAR(word.left, 20, 0.05);
    EXPECT_NEAR(word.top, 30, 0.1);
  }
  EXPECT_NE(test::outputOf("pdfinfo", printers.output).find("KORVIN-Messprotokoll: Welle.O"),
            std::string::npos);
}

TEST_F(Ausgabe, CancelInThePrintersDialogPrintsNothing) {
  printers.accepts = false;
  EXPECT_FALSE(ausgabe.drucken(pages(3), nullptr));
  EXPECT_FALSE(printed());
  EXPECT_TRUE(messages.shown.empty());
}

TEST_F(Ausgabe, ThePrinterGetsThePagesThatTheUserChose) {
  printers.settings = [](QPrinter& printer) {
    printer.setPrintRange(QPrinter::PageRange);
    printer.setFromTo(2, 4);
    printer.setPageOrder(QPrinter::LastPageFirst);
  };
  EXPECT_TRUE(ausgabe.drucken(pages(6), nullptr));
  const auto words = wordsOf(printers.output);
  ASSERT_EQ(words.size(), 3U);
  EXPECT_EQ(words[0].text, "page-4");
  EXPECT_EQ(words[2].text, "page-2");
}

TEST_F(Ausgabe, CopiesThatThePrinterCannotMakeAreMadeForIt) {
  QPrinter printer;
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setCopyCount(2);
  if (printer.supportsMultipleCopies()) {
    EXPECT_EQ(wantedPages(printer, 2), (std::vector<int>{1, 2}));
    return;
  }
  printer.setCollateCopies(true);
  EXPECT_EQ(wantedPages(printer, 2), (std::vector<int>{1, 2, 1, 2}));
  printer.setCollateCopies(false);
  EXPECT_EQ(wantedPages(printer, 2), (std::vector<int>{1, 1, 2, 2}));
}

TEST_F(Ausgabe, APrinterThatRefusesIsTold) {
  printers.output = folder.path("missing/printed.pdf");
  EXPECT_FALSE(ausgabe.drucken(pages(2), nullptr));
  ASSERT_EQ(messages.shown.size(), 1U);
  EXPECT_NE(messages.shown[0].text.find("Der Drucker nimmt den Auftrag nicht an."), std::string::npos);
  EXPECT_FALSE(hourglassShown());
}

TEST_F(Ausgabe, APrinterThatVanishedAfterTheChoiceIsTold) {
  printers.stays = false;
  EXPECT_FALSE(ausgabe.drucken(pages(2), nullptr));
  EXPECT_EQ(printers.askedPages.size(), 1U);
  ASSERT_EQ(messages.shown.size(), 1U);
  EXPECT_NE(messages.shown[0].text.find("Der Drucker nimmt den Auftrag nicht an."), std::string::npos);
  EXPECT_FALSE(printed());
  EXPECT_FALSE(hourglassShown());
  printers.stays = true;
  EXPECT_TRUE(ausgabe.drucken(pages(2), nullptr)) << "the next one is free again";
}

// ---- Preview ----

TEST_F(Ausgabe, ThePreviewPrintsAndSavesWhatItShows) {
  chooseTarget();
  bool shown = false;
  int composed = 0;
  whileComposing = [&composed](int) { ++composed; };
  whenShown("PrintPreview", [&](QWidget& preview) {
    shown = true;
    EXPECT_EQ(preview.findChild<PreviewPages*>()->pageCount(), 2);
    press(preview, "PDF");
    EXPECT_EQ(wordsOf(target()).size(), 2U);
    EXPECT_EQ(utf8Text(preview.findChild<QLabel*>(QStringLiteral("PreviewMessage"))->text()),
              "Gespeichert: " + target());
    EXPECT_FALSE(hourglassShown()) << "the user looks at it";
    EXPECT_FALSE(ausgabe.drucken(pages(1), nullptr)) << "one report at a time, also after a part is done";
    EXPECT_TRUE(printers.askedPages.empty());
    press(preview, "DRUCKEN");
    EXPECT_EQ(wordsOf(printers.output).size(), 2U);
    QTest::keyClick(&preview, Qt::Key_Escape);
  });
  const HourglassScope dialogs;
  EXPECT_TRUE(ausgabe.vorschau(pages(2), nullptr));
  EXPECT_TRUE(shown);
  EXPECT_EQ(composed, 2) << "once";
}

TEST_F(Ausgabe, AFailureInThePreviewEndsOnlyThat) {
  fileDialog.answers.push_back(folder.path("missing/out.pdf"));
  chooseTarget();
  whenShown("PrintPreview", [&](QWidget& preview) {
    press(preview, "PDF");
    EXPECT_EQ(messages.shown.size(), 1U);
    EXPECT_TRUE(preview.isVisible());
    press(preview, "PDF");
    EXPECT_EQ(messages.shown.size(), 1U);
    EXPECT_EQ(wordsOf(target()).size(), 2U);
    preview.close();
  });
  EXPECT_TRUE(ausgabe.vorschau(pages(2), nullptr));
}

TEST_F(Ausgabe, WithoutAPrinterThePreviewSaysSo) {
  printers.there = false;
  whenShown("PrintPreview", [](QWidget& preview) {
    auto* print = preview.findChild<QAbstractButton*>(QStringLiteral("DRUCKEN"));
    EXPECT_FALSE(print->isEnabled());
    EXPECT_TRUE(preview.findChild<QAbstractButton*>(QStringLiteral("PDF"))->isEnabled());
    EXPECT_TRUE(preview.findChild<QLabel*>(QStringLiteral("PreviewMessage"))
                    ->text()
                    .startsWith(QStringLiteral("Kein Drucker eingerichtet.")));
    preview.close();
  });
  EXPECT_TRUE(ausgabe.vorschau(pages(1), nullptr));
}

}  // namespace
}  // namespace korvin
