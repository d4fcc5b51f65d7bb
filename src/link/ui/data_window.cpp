#include "link/ui/data_window.h"

#include <QHBoxLayout>
#include <QMenu>
#include <QSplitter>
#include <utility>

#include "frame/cp1252.h"
#include "frame/pfade.h"
#include "frame/ui/qt_text.h"
#include "frame/ui/theme.h"
#include "frame/zahl_text.h"
#include "link/tasten_sperre.h"

namespace korvin {
namespace {

constexpr std::int16_t Inch = 1;

}  // namespace

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
  QMenu* menu = menuAnlegen("M_Datei", 7180);
  const auto eintrag = [&](const char* name, std::int16_t text, const char* key) {
    menuEintrag(
        menu, name, text, [this, key] { drueckeTaste(key); }, key);
  };
  eintrag("M_Neu", 1002, "NEU");
  eintrag("M_Oeffnen", 1007, "LADEN");
  eintrag("M_Speichern", 7181, "SPEICHERN");
  QAction* unter =
      menuEintrag(menu, "M_SpeichernUnter", 7182, [this] { sichern(&DateiBefehle::M_SpeichernUnter); });
  unter->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S));
  menu->addSeparator();
  eintrag("M_ProtokollDrucken", 7183, "DRUCKEN");
  menu->addSeparator();
  menuEintrag(menu, "M_Beenden", 1024, [this] { close(); });
}

QMenu* DatenFenster::messMenu(std::int16_t einzel, std::int16_t laufend, std::int16_t schnell) {
  QMenu* menu = menuAnlegen("M_Messung", 1001);
  const auto eintrag = [&](const char* name, std::int16_t text, const char* key) {
    menuEintrag(
        menu, name, text, [this, key] { drueckeTaste(key); }, key);
  };
  eintrag("M_SingleMeas", einzel, "XYMP1");
  eintrag("M_PJustage", laufend, "XYMPN");
  eintrag("M_QJustage", schnell, "XYMPNN");
  return menu;
}

void DatenFenster::punktListenEintrag(QMenu* menu, std::function<void(bool an)> zeigen) {
  QAction* eintrag = menuEintrag(menu, "M_PunktListe", 7370, [] {});
  eintrag->setCheckable(true);
  eintrag->setChecked(true);
  eintrag->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_L));
  connect(eintrag, &QAction::toggled, this, std::move(zeigen));
}

void DatenFenster::extrasUndHilfeMenu() {
  menuEintrag(
      menuAnlegen("M_Extras", 1025), "M_EinrichtInfo", 7189, [this] { drueckeTaste("EINRICHTEN"); },
      "EINRICHTEN");
  menuEintrag(
      menuAnlegen("M_HilfeMenu", 1052), "M_Hilfe", 7043, [this] { drueckeTaste("HILFE"); }, "HILFE");
}

// ---- Showing ----

void DatenFenster::mitteAnordnen(QWidget& bild, int hundertstel, QWidget& panels, QWidget& liste) {
  auto* spalte = new QSplitter(Qt::Vertical, mitte());
  spalte->setChildrenCollapsible(false);
  spalte->setHandleWidth(scaled(5));
  spalte->addWidget(&panels);
  spalte->addWidget(&liste);
  spalte->setStretchFactor(0, 3);
  spalte->setStretchFactor(1, 2);
  auto* reihe = new QHBoxLayout(mitte());
  reihe->setContentsMargins(0, 0, 0, 0);
  reihe->setSpacing(scaled(10));
  reihe->addWidget(&bild, hundertstel);
  reihe->addWidget(spalte, 100 - hundertstel);
}

void DatenFenster::titelZeigen() {
  setWindowTitle(qText(titel()));
}

void DatenFenster::werteAnpassen(int NKStellen) {
  const bool inch = umgebung().system.Masssystem == Inch;
  const QString ganze = inch ? QStringLiteral("-000") : QStringLiteral("-00");
  const QString breitester = ganze + qText(ZahlMuster(NKStellen)).mid(1);
  for (ValuePanel* feld : wertfelder) feld->setWidestText(breitester);
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
