#include "frame/settings_check.h"

#include <utility>

namespace korvin {
namespace {

constexpr std::int16_t TextTitel = 600;
constexpr std::int16_t TextGescheitert = 601;
constexpr std::int16_t TextNeu = 602;
constexpr std::int16_t TextUnlesbar = 7060;
constexpr std::int16_t TextGesperrt = 7061;
constexpr std::int16_t TextAnfangswerte = 7062;

}  // namespace

EinstellungsPruefung::EinstellungsPruefung(SessionSettingsTree& tree, Dictionary& dictionary,
                                           MessagePort& messages, Meldung& meldung, std::string programFolder)
    : tree_(tree),
      registry_(tree),
      profil_(tree),
      dictionary_(dictionary),
      messages_(messages),
      meldung_(meldung),
      programFolder_(std::move(programFolder)) {}

Startergebnis EinstellungsPruefung::pruefen() {
  meldung_.MsgTitel = dictionary_.DicText(TextTitel);
  meldung_.MsgText = dictionary_.DicText(TextGescheitert);
  Stand found = stand();
  if (found == Stand::andereVersion) {
    if (!andereVersionLoeschen()) return gescheitert();
    found = stand();
  }
  if (found == Stand::unlesbar) return imSpeicher();
  return found == Stand::passend ? Startergebnis::weiter : anlegen();
}

EinstellungsPruefung::Stand EinstellungsPruefung::stand() {
  const bool there = registry_.RegSchluesselDa(HKEY_CURRENT_USER_Root, RegBasisPfad);
  const std::string version = profil_.wert(einstellung::Hauptfenster::Version);
  // Asked last: a read that failed on the way looks like a missing value.
  if (!tree_.unreadable().empty()) return Stand::unlesbar;
  if (!there) return Stand::fehlt;
  return version == RegVersion ? Stand::passend : Stand::andereVersion;
}

bool EinstellungsPruefung::andereVersionLoeschen() {
  // Looked at again within the change: a second start of the program may have made the tree anew meanwhile.
  return tree_.inOneChange(
      [this] { return stand() != Stand::andereVersion || registry_.RegistryLoeschen(); });
}

Startergebnis EinstellungsPruefung::anlegen() {
  zeigen(dictionary_.DicText(TextNeu), MessageIcon::question);
  // A second start may have been quicker while the message stood; what it made is as good.
  const bool made = registry_.RegistryAnlegen(programFolder_) || stand() == Stand::passend;
  return made ? Startergebnis::weiter : gescheitert();
}

Startergebnis EinstellungsPruefung::gescheitert() {
  if (stand() == Stand::unlesbar) return imSpeicher();
  messages_.beep();
  zeigen(dictionary_.DicText(TextGescheitert), MessageIcon::warning);
  return Startergebnis::beenden;
}

Startergebnis EinstellungsPruefung::imSpeicher() {
  const std::string emptyLine = std::string(NeueZeile) + NeueZeile;
  const std::int16_t why = tree_.lockedByAnother() ? TextGesperrt : TextUnlesbar;
  const std::string systemText = tree_.unreadable();
  tree_.goInMemory();
  registry_.RegistryAnlegen(programFolder_);
  messages_.beep();
  zeigen(
      dictionary_.DicText(why) + emptyLine + systemText + emptyLine + dictionary_.DicText(TextAnfangswerte),
      MessageIcon::warning);
  return Startergebnis::weiter;
}

void EinstellungsPruefung::zeigen(const std::string& text, MessageIcon icon) {
  meldung_.MsgText = text;
  messages_.show(meldung_, icon, MessageButtons::ok);
}

}  // namespace korvin
