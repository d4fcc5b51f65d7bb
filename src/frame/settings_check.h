#pragma once

#include <string>

#include "frame/dictionary.h"
#include "frame/kor_registry.h"
#include "frame/message_port.h"
#include "frame/profil.h"
#include "frame/session_settings_tree.h"

namespace korvin {

/// How the start of the program goes on.
enum class Startergebnis { weiter, beenden };

/// The check of the settings tree at the start:
///
/// - a tree of this program's version stays as it is;
/// - a missing tree is made with initial values, and the user is told;
/// - a tree of another version is deleted first: there is no conversion;
/// - a store that can't be read is no other version: it stays untouched, the user is told why, and the
/// program works
///   with initial values in memory until it ends;
/// - if deleting or making fails, the user is told, and the program ends.
class EinstellungsPruefung {
 public:
  EinstellungsPruefung(SessionSettingsTree& tree, Dictionary& dictionary, MessagePort& messages,
                       Meldung& meldung, std::string programFolder);

  Startergebnis pruefen();

 private:
  enum class Stand { passend, fehlt, andereVersion, unlesbar };

  Stand stand();
  bool andereVersionLoeschen();
  Startergebnis anlegen();
  Startergebnis gescheitert();
  Startergebnis imSpeicher();
  void zeigen(const std::string& text, MessageIcon icon);

  SessionSettingsTree& tree_;
  KorRegistry registry_;
  Profil profil_;
  Dictionary& dictionary_;
  MessagePort& messages_;
  Meldung& meldung_;
  std::string programFolder_;
};

}  // namespace korvin
