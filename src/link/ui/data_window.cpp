#include "link/ui/data_window.h"

#include <QMenu>
#include <utility>

#include "frame/cp1252.h"
#include "frame/pfade.h"
#include "frame/ui/qt_text.h"
#include "link/tasten_sperre.h"

namespace korvin {
DatenFenster::DatenFenster(const ZyklusUmgebung& umgebung, MSComm& control, Messaufgabe& aufgabe,
                           const FensterDienste& dienste, const QString& dateiInfo, QWidget* parent)
    : Messfenster(umgebung, control, aufgabe, parent),
      dienste_(dienste),
      dateiInfo_(umgebung.dictionary, dateiInfo, this) {}

DateiBefehlUmgebung DatenFenster::befehlUmgebung(Messdaten& daten) {
  const ZyklusUmgebung& u = umgebung();
  return {u.clock,  u.messages, dienste_.fileDialog, dateiInfo_, u.dictionary, u.profil, u.meldung,
          u.system, daten};
}

// ---- Menus ----

void DatenFenster::dateiMenu() {
  Messfenster::dateiMenu({.speichernUnter = [this] { sichern(&DateiBefehle::M_SpeichernUnter); }});
}

void DatenFenster::extrasUndHilfeMenu() {
  menuEintrag(
      menuAnlegen("M_Extras", 1025), "M_EinrichtInfo", 7189, [this] { drueckeTaste("EINRICHTEN"); },
      "EINRICHTEN");
  menuEintrag(
      menuAnlegen("M_HilfeMenu", 1052), "M_Hilfe", 7043, [this] { drueckeTaste("HILFE"); }, "HILFE");
}

// ---- Showing ----

void DatenFenster::titelZeigen() {
  setWindowTitle(qText(titel()));
}

PictureDesk DatenFenster::bildAblage() {
  const auto datei = [this] { return pfadTeilen(vonCp1252(daten().kopf().DateiName.trimmed())); };
  PictureDesk ablage{dienste_.fileDialog, umgebung().messages, dictionary(), dienste_.fileSystem, {}, {}};
  ablage.folder = [datei] { return datei().ordner; };
  ablage.name = [this, datei] {
    const std::string name = datei().name;
    // A measurement without a file has the mask of its kind for a name.
    return name.empty() || name.front() == '*' ? bildName() : name.substr(0, name.rfind('.'));
  };
  return ablage;
}

// ---- Commands ----

void DatenFenster::taste(const QString& key, bool /*gedrueckt*/) {
  if (key == QLatin1String("NEU")) ersetzen(&DateiBefehle::M_Neu);
  if (key == QLatin1String("LADEN")) ersetzen(&DateiBefehle::M_Oeffnen);
  if (key == QLatin1String("SPEICHERN")) sichern(&DateiBefehle::M_Speichern);
  if (key == QLatin1String("EINRICHTEN")) M_EinrichtInfo();
  if (key == QLatin1String("DRUCKEN")) M_ProtokollDrucken();
  if (key == QLatin1String("HILFE") && dienste_.hilfe) dienste_.hilfe();
}

void DatenFenster::ersetzen(bool (DateiBefehle::*befehl)(const std::function<void()>&)) {
  ausserhalbDesTakts([this, befehl] {
    if ((befehle().*befehl)([this] { zyklus().laufBeenden(); })) datenZeigen();
  });
}

void DatenFenster::sichern(bool (DateiBefehle::*befehl)()) {
  ausserhalbDesTakts([this, befehl] {
    (befehle().*befehl)();
    titelZeigen();
  });
}

void DatenFenster::M_EinrichtInfo() {
  ausserhalbDesTakts([this] {
    // The key of the head may have begun a run since the click.
    if (!dienste_.einrichten || zyklus().laeuft() || zyklus().adaptiv()) return;
    {
      const TastenSperre sperre(zyklus(), beschreibung().einrichtenHaeltAn);
      dienste_.einrichten(*this,
                          [this](std::function<void()> befehl) { ausserhalbDesTakts(std::move(befehl)); });
    }
    einstellungenZeigen();
  });
}

void DatenFenster::M_ProtokollDrucken() {
  ausserhalbDesTakts([this] {
    if (dienste_.protokollDrucken) dienste_.protokollDrucken(this);
  });
}

}  // namespace korvin
