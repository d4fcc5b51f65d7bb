#include "link/ui/measuring_window.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QMenuBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <utility>

#include "frame/ui/mouse_pointer.h"
#include "frame/ui/qt_text.h"
#include "frame/ui/theme.h"

namespace korvin {
namespace {

constexpr std::int16_t TextSpaeter = 7030;
constexpr std::int16_t TextMenuVerbindung = 7100;
constexpr std::int16_t TextOnline = 7101;
constexpr std::int16_t TextSimulation = 7102;
constexpr std::int16_t TextLed = 7105;
constexpr std::int16_t TextServiceZeile = 7109;
constexpr std::int16_t TextService = 7200;
constexpr std::int16_t TextSchieber = 7201;
constexpr std::int16_t TextTelegramme = 7204;
constexpr std::int16_t TextEinzel = 7221;
constexpr std::int16_t TextSchliesst = 7225;
constexpr std::int16_t TextAdaptiv = 7619;
constexpr std::int16_t TextFortschritt = 7620;
constexpr double progressWidth = 130;

std::array<int, 3> startIntervalle(const ZyklusBeschreibung& beschreibung) {
  return {beschreibung.pollingMs, beschreibung.jMs, beschreibung.keyPressedMs};
}

}  // namespace

Messfenster::Messfenster(const ZyklusUmgebung& umgebung, MSComm& control, Messaufgabe& aufgabe,
                         QWidget* parent)
    : QMainWindow(parent), u_(umgebung), aufgabe_(aufgabe), zyklus_(umgebung, control, aufgabe, *this) {
  setWindowModality(Qt::ApplicationModal);
  aufbauen();
  serviceVerbinden();
  beschriften();
}

Messfenster::~Messfenster() = default;

// ---- Building ----

void Messfenster::aufbauen() {
  auto* grund = new QWidget(this);
  mitte_ = new QWidget(grund);
  kopf_ = new HeadPanel(mitte_);
  led_ = new LedLabel(grund);
  betrieb_ = new QLabel(grund);
  betrieb_->setObjectName(QStringLiteral("lblBetrieb"));
  AdaptProgress_ = new QProgressBar(grund);
  AdaptProgress_->setObjectName(QStringLiteral("AdaptProgress"));
  AdaptProgress_->setTextVisible(false);
  AdaptProgress_->hide();
  adaptZeile_ = new ServiceLine(1, grund);
  adaptZeile_->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
  adaptZeile_->hide();
  serviceZeile_ = new ServiceLine(0, grund);
  service_ = new ServicePanel(startIntervalle(aufgabe_.beschreibung()), grund);

  AdaptProgress_->setFixedSize(scaled(progressWidth), betrieb_->fontMetrics().height());
  auto* zeile = new QHBoxLayout;
  zeile->setSpacing(scaled(8));
  zeile->addWidget(led_);
  zeile->addWidget(betrieb_);
  zeile->addWidget(AdaptProgress_);
  zeile->addSpacing(scaled(12));
  zeile->addWidget(adaptZeile_);
  zeile->addSpacing(scaled(12));
  zeile->addWidget(serviceZeile_, 1);
  auto* spalte = new QVBoxLayout(grund);
  spalte->setContentsMargins(scaled(10), scaled(10), scaled(10), scaled(6));
  spalte->setSpacing(scaled(6));
  spalte->addWidget(mitte_, 1);
  spalte->addWidget(service_);
  spalte->addLayout(zeile);
  setCentralWidget(grund);
}

void Messfenster::serviceVerbinden() {
  for (ServiceLine* zeile : {serviceZeile_, adaptZeile_})
    zeile->onDoppelklick = [this] { service_->setVisible(service_->isHidden()); };
  service_->onIntervall = [this](int index, int milliseconds) {
    const std::array<Timer*, 3> timer = {&zyklus_.tmrPolling(), &zyklus_.tmrJ(), &zyklus_.tmrKeyPressed()};
    timer.at(static_cast<std::size_t>(index))->setInterval(milliseconds);
  };
}

void Messfenster::beschriften() {
  kopf_->setTexte(u_.dictionary);
  led_->setToolTip(qDicText(TextLed));
  serviceZeile_->setToolTip(qDicText(TextServiceZeile));
  AdaptProgress_->setAccessibleName(qDicText(TextFortschritt));
  service_->setTitle(qDicText(TextService));
  ServicePanelTexte texte;
  texte.telegramme = qDicText(TextTelegramme);
  for (std::int16_t i = 0; i < 3; ++i) {
    texte.schieber.at(static_cast<std::size_t>(i)) = qDicText(static_cast<std::int16_t>(TextSchieber + i));
  }
  service_->setTexte(texte);
}

QString Messfenster::qDicText(std::int16_t id) {
  return qText(u_.dictionary.DicText(id));
}

KeyToolBar& Messfenster::tastenAnlegen(const QString& name, std::span<const TastenZeile> tabelle) {
  toolBar_ = new KeyToolBar(name, this);
  for (const TastenZeile& zeile : tabelle) {
    const QString key = QString::fromLatin1(zeile.key);
    if (key.isEmpty()) {
      toolBar_->addGap();
      continue;
    }
    const QKeySequence kuerzel(QString::fromLatin1(zeile.shortcut), QKeySequence::PortableText);
    toolBar_->add(key, QString::fromLatin1(zeile.picture), zeile.kind, kuerzel);
    kuerzel_.insert(key, kuerzel.toString(QKeySequence::NativeText));
    QString worte = qDicText(zeile.text);
    if (const std::int16_t grund = zeile.later ? TextSpaeter : zeile.idle; grund != 0) {
      ohneAufgabe_.insert(key, grund);
      toolBar_->setKeyEnabled(key, false);
      worte += QLatin1Char('\n') + qDicText(grund);
    }
    toolBar_->setWords(key, worte);
  }
  toolBar_->onButton = [this](const QString& key) { onTaste(key); };
  addToolBar(toolBar_);
  return *toolBar_;
}

QMenu* Messfenster::menuAnlegen(const char* name, std::int16_t text) {
  QMenu* menu = menuBar()->addMenu(qDicText(text));
  menu->setObjectName(QString::fromUtf8(name));
  menu->setToolTipsVisible(true);
  return menu;
}

QAction* Messfenster::menuEintrag(QMenu* menu, const char* name, std::int16_t text,
                                  std::function<void()> befehl, const char* key) {
  const QString worte = qDicText(text);
  QAction* eintrag = menu->addAction(worte);
  eintrag->setObjectName(QString::fromUtf8(name));
  if (key != nullptr) {
    const QString taste = QString::fromLatin1(key);
    eintraege_[taste].push_back(eintrag);
    // The toolbar's button owns the shortcut; behind a tab the entry only shows it.
    if (!kuerzel_.value(taste).isEmpty()) eintrag->setText(worte + QLatin1Char('\t') + kuerzel_.value(taste));
    if (ohneAufgabe_.contains(taste)) ohneAufgabe(eintrag, ohneAufgabe_.value(taste));
  }
  connect(eintrag, &QAction::triggered, this, std::move(befehl));
  return eintrag;
}

void Messfenster::ohneAufgabe(QAction* eintrag, std::int16_t grund) {
  eintrag->setEnabled(false);
  eintrag->setToolTip(qDicText(grund));
}

void Messfenster::verbindungsMenu() {
  QMenu* menu = menuAnlegen("M_Verbindung", TextMenuVerbindung);
  // A click must not change the marks by itself: the cycle does.
  const auto mitMarken = [this](void (Messzyklus::*befehl)()) {
    return [this, befehl] {
      zeigeVerbindung(zyklus_.verbindung());
      ausserhalbDesTakts([this, befehl] { (zyklus_.*befehl)(); });
    };
  };
  M_KVNOnline_ = menuEintrag(menu, "M_KVNOnline", TextOnline, mitMarken(&Messzyklus::M_KVNOnline));
  M_KVNSimulation_ =
      menuEintrag(menu, "M_KVNSimulation", TextSimulation, mitMarken(&Messzyklus::M_KVNSimulation));
  for (QAction* eintrag : {M_KVNOnline_, M_KVNSimulation_}) eintrag->setCheckable(true);
  zeigeVerbindung(zyklus_.verbindung());
}

// ---- Showing and closing ----

void Messfenster::zeigen() {
  if (!isVisible()) showMaximized();
  offen_ = true;
  service_->leeren();
  ersteAktivierung();
  betriebZeigen();
  // Whoever opened the window showed the hourglass; from here on it is the cycle's.
  zeigeSanduhr(false);
}

void Messfenster::ausfuehren() {
  zeigen();
  if (offen_) schleife_.exec();
}

void Messfenster::closeEvent(QCloseEvent* event) {
  if (entladen_ || !offen_) {
    event->accept();
    return;
  }
  // A telegram may be under way: the next tick unloads the window.
  event->ignore();
  if (zyklus_.Schliessen()) return;
  if (!schliessenErlaubt()) return;
  zyklus_.schliessenAnfordern();
  betriebZeigen();
}

void Messfenster::entladen() {
  wirdEntladen();
  zyklus_.beenden();
  entladen_ = true;
  offen_ = false;
  close();
  schleife_.quit();
}

void Messfenster::ausserhalbDesTakts(std::function<void()> befehl) {
  zyklus_.nachTick([this, befehl = std::move(befehl)] {
    if (offen_ && !zyklus_.Schliessen()) befehl();
  });
}

// ---- Keys ----

void Messfenster::onTaste(const QString& key) {
  const ZyklusBeschreibung& b = aufgabe_.beschreibung();
  if (key == QLatin1String(b.tasteEinzel)) {
    messtaste(key, 'M');
  } else if (key == QLatin1String(b.tasteLaufend)) {
    messtaste(key, 'J');
  } else if (key == QLatin1String(b.tasteSchnell)) {
    messtaste(key, 'Q');
  } else {
    taste(key, toolBar_->isPressed(key));
  }
}

void Messfenster::messtaste(const QString& key, char zustand) {
  // What a measuring key shows is the cycle's: a click alone changes nothing.
  toolBar_->setPressed(key, !toolBar_->isPressed(key));
  messtasteGedrueckt();
  zyklus_.anfordern(zustand);
}

void Messfenster::zeigeTaste(const std::string& taste, bool gedrueckt) {
  toolBar_->setPressed(qText(taste), gedrueckt);
  if (taste == aufgabe_.beschreibung().tasteEinzel) einzelLaeuft_ = gedrueckt;
  betriebZeigen();
}

void Messfenster::setTasteFrei(const std::string& taste, bool frei) {
  const QString key = qText(taste);
  if (ohneAufgabe_.contains(key)) return;
  toolBar_->setKeyEnabled(key, frei);
  for (QAction* eintrag : eintraege_.value(key)) eintrag->setEnabled(frei);
}

void Messfenster::drueckeTaste(const std::string& taste) {
  toolBar_->press(qText(taste));
}

// ---- What the cycle shows ----

std::int16_t Messfenster::betriebText() {
  const ZyklusBeschreibung& b = aufgabe_.beschreibung();
  if (zyklus_.Schliessen()) return TextSchliesst;
  if (zyklus_.adaptiv()) return TextAdaptiv;
  if (toolBar_->isPressed(QLatin1String(b.tasteSchnell))) return TextSchnell;
  if (toolBar_->isPressed(QLatin1String(b.tasteLaufend))) return TextLaufend;
  return einzelLaeuft_ ? TextEinzel : TextBereit;
}

void Messfenster::betriebZeigen() {
  const std::int16_t text = betriebText();
  if (std::exchange(gezeigterBetrieb_, text) != text) betrieb_->setText(qDicText(text));
}

void Messfenster::zeigeLed(Farbe farbe) {
  led_->setFarbe(farbe);
  // A new tick: the single measurement of the tick before is over, even if its key stayed pressed.
  if (std::exchange(einzelLaeuft_, false)) betriebZeigen();
}

void Messfenster::setInfoBild(const std::string& schluessel) {
  kopf_->setInfoBild(qText(schluessel));
}

void Messfenster::zeigeInfo(bool sichtbar) {
  kopf_->zeigeInfo(sichtbar);
}

void Messfenster::zeigeServiceZeile(int index, const std::string& text) {
  ServiceLine* zeile = index == 0 ? serviceZeile_ : adaptZeile_;
  zeile->zeige(qText(text));
  zeile->show();
}

void Messfenster::zeigeAdaptProgress(const std::optional<Fortschritt>& fortschritt) {
  AdaptProgress_->setVisible(fortschritt.has_value());
  if (!fortschritt) return;
  AdaptProgress_->setMaximum(fortschritt->maximum);
  AdaptProgress_->setValue(fortschritt->wert);
}

void Messfenster::zeigeTelegramm(const std::string& rumpf) {
  service_->zeigeTelegramm(qText(rumpf));
}

void Messfenster::setWertFarbe(Farbe farbe) {
  const bool grund = aufgabe_.beschreibung().wertFarbe == WertFarbe::grund;
  for (ValuePanel* feld : wertfelder) grund ? feld->setGround(farbe) : feld->setValueColour(farbe);
}

void Messfenster::zeigeLeereWerte(const std::string& text) {
  for (ValuePanel* feld : wertfelder) feld->setValue(qText(text));
}

void Messfenster::zeigeIntensitaet(const std::string& text, Farbe farbe) {
  kopf_->setIntensitaet(qText(text), farbe);
}

void Messfenster::zeigeNurSimulation(const std::string& text, Farbe farbe) {
  kopf_->setKamera(qText(text), farbe);
}

void Messfenster::zeigeMontage(const std::string& bild) {
  kopf_->setMontage(qText(bild));
}

void Messfenster::zeigeKamera(const std::string& text) {
  kopf_->setKamera(qText(text));
}

void Messfenster::zeigeVerbindung(const Verbindungsmarken& marken) {
  if (M_KVNOnline_ == nullptr) return;
  M_KVNOnline_->setChecked(marken.online);
  M_KVNOnline_->setEnabled(marken.onlineFrei);
  M_KVNSimulation_->setChecked(marken.simulation);
}

void Messfenster::zeigeSanduhr(bool an) {
  if (an) {
    showHourglass();
  } else {
    showNormalPointer();
  }
}

}  // namespace korvin
