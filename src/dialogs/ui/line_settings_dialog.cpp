#include "dialogs/ui/line_settings_dialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QRadioButton>
#include <array>

#include "dialogs/entered_number.h"
#include "frame/ui/qt_text.h"
#include "frame/ui/theme.h"
#include "frame/zahl_text.h"
#include "straightness/masseinheit.h"

namespace korvin {
namespace {

QStringList musterDerStellen() {
  QStringList muster;
  for (int stellen = 0; stellen < AnzahlNKStellen; ++stellen)
    muster << QLatin1Char('\'') + qText(ZahlMuster(stellen)) + QLatin1Char('\'');
  return muster;
}

}  // namespace

LineSettingsDialog::LineSettingsDialog(const SettingsDialogUmgebung& umgebung,
                                       std::span<const EinstellFeld> felder, const QString& name,
                                       QWidget* parent)
    : SettingsDialog(umgebung, felder, name, QStringLiteral("TabOptG"), parent) {}

// ---- Pages ----

QWidget* LineSettingsDialog::rahmenSeite(const char* name, std::int16_t titel, std::int16_t tip) {
  QWidget* neu = seite(name, titel, tip);
  auto* rahmen = new QFrame(neu);
  rahmen->setObjectName(QStringLiteral("FrmOptG(%1)").arg(rahmen_++));
  auto* inhalt = new QVBoxLayout(rahmen);
  inhalt->setContentsMargins(0, 0, 0, 0);
  inhalt->setSpacing(scaled(12));
  spalte(neu)->addWidget(rahmen);
  return rahmen;
}

void LineSettingsDialog::seiteAllgemein() {
  QWidget* neu = rahmenSeite("TabAllgemein", 2220, 2225);
  Gruppe* angaben = gruppeAngaben(neu);
  reserviertesFeld(dictionary(), "TextEinstellung(1)", angaben);
  Gruppe* dateien = gruppeDateien(neu);
  ausrichten({angaben, dateien});
  spalte(neu)->addWidget(angaben);
  spalte(neu)->addWidget(dateien);
  spalte(neu)->addStretch();
}

QWidget* LineSettingsDialog::seiteMessinstrument() {
  QWidget* neu = rahmenSeite("TabMessinstrument", 2222, 2227);
  auto* oben = new QHBoxLayout;
  oben->setSpacing(scaled(12));
  oben->addWidget(gruppeVerbindung(neu), 1);
  oben->addWidget(gruppeFilterUndMontage(neu), 1);
  spalte(neu)->addLayout(oben);
  spalte(neu)->addWidget(gruppeAdaptiv(neu));
  return neu;
}

void LineSettingsDialog::seiteDisplay() {
  QWidget* neu = rahmenSeite("TabDisplay", 2223, 2228);
  Gruppe* anzeige = gruppeAnzeige(musterDerStellen(), neu);
  Gruppe* protokoll = gruppe(3019, neu);
  protokoll->zeile(schalterZu(zeile("CheckXDiagramm"), 7668, protokoll));
  protokoll->zeile(schalterZu(zeile("CheckYDiagramm"), 7669, protokoll));
  protokoll->zeile(schalterZu(zeile("CheckXTabelle"), 7474, protokoll));
  protokoll->zeile(schalterZu(zeile("CheckYTabelle"), 7475, protokoll));
  Gruppe* dateien = gruppe(7454, neu);
  dateien->zeile(schalterZu(zeile("AsciiDatei"), 7476, dateien));
  for (Gruppe* each : {anzeige, protokoll, dateien}) spalte(neu)->addWidget(each);
  spalte(neu)->addStretch();
}

// ---- Rows of numbers ----

QString LineSettingsDialog::mitEinheit(std::int16_t nummer, const char* metrisch, const char* inch) {
  const char* einheit = Masssystem() == MasssystemInch ? inch : metrisch;
  return text(nummer) + QStringLiteral(" [") + QLatin1String(einheit) + QLatin1Char(']');
}

EndCaretEntry* LineSettingsDialog::zahlZeile(Gruppe& ziel, int reihe, int spalte, const QString& worte,
                                             const EinstellFeld& feld, bool immer) {
  Hinweis* hinweis = hinweisZu(feld, &ziel);
  EndCaretEntry* box = zahlEingabe(feld, *hinweis, &ziel, immer);
  ziel.gitter().addWidget(beschriftung(worte, box), reihe, spalte);
  ziel.gitter().addWidget(box, reihe, spalte + 1, Qt::AlignLeft);
  ziel.gitter().addWidget(hinweis, reihe + 1, spalte, 1, 2);
  return box;
}

void LineSettingsDialog::toleranzen(Gruppe& ziel, std::string_view section) {
  const std::array<QString, 3> worte = {mitEinheit(7657, "mm", "mil"), mitEinheit(7658, "mm", "mil"),
                                        mitEinheit(7659, "mm", "in")};
  const std::array<const char*, 3> keys = {"Gesamt", "WertPro", "ProEinheit"};
  const int kopf = ziel.gitter().rowCount();
  // In the order in which the tabulator goes through them: one axis after the other.
  for (int achse = 0; achse < 2; ++achse) {
    const std::string name(achse == 0 ? "X" : "Y");
    ziel.gitter().addWidget(new QLabel(qText(name), &ziel), kopf, achse + 1);
    for (int i = 0; i < 3; ++i) {
      const auto platz = static_cast<std::size_t>(i);
      toleranzFeld(ziel, kopf + 1 + 2 * i, achse + 1, worte.at(platz), zeile(name + keys.at(platz), section));
    }
  }
  // Both columns stand side by side, as wide as a refusal; the room is to the right of them.
  const QString abweisung = qText(pruefer().bereichText(FeldPruefung::toleranz));
  for (const int spalte : {1, 2})
    ziel.gitter().setColumnMinimumWidth(spalte, fontMetrics().horizontalAdvance(abweisung) + scaled(8));
  ziel.gitter().setColumnStretch(1, 0);
  ziel.gitter().setColumnStretch(3, 1);
}

void LineSettingsDialog::toleranzFeld(Gruppe& ziel, int reihe, int spalte, const QString& worte,
                                      const EinstellFeld& feld) {
  Hinweis* hinweis = hinweisZu(feld, &ziel);
  EndCaretEntry* box = zahlEingabe(feld, *hinweis, &ziel);
  if (spalte == 1) ziel.gitter().addWidget(beschriftung(worte, box), reihe, 0);
  box->setAccessibleName(worte + QLatin1Char(' ') + qText(feld.einstellung.key).left(1));
  ziel.gitter().addWidget(box, reihe, spalte, Qt::AlignLeft);
  ziel.gitter().addWidget(hinweis, reihe + 1, spalte);
  if (feld.pruefung == FeldPruefung::keine) abschnittWatch(*box, *hinweis);
}

// The length of a section is not checked: what it is read as stands beside it instead.
void LineSettingsDialog::abschnittWatch(EndCaretEntry& feld, Hinweis& hinweis) {
  connect(&feld, &QLineEdit::textChanged, this, [this, feld = &feld, hinweis = &hinweis] {
    const std::string eingegeben = feld->value();
    hinweis->zeige(qText(zahlHinweis(eingegeben, endlicheZahl(eingegeben), dictionary())));
  });
}

// ---- Adaptive measuring ----

Gruppe* LineSettingsDialog::gruppeAdaptiv(QWidget* parent) {
  Gruppe* adaptiv = gruppe(7661, parent);
  QCheckBox* an = schalterZu(zeile("AutoAdapt"), 7662, adaptiv);
  adaptiv->zeile(an);
  const int reihe = adaptiv->gitter().rowCount();
  EndCaretEntry* x = zahlZeile(*adaptiv, reihe, 0, mitEinheit(7663, "mm", "mil"), zeile("X_Genauigkeit"));
  EndCaretEntry* y = zahlZeile(*adaptiv, reihe + 2, 0, mitEinheit(7664, "mm", "mil"), zeile("Y_Genauigkeit"));
  EndCaretEntry* kurz =
      zahlZeile(*adaptiv, reihe, 2, text(7665) + QStringLiteral(" [s]"), zeile("MessZeitMin"));
  EndCaretEntry* lang =
      zahlZeile(*adaptiv, reihe + 2, 2, text(7666) + QStringLiteral(" [s]"), zeile("MessZeitMax"));
  QWidget* niveau = prioritaeten(adaptiv);
  adaptiv->gitter().addWidget(beschriftung(text(7667), niveau), reihe + 4, 0);
  adaptiv->gitter().addWidget(niveau, reihe + 4, 1, Qt::AlignLeft);
  adaptiv->gitter().setColumnStretch(3, 1);
  adaptiv_ += {x, y, kurz, lang};
  connect(an, &QCheckBox::toggled, this, &LineSettingsDialog::adaptivSchalten);
  connect(kurz, &QLineEdit::textChanged, this,
          [this, kurz] { pruefer().setMessZeitMin(ganzzahlAusText(kurz->value())); });
  waechter().bestanden = [this](const QWidget& feld) { messZeitenKoppeln(feld); };
  return adaptiv;
}

QWidget* LineSettingsDialog::prioritaeten(QWidget* parent) {
  auto* beide = new QWidget(parent);
  auto* reihe = new QHBoxLayout(beide);
  reihe->setContentsMargins(0, 0, 0, 0);
  reihe->setSpacing(scaled(16));
  for (const auto& [key, worte] : {std::pair{"Beta5", "5 %"}, std::pair{"Beta1", "1 %"}}) {
    auto* wahl = new QRadioButton(QLatin1String(worte), beide);
    wahl->setObjectName(qText(zeile(key).control));
    reihe->addWidget(wahl);
    adaptiv_ += wahl;
  }
  return beide;
}

void LineSettingsDialog::adaptivSchalten(bool an) {
  for (QWidget* each : adaptiv_) each->setEnabled(an);
}

void LineSettingsDialog::messZeitenKoppeln(const QWidget& geprueft) {
  auto* kurz = control<TextEntry>(zeile("MessZeitMin"));
  auto* lang = control<TextEntry>(zeile("MessZeitMax"));
  if (&geprueft != kurz) return;
  const std::string neu = messZeitMaxZu(kurz->value(), lang->value());
  if (neu != lang->value()) lang->setValue(neu);
}

// ---- Commands ----

QLayout* LineSettingsDialog::knopfleiste() {
  auto* reihe = new QHBoxLayout;
  QPushButton* hilfe = hilfeKnopf("cmdHilfe");
  ok_ = befehl(2, 7050, [this] { taken(true); });
  QPushButton* abbrechen = befehl(1, 3020, [this] { reject(); });
  uebernehmen_ = befehl(0, 7650, [this] { taken(false); });
  ok_->setDefault(true);
  reihe->addWidget(hilfe);
  reihe->addStretch();
  for (QPushButton* each : {ok_, abbrechen, uebernehmen_}) reihe->addWidget(each);
  return reihe;
}

void LineSettingsDialog::fertigstellen() {
  spalte(this)->addLayout(knopfleiste());
  adaptivSchalten(false);
  fuellen(lesen());
  messungZeigen();
  tabs().setCurrentIndex(0);
  aenderungenMelden();
  setGeaendert(false);
}

void LineSettingsDialog::aenderungenMelden() {
  const auto melden = [this] { setGeaendert(true); };
  for (const auto* feld : findChildren<TextEntry*>()) connect(feld, &QLineEdit::textChanged, this, melden);
  for (const auto* wahl : findChildren<QComboBox*>())
    connect(wahl, &QComboBox::currentIndexChanged, this, melden);
  for (const auto* check : findChildren<QCheckBox*>()) connect(check, &QCheckBox::toggled, this, melden);
  for (const auto* option : findChildren<QRadioButton*>())
    connect(option, &QRadioButton::toggled, this, melden);
}

void LineSettingsDialog::setGeaendert(bool geaendert) {
  uebernehmen_->setEnabled(geaendert);
  ok_->setEnabled(geaendert);
}

void LineSettingsDialog::taken(bool schliessen) {
  if (!allePruefen()) return;
  ausfuehrenOhneTakt([this, schliessen] {
    uebernehmen(werte());
    if (schliessen) return accept();
    messungZeigen();
    waechter().gefuellt();
    setGeaendert(false);
  });
}

}  // namespace korvin
