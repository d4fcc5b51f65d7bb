#pragma once

#include <QMainWindow>
#include <functional>
#include <map>
#include <memory>
#include <string>

#include "frame/datei_verteilung.h"
#include "frame/dictionary.h"
#include "frame/display_choice.h"
#include "frame/file_dialog.h"
#include "frame/message_port.h"
#include "frame/messplatz.h"
#include "frame/profil.h"
#include "frame/programmstart.h"
#include "frame/ui/hilfe.h"
#include "frame/ui/qt_translations.h"
#include "frame/ui/theme.h"

class QLabel;

namespace korvin {

class KeyToolBar;
class MainMenu;
class StartScreen;

/// What the main window works with. All outlive it.
struct HauptfensterUmgebung {
  Systemwerte& system;
  Meldung& meldung;
  Dictionary& dictionary;
  Profil& profil;
  MessagePort& messages;
  FileDialog& fileDialog;
  Anzeigewahl& anzeige;
  Programmstart& start;
  DateiVerteilung& verteilung;
  QtTranslations& translations;
  Hilfe& hilfe;
  std::string programFolder;  ///< UTF-8
  Appearance appearance;
};

/// The main window: start screen, menu, tool bar, status row. It measures nothing; a measuring window runs
/// modally over it.
class MDIKorvin : public QMainWindow {
  Q_OBJECT

 public:
  explicit MDIKorvin(const HauptfensterUmgebung& umgebung);
  ~MDIKorvin() override;

  /// The loading, up to caption and scaling pass. `dicOeffnen` opens the dictionary.
  Startergebnis laden(const std::function<void()>& dicOeffnen);

  /// The caption pass: all words anew, in the present language.
  void beschriften();

  /// The dialogs of the default settings by their measuring kinds, to be given before `laden`. The menu entry
  /// of a kind that has none here comes later.
  std::map<std::int16_t, std::function<void()>> grundeinstellungen;
  /// Windows beside those of the measuring kinds, by their key of the tool bar, to be given before `laden`.
  /// They start as a straightness measurement. The entries of a window that is missing here come later.
  std::map<std::string, std::function<void()>> weitereFenster;
  /// Runs once, when the window has come up for the first time. False ends the program.
  std::function<bool()> beiErsterAktivierung;
  /// Tells the state of the link for the status row.
  std::function<std::string()> linkZeile;
  /// The window is unloaded: the program ends.
  std::function<void()> beiEntladen;

 protected:
  void showEvent(QShowEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void baueFenster();
  void baueWerkzeuge();
  void baueStatusLeiste();
  void sperreFehlendeArten();
  void skalieren();
  void ersteAktivierung();

  void menue(const QString& name, int index);
  void taste(const QString& key);
  void M_SprachArt(int index);
  void M_MassArt(int index);
  void M_Info();
  void starten(std::int16_t messart);
  void weiteresStarten(const std::string& key);
  void einrichten(std::int16_t messart);
  void oeffnen(const std::string& filter);
  void statusBeschriften();

  HauptfensterUmgebung u_;
  std::unique_ptr<MainMenu> menu_;
  KeyToolBar* tbrKorvin_ = nullptr;
  StartScreen* startScreen_ = nullptr;
  QLabel* PanelStatus1_ = nullptr;
  QLabel* PanelStatus2_ = nullptr;
};

}  // namespace korvin
