// What the window does with its points and files.

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QPushButton>
#include <filesystem>

#include "frame/datum_text.h"
#include "frame/messart.h"
#include "position_stand.h"

namespace korvin {
namespace {

class Data : public test::PositionStand {
 protected:
  PointList& list() { return *form->findChild<PointList*>(); }
  std::string cell(int row, int column) {
    return utf8Text(list().model()->index(row, column).data().toString());
  }
  void clickRow(int row) {
    const QRect place = list().visualRect(list().model()->index(row, 2));
    QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, place.center());
  }
  /// What the user does with the next dialog of file information.
  void nextFileInfo(std::function<void(QDialog&)> action) {
    QTimer::singleShot(0, [action = std::move(action)] {
      auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      if (dialog == nullptr || dialog->objectName() != QStringLiteral("FormDateiInfoO")) {
        ADD_FAILURE() << "no dialog of file information";
        return;
      }
      action(*dialog);
    });
  }
  void acceptFileInfo() {
    nextFileInfo([](QDialog& dialog) { press(dialog, "cmdOK"); });
  }
  static void press(QDialog& dialog, const char* button) {
    QTest::mouseClick(dialog.findChild<QPushButton*>(QString::fromLatin1(button)), Qt::LeftButton);
  }
  void saveAs(const std::string& name) {
    fileDialog.answers.push_back(name);
    acceptFileInfo();
    type(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
  }
  void answer(MessageAnswer a) { world.messages.answers.push_back(a); }
  bool exists(const std::string& name) { return std::filesystem::exists(folder.path(name)); }
};

// ---- Cursor, offset, list ----

TEST_F(Data, CursorMovesByKeysShortcutsAndTheHead) {
  show();
  takePoints(3);
  click("MPL");
  EXPECT_EQ(text("PanelMessPkt"), "2");
  EXPECT_EQ(text("PanelxWertNormal"), "0.2000");
  type(Qt::Key_Left);
  type(Qt::Key_Left);
  EXPECT_EQ(text("PanelMessPkt"), "1") << "the first point is the end";
  type(Qt::Key_Right);
  EXPECT_EQ(text("PanelMessPkt"), "2");
  headKey('R');
  run(0.1);
  EXPECT_EQ(text("PanelMessPkt"), "3");
  headKey('L');
  run(0.1);
  EXPECT_EQ(text("PanelMessPkt"), "2");
  EXPECT_EQ(text("lblMPsTotal"), "3");
}

TEST_F(Data, OffsetIsTakenFromTheCursorAndDropped) {
  show();
  takePoints(3);
  click("MPL");
  click("OFFSET");
  EXPECT_TRUE(pressed("OFFSET"));
  EXPECT_EQ(text("lblOffset"), "2 / 0.200 / 0.000");
  EXPECT_EQ(text("PanelxWertNormal"), "0.0000");
  EXPECT_EQ(cell(2, PointListModel::X), "0.1000");
  type(Qt::Key_F9);
  EXPECT_FALSE(pressed("OFFSET"));
  EXPECT_EQ(text("lblOffset"), "--- / -.--- / -.--- ");
  EXPECT_EQ(cell(2, PointListModel::X), "0.3000");
}

TEST_F(Data, OffsetWithoutAPointSpringsBack) {
  show();
  click("OFFSET");
  EXPECT_FALSE(pressed("OFFSET"));
  EXPECT_FALSE(info().OffsetAktiv);
}

TEST_F(Data, ListShowsThePointsAndFollowsTheCursor) {
  show();
  takePoints(2);
  EXPECT_EQ(cell(1, PointListModel::Number), "2");
  EXPECT_EQ(cell(1, PointListModel::Time), "15.03.2023 / 12:00:00");
  EXPECT_EQ(cell(1, PointListModel::X), "0.2000");
  EXPECT_EQ(list().currentIndex().row(), 1);
  type(Qt::Key_Left);
  EXPECT_EQ(list().currentIndex().row(), 0);
  clickRow(1);
  EXPECT_EQ(text("PanelMessPkt"), "2");
  QTest::keyClick(&list(), Qt::Key_Up);
  EXPECT_EQ(text("PanelMessPkt"), "1");
}

TEST_F(Data, ListIsCopiedAsTabSeparatedText) {
  show();
  takePoints(3);
  list().selectAll();
  QTest::keyClick(&list(), Qt::Key_C, Qt::ControlModifier);
  const QString all = QGuiApplication::clipboard()->text();
  EXPECT_EQ(all.count(QLatin1Char('\n')), 3);
  clickRow(1);
  QTest::keyClick(&list(), Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(utf8Text(QGuiApplication::clipboard()->text()), "2\t15.03.2023 / 12:00:00\t0.2000\t0.0000\n");
}

TEST_F(Data, SelectionOfSeveralRowsOutlivesNewPoints) {
  show();
  takePoints(3);
  list().selectAll();
  click("XYMP1");
  run(0.2);
  EXPECT_EQ(list().selectionModel()->selectedRows().size(), 3);
}

TEST_F(Data, NumbersZoomReplacesTheDiagramAndIsKeptInTheRecord) {
  show();
  EXPECT_TRUE(shown("PictureXYDiagramm"));
  EXPECT_FALSE(shown("PanelXWertZoom"));
  click("NZOOM");
  EXPECT_TRUE(pressed("NZOOM"));
  EXPECT_TRUE(entry("M_xyNumZoom")->isChecked());
  EXPECT_FALSE(shown("PictureXYDiagramm"));
  EXPECT_TRUE(shown("PointList"));
  EXPECT_TRUE(shown("pnlXY"));
  EXPECT_EQ(text("pnlXY"), "[mm]");
  EXPECT_TRUE(formpos.arbeit().X.NumZoom);
  EXPECT_TRUE(formpos.arbeit().Y.NumZoom);
  entry("M_xyNumZoom")->trigger();
  EXPECT_FALSE(pressed("NZOOM"));
  EXPECT_TRUE(shown("PictureXYDiagramm"));
}

TEST_F(Data, ListCanBeHiddenAndShownByItsEntry) {
  show();
  EXPECT_TRUE(entry("M_PunktListe")->isChecked());
  type(Qt::Key_L, Qt::ControlModifier);
  EXPECT_FALSE(shown("PointList"));
  EXPECT_FALSE(entry("M_PunktListe")->isChecked());
  takePoints(2);
  entry("M_PunktListe")->trigger();
  EXPECT_TRUE(shown("PointList"));
  EXPECT_EQ(list().model()->rowCount(), 2);
}

TEST_F(Data, DeletingEmptiesAllAndReleasesTheOffset) {
  show();
  takePoints(3);
  click("OFFSET");
  type(Qt::Key_Delete, Qt::ControlModifier);
  EXPECT_EQ(info().AnzahlMP, 0);
  EXPECT_FALSE(pressed("OFFSET"));
  EXPECT_EQ(list().model()->rowCount(), 0);
  EXPECT_EQ(text("PanelxWertNormal"), "-.----");
  EXPECT_EQ(text("lblOffset"), "--- / -.--- / -.--- ");
  takePoints(1);
  EXPECT_EQ(list().model()->rowCount(), 1);
}

TEST_F(Data, DeletingEmptiesTheListOfTelegramsToo) {
  show();
  QTest::mouseDClick(label("lblMSCommInput(0)"), Qt::LeftButton);
  run(0.5);
  auto* telegrams = form->findChild<QListWidget*>(QStringLiteral("LstCamMsg"));
  ASSERT_GT(telegrams->count(), 3);
  click("LOESCHEN");
  EXPECT_EQ(telegrams->count(), 0);
}

TEST_F(Data, ListFollowsTheCursorAfterDeletingToo) {
  show();
  takePoints(1);
  click("LOESCHEN");
  takePoints(1);
  EXPECT_EQ(list().currentIndex().row(), 0);
}

TEST_F(Data, DeletingDuringATransactionWaitsForItsEnd) {
  show();
  takePoints(2);
  world.head.delay = 0.3;
  click("XYMP1");
  int seen = -1;
  world.clock.after(0.5, [&] {
    ASSERT_TRUE(pressed("XYMP1")) << "the measurement is under way";
    entry("M_MessLöschen")->trigger();
    seen = info().AnzahlMP;
  });
  run(1);
  EXPECT_EQ(seen, 2);
  EXPECT_EQ(info().AnzahlMP, 0) << "the reading went with the points it belonged to";
}

// ---- New and its question ----

TEST_F(Data, NewAsksOnlyForChangedData) {
  show();
  click("NEU");
  EXPECT_TRUE(world.messages.shown.empty());
  takePoints(1);
  answer(MessageAnswer::cancel);
  type(Qt::Key_N, Qt::ControlModifier);
  ASSERT_EQ(world.messages.shown.size(), 1U);
  EXPECT_EQ(world.messages.shown[0].title, "KORVIN-D5502");
  EXPECT_EQ(world.messages.shown[0].text, "D6009");
  EXPECT_EQ(world.messages.shown[0].buttons, MessageButtons::yesNoCancel);
  EXPECT_EQ(world.messages.beeps, 1);
  EXPECT_EQ(info().AnzahlMP, 1);
  answer(MessageAnswer::no);
  click("NEU");
  EXPECT_EQ(info().AnzahlMP, 0);
  EXPECT_FALSE(info().Geaendert);
  EXPECT_EQ(list().model()->rowCount(), 0);
}

TEST_F(Data, NewSavesOnYes) {
  show();
  takePoints(2);
  answer(MessageAnswer::yes);
  fileDialog.answers.push_back(folder.path("a.O"));
  acceptFileInfo();
  click("NEU");
  EXPECT_TRUE(exists("a.O"));
  EXPECT_EQ(info().AnzahlMP, 0);
  EXPECT_EQ(info().DateiStatus, 0);
}

TEST_F(Data, NewKeepsTheDataIfTheSaveIsGivenUp) {
  show();
  takePoints(2);
  answer(MessageAnswer::yes);
  click("NEU");
  EXPECT_EQ(info().AnzahlMP, 2);
  EXPECT_TRUE(info().Geaendert);
}

TEST_F(Data, NewEndsARunOnlyWhenItIsDecided) {
  show();
  click("XYMPN");
  run(0.3);
  answer(MessageAnswer::cancel);
  click("NEU");
  run(0.1);
  EXPECT_TRUE(pressed("XYMPN"));
  answer(MessageAnswer::no);
  click("NEU");
  EXPECT_FALSE(pressed("XYMPN"));
  run(1);
  EXPECT_EQ(info().AnzahlMP, 0);
}

// ---- Saving ----

TEST_F(Data, FirstSaveAsksForNameAndInformation) {
  show();
  takePoints(2);
  fileDialog.answers.push_back(folder.path("beam"));
  nextFileInfo([](QDialog& dialog) {
    auto* comment = dialog.findChild<QLineEdit*>(QStringLiteral("Kommentar"));
    comment->clear();
    QTest::keyClicks(comment, QStringLiteral("Halle 3"));
    QTest::keyClick(comment, Qt::Key_Return);
  });
  type(Qt::Key_S, Qt::ControlModifier);
  ASSERT_EQ(fileDialog.requests.size(), 1U);
  EXPECT_FALSE(fileDialog.requests[0].open);
  EXPECT_EQ(fileDialog.requests[0].filter, "D505(*.O)|");
  EXPECT_EQ(fileDialog.requests[0].title, "D2045");
  EXPECT_TRUE(exists("beam.O"));
  EXPECT_EQ(info().Kommentar.trimmed(), "Halle 3");
  EXPECT_EQ(info().DateiStatus, 2);
  EXPECT_FALSE(info().Geaendert);
  EXPECT_EQ(info().Datum.trimmed(), "15.03 2023 / 12:00:00");
  EXPECT_EQ(utf8Text(form->windowTitle()), folder.path("beam.O") + " [D5502]");
}

TEST_F(Data, SecondSaveAsksNothing) {
  show();
  takePoints(1);
  saveAs(folder.path("a.O"));
  click("XYMP1");
  run(0.2);
  click("SPEICHERN");
  EXPECT_EQ(fileDialog.requests.size(), 1U);
  EXPECT_FALSE(info().Geaendert);
  EXPECT_EQ(std::filesystem::file_size(folder.path("a.O1")), 24U * 3);
}

TEST_F(Data, CancelledInformationWritesNothing) {
  show();
  takePoints(1);
  fileDialog.answers.push_back(folder.path("a.O"));
  nextFileInfo([](QDialog& dialog) {
    dialog.findChild<QLineEdit*>(QStringLiteral("Bediener"))->setText(QStringLiteral("x"));
    press(dialog, "cmdAbbrechen");
  });
  click("SPEICHERN");
  EXPECT_FALSE(exists("a.O"));
  EXPECT_TRUE(info().InfoAbbruch);
  EXPECT_EQ(info().Bediener.trimmed(), "?");
  EXPECT_EQ(info().DateiStatus, 0);
  EXPECT_TRUE(info().Geaendert);
}

TEST_F(Data, FailedSaveTellsAndKeepsTheDataChanged) {
  show();
  takePoints(1);
  saveAs(folder.path("missing/a.O"));
  EXPECT_EQ(world.messages.shown.size(), 1U);
  EXPECT_TRUE(info().Geaendert);
  EXPECT_EQ(info().Datum.trimmed(), LeerDatum);
  EXPECT_EQ(info().AnzahlMP, 1);
}

TEST_F(Data, PathThatDoesNotFitIsRefusedAndTheOldNameStays) {
  show();
  takePoints(1);
  saveAs(folder.path("a.O"));
  const std::string title = utf8Text(form->windowTitle());
  fileDialog.answers.push_back(folder.path("") + std::string(80, 'b') + ".O");
  entry("M_SpeichernUnter")->trigger();
  EXPECT_EQ(world.messages.shown.size(), 1U);
  EXPECT_EQ(utf8Text(form->windowTitle()), title);
  EXPECT_EQ(info().DateiStatus, 2);
}

TEST_F(Data, SaveDuringARunLetsItGoOn) {
  show();
  click("XYMPN");
  run(0.5);
  saveAs(folder.path("a.O"));
  EXPECT_TRUE(exists("a.O"));
  const int saved = info().AnzahlMP;
  run(0.5);
  EXPECT_TRUE(pressed("XYMPN"));
  EXPECT_GT(info().AnzahlMP, saved);
  EXPECT_TRUE(info().Geaendert);
}

TEST_F(Data, TextThatIsNotEditedKeepsItsBytes) {
  show();
  const std::string odd = "as it was" + std::string(66, '\0');
  info().Kommentar = odd;
  saveAs(folder.path("a.O"));
  EXPECT_EQ(info().Kommentar.full(), odd);
}

TEST_F(Data, InformationRefusesVisiblyWhatDoesNotFit) {
  show();
  takePoints(1);
  fileDialog.answers.push_back(folder.path("a.O"));
  nextFileInfo([](QDialog& dialog) {
    auto* name = dialog.findChild<QLineEdit*>(QStringLiteral("Bezeichnung"));
    name->selectAll();
    QTest::keyClicks(name, QStringLiteral("Mast"));
    QInputMethodEvent chinese;
    chinese.setCommitString(QStringLiteral("測"));
    QApplication::sendEvent(name, &chinese);
    EXPECT_EQ(name->text(), QStringLiteral("Mast"));
    EXPECT_TRUE(name->property("refused").toBool());
    name->clear();
    QTest::keyClicks(name, QString(76, QLatin1Char('m')));
    EXPECT_EQ(name->text().size(), 75);
    press(dialog, "cmdOK");
  });
  click("SPEICHERN");
  EXPECT_EQ(info().Bezeichnung.full(), std::string(75, 'm'));
}

// ---- Opening ----

TEST_F(Data, OpenShowsTheFilesData) {
  const std::string name = folder.copyOf("reference/point.O");
  folder.copyOf("reference/point.O1");
  show();
  fileDialog.answers.push_back(name);
  type(Qt::Key_O, Qt::ControlModifier);
  ASSERT_EQ(fileDialog.requests.size(), 1U);
  EXPECT_TRUE(fileDialog.requests[0].open);
  EXPECT_EQ(fileDialog.requests[0].filter, "D505(*.O)|*.O");
  EXPECT_EQ(fileDialog.requests[0].title, "D2044");
  EXPECT_EQ(text("lblMPsTotal"), "40");
  EXPECT_EQ(list().model()->rowCount(), 40);
  EXPECT_TRUE(pressed("OFFSET"));
  EXPECT_EQ(info().DateiStatus, 1);
  EXPECT_FALSE(info().Geaendert);
  EXPECT_EQ(world.system.Messart, MessartPosition);
  EXPECT_EQ(utf8Text(form->windowTitle()), "C:\\KorFiles\\Punkt.O [D5502]");
}

TEST_F(Data, RefusedFileChangesNothing) {
  show();
  takePoints(2);
  saveAs(folder.path("a.O"));
  fileDialog.answers.push_back(folder.copyOf("reference/miscount.O"));
  folder.copyOf("reference/miscount.O1");
  click("LADEN");
  EXPECT_EQ(world.messages.shown.size(), 1U);
  EXPECT_EQ(info().AnzahlMP, 2);
  EXPECT_EQ(list().model()->rowCount(), 2);
  EXPECT_EQ(info().DateiStatus, 2);
}

TEST_F(Data, OpenAsksForChangedDataAndGivesUpOnCancel) {
  show();
  takePoints(1);
  answer(MessageAnswer::cancel);
  click("LADEN");
  EXPECT_TRUE(fileDialog.requests.empty());
  answer(MessageAnswer::no);
  click("LADEN");
  EXPECT_EQ(fileDialog.requests.size(), 1U);
  EXPECT_EQ(info().AnzahlMP, 1) << "no file was chosen";
}

TEST_F(Data, OpenEndsARunOnceAFileIsChosen) {
  const std::string name = folder.copyOf("reference/point.O");
  folder.copyOf("reference/point.O1");
  show();
  click("XYMPN");
  run(0.5);
  answer(MessageAnswer::no);
  fileDialog.answers.push_back(name);
  click("LADEN");
  EXPECT_FALSE(pressed("XYMPN"));
  run(1);
  EXPECT_EQ(info().AnzahlMP, 40);
}

TEST_F(Data, WindowForALoadedFileKeepsIt) {
  const std::string name = folder.copyOf("reference/point.O");
  folder.copyOf("reference/point.O1");
  ASSERT_TRUE(dateien.o_DateiLaden(name));
  formpos.bild().Info.DateiStatus = 1;
  formpos.Info().DateiStatus = 1;
  show();
  EXPECT_EQ(text("lblMPsTotal"), "40");
  EXPECT_EQ(info().PortNr, 1) << "the link's settings are the present ones";
}

// ---- Printing ----

TEST_F(Data, KeyMenuAndShortcutPrintTheReport) {
  std::vector<QWidget*> over;
  printed = [&over](QWidget* window) { over.push_back(window); };
  show();
  click("DRUCKEN");
  entry("M_ProtokollDrucken")->trigger();
  type(Qt::Key_P, Qt::ControlModifier);
  EXPECT_EQ(over, std::vector<QWidget*>(3, form.get()));
}

TEST_F(Data, PrintingWaitsForTheTelegramUnderWay) {
  bool done = false;
  bool during = false;
  printed = [&done](QWidget*) { done = true; };
  show();
  run(0.2);
  world.head.behaviour = [](char) { return std::string(); };
  world.clock.after(0.1, [&] {
    click("DRUCKEN");
    during = done;
  });
  run(3);
  EXPECT_FALSE(during);
  EXPECT_TRUE(done);
}

TEST_F(Data, AClosingWindowPrintsNothing) {
  bool done = false;
  printed = [&done](QWidget*) { done = true; };
  show();
  form->close();
  entry("M_ProtokollDrucken")->trigger();
  run(0.5);
  EXPECT_FALSE(done);
}

// ---- Closing ----

TEST_F(Data, ClosingTakesTwoSteps) {
  show();
  run(0.2);
  form->close();
  EXPECT_TRUE(form->isVisible()) << "a telegram may be under way";
  EXPECT_TRUE(form->offen());
  EXPECT_EQ(text("lblBetrieb"), "D7225");
  EXPECT_NE(QApplication::overrideCursor(), nullptr);
  const int beeps = world.messages.beeps;
  run(0.1);
  EXPECT_FALSE(form->isVisible());
  EXPECT_FALSE(form->offen());
  EXPECT_EQ(world.messages.beeps, beeps + 1);
  EXPECT_FALSE(world.head.PortOpen());
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
  const std::size_t sent = world.head.commands.size();
  run(1);
  EXPECT_EQ(world.head.commands.size(), sent);
}

TEST_F(Data, ClosingAsksForChangedData) {
  show();
  takePoints(1);
  answer(MessageAnswer::cancel);
  form->close();
  run(0.3);
  EXPECT_TRUE(form->offen());
  answer(MessageAnswer::yes);
  form->close();
  run(0.3);
  EXPECT_TRUE(form->offen()) << "the save was given up";
  answer(MessageAnswer::yes);
  fileDialog.answers.push_back(folder.path("a.O"));
  acceptFileInfo();
  form->close();
  run(0.3);
  EXPECT_FALSE(form->offen());
  EXPECT_TRUE(exists("a.O"));
}

TEST_F(Data, ClosingAsksOnceHoweverOftenItIsAskedFor) {
  show();
  takePoints(1);
  answer(MessageAnswer::yes);
  fileDialog.answers.push_back(folder.path("a.O"));
  nextFileInfo([this](QDialog& dialog) {
    form->close();
    press(dialog, "cmdOK");
  });
  form->close();
  EXPECT_EQ(world.messages.shown.size(), 1U);
  run(0.3);
  EXPECT_FALSE(form->offen());
}

TEST_F(Data, ClosingWithNoDropsTheData) {
  show();
  takePoints(1);
  answer(MessageAnswer::no);
  entry("M_Beenden")->trigger();
  run(0.3);
  EXPECT_FALSE(form->offen());
}

TEST_F(Data, ClosingDuringARunEndsAtTheNextTick) {
  show();
  click("XYMPN");
  run(0.5);
  answer(MessageAnswer::no);
  form->close();
  run(0.05);
  EXPECT_FALSE(form->offen());
}

TEST_F(Data, CommandsAreDeadWhileTheWindowCloses) {
  show();
  takePoints(1);
  answer(MessageAnswer::no);
  form->close();
  click("NEU");
  EXPECT_EQ(world.messages.shown.size(), 1U);
  EXPECT_EQ(info().AnzahlMP, 1);
  form->close();
  EXPECT_EQ(world.messages.shown.size(), 1U) << "asked once";
}

TEST_F(Data, ClosingWhileATransactionWaits) {
  show();
  run(0.2);
  world.head.behaviour = [](char) { return std::string(); };
  world.clock.after(0.1, [this] { form->close(); });
  run(20);
  EXPECT_FALSE(form->offen());
}

TEST_F(Data, ExecutedWindowReturnsWhenItIsClosedAndCanBeDeletedThen) {
  show();
  form->hide();
  form.reset();
  ZyklusUmgebung zyklus{world.clock,  world.clock,   world.clock,  world.messages, dictionary(),
                        world.profil, world.meldung, world.korCom, world.answer,   world.system};
  form = std::make_unique<FormPosition>(
      PositionUmgebung{zyklus, world.head, formpos, erfassung(), dateien, services()});
  QTimer::singleShot(0, [this] { form->close(); });
  QTimer::singleShot(0, [this] { world.clock.advance(1); });
  form->ausfuehren();
  EXPECT_FALSE(form->offen());
  form.reset();
}

}  // namespace
}  // namespace korvin
