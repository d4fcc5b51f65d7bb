#pragma once

#include <cstdint>

#include "frame/messplatz.h"
#include "frame/profil.h"

namespace korvin {

/// Language and unit system: read at the start, changed in the menu. The window checks the menu's items by
/// `Sprache()` and `MassArt()` and runs its caption pass after each change.
class Anzeigewahl {
 public:
  Anzeigewahl(Profil& profil, Systemwerte& system) : profil_(profil), system_(system) {}

  /// Takes what is stored. A language outside 0 to 7 counts as 0 and a unit system outside 0 and 1 as 0.
  /// Nothing is stored, neither these nor good values.
  void laden();

  /// The user's choice of a language, 0 to 7: stored, and in force at once.
  void M_SprachArt(std::int16_t index);
  /// The user's choice of a unit system, 0 metric, 1 inch: stored, and in force at once.
  void M_MassArt(std::int16_t index);

  std::int16_t Sprache() const { return sprache_; }
  std::int16_t MassArt() const { return system_.Masssystem; }

 private:
  void setzeSprache(std::int16_t index);
  void setzeMassArt(std::int16_t index);

  Profil& profil_;
  Systemwerte& system_;
  std::int16_t sprache_ = 0;
};

}  // namespace korvin
