#pragma once

#include <functional>
#include <memory>

#include "frame/file_dialog.h"
#include "frame/file_system.h"
#include "frame/ui/form_datei_info.h"
#include "link/ui/measuring_window.h"
#include "link/ui/point_list.h"
#include "position/commands.h"
#include "position/erfassung.h"
#include "position/formpos.h"
#include "position/ui/diagram_area.h"
#include "position/ui/point_list_model.h"
#include "position/ui/position_panels.h"

namespace korvin {

/// Opens the settings dialog over the window and returns when it is closed. What OK does to the measurement
/// it runs through the second argument, outside of the ticks.
using EinrichtenDialog =
    std::function<void(QWidget& fenster, const std::function<void(std::function<void()>)>& ausserhalb)>;

/// What `FormPosition` works with, beside what every measuring window needs. All outlive it.
struct PositionUmgebung {
  ZyklusUmgebung zyklus;
  MSComm& MSCommKamera;
  FORMPOS& formpos;
  PositionsErfassung& erfassung;
  PositionsDateien& dateien;
  FileDialog& fileDialog;
  FileSystem& fileSystem;       ///< takes the pictures that are saved
  std::function<void()> hilfe;  ///< opens the help
  EinrichtenDialog einrichten{};
  std::function<void(QWidget* fenster)> protokollDrucken{};  ///< shows the print dialog over the window
};

/// `FormPosition`: watches one point of the beam over time. Lays out its panels, forwards clicks to the
/// commands and the cycle, and paints what they leave in the record. Language and units are those of the
/// moment when it is shown.
class FormPosition : public Messfenster {
  Q_OBJECT
 public:
  explicit FormPosition(const PositionUmgebung& umgebung, QWidget* parent = nullptr);

 protected:
  void ersteAktivierung() override;
  bool schliessenErlaubt() override;
  void taste(const QString& key, bool gedrueckt) override;
  void wirdEntladen() override;
  std::int16_t betriebText() override;
  void neuZeichnen(bool geaendert) override;
  void setTasteFrei(const std::string& taste, bool frei) override;

 private:
  void layoutAnlegen();
  PictureDesk bildAblage();
  void menusAnlegen();
  void beschriften();

  /// Shows all of the record anew: after the first activation, New, Open and Delete.
  void datenZeigen();
  void kopfZeigen();
  void titelZeigen();
  /// Room for the widest value in the four value panels.
  void werteAnpassen();
  void statusZeigen(const PositionsTexte& texte);
  void numZoomZeigen();

  void M_Neu();
  void M_Oeffnen();
  void M_Speichern();
  void M_SpeichernUnter();
  void M_MessLöschen();
  void M_EinrichtInfo();
  void M_ProtokollDrucken();
  void M_xyNumZoom();
  void M_Gitter();
  void schalter(Flagge& flagge, bool an);
  void offset(bool an);
  void cursor(int schritt);

  PositionsInfo& Info() { return p_.formpos.Info(); }

  PositionUmgebung p_;
  QtDateiInfoDialog dateiInfo_;
  PositionsDaten daten_;
  DateiBefehle befehle_;
  PointListModel punkte_;
  PointList* liste_ = nullptr;
  DiagramArea* bild_ = nullptr;
  PositionPanels* panels_ = nullptr;
  QAction* M_xyNumZoom_ = nullptr;
  QAction* M_Gitter_ = nullptr;
  std::unique_ptr<Timer> TimerUhr_;
  bool Anzeige_ = false;
};

}  // namespace korvin
