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

/// Waits for the settings dialog of this name and closes it by `button`.
struct SettingsDialog {
  QTimer look;
  QString title;
  bool measurementOffered = false;  ///< what belongs to a measurement in work can be changed

  SettingsDialog(const char* name, const char* ofMeasurement, const char* button) {
    look.callOnTimeout([=, this] {
      auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      if (dialog == nullptr || dialog->objectName() != QLatin1String(name)) return;
      title = dialog->windowTitle();
      measurementOffered = dialog->findChild<QCheckBox*>(QLatin1String(ofMeasurement))->isEnabled();
      dialog->findChild<QPushButton*>(QLatin1String(button))->click();
    });
    look.start(0);
  }
};

/// A measuring kind with its settings dialog.
struct SettingsOfKind {
  const char* entry;          ///< of the main window's menu, opens the measuring window
  const char* defaults;       ///< of the main window's menu, opens the dialog
  const char* window;         ///< the measuring window
  const char* dialog;         ///< the settings dialog
  const char* ofMeasurement;  ///< its check box that belongs to a measurement in work
  const char* title;
};

class StationSettings : public StationTest, public ::testing::WithParamInterface<SettingsOfKind> {
 protected:
  void trigger(const char* entry) { station->window().findChild<QAction*>(QLatin1String(entry))->trigger(); }
};

TEST_P(StationSettings, TheDefaultsOpenFromTheMenu) {
  ASSERT_TRUE(start());
  const SettingsDialog dialog(GetParam().dialog, GetParam().ofMeasurement, "Commands(1)");
  trigger(GetParam().defaults);
  EXPECT_EQ(dialog.title, QLatin1String(GetParam().title));
  EXPECT_FALSE(dialog.measurementOffered);
}

TEST_P(StationSettings, TheMeasuringWindowOpensThemWithItsMeasurement) {
  ASSERT_TRUE(start());
  const SettingsDialog dialog(GetParam().dialog, GetParam().ofMeasurement, "Commands(1)");
  QTimer user;
  user.callOnTimeout([&] {
    QWidget* window = nullptr;
    for (QWidget* each : QApplication::topLevelWidgets())
      if (each->objectName() == QLatin1String(GetParam().window) && each->isVisible()) window = each;
    if (window == nullptr || QApplication::activeModalWidget() != window) return;
    if (dialog.title.isEmpty()) {
      window->findChild<QAction*>(QStringLiteral("M_EinrichtInfo"))->trigger();
    } else {
      window->close();
    }
  });
  user.start(5);
  trigger(GetParam().entry);
  EXPECT_EQ(dialog.title, QLatin1String(GetParam().title));
  EXPECT_TRUE(dialog.measurementOffered);
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, StationSettings,
    ::testing::Values(SettingsOfKind{"M_Position", "M_File_O", "FormPosition", "FormOptionsO", "CheckAutoOn",
                                     "Settings: Position"},
                      SettingsOfKind{"M_Geradheit", "M_File_G", "FormGeradheit", "FormOptionsG",
                                     "CheckzAquidistant", "Settings Straightness measurement"}),
    [](const auto& kind) { return std::string(kind.param.dialog); });

/// A measuring kind with its print dialog.
struct PrintOfKind {
  const char* entry;   ///< of the main window's menu, opens the measuring window
  const char* window;  ///< the measuring window
  const char* dialog;  ///< the print dialog
};

class StationPrint : public StationTest, public ::testing::WithParamInterface<PrintOfKind> {};

TEST_P(StationPrint, TheMeasuringWindowOpensThePrintDialog) {
  ASSERT_TRUE(start());
  bool shown = false;
  QTimer user;
  QTimer reader;  // the timer that opened a dialog is not called while it is open
  reader.callOnTimeout([&] {
    QWidget* top = QApplication::activeModalWidget();
    if (top == nullptr || top->objectName() != QLatin1String(GetParam().dialog)) return;
    shown = true;
    top->findChild<QPushButton*>(QStringLiteral("CommandDruckAbbrechen(1)"))->click();
  });
  reader.start(5);
  user.callOnTimeout([&] {
    QWidget* top = QApplication::activeModalWidget();
    if (top == nullptr || top->objectName() != QLatin1String(GetParam().window)) return;
    if (!shown) {
      top->findChild<QAction*>(QStringLiteral("M_ProtokollDrucken"))->trigger();
    } else {
      top->close();
    }
  });
  user.start(5);
  station->window().findChild<QAction*>(QLatin1String(GetParam().entry))->trigger();
  EXPECT_TRUE(shown);
}

INSTANTIATE_TEST_SUITE_P(Kinds, StationPrint,
                         ::testing::Values(PrintOfKind{"M_Position", "FormPosition", "FormDruckInfoO"},
                                           PrintOfKind{"M_Geradheit", "FormGeradheit", "FormDruckInfoG"}),
                         [](const auto& kind) { return std::string(kind.param.dialog); });

}  // namespace
}  // namespace korvin
