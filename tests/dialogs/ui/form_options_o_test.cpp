// The settings dialog of position measuring, by real clicks and keys.

#include <QInputMethodEvent>
#include <QToolTip>
#include <filesystem>

#include "options_o_stand.h"
#include "support/temp_folder.h"

namespace korvin {
namespace {

class FormOptionsOTest : public test::OptionsOStand {
 protected:
  int caret(int index) { return box(index)->cursorPosition(); }
};

// ---- What it shows ----

TEST_F(FormOptionsOTest, TitleTabsAndNames) {
  showFromMainWindow();
  EXPECT_EQ(utf8Text(dialog->windowTitle()), "D2037: D505");
  auto* tabs = find<QTabWidget>("TabOptO");
  ASSERT_EQ(tabs->count(), 3);
  EXPECT_EQ(utf8Text(tabs->tabText(0)), "D2220");
  EXPECT_EQ(utf8Text(tabs->tabToolTip(0)), "D2225");
  EXPECT_EQ(utf8Text(tabs->tabText(1)), "D2222");
  EXPECT_EQ(utf8Text(tabs->tabToolTip(1)), "D2227");
  EXPECT_EQ(utf8Text(tabs->tabText(2)), "D2223");
  EXPECT_EQ(utf8Text(tabs->tabToolTip(2)), "D2228");
  EXPECT_EQ(tabs->widget(0), find<QWidget>("TabAllgemein"));
  EXPECT_EQ(tabs->widget(1), find<QWidget>("TabMessinstrument"));
  EXPECT_EQ(tabs->widget(2), find<QWidget>("TabDisplay"));
  for (int i = 0; i <= 12; ++i) EXPECT_NE(box(i), nullptr) << i;
  EXPECT_TRUE(box(1)->isReadOnly());
  EXPECT_EQ(tabs->currentIndex(), 0);
}

TEST_F(FormOptionsOTest, ListsHaveTheirEntries) {
  showFromMainWindow();
  EXPECT_EQ(entries("cmbBpS"), "19200|115200|");
  EXPECT_EQ(entries("cmbFilter"), "D3200|D3201|D3202|D3203|D3204|");
  EXPECT_EQ(entries("cmbKameraBefestigung"), "D3029|D3030|D3031|D3032|");
  EXPECT_EQ(entries("cmbAnzStellen"), "0.0|0.00|0.000|0.0000|");
  EXPECT_EQ(entries("cmbSfak"), "1|2|3|4|5|6|");
}

TEST_F(FormOptionsOTest, ShowsWhatIsStored) {
  store("KorInfo", "FirmaName", "Maker");
  store("MessInfo_O", "Kommentar", "cold");
  store("KorInfo", "PortNr", "7");
  store("MessInfo_O", "Montage", "2");
  store("MessInfo_O", "SFak", "3");
  store("DruckInfo_O", "CheckYTabelle", "-1");
  showFromMainWindow();
  EXPECT_EQ(text(0), "Maker");
  EXPECT_EQ(text(2), "?");
  EXPECT_EQ(text(5), "cold");
  EXPECT_EQ(text(6), "7");
  EXPECT_EQ(list("cmbKameraBefestigung")->currentIndex(), 2);
  EXPECT_EQ(list("cmbSfak")->currentText(), QStringLiteral("3"));
  EXPECT_FALSE(check("CheckTabelle(0)")->isChecked());
  EXPECT_TRUE(check("CheckTabelle(1)")->isChecked());
}

// ---- OK, Cancel, Help ----

TEST_F(FormOptionsOTest, OkStoresWhatEveryControlHolds) {
  showFromMainWindow();
  enter(0, "Maker");
  enter(2, "Rail");
  enter(4, "Anna");
  enter(5, "cold");
  enter(3, "/data/");
  openTab("TabMessinstrument");
  enter(6, "9");
  choose("cmbBpS", 0);
  choose("cmbFilter", 4);
  choose("cmbKameraBefestigung", 3);
  openTab("TabDisplay");
  choose("cmbAnzStellen", 2);
  choose("cmbSfak", 1);
  for (const char* name : {"CheckDiagramm", "CheckTabelle(0)", "CheckTabelle(1)", "CheckAsciiDatei"})
    click(check(name));
  EXPECT_EQ(stored("KorInfo", "FirmaName"), "none") << "nothing is stored before OK";
  ok();
  EXPECT_TRUE(closed());
  EXPECT_EQ(dialog->result(), QDialog::Accepted);
  EXPECT_TRUE(messages.shown.empty());
  EXPECT_EQ(stored("KorInfo", "FirmaName"), "Maker");
  EXPECT_EQ(stored("MessInfo_O", "Bezeichnung"), "Rail");
  EXPECT_EQ(stored("KorInfo", "PfadMessFile"), "/data/");
  EXPECT_EQ(stored("MessInfo_O", "Bediener"), "Anna");
  EXPECT_EQ(stored("MessInfo_O", "Kommentar"), "cold");
  EXPECT_EQ(stored("KorInfo", "PortNr"), "9");
  EXPECT_EQ(stored("KorInfo", "BaudRate"), "0");
  EXPECT_EQ(stored("MessInfo_O", "Filter"), "4");
  EXPECT_EQ(stored("MessInfo_O", "Montage"), "3");
  EXPECT_EQ(stored("KorInfo", "NKStellen"), "2");
  EXPECT_EQ(stored("MessInfo_O", "SFak"), "2");
  EXPECT_EQ(stored("DruckInfo_O", "CheckXYDiagramm"), "-1");
  EXPECT_EQ(stored("DruckInfo_O", "CheckXTabelle"), "-1");
  EXPECT_EQ(stored("DruckInfo_O", "CheckYTabelle"), "-1");
  EXPECT_EQ(stored("KorInfo", "AsciiDatei"), "-1");
}

TEST_F(FormOptionsOTest, CancelChangesNothing) {
  info().StartZeit = 3;
  const auto before = toBytes(info());
  showFromPosition();
  enter(0, "Maker");
  openTab("TabMessinstrument");
  choose("cmbFilter", 4);
  click(check("CheckAutoOn"));
  enter(7, "12");
  cancel();
  EXPECT_TRUE(closed());
  EXPECT_EQ(dialog->result(), QDialog::Rejected);
  EXPECT_TRUE(tree.keys.empty());
  EXPECT_EQ(toBytes(info()), before);
  EXPECT_EQ(system.FilterVorgabe, '2');
  EXPECT_EQ(commands, 0);
}

TEST_F(FormOptionsOTest, EscapeCancelsAndEnterIsOk) {
  showFromMainWindow();
  enter(0, "First");
  QTest::keyClick(box(0), Qt::Key_Escape);
  EXPECT_TRUE(closed());
  EXPECT_EQ(stored("KorInfo", "FirmaName"), "none");
  showFromMainWindow();
  enter(0, "Second");
  QTest::keyClick(box(0), Qt::Key_Return);
  EXPECT_TRUE(closed());
  EXPECT_EQ(stored("KorInfo", "FirmaName"), "Second");
}

TEST_F(FormOptionsOTest, HelpOpensTheHelpAndTheDialogStays) {
  showFromMainWindow();
  press(2);
  EXPECT_EQ(helpOpened, 1);
  EXPECT_FALSE(closed());
}

// ---- The caret ----

TEST_F(FormOptionsOTest, TheCaretStandsBehindTheTextOfABoxThatGetsTheFocus) {
  store("KorInfo", "FirmaName", "Maker");
  store("MessInfo_O", "Bezeichnung", "A long rail");
  showFromMainWindow();
  EXPECT_EQ(caret(0), 5) << "the first box, when the dialog opens";
  QTest::keyClick(box(0), Qt::Key_Tab);
  settle();
  ASSERT_TRUE(box(2)->hasFocus());
  EXPECT_EQ(caret(2), 11);
  EXPECT_FALSE(box(2)->hasSelectedText());
  QTest::mouseClick(box(0), Qt::LeftButton, {}, QPoint(10, box(0)->height() / 2));
  settle();
  EXPECT_EQ(caret(0), 5) << "a click that brings the focus does not place it";
  QTest::mouseClick(box(0), Qt::LeftButton, {}, QPoint(10, box(0)->height() / 2));
  settle();
  EXPECT_EQ(caret(0), 0) << "the next one does";
}

// ---- Port ----

TEST_F(FormOptionsOTest, APortOf0Or17IsToldAndKeepsTheFocus) {
  showFromMainWindow();
  openTab("TabMessinstrument");
  int told = 0;
  for (const char* bad : {"0", "17"}) {
    enter(6, bad);
    QTest::keyClick(box(6), Qt::Key_Tab);
    settle();
    ASSERT_EQ(messages.shown.size(), static_cast<std::size_t>(++told)) << bad;
    EXPECT_EQ(messages.shown.back().title, "D6013:");
    EXPECT_EQ(messages.shown.back().text, "D6015D6014\r\n1 ..16: ");
    EXPECT_TRUE(box(6)->hasFocus());
    EXPECT_EQ(text(6), bad);
    EXPECT_EQ(hint(6), "D6014: 1 .. 16");
    EXPECT_TRUE(box(6)->property("refused").toBool());
  }
  enter(6, "16");
  EXPECT_EQ(hint(6), "") << "the words go with the text they spoke of";
  EXPECT_FALSE(box(6)->property("refused").toBool());
  QTest::keyClick(box(6), Qt::Key_Tab);
  settle();
  EXPECT_FALSE(box(6)->hasFocus());
  EXPECT_EQ(messages.shown.size(), 2U);
}

TEST_F(FormOptionsOTest, OkRefusesABadPortAndBringsItToTheFront) {
  showFromMainWindow();
  openTab("TabMessinstrument");
  enter(6, "17");
  ok();
  EXPECT_FALSE(closed());
  EXPECT_EQ(messages.shown.size(), 1U) << "told once";
  EXPECT_TRUE(box(6)->hasFocus());
  QTest::keyClick(box(6), Qt::Key_Return);
  EXPECT_FALSE(closed()) << "nor by the key";
  EXPECT_EQ(stored("KorInfo", "PortNr"), "none");
  enter(6, "4");
  ok();
  EXPECT_TRUE(closed());
  EXPECT_EQ(stored("KorInfo", "PortNr"), "4");
}

TEST_F(FormOptionsOTest, LeavingABadPortForAnotherTabComesBack) {
  showFromMainWindow();
  openTab("TabMessinstrument");
  enter(6, "0");
  openTab("TabDisplay");
  settle();
  EXPECT_EQ(messages.shown.size(), 1U);
  EXPECT_EQ(find<QTabWidget>("TabOptO")->currentIndex(), 1);
  EXPECT_TRUE(box(6)->hasFocus());
}

TEST_F(FormOptionsOTest, CancelAndHelpAskNothingOfABadEntry) {
  showFromMainWindow();
  openTab("TabMessinstrument");
  enter(6, "0");
  press(2);
  EXPECT_EQ(helpOpened, 1);
  cancel();
  EXPECT_TRUE(closed());
  EXPECT_TRUE(messages.shown.empty());
}

TEST_F(FormOptionsOTest, AStoredPortBeyondTheRangeIsKeptUntilItIsTouched) {
  store("KorInfo", "PortNr", "20");
  showFromMainWindow();
  ok();
  EXPECT_TRUE(closed());
  EXPECT_EQ(stored("KorInfo", "PortNr"), "20");
}

// ---- Texts ----

TEST_F(FormOptionsOTest, CharactersThatDoNotFitAreRefusedVisibly) {
  showFromMainWindow();
  enter(2, "Rail");
  QInputMethodEvent typed;
  typed.setCommitString(QString::fromUtf8("\u6e2c"));
  QApplication::sendEvent(box(2), &typed);
  EXPECT_EQ(text(2), "Rail");
  EXPECT_TRUE(box(2)->property("refused").toBool());
  EXPECT_EQ(utf8Text(QToolTip::text()), "D7070");
}

TEST_F(FormOptionsOTest, TextsAreHeldToTheRecordsFields) {
  showFromMainWindow();
  for (const int index : {0, 2, 4, 5}) {
    enter(index, std::string(80, 'x').c_str());
    EXPECT_EQ(text(index).size(), 75U) << index;
  }
}

TEST_F(FormOptionsOTest, AStoredTextThatDoesNotFitStaysAsItIs) {
  store("MessInfo_O", "Bezeichnung", "\u6e2c\u5b9a");
  showFromMainWindow();
  ok();
  EXPECT_EQ(stored("MessInfo_O", "Bezeichnung"), "\u6e2c\u5b9a");
}

// ---- Folder ----

TEST_F(FormOptionsOTest, AFolderThatIsNotThereIsSaidBesideIt) {
  store("KorInfo", "PfadMessFile", KORVIN_TEST_DATA);
  showFromMainWindow();
  EXPECT_EQ(hint(3), "");
  enter(3, "/no/such/folder");
  EXPECT_EQ(hint(3), "D7455");
  enter(3, "");
  EXPECT_EQ(hint(3), "") << "blank is the program's own folder";
}

TEST_F(FormOptionsOTest, AFolderIsChosenByBrowsing) {
  showFromMainWindow();
  enter(3, KORVIN_TEST_DATA);
  QTimer::singleShot(0, [] {
    auto* chooser = QApplication::activeModalWidget();
    ASSERT_NE(chooser, nullptr);
    EXPECT_EQ(utf8Text(chooser->windowTitle()), "D7452");
    auto* entry = chooser->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    entry->setText(QStringLiteral(KORVIN_SOURCE "/texts"));
    QTest::keyClick(entry, Qt::Key_Return);
  });
  click(find<QPushButton>("cmdDurchsuchen"));
  EXPECT_EQ(text(3), KORVIN_SOURCE "/texts/");
  QTimer::singleShot(0, [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape); });
  click(find<QPushButton>("cmdDurchsuchen"));
  EXPECT_EQ(text(3), KORVIN_SOURCE "/texts/") << "given up";
}

TEST_F(FormOptionsOTest, AChosenFolderThatFilesCannotNameIsRefusedVisibly) {
  const test::TempFolder place;
  const std::filesystem::path folder = place.path() / "\u6e2c";
  std::filesystem::create_directory(folder);
  showFromMainWindow();
  enter(3, "/before/");
  QTimer::singleShot(0, [&] {
    auto* entry = QApplication::activeModalWidget()->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    entry->setText(qText(folder.string()));
    QTest::keyClick(entry, Qt::Key_Return);
  });
  click(find<QPushButton>("cmdDurchsuchen"));
  EXPECT_EQ(text(3), "/before/");
  EXPECT_TRUE(box(3)->property("refused").toBool());
}

// ---- Mounting ----

TEST_F(FormOptionsOTest, ThePictureStandsUnderTheMounting) {
  showFromMainWindow();
  openTab("TabMessinstrument");
  const QWidget* combo = list("cmbKameraBefestigung");
  const QRect place(combo->mapTo(dialog.get(), QPoint(0, 0)), combo->size());
  const QLabel* picture = label("ImgMontage");
  const QRect seen(picture->mapTo(dialog.get(), QPoint(0, 0)), picture->size());
  EXPECT_GT(seen.top(), place.bottom());
  EXPECT_GE(seen.left(), place.left());
  EXPECT_TRUE(dialog->rect().contains(seen));
  EXPECT_GE(seen.height(), picture->pixmap().height());
}

TEST_F(FormOptionsOTest, ThePictureFollowsTheMounting) {
  store("MessInfo_O", "Montage", "1");
  showFromMainWindow();
  openTab("TabMessinstrument");
  const QImage quarter = label("ImgMontage")->pixmap().toImage();
  choose("cmbKameraBefestigung", 2);
  EXPECT_NE(label("ImgMontage")->pixmap().toImage(), quarter);
  choose("cmbKameraBefestigung", 1);
  EXPECT_EQ(label("ImgMontage")->pixmap().toImage(), quarter);
}

}  // namespace
}  // namespace korvin
