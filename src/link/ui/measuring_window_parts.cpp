// Menus and arrangement that measuring windows are made of.
#include <QHBoxLayout>
#include <QMenu>
#include <QSplitter>
#include <utility>

#include "frame/ui/qt_text.h"
#include "frame/ui/theme.h"
#include "frame/zahl_text.h"
#include "link/ui/measuring_window.h"

namespace korvin {
namespace {

constexpr std::int16_t Inch = 1;

}  // namespace

void Messfenster::dateiMenu(const DateiMenuBefehle& befehle) {
  QMenu* menu = menuAnlegen("M_Datei", 7180);
  const auto eintrag = [&](const char* name, std::int16_t text, const char* key) {
    menuEintrag(
        menu, name, text, [this, key] { drueckeTaste(key); }, key);
  };
  if (befehle.neu) {
    menuEintrag(menu, "M_Neu", 1002, befehle.neu);
  } else {
    eintrag("M_Neu", 1002, "NEU");
  }
  eintrag("M_Oeffnen", 1007, "LADEN");
  eintrag("M_Speichern", 7181, "SPEICHERN");
  QAction* unter = menuEintrag(menu, "M_SpeichernUnter", 7182, befehle.speichernUnter);
  if (befehle.speichernUnter) {
    unter->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S));
  } else if (ohneAufgabe_.contains(QStringLiteral("SPEICHERN"))) {
    ohneAufgabe(unter, ohneAufgabe_.value(QStringLiteral("SPEICHERN")));
  }
  menu->addSeparator();
  eintrag("M_ProtokollDrucken", 7183, "DRUCKEN");
  menu->addSeparator();
  menuEintrag(menu, "M_Beenden", 1024, [this] { close(); });
}

QMenu* Messfenster::messMenu(std::int16_t einzel, std::int16_t laufend, std::int16_t schnell) {
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

void Messfenster::punktListenEintrag(QMenu* menu, std::function<void(bool an)> zeigen) {
  QAction* eintrag = menuEintrag(menu, "M_PunktListe", 7370, [] {});
  eintrag->setCheckable(true);
  eintrag->setChecked(true);
  eintrag->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_L));
  connect(eintrag, &QAction::toggled, this, std::move(zeigen));
}

void Messfenster::mitteAnordnen(QWidget& bild, int hundertstel, QWidget& panels, QWidget& liste) {
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

void Messfenster::werteAnpassen(int NKStellen) {
  const bool inch = umgebung().system.Masssystem == Inch;
  const QString ganze = inch ? QStringLiteral("-000") : QStringLiteral("-00");
  const QString breitester = ganze + qText(ZahlMuster(NKStellen)).mid(1);
  for (ValuePanel* feld : wertfelder) feld->setWidestText(breitester);
}

}  // namespace korvin
