#include "dialogs/ui/plan_panel.h"

#include "frame/date_format.h"
#include "frame/ui/qt_text.h"
#include "frame/ui/theme.h"

namespace korvin {
namespace {

constexpr int TimerUhrTickMs = 100;
constexpr int Feldlaenge = 20;
constexpr double Feldbreite = 118;

constexpr std::size_t Anzahl = 0;
constexpr std::size_t Intervall = 1;
constexpr std::size_t StartDatum = 2;
constexpr std::size_t StartZeit = 3;
constexpr std::size_t StopDatum = 4;
constexpr std::size_t StopZeit = 5;

QLabel* uhrLabel(const char* name, QWidget* parent) {
  auto* label = new QLabel(parent);
  label->setObjectName(QLatin1String(name));
  label->setContentsMargins(scaled(8), 0, 0, 0);
  return label;
}

}  // namespace

PlanPanel::PlanPanel(Dictionary& dictionary, const Clock& clock, TimerSource& timers, QWidget* parent)
    : Gruppe(qText(dictionary.DicText(7462)), parent),
      dictionary_(dictionary),
      clock_(clock),
      TimerUhrTick_(timers.create()),
      CheckAutoOn_(schalter(dictionary, "CheckAutoOn", 7463, this)),
      felder_(new QWidget(this)),
      gesperrt_(erklaerung(qText(dictionary.DicText(7470)), this)),
      zurAnzahl_(new Hinweis("Hinweis(7)", felder_)),
      zumIntervall_(new Hinweis("Hinweis(8)", felder_)),
      zumStart_(new Hinweis("Hinweis(10)", felder_)),
      zumStop_(new Hinweis("Hinweis(12)", felder_)),
      lblDatumAktuell_(uhrLabel("lblDatumAktuell", felder_)),
      lblZeitAktuell_(uhrLabel("lblZeitAktuell", felder_)) {
  aufbauen();
  TimerUhrTick_->setInterval(TimerUhrTickMs);
  TimerUhrTick_->onTick = [this] { zeigeUhr(); };
  connect(CheckAutoOn_, &QCheckBox::toggled, this, &PlanPanel::schalten);
}

void PlanPanel::aufbauen() {
  auto* gitter = new QGridLayout(felder_);
  gitter->setContentsMargins(0, 0, 0, 0);
  gitter->setHorizontalSpacing(scaled(8));
  gitter->setVerticalSpacing(scaled(6));
  gitter->setColumnStretch(3, 1);
  // In the order in which the tabulator goes through them.
  TextEntry* anzahl = feld(Anzahl, 7464, 7465);
  TextEntry* intervall = feld(Intervall, 7161, 0);
  TextEntry* startDatum = feld(StartDatum, 7162, 7466);
  TextEntry* startZeit = feld(StartZeit, 7162, 7467);
  TextEntry* stopDatum = feld(StopDatum, 7163, 7466);
  TextEntry* stopZeit = feld(StopZeit, 7163, 7467);
  reihe(0, 7464, anzahl, nullptr, zurAnzahl_);
  reihe(1, 7161, intervall, nullptr, zumIntervall_);
  reihe(2, 7162, startDatum, startZeit, zumStart_);
  reihe(3, 7163, stopDatum, stopZeit, zumStop_);
  reihe(4, 7469, lblDatumAktuell_, lblZeitAktuell_, nullptr);
  gitter->addWidget(erklaerung(qText(dictionary_.DicText(7468)), felder_), 5, 1, 1, 3);

  // The dialog keeps its size when the plan is switched.
  QSizePolicy bleibt = felder_->sizePolicy();
  bleibt.setRetainSizeWhenHidden(true);
  felder_->setSizePolicy(bleibt);
  felder_->hide();
  gesperrt_->hide();
  zeile(CheckAutoOn_);
  zeile(gesperrt_);
  zeile(felder_);
}

TextEntry* PlanPanel::feld(std::size_t platz, std::int16_t name, std::int16_t blass) {
  TextEntry* box = eingabefeld(dictionary_, PlanFelder.at(platz).control, Feldlaenge, felder_);
  box->setFixedWidth(scaled(Feldbreite));
  box->setAccessibleName(qText(dictionary_.DicText(name)));
  if (blass != 0) box->setPlaceholderText(qText(dictionary_.DicText(blass)));
  connect(box, &QLineEdit::textChanged, this, &PlanPanel::hinweiseZeigen);
  boxen_.at(platz) = box;
  return box;
}

void PlanPanel::reihe(int reihe, std::int16_t name, QWidget* erstes, QWidget* zweites, QWidget* neben) {
  auto* gitter = qobject_cast<QGridLayout*>(felder_->layout());
  gitter->addWidget(beschriftung(qText(dictionary_.DicText(name)), erstes), reihe, 0);
  gitter->addWidget(erstes, reihe, 1);
  if (zweites != nullptr) gitter->addWidget(zweites, reihe, 2);
  if (neben != nullptr)
    gitter->addWidget(neben, reihe, zweites != nullptr ? 3 : 2, 1, zweites != nullptr ? 1 : 2);
}

void PlanPanel::setPlan(const MessplanTexte& plan, bool an) {
  for (std::size_t i = 0; i < boxen_.size(); ++i) boxen_.at(i)->setValue(plan.*PlanFelder.at(i).text);
  CheckAutoOn_->setChecked(an);
}

MessplanTexte PlanPanel::plan() const {
  MessplanTexte plan;
  for (std::size_t i = 0; i < boxen_.size(); ++i) plan.*PlanFelder.at(i).text = boxen_.at(i)->value();
  return plan;
}

void PlanPanel::sperren() {
  CheckAutoOn_->setEnabled(false);
  felder_->setEnabled(false);
  QSizePolicy faltbar = felder_->sizePolicy();
  faltbar.setRetainSizeWhenHidden(false);
  felder_->setSizePolicy(faltbar);
  gesperrt_->show();
}

void PlanPanel::ueberwachen(FieldWatch& watch) {
  watch.add(*boxen_.at(StartZeit), *zumStart_, PlanFelder.at(StartZeit).pruefung);
  watch.add(*boxen_.at(StopZeit), *zumStop_, PlanFelder.at(StopZeit).pruefung);
  watch.ausnehmen(*CheckAutoOn_);
}

void PlanPanel::schalten(bool an) {
  if (an && ausgeschaltet_) {
    setPlan(*ausgeschaltet_, true);
  } else if (!an) {
    // Boxes that no one sees must set nothing.
    ausgeschaltet_ = plan();
    setPlan({}, false);
  }
  felder_->setVisible(an);
  TimerUhrTick_->setEnabled(an);
  if (an) zeigeUhr();
}

void PlanPanel::zeigeUhr() {
  lblDatumAktuell_->setText(qText(formatDate(clock_.now(), "dd.mm.yy")));
  lblZeitAktuell_->setText(qText(formatDate(clock_.now(), "hh:mm:ss")));
}

void PlanPanel::hinweiseZeigen() {
  const MessplanHinweise texte = messplanHinweise(plan(), dictionary_);
  zurAnzahl_->zeige(qText(texte.anzahl));
  zumIntervall_->zeige(qText(texte.intervall));
  zumStart_->zeige(qText(texte.start));
  zumStop_->zeige(qText(texte.stop));
}

}  // namespace korvin
