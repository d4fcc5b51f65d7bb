#include <gtest/gtest.h>

#include <QLabel>
#include <QStatusBar>

#include "main_window_stand.h"

namespace korvin {
namespace {

using einstellung::Hauptfenster::MassArt;
using einstellung::Hauptfenster::Sprache;
using test::MainWindowStand;

class MDIKorvinTest : public MainWindowStand {
 protected:
  /// Every caption and tooltip that the window shows.
  QMap<QString, QString> allWords() {
    QMap<QString, QString> words;
    for (const QAction* entry : window->findChildren<QAction*>()) {
      if (!entry->objectName().isEmpty()) words.insert(entry->objectName(), entry->text());
    }
    for (const QMenu* menu : window->findChildren<QMenu*>()) {
      if (!menu->objectName().isEmpty()) words.insert(menu->objectName(), menu->title());
    }
    for (const QToolButton* button : bar().findChildren<QToolButton*>()) {
      words.insert(QStringLiteral("key ") + button->objectName(), button->toolTip());
    }
    for (const StartTile* tile : window->findChildren<StartTile*>()) {
      words.insert(tile->objectName(), tile->text());
      words.insert(tile->objectName() + QStringLiteral(" line"), tile->accessibleDescription());
      if (!tile->isEnabled()) words.insert(tile->objectName() + QStringLiteral(" why"), tile->toolTip());
    }
    for (const char* label : {"Head_Text", "Head_Line", "PanelStatus2"}) {
      words.insert(QString::fromLatin1(label),
                   window->findChild<QLabel*>(QString::fromLatin1(label))->text());
    }
    return words;
  }

  QList<int> checked(const char* array, int count) {
    QList<int> found;
    for (int i = 0; i < count; ++i) {
      if (action(QStringLiteral("%1(%2)").arg(QString::fromLatin1(array)).arg(i))->isChecked()) found << i;
    }
    return found;
  }
};

TEST_F(MDIKorvinTest, LoadingWritesNoSettings) {
  store(Sprache, "9");
  store(MassArt, "1");
  const auto before = tree.keys;
  show();
  ASSERT_EQ(tree.keys.size(), before.size());
  for (const auto& [path, key] : before) EXPECT_EQ(tree.keys.at(path).values, key.values) << path;
}

TEST_F(MDIKorvinTest, ALanguageThatIsNoneCountsAsGermanAndStaysStored) {
  store(Sprache, "9");
  show();
  EXPECT_EQ(checked("M_SprachArt", 8), QList<int>{0});
  EXPECT_EQ(system.SpracheSpalte, "Deutsch");
  EXPECT_EQ(stored(Sprache), "9");
}

TEST_F(MDIKorvinTest, ChoosingALanguageChangesEveryCaptionAtOnce) {
  show();
  const auto german = allWords();
  clickMenu(
      {QStringLiteral("M_Extras"), QStringLiteral("M_Dialogsprache"), QStringLiteral("M_SprachArt(7)")});
  EXPECT_EQ(checked("M_SprachArt", 8), QList<int>{7});
  EXPECT_EQ(stored(Sprache), "7");
  EXPECT_EQ(system.SpracheSpalte, "Japanese");
  const auto japanese = allWords();
  ASSERT_EQ(japanese.keys(), german.keys());
  for (auto word = german.cbegin(); word != german.cend(); ++word) {
    // The languages bear their own names in every language; the reserved key has no words.
    if (word.key().startsWith(QLatin1String("M_SprachArt")) ||
        word.key() == QLatin1String("key Parallelform"))
      continue;
    if (word.key().startsWith(QLatin1String("key qt_"))) continue;
    EXPECT_NE(word.value(), japanese.value(word.key())) << utf8Text(word.key());
    EXPECT_FALSE(japanese.value(word.key()).isEmpty()) << utf8Text(word.key());
  }
}

TEST_F(MDIKorvinTest, EveryLanguageCanBeChosenAndChosenBack) {
  show();
  for (int index : {1, 2, 3, 4, 5, 6, 7, 0}) {
    clickMenu({QStringLiteral("M_Extras"), QStringLiteral("M_Dialogsprache"),
               QStringLiteral("M_SprachArt(%1)").arg(index)});
    EXPECT_EQ(stored(Sprache), std::to_string(index));
    EXPECT_EQ(checked("M_SprachArt", 8), QList<int>{index});
    EXPECT_EQ(action(QStringLiteral("M_Beenden"))->text(), text(1024));
  }
}

TEST_F(MDIKorvinTest, ChoosingUnitsStoresAndShowsThem) {
  show();
  EXPECT_EQ(checked("M_MassArt", 2), QList<int>{0});
  auto* units = window->findChild<QLabel*>(QStringLiteral("PanelStatus2"));
  EXPECT_EQ(units->text(), QStringLiteral("Metrisch (mm)"));
  clickMenu({QStringLiteral("M_Extras"), QStringLiteral("M_MassSystem"), QStringLiteral("M_MassArt(1)")});
  EXPECT_EQ(system.Masssystem, 1);
  EXPECT_EQ(stored(MassArt), "1");
  EXPECT_EQ(checked("M_MassArt", 2), QList<int>{1});
  EXPECT_EQ(units->text(), QStringLiteral("Zoll (mil)"));
}

TEST_F(MDIKorvinTest, ChoosingTheSameUnitsAgainKeepsThemChecked) {
  show();
  clickMenu({QStringLiteral("M_Extras"), QStringLiteral("M_MassSystem"), QStringLiteral("M_MassArt(0)")});
  EXPECT_EQ(checked("M_MassArt", 2), QList<int>{0});
  EXPECT_EQ(stored(MassArt), "0");
}

TEST_F(MDIKorvinTest, TheKeysBearTheirNumbersWords) {
  show();
  const QList<std::pair<const char*, std::int16_t>> keys = {{"Position", 5502}, {"DateiOeffnen", 2036}};
  for (const auto& [key, number] : keys) {
    EXPECT_EQ(bar().button(QString::fromUtf8(key))->toolTip(), text(number)) << key;
  }
  EXPECT_TRUE(bar().button(QStringLiteral("Parallelität"))->toolTip().startsWith(text(5501)));
  for (const char* key : {"Geradheit", "Parallelität", "Rechtwinkligkeit", "Position", "GeradheitStatistik",
                          "DateiOeffnen", "UmgebungsAnalyse", "Parallelform", "Hilfe"}) {
    EXPECT_NE(bar().button(QString::fromUtf8(key)), nullptr) << key;
  }
}

TEST_F(MDIKorvinTest, AWindowWithoutAKindStartsFromTileKeyAndMenuAsAStraightnessMeasurement) {
  create();
  int started = 0;
  system.Messart = MessartPosition;
  window->weitereFenster["UmgebungsAnalyse"] = [&] {
    ++started;
    EXPECT_EQ(system.Messart, MessartGeradheit);
    EXPECT_TRUE(hourglassShown());
  };
  ASSERT_EQ(loadWindow(), Startergebnis::weiter);
  bringUp();
  EXPECT_EQ(tile("UmgebungsAnalyse")->toolTip(), QString());
  QTest::mouseClick(tile("UmgebungsAnalyse"), Qt::LeftButton);
  clickKey("UmgebungsAnalyse");
  action(QStringLiteral("M_UmgebungsAnalyse"))->trigger();
  EXPECT_EQ(started, 3);
  EXPECT_FALSE(hourglassShown());
  EXPECT_FALSE(bar().isKeyEnabled(QStringLiteral("GeradheitStatistik")));
}

TEST_F(MDIKorvinTest, KindsToComeAreShownDisabledAndSayWhy) {
  show();
  for (const char* key :
       {"Geradheit", "Parallelität", "Rechtwinkligkeit", "GeradheitStatistik", "UmgebungsAnalyse"}) {
    EXPECT_TRUE(tile(key)->isVisible()) << key;
    EXPECT_FALSE(tile(key)->isEnabled()) << key;
    EXPECT_EQ(tile(key)->toolTip(), text(7030)) << key;
    EXPECT_FALSE(bar().isKeyEnabled(QString::fromUtf8(key))) << key;
    EXPECT_TRUE(bar().button(QString::fromUtf8(key))->toolTip().contains(text(7030))) << key;
    QTest::mouseClick(tile(key), Qt::LeftButton);
    clickKey(key);
  }
  for (const char* entry : {"M_Geradheit", "M_Parallel", "M_Rechtwinkligkeit", "M_GeradheitStatistik",
                            "M_UmgebungsAnalyse", "M_File_G", "M_File_P", "M_File_R", "M_File_O"}) {
    EXPECT_FALSE(action(QString::fromLatin1(entry))->isEnabled()) << entry;
    EXPECT_EQ(action(QString::fromLatin1(entry))->toolTip(), text(7030)) << entry;
  }
  for (const char* entry : {"M_ParallelForm", "M_File_F"}) {
    EXPECT_FALSE(action(QString::fromLatin1(entry))->isEnabled()) << entry;
    EXPECT_EQ(action(QString::fromLatin1(entry))->toolTip(), QStringLiteral(" ")) << entry;
  }
  EXPECT_TRUE(position.shown.empty());
  EXPECT_TRUE(messages.shown.empty());
}

TEST_F(MDIKorvinTest, DefaultSettingsOpenByKind) {
  create();
  std::vector<int> opened;
  window->grundeinstellungen[MessartPosition] = [&] { opened.push_back(system.Messart); };
  ASSERT_EQ(loadWindow(), Startergebnis::weiter);
  bringUp();
  EXPECT_TRUE(action(QStringLiteral("M_File_O"))->isEnabled());
  EXPECT_EQ(action(QStringLiteral("M_File_O"))->toolTip(), QStringLiteral(" "));
  EXPECT_FALSE(action(QStringLiteral("M_File_G"))->isEnabled());
  clickMenu({QStringLiteral("M_Extras"), QStringLiteral("M_IniFile"), QStringLiteral("M_File_O")});
  EXPECT_EQ(opened, (std::vector<int>{MessartPosition}));
}

TEST_F(MDIKorvinTest, TileKeyAndMenuStartAPositionMeasurement) {
  show();
  QTest::mouseClick(tile("Position"), Qt::LeftButton);
  EXPECT_EQ(position.shown, (std::vector<int>{0}));
  EXPECT_EQ(system.Messart, MessartPosition);
  EXPECT_TRUE(position.hourglassAtShowing);
  EXPECT_FALSE(hourglassShown());
  clickKey("Position");
  clickMenu({QStringLiteral("M_Messung"), QStringLiteral("M_Neu"), QStringLiteral("M_Position")});
  QTest::keyClick(tile("Position"), Qt::Key_Return);
  EXPECT_EQ(position.shown, (std::vector<int>{0, 0, 0, 0}));
}

TEST_F(MDIKorvinTest, EachOpenEntryBeginsItsCycleOfFilters) {
  show();
  const std::string g = text(501).toStdString() + " (*.G)|*.G";
  const std::string p = text(502).toStdString() + " (*.P)|*.P";
  const std::string r = text(503).toStdString() + " (*.R)|*.R";
  const std::string f = text(504).toStdString() + " (*.F)|*.F";
  const std::string o = text(505).toStdString() + " (*.O)|*.O";
  const std::vector<std::string> wanted = {
      g + "|" + p + "|" + r + "|" + f + "|" + o, p + "|" + r + "|" + f + "|" + o + "|" + g,
      f + "|" + o + "|" + g + "|" + p + "|" + r, r + "|" + f + "|" + o + "|" + g + "|" + p,
      o + "|" + g + "|" + p + "|" + r + "|" + f};
  for (int index = 0; index < 5; ++index) {
    clickMenu({QStringLiteral("M_Messung"), QStringLiteral("M_Oeffnen"),
               QStringLiteral("M_DateiOeffnen(%1)").arg(index)});
    ASSERT_EQ(fileDialog.requests.size(), static_cast<std::size_t>(index) + 1);
    EXPECT_EQ(fileDialog.requests.back().filter, wanted.at(static_cast<std::size_t>(index)));
    EXPECT_EQ(fileDialog.requests.back().title, text(2044).toStdString());
    EXPECT_TRUE(fileDialog.requests.back().open);
  }
  clickKey("DateiOeffnen");
  EXPECT_EQ(fileDialog.requests.back().filter, text(500).toStdString() + " (*.?)|*.?|" + wanted.front());
}

TEST_F(MDIKorvinTest, TheDialogStartsInTheFolderOfTheMeasuringFiles) {
  show();
  store(einstellung::Hauptfenster::PfadMessFile, "/data/rails");
  clickKey("DateiOeffnen");
  EXPECT_EQ(fileDialog.requests.back().folder, "/data/rails");
}

TEST_F(MDIKorvinTest, CancellingTheDialogHasNoEffect) {
  show();
  const std::int16_t before = system.Messart;
  QTest::mouseClick(tile("DateiOeffnen"), Qt::LeftButton);
  EXPECT_EQ(fileDialog.requests.size(), 1U);
  EXPECT_TRUE(position.loaded.empty());
  EXPECT_TRUE(messages.shown.empty());
  EXPECT_EQ(messages.beeps, 0);
  EXPECT_EQ(system.Messart, before);
}

TEST_F(MDIKorvinTest, APositionFileIsLoadedAndShown) {
  show();
  fileDialog.answers = {"/data/rail.o  "};
  clickKey("DateiOeffnen");
  EXPECT_EQ(position.loaded.size(), 1U);
  EXPECT_EQ(position.shown, (std::vector<int>{1}));
  EXPECT_TRUE(position.hourglassAtShowing);
  EXPECT_FALSE(hourglassShown());
}

TEST_F(MDIKorvinTest, AFileThatItsKindRefusesLeavesTheStartScreen) {
  show();
  position.takesFiles = false;
  fileDialog.answers = {"/data/rail.O"};
  clickKey("DateiOeffnen");
  EXPECT_TRUE(position.shown.empty());
  EXPECT_TRUE(window->isVisible());
  EXPECT_FALSE(hourglassShown());
}

TEST_F(MDIKorvinTest, AFlatnessFileDoesNothingAndGivesNoMessage) {
  show();
  fileDialog.answers = {"/data/table.F"};
  clickMenu({QStringLiteral("M_Messung"), QStringLiteral("M_Oeffnen"), QStringLiteral("M_DateiOeffnen(2)")});
  EXPECT_EQ(fileDialog.requests.size(), 1U);
  EXPECT_TRUE(messages.shown.empty());
  EXPECT_EQ(messages.beeps, 0);
}

TEST_F(MDIKorvinTest, AnUnknownFileIsRefusedWithAMessage) {
  show();
  fileDialog.answers = {"/data/rail.txt"};
  clickKey("DateiOeffnen");
  ASSERT_EQ(messages.shown.size(), 1U);
  EXPECT_EQ(messages.beeps, 1);
  EXPECT_EQ(messages.shown.front().title, text(6000).toStdString() + ":");
  EXPECT_EQ(messages.shown.front().text, text(6001).toStdString() + "!" + NeueZeile +
                                             text(6002).toStdString() + ": *.G, *.P, *.R, *.F, *.O ");
}

TEST_F(MDIKorvinTest, TheFirstActivationRunsOnce) {
  ASSERT_EQ(load(), Startergebnis::weiter);
  int activations = 0;
  window->beiErsterAktivierung = [&] {
    ++activations;
    return true;
  };
  window->show();
  QApplication::processEvents();
  window->hide();
  window->show();
  QApplication::processEvents();
  EXPECT_EQ(activations, 1);
  EXPECT_EQ(unloaded, 0);
}

TEST_F(MDIKorvinTest, AFirstActivationThatSaysNoEndsTheProgram) {
  ASSERT_EQ(load(), Startergebnis::weiter);
  window->beiErsterAktivierung = [] { return false; };
  window->show();
  QApplication::processEvents();
  EXPECT_EQ(unloaded, 1);
  EXPECT_FALSE(window->isVisible());
}

TEST_F(MDIKorvinTest, TheStateOfTheLinkStandsInTheStatusRowInEachLanguage) {
  ASSERT_EQ(load(), Startergebnis::weiter);
  std::string head;
  window->linkZeile = [&] { return head + " " + system.SpracheSpalte; };
  window->beiErsterAktivierung = [&] {
    head = "found";
    return true;
  };
  window->show();
  QApplication::processEvents();
  auto* status = window->findChild<QLabel*>(QStringLiteral("PanelStatus1"));
  EXPECT_EQ(status->text(), QStringLiteral("found Deutsch"));
  clickMenu(
      {QStringLiteral("M_Extras"), QStringLiteral("M_Dialogsprache"), QStringLiteral("M_SprachArt(1)")});
  EXPECT_EQ(status->text(), QStringLiteral("found Englisch"));
}

TEST_F(MDIKorvinTest, TheMenuAndItsKeyEndTheProgram) {
  show();
  clickMenu({QStringLiteral("M_Messung"), QStringLiteral("M_Beenden")});
  EXPECT_EQ(unloaded, 1);
  EXPECT_FALSE(window->isVisible());
}

TEST_F(MDIKorvinTest, ATreeThatCannotBeMadeEndsTheProgram) {
  tree.keys.clear();
  tree.writable = false;
  EXPECT_EQ(load(), Startergebnis::beenden);
  EXPECT_EQ(messages.beeps, 1);
  EXPECT_FALSE(hourglassShown());
}

TEST_F(MDIKorvinTest, TheScaleFollowsTheScreen) {
  show();
  EXPECT_DOUBLE_EQ(system.SkalaX, 1024 / 1280.0);
  EXPECT_DOUBLE_EQ(system.SkalaY, 768 / 1024.0);
  EXPECT_EQ(QApplication::font().pixelSize(), qRound(14 * screenScale(system.SkalaX, system.SkalaY)));
}

TEST_F(MDIKorvinTest, EverythingFitsASmallScreenInEveryLanguage) {
  show();
  for (std::int16_t language = 0; language < 8; ++language) {
    anzeige.M_SprachArt(language);
    window->beschriften();
    QApplication::processEvents();
    EXPECT_LE(window->minimumSizeHint().width(), 1024) << language;
    EXPECT_LE(window->minimumSizeHint().height(), 768) << language;
    for (const StartTile* each : window->findChildren<StartTile*>()) {
      EXPECT_TRUE(each->wordsFit()) << language << " " << utf8Text(each->text());
    }
  }
}

}  // namespace
}  // namespace korvin
