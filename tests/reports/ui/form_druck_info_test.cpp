#include "reports/ui/form_druck_info.h"

#include <QKeyEvent>
#include "position/record.h"

#include "print_stand.h"

namespace korvin {
namespace {

class DruckInfo : public test::PrintStand {
 protected:
  DruckInfo() {
    info.Bezeichnung = "Spindel";
    info.Bediener = "M. Gr\xF6\xDF";
    info.Kommentar = "kalt";
    info.CheckXTabelle = true;
  }

  void open(bool printerThere = true) {
    form = std::make_unique<FormDruckInfo>(
        FormDruckInfoO, texts,
        DruckInfoFelder{info.Bezeichnung,
                        info.Bediener,
                        info.Kommentar,
                        info.Geaendert,
                        {std::ref(info.CheckXYDiagramm)},
                        {std::ref(info.CheckXTabelle), std::ref(info.CheckYTabelle)},
                        "/data/KorFiles/Welle.O"},
        printerThere, nullptr);
    form->onDrucken = [this] { return did("print"); };
    form->onVorschau = [this] { return did("preview"); };
    form->onPdf = [this] { return did("pdf"); };
    form->show();
    QApplication::processEvents();
  }
  bool did(const char* what) {
    done.emplace_back(what);
    hourglass = hourglassShown();
    changedThen = static_cast<bool>(info.Geaendert);
    return result;
  }
  QLineEdit& text(int index) {
    return *form->findChild<QLineEdit*>(QStringLiteral("TextDateiInfo(%1)").arg(index));
  }
  QCheckBox& check(const char* name) { return *form->findChild<QCheckBox*>(QString::fromLatin1(name)); }
  void click(const char* name) {
    auto* control = form->findChild<QAbstractButton*>(QString::fromLatin1(name));
    ASSERT_NE(control, nullptr) << name;
    // A check box takes clicks on its mark.
    QTest::mouseClick(control, Qt::LeftButton, {}, QPoint(control->height() / 2, control->height() / 2));
  }
  void type(int index, const char* words) {
    text(index).selectAll();
    for (const QChar sign : QString::fromUtf8(words)) {
      QKeyEvent key(QEvent::KeyPress, 0, Qt::NoModifier, sign);
      QApplication::sendEvent(&text(index), &key);
    }
  }
  std::string words(const char* label) {
    auto* found = form->findChild<QLabel*>(QString::fromLatin1(label));
    return found ? utf8Text(found->text()) : "no " + std::string(label);
  }

  PositionsInfo info;
  std::unique_ptr<FormDruckInfo> form;
  std::vector<std::string> done;
  bool result = true;
  bool hourglass = false;
  bool changedThen = false;
};

TEST_F(DruckInfo, ShowsTheRecordsTextsAndChoices) {
  open();
  EXPECT_EQ(utf8Text(form->objectName()), "FormDruckInfoO");
  EXPECT_EQ(utf8Text(text(0).text()), "Spindel");
  EXPECT_EQ(utf8Text(text(1).text()), "M. Größ");
  EXPECT_EQ(utf8Text(text(2).text()), "kalt");
  EXPECT_FALSE(check("CheckDiagramm(0)").isChecked());
  EXPECT_EQ(form->findChild<QCheckBox*>(QStringLiteral("CheckDiagramm(1)")), nullptr);
  EXPECT_TRUE(check("CheckTabelle(0)").isChecked());
  EXPECT_FALSE(check("CheckTabelle(1)").isChecked());
}

TEST_F(DruckInfo, LabelsNameKindPathAndFile) {
  open();
  EXPECT_EQ(words("lblDateiInfo"), "Dateiinformation");
  EXPECT_EQ(words("lblMessart"), "Positionsmessung");
  EXPECT_EQ(words("lblPfad"), "/data/KorFiles");
  EXPECT_EQ(words("lblDatei"), "Welle.O");
  EXPECT_EQ(words("lblBezeichnung"), "Bezeichnung:");
  EXPECT_EQ(words("lblBediener"), "Bediener:");
  EXPECT_EQ(words("lblKommentar"), "Kommentar:");
  EXPECT_EQ(words("lblPrint"), "Print:");
  EXPECT_EQ(words("lblDiagramm"), "Diagramm:");
  EXPECT_EQ(words("lblTabelle"), "Tabelle:");
}

TEST_F(DruckInfo, PrintWritesTextsAndChoicesBackMarksTheRecordAndCloses) {
  open();
  type(0, "Welle");
  type(2, "");
  QTest::keyClick(&text(2), Qt::Key_Delete);
  click("CheckDiagramm(0)");
  click("CheckTabelle(0)");
  click("CheckTabelle(1)");
  EXPECT_FALSE(info.Geaendert) << "a change sets only the form's flag";
  EXPECT_EQ(info.Bezeichnung.trimmed(), "Spindel");
  click("CommandDruckAbbrechen(0)");
  EXPECT_EQ(done, std::vector<std::string>{"print"});
  EXPECT_TRUE(hourglass);
  EXPECT_TRUE(changedThen);
  EXPECT_FALSE(hourglassShown());
  EXPECT_EQ(info.Bezeichnung.full(), "Welle" + std::string(70, ' '));
  EXPECT_EQ(info.Kommentar.trimmed(), "");
  EXPECT_TRUE(info.CheckXYDiagramm);
  EXPECT_FALSE(info.CheckXTabelle);
  EXPECT_TRUE(info.CheckYTabelle);
  EXPECT_FALSE(form->isVisible());
}

TEST_F(DruckInfo, EnterPrintsAndLabelsLeadToTheirTexts) {
  open();
  for (const auto& [name, index] : {std::pair{"lblBezeichnung", 0}, {"lblBediener", 1}, {"lblKommentar", 2}})
    EXPECT_EQ(form->findChild<QLabel*>(QString::fromLatin1(name))->buddy(), &text(index)) << name;
  form->findChild<QPushButton*>(QStringLiteral("CommandDruckAbbrechen(1)"))->setFocus();
  text(0).setFocus();
  QTest::keyClick(&text(0), Qt::Key_Return);
  EXPECT_EQ(done, std::vector<std::string>{"print"});
}

TEST_F(DruckInfo, PrintWithoutAChangeDoesNotMarkTheRecord) {
  open();
  click("CommandDruckAbbrechen(0)");
  EXPECT_EQ(done, std::vector<std::string>{"print"});
  EXPECT_FALSE(info.Geaendert);
}

TEST_F(DruckInfo, AChangeTakenBackIsAChangeToo) {
  open();
  click("CheckTabelle(1)");
  click("CheckTabelle(1)");
  click("CommandDruckAbbrechen(0)");
  EXPECT_TRUE(info.Geaendert);
}

TEST_F(DruckInfo, AnEarlierMarkStays) {
  info.Geaendert = true;
  open();
  click("CommandDruckAbbrechen(0)");
  EXPECT_TRUE(info.Geaendert);
}

TEST_F(DruckInfo, PrintClosesEvenIfItFailed) {
  result = false;
  open();
  click("CommandDruckAbbrechen(0)");
  EXPECT_FALSE(form->isVisible());
}

TEST_F(DruckInfo, CancelDoesNoneOfIt) {
  for (const bool escape : {false, true}) {
    open();
    type(0, "Welle");
    click("CheckDiagramm(0)");
    if (escape) {
      QTest::keyClick(form.get(), Qt::Key_Escape);
    } else {
      click("CommandDruckAbbrechen(1)");
    }
    EXPECT_TRUE(done.empty());
    EXPECT_EQ(info.Bezeichnung.trimmed(), "Spindel");
    EXPECT_FALSE(info.CheckXYDiagramm);
    EXPECT_FALSE(info.Geaendert);
    EXPECT_FALSE(form->isVisible());
  }
}

TEST_F(DruckInfo, ReopeningShowsWhatWasStored) {
  open();
  type(1, "Ä. Müller");
  click("CheckDiagramm(0)");
  click("CheckTabelle(0)");
  click("CommandDruckAbbrechen(0)");
  open();
  EXPECT_EQ(utf8Text(text(1).text()), "Ä. Müller");
  EXPECT_TRUE(check("CheckDiagramm(0)").isChecked());
  EXPECT_FALSE(check("CheckTabelle(0)").isChecked());
  click("CommandDruckAbbrechen(1)");
}

TEST_F(DruckInfo, PreviewWritesBackAndComesBackToTheDialog) {
  open();
  click("CheckDiagramm(0)");
  click("CommandVorschau");
  EXPECT_EQ(done, std::vector<std::string>{"preview"});
  EXPECT_TRUE(info.CheckXYDiagramm);
  EXPECT_TRUE(info.Geaendert);
  EXPECT_TRUE(form->isVisible());
}

TEST_F(DruckInfo, ASavedPdfClosesTheDialogOneGivenUpDoesNot) {
  result = false;
  open();
  type(2, "warm");
  click("CommandPdf");
  EXPECT_EQ(info.Kommentar.trimmed(), "warm");
  EXPECT_TRUE(form->isVisible());
  result = true;
  click("CommandPdf");
  EXPECT_FALSE(form->isVisible());
  EXPECT_EQ(done, (std::vector<std::string>{"pdf", "pdf"}));
}

TEST_F(DruckInfo, WhatWindows1252LacksIsRefusedVisibly) {
  open();
  type(0, "測x");
  EXPECT_EQ(utf8Text(text(0).text()), "x");
  EXPECT_TRUE(text(0).property("refused").toBool());
  QTest::keyClicks(&text(0), QString(100, QLatin1Char('a')));
  EXPECT_EQ(text(0).text().size(), 75);
}

TEST_F(DruckInfo, ATextThatWasNotEditedKeepsItsBytes) {
  info.Bediener.bytes().fill('\0');
  const auto before = info.Bediener;
  open();
  type(0, "Welle");
  click("CommandDruckAbbrechen(0)");
  EXPECT_EQ(info.Bediener, before);
}

TEST_F(DruckInfo, WithoutAPrinterPrintIsDisabledAndTheDialogSaysSo) {
  open(false);
  EXPECT_NE(words("lblHinweis").find("Kein Drucker eingerichtet."), std::string::npos);
  click("CommandDruckAbbrechen(0)");
  EXPECT_TRUE(done.empty());
  click("CommandVorschau");
  click("CommandPdf");
  EXPECT_EQ(done, (std::vector<std::string>{"preview", "pdf"}));
}

TEST_F(DruckInfo, AnEmptyChoiceIsToldBeforeItIsPrinted) {
  open();
  EXPECT_EQ(words("lblHinweis"), "");
  click("CheckTabelle(0)");
  EXPECT_EQ(words("lblHinweis"), "Weder Diagramm noch Tabelle gewählt: Das Protokoll bleibt leer.");
  click("CheckDiagramm(0)");
  EXPECT_EQ(words("lblHinweis"), "");
}

class DruckInfoWords : public DruckInfo, public ::testing::WithParamInterface<int> {};

TEST_P(DruckInfoWords, FitTheDialog) {
  look(Appearance::light, GetParam());
  info.CheckXTabelle = false;
  open(false);
  EXPECT_LE(form->width(), 1024);
  for (const QLabel* each : form->findChildren<QLabel*>()) {
    if (!each->isVisibleTo(form.get()) || each->wordWrap()) continue;
    EXPECT_LE(each->fontMetrics().horizontalAdvance(each->text()), each->contentsRect().width())
        << utf8Text(each->text());
  }
  const auto* hint = form->findChild<QLabel*>(QStringLiteral("lblHinweis"));
  EXPECT_LE(hint->heightForWidth(hint->width()), hint->height());
  for (const QPushButton* each : form->findChildren<QPushButton*>())
    EXPECT_LE(each->sizeHint().width(), each->width()) << utf8Text(each->text());
}

INSTANTIATE_TEST_SUITE_P(AllLanguages, DruckInfoWords, ::testing::Range(0, 8));

}  // namespace
}  // namespace korvin
