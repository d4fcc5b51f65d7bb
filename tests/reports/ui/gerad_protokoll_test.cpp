// The report of a straightness series from its dialog to the file.

#include "reports/ui/gerad_protokoll.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>

#include "frame/datei_kopf.h"
#include "pdf_text.h"
#include "print_stand.h"
#include "reports/gerad_bericht.h"
#include "reports/ui/pdf_document.h"
#include "straightness/straightness_file.h"

namespace korvin {
namespace {

using test::wordOf;
using test::wordsOf;

class GeradProtokollTest : public test::PrintStand {
 protected:
  GeradProtokollTest() {
    load("six.G");
    GeradInfo& its = info();
    its.CheckXDiagramm = its.CheckYDiagramm = its.CheckXTabelle = its.CheckYTabelle = false;
    its.Geaendert = false;
  }

  void load(const std::string& name) {
    test::MemorySettingsTree tree;
    Profil profil{tree};
    GeradDateien files({disk, messages, meldung, texts, profil, system, formgera});
    EXPECT_TRUE(files.g_DateiLaden(test::dataFile("reference/" + name).string()));
    formgera.bildUebernehmen();
  }
  GeradInfo& info() { return formgera.reihe().Info; }
  std::string target() { return folder.path("out.pdf"); }
  static void check(QWidget& dialog, const char* name) {
    auto* box = dialog.findChild<QCheckBox*>(QString::fromLatin1(name));
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(box->height() / 2, box->height() / 2));
  }
  /// Does `deed` in the dialog, and has the PDF made.
  void print(std::function<void(QWidget&)> deed) {
    fileDialog.answers.push_back(target());
    whenShown("FormDruckInfoG", [deed = std::move(deed)](QWidget& dialog) {
      deed(dialog);
      press(dialog, "CommandPdf");
    });
    protokoll.drucken(nullptr);
  }

  FORMGERA formgera;
  Systemwerte system;
  GeradProtokoll protokoll{{formgera, system, texts, clock}, ausgabe};
};

TEST_F(GeradProtokollTest, EachBoxIsItsOwnChoice) {
  whenShown("FormDruckInfoG", [](QWidget& dialog) {
    check(dialog, "CheckDiagramm(1)");
    check(dialog, "CheckTabelle(0)");
    press(dialog, "CommandDruckAbbrechen(0)");
  });
  protokoll.drucken(nullptr);
  EXPECT_FALSE(info().CheckXDiagramm);
  EXPECT_TRUE(info().CheckYDiagramm);
  EXPECT_TRUE(info().CheckXTabelle);
  EXPECT_FALSE(info().CheckYTabelle);
  EXPECT_TRUE(info().Geaendert);
  EXPECT_EQ(printers.askedPages, std::vector<int>{2});
  whenShown("FormDruckInfoG", [](QWidget& dialog) {
    const auto checked = [&dialog](const char* name) {
      return dialog.findChild<QCheckBox*>(QString::fromLatin1(name))->isChecked();
    };
    EXPECT_FALSE(checked("CheckDiagramm(0)"));
    EXPECT_TRUE(checked("CheckDiagramm(1)"));
    EXPECT_TRUE(checked("CheckTabelle(0)"));
    EXPECT_FALSE(checked("CheckTabelle(1)"));
    check(dialog, "CheckDiagramm(0)");
    check(dialog, "CheckTabelle(1)");
    press(dialog, "CommandDruckAbbrechen(0)");
  });
  protokoll.drucken(nullptr);
  EXPECT_TRUE(info().CheckXDiagramm);
  EXPECT_TRUE(info().CheckYTabelle);
}

TEST_F(GeradProtokollTest, WhatIsChosenInTheDialogStandsInThePdf) {
  print([](QWidget& dialog) {
    check(dialog, "CheckTabelle(0)");
    check(dialog, "CheckTabelle(1)");
    auto* text = dialog.findChild<QLineEdit*>(QStringLiteral("TextDateiInfo(2)"));
    text->selectAll();
    QTest::keyClicks(text, QStringLiteral("Nachlauf"));
  });
  EXPECT_EQ(info().Kommentar.trimmed(), "Nachlauf");
  const auto words = wordsOf(target());
  EXPECT_EQ(words.back().page, 1);
  EXPECT_NEAR(wordOf(words, "Nachlauf").left, 45, 0.1);
  EXPECT_NEAR(wordOf(words, "Nachlauf").top, 57, 0.1);
  EXPECT_NEAR(wordOf(words, "X[mm]").left, 125, 0.1);
  EXPECT_NEAR(wordOf(words, "Z[mm]").right, 85, 0.1);
}

TEST_F(GeradProtokollTest, TheDialogShowsTheRecordsKindFileAndTexts) {
  whenShown("FormDruckInfoG", [this](QWidget& dialog) {
    const auto label = [&dialog](const char* name) {
      return utf8Text(dialog.findChild<QLabel*>(QString::fromLatin1(name))->text());
    };
    EXPECT_EQ(label("lblDatei"), "six.G");
    EXPECT_EQ(label("lblMessart"), texts.DicText(5500));
    EXPECT_EQ(utf8Text(dialog.findChild<QLineEdit*>(QStringLiteral("TextDateiInfo(0)"))->text()),
              "Führungsbahn Fräsmaschine 164");
    press(dialog, "CommandDruckAbbrechen(1)");
  });
  protokoll.drucken(nullptr);
  EXPECT_FALSE(info().Geaendert);
  EXPECT_TRUE(fileDialog.requests.empty());
}

TEST_F(GeradProtokollTest, EveryTextOfTheReferencesStandsInThePdfAtItsPlace) {
  for (const char* name : {"six.G", "full.G"}) {
    load(name);
    const Bericht bericht = geradBericht({formgera.reihe(), texts, clock, 0, name}, {true, true, true, true});
    ByteBlocks pdf;
    renderPdf(bericht, 0, {}, pdf);
    ASSERT_EQ(savePdf(disk, target(), pdf).state, SaveState::saved);
    TextShaper shaper(0);
    test::expectTexts(wordsOf(target()), composedPages(bericht, shaper, {}), shaper);
  }
}

TEST_F(GeradProtokollTest, TheUnitIsThatOfTheSystem) {
  system.Masssystem = 1;
  print([](QWidget& dialog) { check(dialog, "CheckTabelle(1)"); });
  EXPECT_NEAR(wordOf(wordsOf(target()), "Y[mil]").left, 125, 0.1);
  EXPECT_NEAR(wordOf(wordsOf(target()), "Z[in]").right, 90, 0.1);
}

TEST_F(GeradProtokollTest, AnEmptyChoiceIsToldAndPrintsAnEmptyPage) {
  print([this](QWidget& dialog) {
    EXPECT_EQ(utf8Text(dialog.findChild<QLabel*>(QStringLiteral("lblHinweis"))->text()), texts.DicText(7428));
  });
  EXPECT_TRUE(wordsOf(target()).empty());
}

TEST_F(GeradProtokollTest, AFileThatWasRenamedIsCalledByTheNameThatWasChosen) {
  EXPECT_EQ(info().DateiName.trimmed(), "C:\\KorFiles\\F\xFChrungsbahn 60.G");
  print([](QWidget& dialog) { check(dialog, "CheckTabelle(0)"); });
  EXPECT_EQ(fileDialog.requests.at(0).name, "six.pdf");
  EXPECT_NEAR(wordOf(wordsOf(target()), "six.G").top, 37, 0.1);
}

TEST_F(GeradProtokollTest, ASeriesWithoutAFileHasANameForItsPdf) {
  info().DateiName = "/data/*.G";
  info().DateiStatus = DateiNeu;
  whenShown("FormDruckInfoG", [](QWidget& dialog) {
    EXPECT_EQ(utf8Text(dialog.findChild<QLabel*>(QStringLiteral("lblPfad"))->text()), "/data");
    EXPECT_EQ(utf8Text(dialog.findChild<QLabel*>(QStringLiteral("lblDatei"))->text()), "");
    press(dialog, "CommandPdf");
    press(dialog, "CommandDruckAbbrechen(1)");
  });
  protokoll.drucken(nullptr);
  ASSERT_EQ(fileDialog.requests.size(), 1U);
  EXPECT_EQ(fileDialog.requests[0].name, "KORVIN-Messprotokoll.pdf");
}

TEST_F(GeradProtokollTest, ReadingsTakenWhileThePreviewIsOpenDoNotChangeIt) {
  info().CheckXTabelle = true;
  fileDialog.answers.push_back(target());
  whenShown("FormDruckInfoG", [this](QWidget& dialog) {
    whenShown("PrintPreview", [this](QWidget& preview) {
      for (double& reading : formgera.reihe().X.Wert.elements()) reading = Leerwert;
      formgera.reihe().X.Wert.at(0) = 6;
      press(preview, "PDF");
      preview.close();
    });
    press(dialog, "CommandVorschau");
    press(dialog, "CommandDruckAbbrechen(1)");
  });
  protokoll.drucken(nullptr);
  const auto words = wordsOf(target());
  EXPECT_EQ(std::count_if(words.begin(), words.end(), [](const auto& word) { return word.text == "?.?"; }),
            0);
  EXPECT_NEAR(wordOf(words, "0.017").right, 125, 0.1);
}

}  // namespace
}  // namespace korvin
