#include "frame/display_choice.h"

#include <string>

#include "frame/sprache.h"
#include "frame/zahl_text.h"

namespace korvin {

using namespace einstellung;

void Anzeigewahl::laden() {
  setzeSprache(ganzzahlAusText(profil_.wert(Hauptfenster::Sprache)));
  setzeMassArt(ganzzahlAusText(profil_.wert(Hauptfenster::MassArt)));
}

void Anzeigewahl::M_SprachArt(std::int16_t index) {
  setzeSprache(index);
  profil_.schreiben(Hauptfenster::Sprache, std::to_string(sprache_));
}

void Anzeigewahl::M_MassArt(std::int16_t index) {
  setzeMassArt(index);
  profil_.schreiben(Hauptfenster::MassArt, std::to_string(system_.Masssystem));
}

void Anzeigewahl::setzeSprache(std::int16_t index) {
  const bool known = index >= 0 && static_cast<std::size_t>(index) < Sprachspalten.size();
  sprache_ = known ? index : std::int16_t{0};
  system_.SpracheSpalte = SpalteVonSprache(sprache_);
}

void Anzeigewahl::setzeMassArt(std::int16_t index) {
  system_.Masssystem = index == 1 ? index : std::int16_t{0};
}

}  // namespace korvin
