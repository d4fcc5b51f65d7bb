#include "korvin/station.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <fstream>

#include "frame/ui/start_tile.h"
#include "support/temp_folder.h"

namespace korvin {
namespace {

namespace fs = std::filesystem;

/// The whole station on a user's empty folders. The search for the head is left out: it takes real time.
class StationTest : public ::testing::Test {
 protected:
  StationTest() {
    environment.executableFolder = KORVIN_BIN;
    environment.home = home.path();
    look.callOnTimeout([this] { answerBox(); });
    look.start(0);
  }

  /// Starts the program anew on what the last run left.
  bool start() {
    station.reset();
    boxes.clear();
    station = std::make_unique<Station>(environment, Appearance::light);
    station->window().beiErsterAktivierung = [this] {
      ++activations;
      return true;
    };
    const bool started = station->start();
    QApplication::processEvents();
    return started;
  }

  void answerBox() {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr) return;
    boxes << box->text();
    box->accept();
  }

  fs::path programFolder() const { return home.path() / ".local/share/korvin"; }
  fs::path settingsFile() const { return home.path() / ".config/korvin/settings.db"; }

  test::TempFolder home;
  FolderEnvironment environment;
  QTimer look;
  QStringList boxes;
  int activations = 0;
  std::unique_ptr<Station> station;
};

TEST_F(StationTest, TheFirstStartMakesSettingsAndFoldersAndSaysSo) {
  ASSERT_TRUE(start());
  EXPECT_EQ(boxes.size(), 1);
  EXPECT_TRUE(fs::exists(settingsFile()));
  EXPECT_TRUE(fs::exists(programFolder() / "korvin.mdb"));
  EXPECT_TRUE(fs::exists(programFolder() / "KorHelpD.HLP"));
  EXPECT_TRUE(fs::is_directory(programFolder() / "KorFiles"));
  EXPECT_TRUE(station->window().isVisible());
  EXPECT_EQ(activations, 1);
}

TEST_F(StationTest, TheSecondStartAsksNothingAndKeepsTheLanguage) {
  ASSERT_TRUE(start());
  station->window().findChild<QAction*>(QStringLiteral("M_SprachArt(5)"))->trigger();
  ASSERT_TRUE(start());
  EXPECT_TRUE(boxes.isEmpty());
  EXPECT_TRUE(station->window().findChild<QAction*>(QStringLiteral("M_SprachArt(5)"))->isChecked());
  EXPECT_EQ(station->window().findChild<StartTile*>(QStringLiteral("StartTile(Position)"))->text(),
            QStringLiteral("Positionsmätning"));
}

TEST_F(StationTest, PositionAndStraightnessAreReadyOtherKindsAreNot) {
  ASSERT_TRUE(start());
  const auto ready = [this](const char* entry) {
    return station->window().findChild<QAction*>(QString::fromUtf8(entry))->isEnabled();
  };
  EXPECT_TRUE(ready("M_Position"));
  EXPECT_TRUE(ready("M_Geradheit"));
  EXPECT_FALSE(ready("M_Parallel"));
}

TEST_F(StationTest, ASettingsFileThatIsNoDatabaseIsKeptAndTold) {
  fs::create_directories(settingsFile().parent_path());
  std::ofstream(settingsFile()) << "this was something else";
  ASSERT_TRUE(start());
  ASSERT_EQ(boxes.size(), 1);
  EXPECT_TRUE(station->window().isVisible());
  std::ifstream file(settingsFile());
  std::string words;
  std::getline(file, words);
  EXPECT_EQ(words, "this was something else");
}

TEST_F(StationTest, SettingsThatCannotBeMadeEndTheProgramWithAMessage) {
  std::ofstream(home.path() / ".config") << "a file where the folder should be";
  EXPECT_FALSE(start());
  ASSERT_EQ(boxes.size(), 2);
  EXPECT_TRUE(boxes.last().startsWith(QStringLiteral("The settings could not be created")));
  EXPECT_EQ(activations, 0);
}

/// Waits for the dialog of the settings and closes it by `button`.
struct SettingsDialog {
  QTimer look;
  QString title;
  bool planOffered = false;

  explicit SettingsDialog(const QString& button) {
    look.callOnTimeout([this, button] {
      auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      if (dialog == nullptr || dialog->objectName() != QLatin1String("FormOptionsO")) return;
      title = dialog->windowTitle();
      planOffered = dialog->findChild<QCheckBox*>(QStringLiteral("CheckAutoOn"))->isEnabled();
      dialog->findChild<QPushButton*>(button)->click();
    });
    look.start(0);
  }
};

TEST_F(StationTest, TheDefaultSettingsOfPositionOpenFromTheMenu) {
  ASSERT_TRUE(start());
  SettingsDialog dialog(QStringLiteral("Commands(0)"));
  station->window().findChild<QAction*>(QStringLiteral("M_File_O"))->trigger();
  EXPECT_EQ(dialog.title, QStringLiteral("Settings: Position"));
  EXPECT_FALSE(dialog.planOffered) << "a plan belongs to a measurement";
}

TEST_F(StationTest, TheMeasuringWindowOpensThemWithItsPlan) {
  ASSERT_TRUE(start());
  SettingsDialog dialog(QStringLiteral("Commands(1)"));
  QTimer user;
  user.callOnTimeout([&] {
    QWidget* window = nullptr;
    for (QWidget* each : QApplication::topLevelWidgets())
      if (each->objectName() == QLatin1String("FormPosition") && each->isVisible()) window = each;
    if (window == nullptr || QApplication::activeModalWidget() != window) return;
    if (dialog.title.isEmpty()) {
      window->findChild<QAction*>(QStringLiteral("M_EinrichtInfo"))->trigger();
    } else {
      window->close();
    }
  });
  user.start(5);
  station->window().findChild<QAction*>(QStringLiteral("M_Position"))->trigger();
  EXPECT_EQ(dialog.title, QStringLiteral("Settings: Position"));
  EXPECT_TRUE(dialog.planOffered);
}

TEST_F(StationTest, TheMeasuringWindowOpensThePrintDialog) {
  ASSERT_TRUE(start());
  bool shown = false;
  QTimer user;
  QTimer reader;  // the timer that opened a dialog is not called while it is open
  reader.callOnTimeout([&] {
    QWidget* top = QApplication::activeModalWidget();
    if (top == nullptr || top->objectName() != QLatin1String("FormDruckInfoO")) return;
    shown = true;
    top->findChild<QPushButton*>(QStringLiteral("CommandDruckAbbrechen(1)"))->click();
  });
  reader.start(5);
  user.callOnTimeout([&] {
    QWidget* top = QApplication::activeModalWidget();
    if (top == nullptr || top->objectName() != QLatin1String("FormPosition")) return;
    if (!shown) {
      top->findChild<QAction*>(QStringLiteral("M_ProtokollDrucken"))->trigger();
    } else {
      top->close();
    }
  });
  user.start(5);
  station->window().findChild<QAction*>(QStringLiteral("M_Position"))->trigger();
  EXPECT_TRUE(shown);
}

}  // namespace
}  // namespace korvin
