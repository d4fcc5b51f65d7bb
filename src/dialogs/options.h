#pragma once

#include "frame/dictionary.h"
#include "frame/message_port.h"
#include "frame/messplatz.h"
#include "frame/profil.h"

namespace korvin {

/// What the settings dialogs of all kinds share.

inline constexpr int AnzahlFilter = 5;
inline constexpr int AnzahlMontagen = 4;
inline constexpr int AnzahlBaudRaten = 2;
inline constexpr int AnzahlNKStellen = 4;
/// The factors 1 to 6 of the sample deviation.
inline constexpr int AnzahlSFaktoren = 6;

/// Characters that the entry boxes take.
inline constexpr int LaengeRecordText = 75;
inline constexpr int LaengePfad = 4096;
inline constexpr int LaengeZahl = 10;

/// What a settings dialog works with. All outlive it.
struct OptionenUmgebung {
  Dictionary& dictionary;
  MessagePort& messages;
  Meldung& meldung;
  Profil& profil;
  Systemwerte& system;
};

}  // namespace korvin
