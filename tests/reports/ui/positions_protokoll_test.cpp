// The report of a position measurement from its dialog to the file.

#include "reports/ui/positions_protokoll.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>

#include "frame/datei_kopf.h"
#include "frame/profil.h"
#include "pdf_text.h"
#include "position/position_file.h"
#include "print_stand.h"
#include "reports/positions_bericht.h"
#include "reports/ui/pdf_document.h"

namespace korvin {
namespace {

using test::wordOf;
using test::wordsOf;

class Protokoll : public test::PrintStand {
 protected:
  Protokoll() {
    test::MemorySettingsTree tree;
    Profil profil{tree};
    PositionsDateien files({disk, messages, meldung, texts, profil, formpos});
    EXPECT_TRUE(files.o_DateiLaden(test::dataFile("reference/point.O").string()));
    formpos.bildUebernehmen();
    info().CheckXYDiagramm = false;
    info().CheckXTabelle = false;
    info().CheckYTabelle = false;
    info().Geaendert = false;
  }

  PositionsInfo& info() { return formpos.Info(); }
  std::string target() { return folder.path("out.pdf"); }
  static void check(QWidget& dialog, const char* name) {
    auto* box = dialog.findChild<QCheckBox*>(QString::fromLatin1(name));
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(box->height() / 2, box->height() / 2));
  }

  FORMPOS formpos;
  Systemwerte system;
  PositionsProtokoll protokoll{{formpos, system, texts, clock}, ausgabe};
};

TEST_F(Protokoll, WhatIsChosenInTheDialogStandsInThePdf) {
  fileDialog.answers.push_back(target());
  whenShown("FormDruckInfoO", [](QWidget& dialog) {
    check(dialog, "CheckTabelle(0)");
    check(dialog, "CheckTabelle(1)");
    auto* text = dialog.findChild<QLineEdit*>(QStringLiteral("TextDateiInfo(2)"));
    text->selectAll();
    QTest::keyClicks(text, QStringLiteral("Nachlauf"));
    press(dialog, "CommandPdf");
  });
  protokoll.drucken(nullptr);
  EXPECT_TRUE(info().Geaendert);
  EXPECT_EQ(info().Kommentar.trimmed(), "Nachlauf");
  EXPECT_TRUE(info().CheckYTabelle);
  EXPECT_FALSE(info().CheckXYDiagramm);
  const auto words = wordsOf(target());
  EXPECT_EQ(words.back().page, 2) << "28 points on the first page of the table, 12 on the next";
  EXPECT_NEAR(wordOf(words, "Nachlauf").left, 45, 0.1);
  EXPECT_NEAR(wordOf(words, "Nachlauf").top, 57, 0.1);
  EXPECT_NEAR(wordOf(words, "X[mm]").left, 125, 0.1);
  EXPECT_NEAR(wordOf(words, "WIN-KORVIN,").left, 105, 0.1);
  EXPECT_NEAR(wordOf(words, "WIN-KORVIN,").top, 275, 0.1);
}

TEST_F(Protokoll, TheDialogShowsTheRecordsFileAndTexts) {
  whenShown("FormDruckInfoO", [this](QWidget& dialog) {
    EXPECT_EQ(utf8Text(dialog.findChild<QLabel*>(QStringLiteral("lblDatei"))->text()), "point.O");
    EXPECT_EQ(utf8Text(dialog.findChild<QLineEdit*>(QStringLiteral("TextDateiInfo(1)"))->text()), "M. Größ");
    press(dialog, "CommandDruckAbbrechen(1)");
  });
  protokoll.drucken(nullptr);
  EXPECT_FALSE(info().Geaendert);
  EXPECT_TRUE(fileDialog.requests.empty());
}

TEST_F(Protokoll, AFileThatWasRenamedIsCalledByTheNameThatWasChosen) {
  EXPECT_EQ(info().DateiName.trimmed(), "C:\\KorFiles\\Punkt.O");
  fileDialog.answers.push_back(target());
  whenShown("FormDruckInfoO", [](QWidget& dialog) {
    check(dialog, "CheckTabelle(0)");
    press(dialog, "CommandPdf");
  });
  protokoll.drucken(nullptr);
  EXPECT_EQ(fileDialog.requests.at(0).name, "point.pdf");
  EXPECT_NEAR(wordOf(wordsOf(target()), "point.O").top, 37, 0.1);
}

TEST_F(Protokoll, EveryTextOfTheReferenceStandsInThePdfAtItsPlace) {
  const Bericht bericht =
      positionsBericht({formpos.arbeit(), formpos.punkte(), texts, clock, 0, {}}, {true, true, true});
  ByteBlocks pdf;
  renderPdf(bericht, 0, {}, pdf);
  ASSERT_EQ(savePdf(disk, target(), pdf).state, SaveState::saved);
  TextShaper shaper(0);
  const std::vector<PageMarks> pages = composedPages(bericht, shaper, {});
  ASSERT_EQ(pages.size(), 3U);
  test::expectTexts(wordsOf(target()), pages, shaper);
}

TEST_F(Protokoll, TheUnitIsThatOfTheSystem) {
  system.Masssystem = 1;
  info().CheckYTabelle = true;
  fileDialog.answers.push_back(target());
  whenShown("FormDruckInfoO", [](QWidget& dialog) {
    EXPECT_FALSE(hourglassShown()) << "the user has to answer";
    press(dialog, "CommandPdf");
  });
  const HourglassScope command;
  protokoll.drucken(nullptr);
  wordOf(wordsOf(target()), "Y[mil]");
}

TEST_F(Protokoll, ThePrinterGetsTheDiagramPage) {
  whenShown("FormDruckInfoO", [](QWidget& dialog) {
    check(dialog, "CheckDiagramm(0)");
    press(dialog, "CommandDruckAbbrechen(0)");
  });
  protokoll.drucken(nullptr);
  EXPECT_EQ(printers.askedPages, std::vector<int>{1});
  wordOf(wordsOf(printers.output), "XY-Diagramm:");
}

TEST_F(Protokoll, AMeasurementWithoutAFileHasANameForItsPdf) {
  info().DateiName = "/data/*.O";
  info().DateiStatus = DateiNeu;
  whenShown("FormDruckInfoO", [](QWidget& dialog) {
    EXPECT_EQ(utf8Text(dialog.findChild<QLabel*>(QStringLiteral("lblPfad"))->text()), "/data");
    EXPECT_EQ(utf8Text(dialog.findChild<QLabel*>(QStringLiteral("lblDatei"))->text()), "");
    press(dialog, "CommandPdf");
    press(dialog, "CommandDruckAbbrechen(1)");
  });
  protokoll.drucken(nullptr);
  ASSERT_EQ(fileDialog.requests.size(), 1U);
  EXPECT_EQ(fileDialog.requests[0].name, "KORVIN-Messprotokoll.pdf");
}

TEST_F(Protokoll, PointsTakenWhileThePreviewIsOpenDoNotChangeIt) {
  info().CheckXTabelle = true;
  fileDialog.answers.push_back(target());
  whenShown("FormDruckInfoO", [this](QWidget& dialog) {
    whenShown("PrintPreview", [this](QWidget& preview) {
      for (int i = 0; i < 100; ++i) formpos.punktHinzufuegen(45000);
      press(preview, "PDF");
      preview.close();
    });
    press(dialog, "CommandVorschau");
    EXPECT_TRUE(dialog.isVisible());
    press(dialog, "CommandDruckAbbrechen(1)");
  });
  protokoll.drucken(nullptr);
  EXPECT_EQ(wordsOf(target()).back().page, 2);
}

}  // namespace
}  // namespace korvin
