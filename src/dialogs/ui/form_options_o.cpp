#include "dialogs/ui/form_options_o.h"

#include <QPushButton>
#include <QVBoxLayout>

#include "frame/ui/qt_text.h"
#include "frame/ui/theme.h"
#include "frame/zahl_text.h"

namespace korvin {
namespace {

QStringList musterDerStellen() {
  QStringList muster;
  for (int stellen = 0; stellen < AnzahlNKStellen; ++stellen) muster << qText(ZahlMuster(stellen));
  return muster;
}

}  // namespace

FormOptionsO::FormOptionsO(const FormOptionsOUmgebung& umgebung, OffeneMessung* messung, QWidget* parent)
    : SettingsDialog(umgebung.dialog, FelderO(), QStringLiteral("FormOptionsO"), QStringLiteral("TabOptO"),
                     parent),
      optionen_(umgebung.dialog.einstellungen, messung) {
  setWindowTitle(text(2037) + QStringLiteral(": ") + text(505));
  seiteAllgemein();
  seiteMessinstrument(umgebung);
  seiteDisplay();
  spalte(this)->addLayout(knopfleiste());
  plan_->setPlan(optionen_.messplan(), optionen_.messplanAn());
  if (!optionen_.mitMessung()) plan_->sperren();
  fuellen(optionen_.lesen());
}

// ---- Building ----

void FormOptionsO::seiteAllgemein() {
  QWidget* neu = seite("TabAllgemein", 2220, 2225);
  Gruppe* angaben = gruppeAngaben(neu);
  reserviertesFeld(dictionary(), "TextEinstellung(1)", angaben);
  Gruppe* dateien = gruppeDateien(neu);
  ausrichten({angaben, dateien});
  spalte(neu)->addWidget(angaben);
  spalte(neu)->addWidget(dateien);
  spalte(neu)->addStretch();
}

void FormOptionsO::seiteMessinstrument(const FormOptionsOUmgebung& umgebung) {
  QWidget* neu = seite("TabMessinstrument", 2222, 2227);
  auto* oben = new QHBoxLayout;
  oben->setSpacing(scaled(12));
  oben->addWidget(gruppeVerbindung(neu), 1);
  oben->addWidget(gruppeFilterUndMontage(neu), 1);
  plan_ = new PlanPanel(dictionary(), umgebung.clock, umgebung.timers, neu);
  plan_->ueberwachen(waechter());
  spalte(neu)->addLayout(oben);
  spalte(neu)->addWidget(plan_);
  spalte(neu)->addStretch();
}

void FormOptionsO::seiteDisplay() {
  QWidget* neu = seite("TabDisplay", 2223, 2228);
  Gruppe* anzeige = gruppeAnzeige(musterDerStellen(), neu);
  Gruppe* protokoll = gruppe(3019, neu);
  protokoll->zeile(schalterZu(zeile("CheckXYDiagramm"), 7473, protokoll));
  protokoll->zeile(schalterZu(zeile("CheckXTabelle"), 7474, protokoll));
  protokoll->zeile(schalterZu(zeile("CheckYTabelle"), 7475, protokoll));
  Gruppe* dateien = gruppe(7454, neu);
  dateien->zeile(schalterZu(zeile("AsciiDatei"), 7476, dateien));
  for (Gruppe* each : {anzeige, protokoll, dateien}) spalte(neu)->addWidget(each);
  spalte(neu)->addStretch();
}

QLayout* FormOptionsO::knopfleiste() {
  auto* reihe = new QHBoxLayout;
  QPushButton* hilfe = hilfeKnopf("Commands(2)");
  QPushButton* okKnopf = befehl(0, 7050, [this] { ok(); });
  QPushButton* abbrechen = befehl(1, 3020, [this] { reject(); });
  okKnopf->setDefault(true);
  reihe->addWidget(hilfe);
  reihe->addStretch();
  reihe->addWidget(okKnopf);
  reihe->addWidget(abbrechen);
  return reihe;
}

// ---- Commands ----

void FormOptionsO::ok() {
  if (!allePruefen()) return;
  ausfuehrenOhneTakt([this] {
    plan_->uhrAnhalten();
    optionen_.uebernehmen(werte(), plan_->plan());
    accept();
  });
}

}  // namespace korvin
