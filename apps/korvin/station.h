#pragma once

#include <functional>
#include <string>

#include "dialogs/ui/form_options_g.h"
#include "dialogs/ui/form_options_o.h"
#include "environment/adapt_set.h"
#include "environment/ui/umgebungs_starter.h"
#include "environment/umgebungs_erfassung.h"
#include "frame/clock.h"
#include "frame/datei_verteilung.h"
#include "frame/display_choice.h"
#include "frame/folders.h"
#include "frame/messplatz.h"
#include "frame/posix_file_system.h"
#include "frame/profil.h"
#include "frame/programmstart.h"
#include "frame/session_settings_tree.h"
#include "frame/sqlite_dictionary.h"
#include "frame/sqlite_settings_tree.h"
#include "frame/ui/hilfe.h"
#include "frame/ui/mdi_korvin.h"
#include "frame/ui/qt_event_pump.h"
#include "frame/ui/qt_file_dialog.h"
#include "frame/ui/qt_message_port.h"
#include "frame/ui/qt_program_end.h"
#include "frame/ui/qt_random_source.h"
#include "frame/ui/qt_timer.h"
#include "frame/ui/qt_translations.h"
#include "link/kamera_antwort.h"
#include "link/kor_com.h"
#include "link/ui/kopfsuche.h"
#include "link/ui/qt_mscomm.h"
#include "position/erfassung.h"
#include "position/formpos.h"
#include "position/position_file.h"
#include "position/ui/position_starter.h"
#include "reports/ui/berichtsausgabe.h"
#include "reports/ui/gerad_protokoll.h"
#include "reports/ui/positions_protokoll.h"
#include "straightness/erfassung.h"
#include "straightness/formgera.h"
#include "straightness/straightness_file.h"
#include "straightness/ui/gerad_starter.h"

namespace korvin {

/// The whole measuring station, wired once: ports, records, measuring kinds, main window. Lives in the scope
/// of a QApplication. What the members need of each other they are given here, and nowhere else.
///
/// To add a measuring kind: its record, files and starter as members, and a line in the constructor.
class Station {
 public:
  Station(const FolderEnvironment& environment, Appearance appearance);
  ~Station();
  Station(const Station&) = delete;
  Station& operator=(const Station&) = delete;

  /// Loads the main window and shows it. False if the program has to end.
  bool start();

  MDIKorvin& window() { return window_; }
  MessagePort& messages() { return messages_; }
  Meldung& meldung() { return messplatz_.meldung; }

 private:
  ZyklusUmgebung cycle();
  /// What the windows of all kinds start with, and the dialogs of this kind.
  FensterStart windowStart(EinrichtenDialog einrichten, std::function<void(QWidget*)> drucken);
  AusgabeUmgebung reports();
  QtMSComm::PortFinder portFinder() const;
  /// The settings dialogs over `fenster`; `messung`, `reihe` and `ausserhalb` if the measuring window asks
  /// for them.
  void einrichtenPosition(QWidget& fenster, OffeneMessung* messung,
                          const std::function<void(std::function<void()>)>& ausserhalb);
  void einrichtenGerad(QWidget& fenster, OffeneReihe* reihe,
                       const std::function<void(std::function<void()>)>& ausserhalb);
  SettingsDialogUmgebung settings(const std::function<void(std::function<void()>)>& ausserhalb);
  void unload();

  Folders folders_;

  // The outside world.
  SystemClock clock_;
  QtEventPump pump_;
  QtTimerSource timers_;
  QtRandomSource random_;
  QtMessagePort messages_;
  QtFileDialog fileDialog_;
  QtProgramEnd programEnd_;
  QtTranslations translations_;
  PosixFileSystem fileSystem_;
  SqliteSettingsTree storedSettings_;

  // Shared records, settings, words.
  Messplatz messplatz_;
  KameraAntwort KameraAntwort_;
  SessionSettingsTree settings_;
  Profil profil_;
  SqliteDictionary dictionary_;
  Anzeigewahl anzeige_;

  // The link.
  KorCom korCom_;
  QtMSComm MSCommKamera_;  ///< the main window's own, for the search
  Kopfsuche kopfsuche_;

  // Reports.
  QtPrinterChoice printers_;
  Berichtsausgabe ausgabe_;

  // Measuring kinds.
  FORMPOS formpos_;
  PositionsErfassung positionsErfassung_;
  OffeneMessung offenePosition_{formpos_, positionsErfassung_};
  PositionsDateien positionsDateien_;
  PositionsProtokoll positionsProtokoll_;
  PositionStarter positionStarter_;
  FORMGERA formgera_;
  GeradErfassung geradErfassung_;
  OffeneReihe offeneReihe_{formgera_, geradErfassung_};
  GeradDateien geradDateien_;
  GeradProtokoll geradProtokoll_;
  GeradStarter geradStarter_;
  AdaptSet adaptSet_;
  UmgebungsErfassung umgebungsErfassung_;
  UmgebungsStarter umgebungsStarter_;
  DateiVerteilung verteilung_;

  // The main window.
  Programmstart programmstart_;
  Hilfe hilfe_;
  MDIKorvin window_;
};

}  // namespace korvin
