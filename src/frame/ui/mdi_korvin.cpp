#include "frame/ui/mdi_korvin.h"

#include <QCloseEvent>
#include <QLabel>
#include <QMenuBar>
#include <QScreen>
#include <QStatusBar>
#include <QTimer>
#include <array>
#include <utility>

#include "frame/messart.h"
#include "frame/pfade.h"
#include "frame/settings_defaults.h"
#include "frame/ui/form_info.h"
#include "frame/ui/icons.h"
#include "frame/ui/key_tool_bar.h"
#include "frame/ui/main_menu.h"
#include "frame/ui/mouse_pointer.h"
#include "frame/ui/qt_text.h"
#include "frame/ui/start_screen.h"

namespace korvin {
namespace {

constexpr std::int16_t textComesLater = 7030;
constexpr std::int16_t textHelp = 7040;

/// A key of the tool bar, the menu entry of the same action, and the measuring kind that both start; -1:
/// none.
struct KeySpec {
  const char16_t* key;
  const char16_t* picture;
  std::int16_t tooltip;
  const char16_t* menuName;
  std::int16_t messart;
};

constexpr std::int16_t noKind = -1;

constexpr std::array<KeySpec, 8> keySpecs = {
    {{u"Geradheit", u"ICON31", 5500, u"M_Geradheit", MessartGeradheit},
     {u"Parallelität", u"ICON32", 5501, u"M_Parallel", MessartParallel},
     {u"Rechtwinkligkeit", u"ICON35", 5503, u"M_Rechtwinkligkeit", MessartRechtwinkel},
     {u"Position", u"ICON34", 5502, u"M_Position", MessartPosition},
     {u"GeradheitStatistik", u"ICON36", 5504, u"M_GeradheitStatistik", noKind},
     {u"UmgebungsAnalyse", u"ICON84", 2300, u"M_UmgebungsAnalyse", noKind},
     {u"DateiOeffnen", u"ICON3", 2036, u"", noKind},
     {u"Hilfe", u"ICONHILFE", textHelp, u"M_HilfeInhalt", noKind}}};

QString name(const char16_t* text) {
  return QString::fromUtf16(text);
}

/// Windows that are no measuring kind of their own, by their keys, with their entries.
constexpr std::array<std::pair<const char16_t*, const char16_t*>, 2> furtherWindows = {
    {{u"GeradheitStatistik", u"M_GeradheitStatistik"}, {u"UmgebungsAnalyse", u"M_UmgebungsAnalyse"}}};

/// The entries of the default settings and the kinds they belong to.
constexpr std::array<std::pair<const char16_t*, std::int16_t>, 4> settingsEntries = {
    {{u"M_File_G", MessartGeradheit},
     {u"M_File_O", MessartPosition},
     {u"M_File_P", MessartParallel},
     {u"M_File_R", MessartRechtwinkel}}};

}  // namespace

MDIKorvin::MDIKorvin(const HauptfensterUmgebung& umgebung) : u_(umgebung) {
  setObjectName(QStringLiteral("MDIKorvin"));
  setWindowIcon(icon(QStringLiteral("ICONKORVIN")));
}

MDIKorvin::~MDIKorvin() = default;

Startergebnis MDIKorvin::laden(const std::function<void()>& dicOeffnen) {
  const QSize screenSize = screen()->size();
  showHourglass();
  // The check of the settings may show messages: they too are to look and speak as the user has chosen.
  u_.anzeige.laden();
  u_.translations.setLanguage(u_.anzeige.Sprache());
  applyTheme(u_.appearance, screenScale(skalaX(screenSize.width()), skalaY(screenSize.height())),
             u_.anzeige.Sprache());
  const Startergebnis ergebnis =
      u_.start.laden(u_.programFolder, {screenSize.width(), screenSize.height()}, dicOeffnen);
  if (ergebnis == Startergebnis::weiter) {
    skalieren();
    baueFenster();
    beschriften();
  }
  showNormalPointer();
  return ergebnis;
}

void MDIKorvin::skalieren() {
  applyTheme(u_.appearance, screenScale(u_.system.SkalaX, u_.system.SkalaY), u_.anzeige.Sprache());
}

void MDIKorvin::baueFenster() {
  menu_ = std::make_unique<MainMenu>(*menuBar());
  menu_->onEntry = [this](const QString& entry, int index) { menue(entry, index); };
  baueWerkzeuge();
  startScreen_ = new StartScreen(this);
  startScreen_->onTile = [this](const QString& key) { taste(key); };
  setCentralWidget(startScreen_);
  startScreen_->setFocus();
  baueStatusLeiste();
  sperreFehlendeArten();
  resize(screen()->availableSize());
}

void MDIKorvin::baueWerkzeuge() {
  tbrKorvin_ = new KeyToolBar(QStringLiteral("tbrKorvin"), this);
  for (const KeySpec& spec : keySpecs) {
    if (spec.messart == noKind && name(spec.key) != QLatin1String("UmgebungsAnalyse")) tbrKorvin_->addGap();
    tbrKorvin_->add(name(spec.key), name(spec.picture));
  }
  // Reserved: its handler does nothing.
  tbrKorvin_->add(QStringLiteral("Parallelform"), QString());
  tbrKorvin_->setKeyVisible(QStringLiteral("Parallelform"), false);
  tbrKorvin_->onButton = [this](const QString& key) { taste(key); };
  addToolBar(tbrKorvin_);
}

void MDIKorvin::baueStatusLeiste() {
  PanelStatus1_ = new QLabel(this);
  PanelStatus2_ = new QLabel(this);
  PanelStatus1_->setObjectName(QStringLiteral("PanelStatus1"));
  PanelStatus2_->setObjectName(QStringLiteral("PanelStatus2"));
  statusBar()->setObjectName(QStringLiteral("PanelStatusLeiste"));
  statusBar()->setSizeGripEnabled(false);
  statusBar()->addWidget(PanelStatus1_, 1);
  statusBar()->addPermanentWidget(PanelStatus2_);
}

void MDIKorvin::sperreFehlendeArten() {
  for (const auto& [key, entry] : furtherWindows)
    menu_->setEnabled(name(entry), weitereFenster.contains(utf8Text(name(key))));
  for (const auto& [entry, messart] : settingsEntries)
    menu_->setEnabled(name(entry), grundeinstellungen.contains(messart));
  for (const KeySpec& spec : keySpecs) {
    const QAction* entry = menu_->action(name(spec.menuName));
    const bool there = spec.messart == noKind ? entry == nullptr || entry->isEnabled()
                                              : u_.verteilung.vorhanden(spec.messart);
    menu_->setEnabled(name(spec.menuName), there);
    tbrKorvin_->setKeyEnabled(name(spec.key), there);
    startScreen_->setKeyEnabled(name(spec.key), there);
  }
}

void MDIKorvin::beschriften() {
  u_.translations.setLanguage(u_.anzeige.Sprache());
  skalieren();
  setWindowTitle(QStringLiteral("KORVIN"));
  menu_->setCaptions(u_.dictionary);
  menu_->check(QStringLiteral("M_MassArt"), u_.anzeige.MassArt());
  menu_->check(QStringLiteral("M_SprachArt"), u_.anzeige.Sprache());
  const QString later = qText(u_.dictionary.DicText(textComesLater));
  for (const KeySpec& spec : keySpecs) {
    const QString words = qText(u_.dictionary.DicText(spec.tooltip));
    const bool there = tbrKorvin_->isKeyEnabled(name(spec.key));
    tbrKorvin_->setWords(name(spec.key), there ? words : words + QStringLiteral("\n") + later);
  }
  startScreen_->setCaptions(u_.dictionary);
  statusBeschriften();
}

void MDIKorvin::statusBeschriften() {
  const std::int16_t textUnits = u_.anzeige.MassArt() == 1 ? 1029 : 1028;
  PanelStatus2_->setText(withoutAccessKey(qText(u_.dictionary.DicText(textUnits))));
  PanelStatus1_->setText(linkZeile ? qText(linkZeile()) : QString());
}

void MDIKorvin::showEvent(QShowEvent* event) {
  QMainWindow::showEvent(event);
  // From the queue, so that the window stands painted before the search for the head begins.
  QTimer::singleShot(0, this, &MDIKorvin::ersteAktivierung);
}

void MDIKorvin::ersteAktivierung() {
  if (!u_.start.ersteAktivierung()) return;
  if (beiErsterAktivierung && !beiErsterAktivierung()) {
    close();
    return;
  }
  // The search took the focus away; back to where no entry looks chosen.
  startScreen_->setFocus();
  statusBeschriften();
}

void MDIKorvin::closeEvent(QCloseEvent* event) {
  event->accept();
  if (beiEntladen) beiEntladen();
}

void MDIKorvin::menue(const QString& entry, int index) {
  if (entry == QLatin1String("M_SprachArt")) return M_SprachArt(index);
  if (entry == QLatin1String("M_MassArt")) return M_MassArt(index);
  if (entry == QLatin1String("M_DateiOeffnen")) return oeffnen(FilterDateiOeffnen(u_.dictionary, index));
  if (entry == QLatin1String("M_Info")) return M_Info();
  if (entry == QLatin1String("M_Beenden")) {
    close();
    return;
  }
  for (const auto& [settings, messart] : settingsEntries) {
    if (entry == name(settings)) return einrichten(messart);
  }
  for (const KeySpec& spec : keySpecs) {
    if (entry == name(spec.menuName)) taste(name(spec.key));
  }
}

void MDIKorvin::taste(const QString& key) {
  if (key == QLatin1String("DateiOeffnen")) return oeffnen(FilterAlleMessdateien(u_.dictionary));
  if (key == QLatin1String("Hilfe")) return u_.hilfe.zeigen();
  for (const KeySpec& spec : keySpecs) {
    if (key == name(spec.key) && spec.messart != noKind) starten(spec.messart);
  }
  for (const auto& [further, entry] : furtherWindows) {
    if (key == name(further)) weiteresStarten(utf8Text(key));
  }
}

void MDIKorvin::M_SprachArt(int index) {
  u_.anzeige.M_SprachArt(static_cast<std::int16_t>(index));
  beschriften();
}

void MDIKorvin::M_MassArt(int index) {
  u_.anzeige.M_MassArt(static_cast<std::int16_t>(index));
  beschriften();
}

void MDIKorvin::M_Info() {
  FormInfo(u_.dictionary, u_.profil, this).exec();
}

void MDIKorvin::starten(std::int16_t messart) {
  showHourglass();
  u_.verteilung.starten(messart);
  showNormalPointer();
}

void MDIKorvin::weiteresStarten(const std::string& key) {
  const auto found = weitereFenster.find(key);
  if (found == weitereFenster.end()) return;
  u_.system.Messart = MessartGeradheit;
  showHourglass();
  found->second();
  showNormalPointer();
}

void MDIKorvin::einrichten(std::int16_t messart) {
  u_.system.Messart = messart;
  grundeinstellungen.at(messart)();
}

void MDIKorvin::oeffnen(const std::string& filter) {
  const std::string folder =
      MessOrdner(u_.profil.wert(einstellung::Hauptfenster::PfadMessFile), u_.programFolder);
  const std::string chosen = messdateiErfragen(u_.fileDialog, u_.dictionary, filter, folder);
  showHourglass();
  u_.verteilung.verteilen(chosen);
  showNormalPointer();
}

}  // namespace korvin
