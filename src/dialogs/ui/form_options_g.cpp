#include "dialogs/ui/form_options_g.h"

#include <QCheckBox>
#include <QComboBox>
#include <QSignalBlocker>

#include "frame/ui/qt_text.h"

namespace korvin {

FormOptionsG::FormOptionsG(const SettingsDialogUmgebung& umgebung, OffeneReihe* reihe, QWidget* parent)
    : LineSettingsDialog(umgebung, FelderG(), QStringLiteral("FormOptionsG"), parent),
      optionen_(umgebung.einstellungen, reihe) {
  setWindowTitle(text(2037) + QLatin1Char(' ') + text(5500));
  seiteAllgemein();
  seiteMessobjekt();
  spalte(seiteMessinstrument())->addStretch();
  seiteDisplay();
  fertigstellen();
}

// ---- Building ----

void FormOptionsG::seiteMessobjekt() {
  QWidget* neu = rahmenSeite("TabMessobjekt", 2221, 2226);
  Gruppe* punkte = gruppePunkte(neu);
  Gruppe* toleranzen = gruppeToleranzen(neu);
  ausrichten({punkte, toleranzen});
  spalte(neu)->addWidget(punkte);
  spalte(neu)->addWidget(toleranzen);
  spalte(neu)->addStretch();
}

Gruppe* FormOptionsG::gruppePunkte(QWidget* parent) {
  Gruppe* punkte = gruppe(7651, parent);
  const int reihe = punkte->gitter().rowCount();
  // A line of another number or length than these would be none.
  zahlZeile(*punkte, reihe, 0, text(7464), zeile("AnzMPs"), true);
  zahlZeile(*punkte, reihe + 2, 0, mitEinheit(3000, "mm", "in"), zeile("Distanz"), true);
  verschoben_ = new Hinweis("HinweisVerschoben", punkte);
  CheckzAquidistant_ = schalter(dictionary(), "CheckzAquidistant", 7652, punkte);
  zurLage_ = erklaerung(text(optionen_.mitReihe() ? 7653 : 7670), punkte);
  punkte->zeile(verschoben_);
  punkte->zeile(CheckzAquidistant_);
  punkte->zeile(zurLage_);
  punkte->zeile(schalterZu(zeile("BiDi_Messen"), 7654, punkte));
  connect(CheckzAquidistant_, &QCheckBox::clicked, this, &FormOptionsG::gleichVerteilen);
  return punkte;
}

Gruppe* FormOptionsG::gruppeToleranzen(QWidget* parent) {
  Gruppe* ziel = gruppe(7656, parent);
  toleranzen(*ziel, "Toleranz_G");
  QComboBox* bezug = liste(zeile("ToleranzBezug"),
                           {QStringLiteral("0 - ") + text(3027), QStringLiteral("1 - ") + text(3028),
                            QStringLiteral("2 - ") + text(3026)},
                           ziel);
  ziel->zeile(text(7660), bezug, false);
  return ziel;
}

// ---- The series in work ----

void FormOptionsG::messungZeigen() {
  const QSignalBlocker still(CheckzAquidistant_);
  CheckzAquidistant_->setEnabled(optionen_.mitReihe());
  CheckzAquidistant_->setChecked(optionen_.ZAequidistant());
  verschoben_->zeige(optionen_.nurFuerNeueReihe() ? text(7655) : QString());
}

void FormOptionsG::gleichVerteilen() {
  ausfuehrenOhneTakt([this] {
    optionen_.punkteGleichVerteilen();
    messungZeigen();
  });
}

}  // namespace korvin
