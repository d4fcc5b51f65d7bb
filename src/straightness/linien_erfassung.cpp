#include "straightness/linien_erfassung.h"

#include "frame/zahl_text.h"
#include "link/messwert.h"
#include "straightness/punkt_lage.h"

namespace korvin {
namespace {

namespace vorgaben = einstellung::FormGeradheit;

}  // namespace

void LinienErfassung::PunktSpeichern(const KameraAntwort& antwort) {
  const auto [x, y] = gelesen(antwort);
  PunktSetzen(x, y);
}

std::pair<double, double> LinienErfassung::gelesen(const KameraAntwort& antwort) const {
  return Spiegeln(Montage(), mmAusRoh(antwort.RohX), mmAusRoh(antwort.RohY));
}

void LinienErfassung::PunktSetzen(double X, double Y) {
  LinienGeometrie& line = linie();
  if (line.AnzMPs < 1) return;
  PunktWechseln(line, 0);
  punktEintragen(X, Y);
}

bool LinienErfassung::vorMessung(char zustand) {
  if (!mehrPunktAktiv_ || abnehmer_ == nullptr) return true;
  const bool einzeln = zustand == 'M' || zustand == 'S';
  return einzeln && abnehmer_->positionVerlangt();
}

void LinienErfassung::anforderungVerfallen() {
  if (mehrPunktAktiv_ && abnehmer_ != nullptr) abnehmer_->anforderungVerfallen();
}

bool LinienErfassung::nachPunkt() {
  PunktWechseln(linie(), richtungVor_ ? 1 : -1);
  return true;
}

void LinienErfassung::richtungLesen() {
  const Einstellung& e = vorgaben::BiDi_Messen;
  biDiMessen_ = flagAusText(profil_.wert(beschreibung().abschnitt, e.key, e.vorgabe));
  richtungVor_ = true;
}

std::int16_t LinienErfassung::gezeigteMontage() {
  const Einstellung& e = vorgaben::Montage;
  return ganzzahlAusText(profil_.wert(beschreibung().abschnitt, e.key, e.vorgabe));
}

}  // namespace korvin
