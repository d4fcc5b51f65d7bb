#pragma once

#include <functional>
#include <string>

#include "frame/datei_befehle.h"
#include "frame/file_dialog.h"
#include "frame/file_system.h"
#include "frame/ui/form_datei_info.h"
#include "frame/ui/picture_files.h"
#include "link/ui/measuring_window.h"

namespace korvin {

/// Opens the settings dialog over the window and returns when it is closed. What OK does to the measurement
/// it runs through the second argument, outside of the ticks.
using EinrichtenDialog =
    std::function<void(QWidget& fenster, const std::function<void(std::function<void()>)>& ausserhalb)>;

/// What the windows of all kinds reach of the program beside what measuring needs. The references outlive the
/// window; a function that is not given does nothing.
struct FensterDienste {
  FileDialog& fileDialog;
  FileSystem& fileSystem;       ///< takes the pictures that are saved
  std::function<void()> hilfe;  ///< opens the help
  EinrichtenDialog einrichten{};
  std::function<void(QWidget* fenster)> protokollDrucken{};  ///< shows the print dialog over the window
};

/// A measuring window with the data of one measurement: New, Open, Save and Save as with their keys and menu
/// entries, settings, printing, help, the window's title, and the pictures of its diagrams.
///
/// How to add a kind: derive from it, give its data with the commands on them and what shows them, and let
/// `taste` pass on the keys that are not its own.
class DatenFenster : public Messfenster {
  Q_OBJECT
 protected:
  /// `dateiInfo` is the name of the kind's dialog of file information.
  DatenFenster(const ZyklusUmgebung& umgebung, MSComm& control, Messaufgabe& aufgabe,
               const FensterDienste& dienste, const QString& dateiInfo, QWidget* parent);

  // ---- What a kind of window tells ----

  /// Its data and the commands on them.
  virtual Messdaten& daten() = 0;
  virtual DateiBefehle& befehle() = 0;
  /// Shows all of the record anew: after the first activation, New and Open.
  virtual void datenZeigen() = 0;
  /// Shows what the settings dialog may have changed, however it was closed.
  virtual void einstellungenZeigen() { datenZeigen(); }
  /// Title of the window, UTF-8.
  virtual std::string titel() = 0;
  /// Name of a picture of data without a file.
  virtual std::string bildName() const = 0;

  // ---- What the shell offers ----

  const FensterDienste& dienste() const { return dienste_; }
  /// What the commands on `daten` work with.
  DateiBefehlUmgebung befehlUmgebung(Messdaten& daten);

  /// The menu of the file.
  void dateiMenu();
  /// The menus of the settings and of the help.
  void extrasUndHilfeMenu();
  /// Where pictures of diagrams go: to the folder of the file, under its name.
  PictureDesk bildAblage();
  void titelZeigen();

  bool schliessenErlaubt() override { return befehle().aenderungenBehandelt(); }
  /// The keys of these commands.
  void taste(const QString& key, bool gedrueckt) override;

 private:
  void ersetzen(bool (DateiBefehle::*befehl)(const std::function<void()>&));
  void sichern(bool (DateiBefehle::*befehl)());
  void M_EinrichtInfo();
  void M_ProtokollDrucken();

  FensterDienste dienste_;
  QtDateiInfoDialog dateiInfo_;
};

}  // namespace korvin
