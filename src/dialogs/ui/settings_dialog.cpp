#include "dialogs/ui/settings_dialog.h"

#include <QPointer>
#include <QPushButton>
#include <algorithm>
#include <filesystem>
#include <utility>

#include "dialogs/ui/folder_dialog.h"
#include "dialogs/ui/settings_controls.h"
#include "frame/cp1252.h"
#include "frame/montage.h"
#include "frame/pfade.h"
#include "frame/ui/icons.h"
#include "frame/ui/mouse_pointer.h"
#include "frame/ui/qt_text.h"
#include "frame/ui/theme.h"

namespace korvin {
namespace {

constexpr double MontageBildSeite = 64;
constexpr double Feldbreite = 118;
constexpr double Textbreite = 420;
constexpr std::int16_t ErsterFilterText = 3200;

QStringList faktoren() {
  QStringList liste;
  for (int faktor = 1; faktor <= AnzahlSFaktoren; ++faktor) liste << QString::number(faktor);
  return liste;
}

/// "Hinweis(21)" for the box "TextEinstellung(21)".
std::string hinweisName(std::string_view control) {
  return "Hinweis" + std::string(control.substr(control.find('(')));
}

}  // namespace

SettingsDialog::SettingsDialog(const SettingsDialogUmgebung& umgebung, std::span<const EinstellFeld> felder,
                               const QString& name, const QString& tabName, QWidget* parent)
    : QDialog(parent),
      u_(umgebung),
      felder_(felder),
      pruefer_(umgebung.einstellungen.dictionary, umgebung.einstellungen.messages,
               umgebung.einstellungen.meldung, umgebung.einstellungen.system.Masssystem),
      waechter_(new FieldWatch(pruefer_, *this)),
      tabs_(new QTabWidget(this)) {
  setObjectName(name);
  tabs_->setObjectName(tabName);
  waechter_->vorholen = [this](const QWidget& feld) { vorholen(feld); };
  auto* alles = new QVBoxLayout(this);
  alles->setContentsMargins(scaled(16), scaled(16), scaled(16), scaled(16));
  alles->setSpacing(scaled(14));
  alles->addWidget(tabs_, 1);
}

QString SettingsDialog::qDicText(std::int16_t nummer) {
  return qText(dictionary().DicText(nummer));
}

void SettingsDialog::ausfuehren() {
  const NormalPointerScope zeiger;
  exec();
}

// ---- Pages ----

QWidget* SettingsDialog::seite(const char* name, std::int16_t titel, std::int16_t tip) {
  auto* neu = new QWidget(tabs_);
  neu->setObjectName(QLatin1String(name));
  auto* inhalt = new QVBoxLayout(neu);
  inhalt->setContentsMargins(scaled(14), scaled(14), scaled(14), scaled(14));
  inhalt->setSpacing(scaled(12));
  const int index = tabs_->addTab(neu, text(titel));
  tabs_->setTabToolTip(index, text(tip));
  return neu;
}

Gruppe* SettingsDialog::gruppeAngaben(QWidget* parent) {
  Gruppe* angaben = gruppe(7453, parent);
  angaben->zeile(text(7012), eingabe(zeile("FirmaName"), angaben));
  angaben->zeile(text(3044), eingabe(zeile("Bezeichnung"), angaben));
  angaben->zeile(text(3008), eingabe(zeile("Bediener"), angaben));
  angaben->zeile(text(3009), eingabe(zeile("Kommentar"), angaben));
  return angaben;
}

Gruppe* SettingsDialog::gruppeDateien(QWidget* parent) {
  Gruppe* dateien = gruppe(7454, parent);
  auto* reihe = new QWidget(dateien);
  auto* nebeneinander = new QHBoxLayout(reihe);
  nebeneinander->setContentsMargins(0, 0, 0, 0);
  EndCaretEntry* ordner = eingabe(zeile("PfadMessFile"), reihe);
  ordner->setMinimumWidth(scaled(Textbreite));
  ordner->setAccessibleName(text(7450));
  QPushButton* durchsuchenKnopf = knopf("cmdDurchsuchen", text(7451), reihe);
  nebeneinander->addWidget(ordner, 1);
  nebeneinander->addWidget(durchsuchenKnopf);
  dateien->zeile(text(7450), reihe);
  zumOrdner_ = hinweisZu(zeile("PfadMessFile"), dateien);
  dateien->zeile(zumOrdner_, true);
  connect(ordner, &QLineEdit::textChanged, this, &SettingsDialog::ordnerZeigen);
  connect(durchsuchenKnopf, &QPushButton::clicked, this, &SettingsDialog::durchsuchen);
  return dateien;
}

Gruppe* SettingsDialog::gruppeVerbindung(QWidget* parent) {
  Gruppe* verbindung = gruppe(7456, parent);
  Hinweis* zumPort = hinweisZu(zeile("PortNr"), verbindung);
  QComboBox* cmbBpS =
      liste(zeile("BaudRate"), {QStringLiteral("19200"), QStringLiteral("115200")}, verbindung);
  cmbBpS->setFixedWidth(scaled(Feldbreite));
  verbindung->zeile(text(7457), zahlEingabe(zeile("PortNr"), *zumPort, verbindung), false);
  verbindung->zeile(zumPort);
  verbindung->zeile(text(7458), cmbBpS, false);
  verbindung->zeile(erklaerung(text(7459), verbindung));
  verbindung->gitter().setRowStretch(verbindung->gitter().rowCount(), 1);
  return verbindung;
}

Gruppe* SettingsDialog::gruppeFilterUndMontage(QWidget* parent) {
  Gruppe* kopf = gruppe(7460, parent);
  QStringList zeiten;
  QStringList montagen;
  for (std::int16_t i = 0; i < AnzahlFilter; ++i)
    zeiten << text(static_cast<std::int16_t>(ErsterFilterText + i));
  for (std::int16_t i = 0; i < AnzahlMontagen; ++i) montagen << qText(MontageText(dictionary(), i));
  QComboBox* cmbMontage = liste(zeile("Montage"), montagen, kopf);
  ImgMontage_ = new QLabel(kopf);
  ImgMontage_->setObjectName(QStringLiteral("ImgMontage"));
  kopf->zeile(text(3013), liste(zeile("Filter"), zeiten, kopf));
  kopf->zeile(text(7461), cmbMontage);
  kopf->zeile(ImgMontage_, true);
  kopf->gitter().setRowStretch(kopf->gitter().rowCount(), 1);
  connect(cmbMontage, &QComboBox::currentIndexChanged, this, &SettingsDialog::montageZeigen);
  return kopf;
}

Gruppe* SettingsDialog::gruppeAnzeige(const QStringList& stellen, QWidget* parent) {
  Gruppe* anzeige = gruppe(7477, parent);
  QComboBox* cmbAnzStellen = liste(zeile("NKStellen"), stellen, anzeige);
  QComboBox* cmbSfak = liste(zeile("SFAK"), faktoren(), anzeige);
  for (QComboBox* each : {cmbAnzStellen, cmbSfak}) each->setFixedWidth(scaled(Feldbreite));
  anzeige->zeile(text(7471), cmbAnzStellen, false);
  anzeige->zeile(text(7472), cmbSfak, false);
  return anzeige;
}

// ---- Controls by their settings ----

const EinstellFeld& SettingsDialog::zeile(std::string_view key, std::string_view section) const {
  const auto feld = std::find_if(felder_.begin(), felder_.end(), [&](const EinstellFeld& each) {
    return each.einstellung.key == key && (section.empty() || each.einstellung.section == section);
  });
  Q_ASSERT_X(feld != felder_.end(), "settings dialog", key.data());
  return *feld;
}

QString SettingsDialog::controlName(const EinstellFeld& feld) {
  return qText(feld.control);
}

EndCaretEntry* SettingsDialog::eingabe(const EinstellFeld& feld, QWidget* parent) {
  return eingabefeld(dictionary(), feld.control, feld.umfang, parent);
}

EndCaretEntry* SettingsDialog::zahlEingabe(const EinstellFeld& feld, Hinweis& hinweis, QWidget* parent,
                                           bool immer) {
  EndCaretEntry* neu = eingabe(feld, parent);
  neu->setFixedWidth(scaled(Feldbreite));
  waechter_->add(*neu, hinweis, feld.pruefung, immer);
  return neu;
}

Hinweis* SettingsDialog::hinweisZu(const EinstellFeld& feld, QWidget* parent) {
  return new Hinweis(hinweisName(feld.control), parent);
}

QComboBox* SettingsDialog::liste(const EinstellFeld& feld, const QStringList& eintraege, QWidget* parent) {
  return auswahl(feld.control, eintraege, parent);
}

QCheckBox* SettingsDialog::schalterZu(const EinstellFeld& feld, std::int16_t nummer, QWidget* parent) {
  return schalter(dictionary(), feld.control, nummer, parent);
}

// ---- Showing ----

void SettingsDialog::fuellen(const FeldWerte& werte) {
  zeigeFelder(*this, felder_, werte);
  waechter_->gefuellt();
  montageZeigen();
  ordnerZeigen();
  control<QWidget>(zeile("FirmaName"))->setFocus();
}

FeldWerte SettingsDialog::werte() const {
  return nimmFelder(*this, felder_);
}

void SettingsDialog::montageZeigen() {
  const auto index = static_cast<std::int16_t>(control<QComboBox>(zeile("Montage"))->currentIndex());
  ImgMontage_->setPixmap(
      iconPixmap(qText(MontageBild(index)), scaled(MontageBildSeite), devicePixelRatioF()));
}

void SettingsDialog::ordnerZeigen() {
  const std::string ordner = control<TextEntry>(zeile("PfadMessFile"))->value();
  std::error_code fehler;
  const bool da = ordner.empty() || std::filesystem::is_directory(pfadAusUtf8(ordner), fehler);
  zumOrdner_->zeige(da ? QString() : text(7455));
}

void SettingsDialog::durchsuchen() {
  auto* ordner = control<TextEntry>(zeile("PfadMessFile"));
  const std::string gewaehlt = ordnerErfragen(this, dictionary().DicText(7452), ordner->value());
  if (gewaehlt.empty()) return;
  if (!passtInCp1252(gewaehlt)) {
    // Files there could not be saved: their heads hold their path.
    ordner->refuse();
    return;
  }
  ordner->setValue(gewaehlt);
}

void SettingsDialog::vorholen(const QWidget& feld) {
  for (int i = 0; i < tabs_->count(); ++i) {
    if (tabs_->widget(i)->isAncestorOf(&feld)) tabs_->setCurrentIndex(i);
  }
}

// ---- Commands ----

QPushButton* SettingsDialog::befehl(int index, std::int16_t caption, std::function<void()> tun) {
  QPushButton* neu = knopf(("Commands(" + std::to_string(index) + ")").c_str(), text(caption), this);
  connect(neu, &QPushButton::clicked, this, std::move(tun));
  waechter_->ausnehmen(*neu);
  return neu;
}

QPushButton* SettingsDialog::hilfeKnopf(const char* name) {
  QPushButton* neu = knopf(name, text(7040), this);
  connect(neu, &QPushButton::clicked, this, [this] {
    if (u_.hilfe) u_.hilfe();
  });
  waechter_->ausnehmen(*neu);
  return neu;
}

void SettingsDialog::ausfuehrenOhneTakt(std::function<void()> tun) {
  const auto wennOffen = [dialog = QPointer(this), tun = std::move(tun)] {
    // Cancel may have come while a telegram was awaited.
    if (dialog && dialog->isVisible()) tun();
  };
  if (u_.ausserhalbDesTakts) {
    u_.ausserhalbDesTakts(wennOffen);
  } else {
    wennOffen();
  }
}

}  // namespace korvin
