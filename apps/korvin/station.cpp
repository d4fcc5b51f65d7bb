#include "korvin/station.h"

#include <QApplication>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <utility>

#include "frame/messart.h"
#include "frame/pfade.h"

namespace korvin {
namespace {

constexpr const char* dictionaryFile = "korvin.mdb";
constexpr const char* helpFile = "KorHelpD.HLP";
constexpr const char* measuringFolder = "KorFiles";

/// The folders, with what has to lie in them.
Folders foldersWithShippedFiles(const FolderEnvironment& environment) {
  Folders folders = chooseFolders(environment);
  for (const char* name : {dictionaryFile, helpFile}) bringShippedFile(environment, folders, name);
  // The folder of the measuring files in new settings. A failure shows where it is used.
  std::error_code ignored;
  std::filesystem::create_directories(folders.program / measuringFolder, ignored);
  return folders;
}

}  // namespace

Station::Station(const FolderEnvironment& environment, Appearance appearance)
    : folders_(foldersWithShippedFiles(environment)),
      storedSettings_(folders_.settingsFile()),
      settings_(storedSettings_),
      profil_(settings_),
      dictionary_(messplatz_.system.SpracheSpalte, programEnd_),
      anzeige_(profil_, messplatz_.system),
      korCom_(clock_, pump_, random_, messages_),
      MSCommKamera_(portFinder()),
      kopfsuche_({clock_, pump_, profil_, korCom_, MSCommKamera_, KameraAntwort_}, dictionary_, messages_,
                 messplatz_.meldung),
      ausgabe_(reports()),
      positionsErfassung_(
          {clock_, messages_, dictionary_, profil_, messplatz_.meldung, messplatz_.system, formpos_}),
      positionsDateien_({fileSystem_, messages_, messplatz_.meldung, dictionary_, profil_, formpos_}),
      positionsProtokoll_({formpos_, messplatz_.system, dictionary_, clock_}, ausgabe_),
      positionStarter_(windowStart(
                           [this](QWidget& fenster, const auto& ausserhalb) {
                             einrichtenPosition(fenster, &offenePosition_, ausserhalb);
                           },
                           [this](QWidget* fenster) { positionsProtokoll_.drucken(fenster); }),
                       formpos_, positionsErfassung_, positionsDateien_),
      geradErfassung_({messages_, dictionary_, profil_, messplatz_.system, formgera_}),
      geradDateien_(
          {fileSystem_, messages_, messplatz_.meldung, dictionary_, profil_, messplatz_.system, formgera_}),
      geradProtokoll_({formgera_, messplatz_.system, dictionary_, clock_}, ausgabe_),
      geradStarter_(
          windowStart([this](QWidget& fenster,
                             const auto& ausserhalb) { einrichtenGerad(fenster, &offeneReihe_, ausserhalb); },
                      [this](QWidget* fenster) { geradProtokoll_.drucken(fenster); }),
          formgera_, geradErfassung_, geradDateien_),
      adaptSet_(profil_),
      umgebungsErfassung_(
          {clock_, messages_, dictionary_, profil_, messplatz_.meldung, messplatz_.system, formpos_},
          adaptSet_),
      umgebungsStarter_(windowStart({}, {}), formpos_, umgebungsErfassung_),
      verteilung_(messplatz_.system.Messart, dictionary_, messages_, messplatz_.meldung),
      programmstart_(messplatz_.system, messplatz_.meldung, settings_, anzeige_, dictionary_, messages_),
      hilfe_((folders_.program / helpFile).string(), [this] { return int{anzeige_.Sprache()}; }, dictionary_,
             messages_),
      window_({messplatz_.system, messplatz_.meldung, dictionary_, profil_, messages_, fileDialog_, anzeige_,
               programmstart_, verteilung_, translations_, hilfe_, folders_.program.string(), appearance}) {
  verteilung_.anmelden(MessartPosition, positionStarter_);
  verteilung_.anmelden(MessartGeradheit, geradStarter_);
  positionStarter_.setFenster(&window_);
  geradStarter_.setFenster(&window_);
  window_.grundeinstellungen[MessartPosition] = [this] { einrichtenPosition(window_, nullptr, {}); };
  window_.grundeinstellungen[MessartGeradheit] = [this] { einrichtenGerad(window_, nullptr, {}); };
  window_.weitereFenster["UmgebungsAnalyse"] = [this] { umgebungsStarter_.zeigen(&window_); };
  window_.beiErsterAktivierung = [this] { return kopfsuche_.suchen(window_); };
  window_.linkZeile = [this] { return kopfsuche_.zeile(); };
  window_.beiEntladen = [this] { unload(); };
}

Station::~Station() = default;

ZyklusUmgebung Station::cycle() {
  return {clock_,  pump_,          timers_,          messages_, dictionary_, profil_, messplatz_.meldung,
          korCom_, KameraAntwort_, messplatz_.system};
}

FensterStart Station::windowStart(EinrichtenDialog einrichten, std::function<void(QWidget*)> drucken) {
  return {cycle(),
          {fileDialog_, fileSystem_, [this] { hilfe_.zeigen(); }, std::move(einrichten), std::move(drucken)},
          [this] { return std::make_unique<QtMSComm>(portFinder()); }};
}

AusgabeUmgebung Station::reports() {
  return {{clock_, pump_, dictionary_},
          {messages_, messplatz_.meldung, dictionary_},
          fileDialog_,
          fileSystem_,
          printers_,
          [this] { return int{anzeige_.Sprache()}; },
          [this] {
            return MessOrdner(profil_.wert(einstellung::Hauptfenster::PfadMessFile),
                              folders_.program.string());
          }};
}

QtMSComm::PortFinder Station::portFinder() const {
  return QtMSComm::finderIn(QString::fromStdString(folders_.ports().string()));
}

bool Station::start() {
  const auto openDictionary = [this] { dictionary_.DicOeffnen(messplatz_.system.DbPfad); };
  if (window_.laden(openDictionary) == Startergebnis::beenden) {
    unload();
    return false;
  }
  window_.showMaximized();
  return true;
}

void Station::einrichtenPosition(QWidget& fenster, OffeneMessung* messung,
                                 const std::function<void(std::function<void()>)>& ausserhalb) {
  FormOptionsO({settings(ausserhalb), clock_, timers_}, messung, &fenster).ausfuehren();
}

void Station::einrichtenGerad(QWidget& fenster, OffeneReihe* reihe,
                              const std::function<void(std::function<void()>)>& ausserhalb) {
  FormOptionsG(settings(ausserhalb), reihe, &fenster).ausfuehren();
}

SettingsDialogUmgebung Station::settings(const std::function<void(std::function<void()>)>& ausserhalb) {
  return {{dictionary_, messages_, messplatz_.meldung, profil_, messplatz_.system},
          [this] { hilfe_.zeigen(); },
          ausserhalb};
}

void Station::unload() {
  dictionary_.close();
  // A search under way can't be left by its own road, since it waits for the head.
  if (kopfsuche_.laeuft()) std::_Exit(EXIT_SUCCESS);
  QCoreApplication::quit();
}

}  // namespace korvin
