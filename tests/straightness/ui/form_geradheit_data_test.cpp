// New, Open and Save in the real window, and how the main window starts it.

#include <QAction>
#include <QDialog>
#include <QTimer>
#include <filesystem>

#include "gerad_stand.h"
#include "straightness/achsen_bereich.h"
#include "straightness/ui/gerad_starter.h"

namespace korvin {
namespace {

class Data : public test::GeradStand {
 protected:
  /// Accepts the dialog of file information once it is up, or leaves it.
  void atFileInfo(bool accept) {
    QTimer::singleShot(0, [this, accept] {
      auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(dialog, nullptr);
      fileInfo = dialog->objectName().toStdString();
      accept ? dialog->accept() : dialog->reject();
    });
  }
  void open(const char* name) {
    fileDialog.answers.push_back(folder.copyOf(std::string("reference/") + name));
    type(Qt::Key_O, Qt::ControlModifier);
  }

  std::string fileInfo;
};

TEST_F(Data, NewAsksOnlyForChangedData) {
  show();
  click("NEU");
  EXPECT_TRUE(world.messages.shown.empty());
  takePoints({0.1});
  world.messages.answers.push_back(MessageAnswer::cancel);
  click("NEU");
  ASSERT_EQ(world.messages.shown.size(), 1U);
  EXPECT_EQ(line().AktMP, 2);
  world.messages.answers.push_back(MessageAnswer::no);
  type(Qt::Key_N, Qt::ControlModifier);
  EXPECT_EQ(line().AktMP, 1);
  EXPECT_EQ(cell(0, LineTableModel::X), "?.?");
  EXPECT_FALSE(info().Geaendert);
}

TEST_F(Data, NewTakesTheSettings) {
  show();
  world.profil.ProfilSchreiben("", "MessInfo_G", "AnzMPs", "11");
  world.profil.ProfilSchreiben("", "MessInfo_G", "Distanz", "1000");
  click("NEU");
  EXPECT_EQ(text("PanelMessPkt"), "1 / 11");
  EXPECT_EQ(text("lblDistanzMax"), "1000.0 mm");
  EXPECT_EQ(list().model()->rowCount(), 11);
}

TEST_F(Data, NewEndsARun) {
  show();
  click("XYMPN");
  run(2);
  world.messages.answers.push_back(MessageAnswer::no);
  click("NEU");
  run(1);
  EXPECT_FALSE(pressed("XYMPN"));
  EXPECT_EQ(cell(0, LineTableModel::X), "?.?");
}

TEST_F(Data, OpenedFileIsShownWithItsViews) {
  show();
  open("six.G");
  EXPECT_EQ(info().DateiStatus, 1);
  EXPECT_EQ(list().model()->rowCount(), line().AnzMPs);
  EXPECT_EQ(pressed("ISO"), info().Auswertung == AuswertungISO);
  EXPECT_EQ(text("PanelMessPkt"), std::to_string(line().AktMP) + " / " + std::to_string(line().AnzMPs));
  EXPECT_TRUE(form->windowTitle().startsWith(QStringLiteral("D5500 [")));
  EXPECT_EQ(pressed("x"), static_cast<bool>(info().ZeigeMittel));
  EXPECT_FALSE(info().Geaendert);
}

TEST_F(Data, SwitchesOfAFileArePressedAndSeen) {
  show();
  formgera.bildFuellen();
  formgera.bild().Info.ZeigeSpanne = true;
  formgera.bild().Info.Auswertung = AuswertungREF;
  formgera.bild().X.NumZoom = true;
  formgera.reihe() = formgera.bild();
  ASSERT_TRUE(dateien.g_DateiSpeichern(folder.path("own.G")));
  formgera.reihe().Info.ZeigeSpanne = false;
  fileDialog.answers.push_back(folder.path("own.G"));
  click("LADEN");
  EXPECT_TRUE(pressed("STATISTIK"));
  EXPECT_TRUE(pressed("R"));
  EXPECT_TRUE(keyShown("R"));
  EXPECT_FALSE(pressed("x"));
  EXPECT_TRUE(pressed("REF"));
  EXPECT_TRUE(keyShown("REF1"));
  EXPECT_TRUE(pressed("XNZOOM"));
  EXPECT_TRUE(shown("PanelXWertZoom"));
}

TEST_F(Data, KindOfRangeOfAFileIsPressedOnItsBar) {
  show();
  for (const std::int16_t kind : {BereichsartHAND, BereichsartTOL, BereichsartAUTO}) {
    series().X.Bereichsart = kind;
    series().Y.Bereichsart = BereichsartAUTO;
    click("ISO");
    KeyToolBar& x = bar("tbrXBereich");
    EXPECT_EQ(x.isPressed(QStringLiteral("AUTO")), kind == BereichsartAUTO);
    EXPECT_EQ(x.isPressed(QStringLiteral("HAND")), kind == BereichsartHAND);
    EXPECT_EQ(x.isPressed(QStringLiteral("TOL")), kind == BereichsartTOL);
    EXPECT_TRUE(bar("tbrYBereich").isPressed(QStringLiteral("AUTO")));
  }
}

TEST_F(Data, OlderFileAsksAndCountsAsChanged) {
  show();
  world.messages.answers.push_back(MessageAnswer::yes);
  open("old.G");
  ASSERT_EQ(world.messages.shown.size(), 1U);
  EXPECT_EQ(world.messages.shown[0].title, "KORVIN-D5500");
  EXPECT_TRUE(info().Geaendert);
  EXPECT_EQ(info().DateiStatus, 1);
}

TEST_F(Data, RefusedFileLeavesTheSeriesOnTheScreen) {
  show();
  takePoints({0.1});
  click("ROH");
  world.messages.answers = {MessageAnswer::no, MessageAnswer::yes};
  open("short.G");
  EXPECT_GE(world.messages.shown.size(), 3U);
  EXPECT_EQ(cell(0, LineTableModel::X), "0.1000");
  EXPECT_EQ(info().DateiStatus, 0);
  EXPECT_TRUE(info().Geaendert);
}

TEST_F(Data, SavingAsksForNameAndInformationTheFirstTimeOnly) {
  show();
  takePoints({0.1, 0.2});
  fileDialog.answers.push_back(folder.path("mine.G"));
  atFileInfo(true);
  type(Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(fileInfo, "FormDateiInfoG");
  EXPECT_EQ(std::filesystem::file_size(folder.path("mine.G")), 5643U);
  EXPECT_EQ(utf8Text(form->windowTitle()), "D5500 [" + folder.path("mine.G") + "]");
  EXPECT_FALSE(info().Geaendert);
  takePoints({0.3});
  click("SPEICHERN");
  EXPECT_EQ(fileDialog.requests.size(), 1U);
  EXPECT_FALSE(info().Geaendert);
  entry("M_SpeichernUnter")->trigger();
  EXPECT_EQ(fileDialog.requests.size(), 2U) << "Save as asks always; this time left by cancel";
}

TEST_F(Data, LoadedFileIsNeverSavedOverWithoutAsking) {
  show();
  open("six.G");
  click("SPEICHERN");
  EXPECT_EQ(fileDialog.requests.size(), 2U);
  EXPECT_EQ(info().DateiStatus, 1);
}

TEST_F(Data, KeyMenuAndShortcutPrintTheReport) {
  std::vector<QWidget*> over;
  printed = [&over](QWidget* window) { over.push_back(window); };
  show();
  EXPECT_TRUE(enabled("DRUCKEN"));
  click("DRUCKEN");
  entry("M_ProtokollDrucken")->trigger();
  type(Qt::Key_P, Qt::ControlModifier);
  EXPECT_EQ(over, std::vector<QWidget*>(3, form.get()));
}

TEST_F(Data, OpeningDuringATransactionWaitsForItsEnd) {
  show();
  run(1);
  world.head.delay = 0.3;
  fileDialog.answers.push_back(folder.copyOf("reference/six.G"));
  click("XYMP1");
  bool looked = false;
  world.clock.after(1.05, [&] {
    ASSERT_TRUE(pressed("XYMP1"));
    entry("M_Oeffnen")->trigger();
    looked = fileDialog.requests.empty();
  });
  world.messages.answers.push_back(MessageAnswer::no);
  run(6);
  EXPECT_TRUE(looked);
  EXPECT_EQ(info().DateiStatus, 1);
  EXPECT_EQ(fileDialog.requests.size(), 1U);
}

// ---- Started from the main window ----

class GeradStarterTest : public Data {
 protected:
  GeradStarter starter() {
    return GeradStarter({cycle(), services(),
                         [this] {
                           auto control = std::make_unique<test::ScriptedHead>(world.clock);
                           controls.push_back(control.get());
                           return control;
                         }},
                        formgera, erfassung(), dateien);
  }
  void whenShown(std::function<void(FormGeradheit&)> look) {
    QTimer::singleShot(0, [this, look = std::move(look)] {
      auto* window = qobject_cast<FormGeradheit*>(QApplication::activeModalWidget());
      ASSERT_NE(window, nullptr);
      seen = true;
      look(*window);
      world.messages.answers.push_back(MessageAnswer::no);
      window->close();
      world.clock.advance(2);
    });
  }

  std::vector<test::ScriptedHead*> controls;
  bool seen = false;
};

TEST_F(GeradStarterTest, NewDataStartWithTheDefaultsWhateverWasThereBefore) {
  line().AnzMPs = 3;
  info().DateiStatus = 2;
  GeradStarter start = starter();
  whenShown([&](FormGeradheit& window) {
    EXPECT_TRUE(window.isModal());
    EXPECT_EQ(line().AnzMPs, 6);
    EXPECT_EQ(info().DateiStatus, 0);
    EXPECT_TRUE(controls.at(0)->PortOpen());
  });
  start.zeigen(0);
  EXPECT_TRUE(seen);
}

TEST_F(GeradStarterTest, LoadedFileIsShownAsLoaded) {
  GeradStarter start = starter();
  ASSERT_TRUE(start.laden(folder.copyOf("reference/six.G")));
  whenShown([&](FormGeradheit& window) {
    EXPECT_EQ(info().DateiStatus, 1);
    EXPECT_EQ(window.findChild<PointList*>()->model()->rowCount(), 6);
  });
  start.zeigen(1);
  EXPECT_TRUE(seen);
}

TEST_F(GeradStarterTest, RefusedFileIsToldAndNothingIsShown) {
  GeradStarter start = starter();
  EXPECT_FALSE(start.laden(folder.path("missing.G")));
  EXPECT_EQ(world.messages.shown.size(), 1U);
  EXPECT_TRUE(controls.empty());
}

}  // namespace
}  // namespace korvin
