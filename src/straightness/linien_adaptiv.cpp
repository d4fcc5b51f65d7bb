#include <cmath>

#include "frame/number_format.h"
#include "straightness/linien_erfassung.h"

// How adaptive points become points of a line.

namespace korvin {

AdaptSchritt LinienErfassung::adaptProbe(const KameraAntwort& antwort, float sekunden) {
  const auto [x, y] = gelesen(antwort);
  switch (messung_.probe(x, y, adaptVorgaben(), sekunden)) {
    case AdaptErgebnis::weiter:
      return AdaptSchritt::weiter;
    case AdaptErgebnis::angenommen:
      PunktSetzen(messung_.MittelX(), messung_.MittelY());
      return AdaptSchritt::angenommen;
    case AdaptErgebnis::verfehlt:
      break;
  }
  adaptVerfehlt(sekunden);
  return AdaptSchritt::verfehlt;
}

void LinienErfassung::adaptVerfehlt(float sekunden) {
  AdaptFehler fehler({messung_, adaptVorgaben(), profil_, beschreibung().abschnitt, sekunden});
  if (fehlerFrage_ != nullptr) fehlerFrage_->zeigen(fehler);
  // Whichever button it was, the loop ends: with a longer time the user starts the point again.
  messung_.aufgeben();
}

bool LinienErfassung::adaptImBereich(double halbbereich) const {
  return std::abs(messung_.MittelX()) <= halbbereich && std::abs(messung_.MittelY()) <= halbbereich;
}

bool LinienErfassung::adaptUebergeben() {
  if (!mehrPunktAktiv_) return nachPunkt();
  if (abnehmer_ != nullptr) abnehmer_->punktAngenommen();
  return false;
}

void LinienErfassung::adaptNachTick() {
  if (mehrPunktAktiv_ && abnehmer_ != nullptr) abnehmer_->punktBeendet();
}

Fortschritt LinienErfassung::adaptFortschritt() const {
  return {messung_.ProgressMax(), messung_.ProgressWert()};
}

std::string LinienErfassung::adaptZeile() const {
  const AdaptZustand& z = messung_.zustand();
  return "Nmess:" + formatNumber(z.AdaptN, "   0") +  //
         "  \u00A6  MA-Zeit:" + formatNumber(z.AdaptLaufzeit, "   0.0") + " s" +
         "  \u00A6  Y_ERR:" + formatNumber(z.AdaptKY, "   0.0000");
}

}  // namespace korvin
