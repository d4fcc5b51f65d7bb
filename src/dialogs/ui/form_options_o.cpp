#include "dialogs/ui/form_options_o.h"

#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>
#include <filesystem>

#include "dialogs/ui/folder_dialog.h"
#include "dialogs/ui/settings_controls.h"
#include "frame/cp1252.h"
#include "frame/montage.h"
#include "frame/pfade.h"
#include "frame/ui/icons.h"
#include "frame/ui/mouse_pointer.h"
#include "frame/ui/qt_text.h"
#include "frame/ui/theme.h"
#include "frame/zahl_text.h"

namespace korvin {
namespace {

constexpr double MontageBildSeite = 64;
constexpr double Feldbreite = 118;
constexpr double Textbreite = 420;
constexpr std::int16_t ErsterFilterText = 3200;

std::string textEinstellung(int index) {
  return "TextEinstellung(" + std::to_string(index) + ")";
}

/// The line of the dialog's table for this control.
const EinstellFeld& zeileVon(std::string_view control) {
  const auto felder = FelderO();
  return *std::find_if(felder.begin(), felder.end(),
                       [control](const EinstellFeld& feld) { return feld.control == control; });
}

QStringList musterDerStellen() {
  QStringList muster;
  for (int stellen = 0; stellen < AnzahlNKStellen; ++stellen) muster << qText(ZahlMuster(stellen));
  return muster;
}

QStringList faktoren() {
  QStringList liste;
  for (int faktor = 1; faktor <= AnzahlSFaktoren; ++faktor) liste << QString::number(faktor);
  return liste;
}

}  // namespace

FormOptionsO::FormOptionsO(const FormOptionsOUmgebung& umgebung, OffeneMessung* messung, QWidget* parent)
    : QDialog(parent),
      u_(umgebung),
      optionen_(umgebung.einstellungen, messung),
      pruefer_(umgebung.einstellungen.dictionary, umgebung.einstellungen.messages,
               umgebung.einstellungen.meldung),
      waechter_(new FieldWatch(pruefer_, *this)),
      TabOptO_(new QTabWidget(this)) {
  setObjectName(QStringLiteral("FormOptionsO"));
  setWindowTitle(text(2037) + QStringLiteral(": ") + text(505));
  aufbauen();
  fuellen();
}

QString FormOptionsO::text(std::int16_t nummer) {
  return qText(dictionary().DicText(nummer));
}

void FormOptionsO::ausfuehren() {
  const NormalPointerScope zeiger;
  exec();
}

// ---- Building ----

void FormOptionsO::aufbauen() {
  TabOptO_->setObjectName(QStringLiteral("TabOptO"));
  seiteAllgemein();
  seiteMessinstrument();
  seiteDisplay();
  waechter_->vorholen = [this](const QWidget& feld) { vorholen(feld); };

  auto* spalte = new QVBoxLayout(this);
  spalte->setContentsMargins(scaled(16), scaled(16), scaled(16), scaled(16));
  spalte->setSpacing(scaled(14));
  spalte->addWidget(TabOptO_, 1);
  spalte->addLayout(knopfleiste());
}

QWidget* FormOptionsO::seite(const char* name, std::int16_t titel, std::int16_t tip) {
  auto* neu = new QWidget(TabOptO_);
  neu->setObjectName(QLatin1String(name));
  auto* spalte = new QVBoxLayout(neu);
  spalte->setContentsMargins(scaled(14), scaled(14), scaled(14), scaled(14));
  spalte->setSpacing(scaled(12));
  const int index = TabOptO_->addTab(neu, text(titel));
  TabOptO_->setTabToolTip(index, text(tip));
  return neu;
}

Gruppe* FormOptionsO::gruppe(std::int16_t titel, QWidget* parent) {
  return new Gruppe(text(titel), parent);
}

EndCaretEntry* FormOptionsO::eingabe(int index, QWidget* parent) {
  const std::string name = textEinstellung(index);
  return eingabefeld(dictionary(), name, zeileVon(name).umfang, parent);
}

QWidget* FormOptionsO::seiteAllgemein() {
  QWidget* neu = seite("TabAllgemein", 2220, 2225);
  Gruppe* angaben = gruppe(7453, neu);
  angaben->zeile(text(7012), eingabe(0, angaben));
  angaben->zeile(text(3044), eingabe(2, angaben));
  angaben->zeile(text(3008), eingabe(4, angaben));
  angaben->zeile(text(3009), eingabe(5, angaben));
  // Reserved.
  TextEntry* reserviert = eingabefeld(dictionary(), textEinstellung(1), 0, angaben);
  reserviert->setReadOnly(true);
  reserviert->hide();
  Gruppe* dateien = gruppeDateien(neu);
  ausrichten({angaben, dateien});
  neu->layout()->addWidget(angaben);
  neu->layout()->addWidget(dateien);
  qobject_cast<QVBoxLayout*>(neu->layout())->addStretch();
  return neu;
}

Gruppe* FormOptionsO::gruppeDateien(QWidget* parent) {
  Gruppe* dateien = gruppe(7454, parent);
  auto* reihe = new QWidget(dateien);
  auto* nebeneinander = new QHBoxLayout(reihe);
  nebeneinander->setContentsMargins(0, 0, 0, 0);
  ordner_ = eingabe(3, reihe);
  ordner_->setMinimumWidth(scaled(Textbreite));
  ordner_->setAccessibleName(text(7450));
  QPushButton* durchsuchen = korvin::knopf("cmdDurchsuchen", text(7451), reihe);
  nebeneinander->addWidget(ordner_, 1);
  nebeneinander->addWidget(durchsuchen);
  dateien->zeile(text(7450), reihe);
  zumOrdner_ = new Hinweis("Hinweis(3)", dateien);
  dateien->zeile(zumOrdner_, true);
  connect(ordner_, &QLineEdit::textChanged, this, &FormOptionsO::ordnerZeigen);
  connect(durchsuchen, &QPushButton::clicked, this, &FormOptionsO::durchsuchen);
  return dateien;
}

QWidget* FormOptionsO::seiteMessinstrument() {
  QWidget* neu = seite("TabMessinstrument", 2222, 2227);
  auto* oben = new QHBoxLayout;
  oben->setSpacing(scaled(12));
  oben->addWidget(gruppeVerbindung(neu), 1);
  oben->addWidget(gruppeFilterUndMontage(neu), 1);
  plan_ = new PlanPanel(dictionary(), u_.clock, u_.timers, neu);
  plan_->ueberwachen(*waechter_);
  auto* spalte = qobject_cast<QVBoxLayout*>(neu->layout());
  spalte->addLayout(oben);
  spalte->addWidget(plan_);
  spalte->addStretch();
  return neu;
}

Gruppe* FormOptionsO::gruppeVerbindung(QWidget* parent) {
  Gruppe* verbindung = gruppe(7456, parent);
  EndCaretEntry* port = eingabe(6, verbindung);
  port->setFixedWidth(scaled(Feldbreite));
  QComboBox* cmbBpS = auswahl("cmbBpS", {QStringLiteral("19200"), QStringLiteral("115200")}, verbindung);
  cmbBpS->setFixedWidth(scaled(Feldbreite));
  auto* zumPort = new Hinweis("Hinweis(6)", verbindung);
  verbindung->zeile(text(7457), port, false);
  verbindung->zeile(zumPort);
  verbindung->zeile(text(7458), cmbBpS, false);
  verbindung->zeile(erklaerung(text(7459), verbindung));
  verbindung->gitter().setRowStretch(verbindung->gitter().rowCount(), 1);
  waechter_->add(*port, *zumPort, zeileVon(textEinstellung(6)).pruefung);
  return verbindung;
}

Gruppe* FormOptionsO::gruppeFilterUndMontage(QWidget* parent) {
  Gruppe* kopf = gruppe(7460, parent);
  QStringList zeiten;
  QStringList montagen;
  for (std::int16_t i = 0; i < AnzahlFilter; ++i)
    zeiten << text(static_cast<std::int16_t>(ErsterFilterText + i));
  for (std::int16_t i = 0; i < AnzahlMontagen; ++i) montagen << qText(MontageText(dictionary(), i));
  QComboBox* cmbFilter = auswahl("cmbFilter", zeiten, kopf);
  QComboBox* cmbMontage = auswahl("cmbKameraBefestigung", montagen, kopf);
  ImgMontage_ = new QLabel(kopf);
  ImgMontage_->setObjectName(QStringLiteral("ImgMontage"));
  kopf->zeile(text(3013), cmbFilter);
  kopf->zeile(text(7461), cmbMontage);
  kopf->zeile(ImgMontage_, true);
  kopf->gitter().setRowStretch(kopf->gitter().rowCount(), 1);
  connect(cmbMontage, &QComboBox::currentIndexChanged, this, &FormOptionsO::montageZeigen);
  return kopf;
}

QWidget* FormOptionsO::seiteDisplay() {
  QWidget* neu = seite("TabDisplay", 2223, 2228);
  Gruppe* anzeige = gruppe(7477, neu);
  QComboBox* cmbAnzStellen = auswahl("cmbAnzStellen", musterDerStellen(), anzeige);
  QComboBox* cmbSfak = auswahl("cmbSfak", faktoren(), anzeige);
  for (QComboBox* liste : {cmbAnzStellen, cmbSfak}) liste->setFixedWidth(scaled(Feldbreite));
  anzeige->zeile(text(7471), cmbAnzStellen, false);
  anzeige->zeile(text(7472), cmbSfak, false);
  Gruppe* protokoll = gruppe(3019, neu);
  protokoll->zeile(schalter(dictionary(), "CheckDiagramm", 7473, protokoll));
  protokoll->zeile(schalter(dictionary(), "CheckTabelle(0)", 7474, protokoll));
  protokoll->zeile(schalter(dictionary(), "CheckTabelle(1)", 7475, protokoll));
  Gruppe* dateien = gruppe(7454, neu);
  dateien->zeile(schalter(dictionary(), "CheckAsciiDatei", 7476, dateien));
  for (Gruppe* each : {anzeige, protokoll, dateien}) neu->layout()->addWidget(each);
  qobject_cast<QVBoxLayout*>(neu->layout())->addStretch();
  return neu;
}

QLayout* FormOptionsO::knopfleiste() {
  auto* reihe = new QHBoxLayout;
  QPushButton* hilfeKnopf = knopf(2, 7040, &FormOptionsO::hilfe);
  QPushButton* okKnopf = knopf(0, 7050, &FormOptionsO::ok);
  QPushButton* abbrechenKnopf = knopf(1, 3020, &FormOptionsO::abbrechen);
  okKnopf->setDefault(true);
  reihe->addWidget(hilfeKnopf);
  reihe->addStretch();
  reihe->addWidget(okKnopf);
  reihe->addWidget(abbrechenKnopf);
  return reihe;
}

QPushButton* FormOptionsO::knopf(int index, std::int16_t caption, void (FormOptionsO::*befehl)()) {
  QPushButton* neu = korvin::knopf(("Commands(" + std::to_string(index) + ")").c_str(), text(caption), this);
  connect(neu, &QPushButton::clicked, this, befehl);
  // OK checks by itself; the other two need no entry to be right.
  waechter_->ausnehmen(*neu);
  return neu;
}

// ---- Showing ----

void FormOptionsO::fuellen() {
  zeigeFelder(*this, FelderO(), optionen_.lesen());
  plan_->setPlan(optionen_.messplan(), optionen_.messplanAn());
  if (!optionen_.mitMessung()) plan_->sperren();
  waechter_->gefuellt();
  montageZeigen(findChild<QComboBox*>(QStringLiteral("cmbKameraBefestigung"))->currentIndex());
  ordnerZeigen();
  findChild<QWidget*>(QStringLiteral("TextEinstellung(0)"))->setFocus();
}

void FormOptionsO::montageZeigen(int index) {
  const QString bild = qText(MontageBild(static_cast<std::int16_t>(index)));
  ImgMontage_->setPixmap(iconPixmap(bild, scaled(MontageBildSeite), devicePixelRatioF()));
}

void FormOptionsO::ordnerZeigen() {
  const std::string ordner = ordner_->value();
  std::error_code fehler;
  const bool da = ordner.empty() || std::filesystem::is_directory(pfadAusUtf8(ordner), fehler);
  zumOrdner_->zeige(da ? QString() : text(7455));
}

void FormOptionsO::durchsuchen() {
  const std::string gewaehlt = ordnerErfragen(this, dictionary().DicText(7452), ordner_->value());
  if (gewaehlt.empty()) return;
  if (!passtInCp1252(gewaehlt)) {
    // Files there could not be saved: their heads hold their path.
    ordner_->refuse();
    return;
  }
  ordner_->setValue(gewaehlt);
}

void FormOptionsO::vorholen(const QWidget& feld) {
  for (int i = 0; i < TabOptO_->count(); ++i) {
    if (TabOptO_->widget(i)->isAncestorOf(&feld)) TabOptO_->setCurrentIndex(i);
  }
}

// ---- Commands ----

void FormOptionsO::ok() {
  if (!waechter_->allePruefen()) return;
  const auto uebernehmen = [dialog = QPointer(this)] {
    // Cancel may have come while a telegram was awaited.
    if (!dialog || !dialog->isVisible()) return;
    dialog->plan_->uhrAnhalten();
    dialog->optionen_.uebernehmen(nimmFelder(*dialog, FelderO()), dialog->plan_->plan());
    dialog->accept();
  };
  if (u_.ausserhalbDesTakts) {
    u_.ausserhalbDesTakts(uebernehmen);
  } else {
    uebernehmen();
  }
}

void FormOptionsO::hilfe() {
  if (u_.hilfe) u_.hilfe();
}

}  // namespace korvin
