#include <QApplication>
#include <QProgressBar>
#include <algorithm>
#include <array>
#include <atomic>
#include <memory>

#include "frame/profil.h"
#include "frame/sqlite_settings_tree.h"
#include "names.h"
#include "walk.h"

namespace korvin::tour {
namespace {

constexpr double searchLimit = 60;  ///< seconds; a search over all ports at both speeds may take as long

struct Language {
  int index;
  const char* mark;
};
constexpr std::array<Language, 3> pictured = {{{7, "ja"}, {0, "de"}, {1, "en"}}};

/// The bar of the search; it comes up a moment after the dialog.
QProgressBar& searchBar() {
  const QWidget* dialog = findWindow(names::searchDialog);
  auto* bar = dialog == nullptr ? nullptr : dialog->findChild<QProgressBar*>(QStringLiteral("Progress1"));
  if (bar == nullptr) throw StepFailed("there is no bar of the search");
  return *bar;
}

/// Follows the bar: the highest value that it comes to.
std::shared_ptr<std::atomic<int>> followBar() {
  auto highest = std::make_shared<std::atomic<int>>(0);
  QObject::connect(&searchBar(), &QProgressBar::valueChanged, qApp,
                   [highest](int value) { highest->store(std::max(highest->load(), value)); });
  return highest;
}

}  // namespace

std::string Walk::newSettings() {
  hand_.waitFor(names::message);
  const QStringList words = hand_.messageText();
  hand_.picture(names::message, QStringLiteral("new-settings"));
  hand_.accept(names::message);
  hand_.waitGone(names::message);
  return words.join(QStringLiteral(": ")).simplified().toStdString();
}

std::string Walk::search() {
  hand_.waitFor(names::searchDialog);
  Gui::until("the search at port 7", searchLimit, [] { return searchBar().value() >= 7; });
  hand_.picture(names::searchDialog, QStringLiteral("search"));
  hand_.waitGone(names::searchDialog, searchLimit);
  hand_.waitForLabel(names::mainWindow, QStringLiteral("PanelStatus1"), QStringLiteral("Com 7, 19200"));
  return hand_.label(names::mainWindow, QStringLiteral("PanelStatus1")).toStdString();
}

std::string Walk::setting(std::string_view key) {
  return setting("KorInfo", key);
}

std::string Walk::setting(std::string_view section, std::string_view key) {
  SqliteSettingsTree tree(places_.settingsFile);
  return Profil(tree).wert(section, key, "");
}

std::string Walk::storedPort() {
  const std::string port = setting("PortNr");
  const std::string speed = setting("BaudRate");
  const std::string read = "PortNr \"" + port + "\", BaudRate \"" + speed + "\"";
  if (port != "7" || speed != "0") throw StepFailed(read);
  return read;
}

void Walk::chooseLanguage(int index) {
  hand_.choose(names::mainWindow, QStringLiteral("M_SprachArt(%1)").arg(index));
  Gui::until("the language " + std::to_string(index), 5,
             [this, index] { return setting("Sprache") == std::to_string(index); });
}

std::string Walk::startScreens() {
  QStringList headings;
  for (const Language& language : pictured) {
    chooseLanguage(language.index);
    headings << hand_.label(names::mainWindow, QStringLiteral("Head_Text"));
    hand_.picture(names::mainWindow, QStringLiteral("start-screen-") + QLatin1String(language.mark));
  }
  if (headings.removeDuplicates() > 0) throw StepFailed("two languages read alike");
  return headings.join(QStringLiteral(" | ")).toStdString();
}

std::string Walk::information() {
  hand_.choose(names::mainWindow, QStringLiteral("M_Info"));
  hand_.waitFor(names::information);
  hand_.type(names::information, QStringLiteral("TextEinstellung(0)"),
             QStringLiteral("Muster Messtechnik GmbH"));
  hand_.picture(names::information, QStringLiteral("information"));
  const QString version = hand_.label(names::information, QStringLiteral("Panelversion"));
  hand_.click(names::information, names::ok);
  hand_.waitGone(names::information);
  const std::string company = setting("FirmaName");
  if (company != "Muster Messtechnik GmbH") throw StepFailed("FirmaName reads \"" + company + "\"");
  return version.toStdString() + "; company stored: " + company;
}

std::string Walk::guide() {
  hand_.click(names::mainWindow, QStringLiteral("Hilfe"));
  hand_.waitFor(names::guide);
  hand_.picture(names::guide, QStringLiteral("guide"));
  const QString title = hand_.title(names::guide);
  Gui().ask([] { findWindow(names::guide)->close(); });
  hand_.waitGone(names::guide);
  return title.toStdString();
}

std::string Walk::textCopyOn() {
  SqliteSettingsTree tree(places_.settingsFile);
  Profil(tree).ProfilSchreiben(KorvinIni, "KorInfo", "AsciiDatei", "-1");
  const std::string stored = setting("AsciiDatei");
  if (stored != "-1") throw StepFailed("AsciiDatei reads \"" + stored + "\"");
  return "AsciiDatei \"-1\" in the settings of the walk";
}

std::string Walk::end() {
  hand_.choose(names::mainWindow, QStringLiteral("M_Beenden"));
  return {};
}

std::string Walk::foundAtOnce() {
  hand_.waitFor(names::searchDialog);
  const auto highest = Gui().ask(followBar);
  hand_.waitGone(names::searchDialog, searchLimit);
  hand_.waitForLabel(names::mainWindow, QStringLiteral("PanelStatus1"), QStringLiteral("Com 7, 19200"));
  if (*highest > 1) throw StepFailed("the search went on to step " + std::to_string(*highest));
  return hand_.label(names::mainWindow, QStringLiteral("PanelStatus1")).toStdString() + ", without a search";
}

}  // namespace korvin::tour
