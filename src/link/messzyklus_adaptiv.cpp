#include <optional>

#include "link/messzyklus.h"

// Adaptive points in the measuring cycle.

namespace korvin {

void Messzyklus::adaptStarten(AdaptivAufgabe& punkt) {
  adaptiv_ = &punkt;
  einzelZeigen();
  // Its key stays free: a second press cancels the point.
  ansicht_.setTasteFrei(aufgabe_.beschreibung().tasteEinzel, true);
  laufZeigen();
  punkt.adaptBeginnt(u_.clock.secondsOfDay());
  adaptZeigen();
  tmrMj_->setEnabled(true);
}

void Messzyklus::tickMj() {
  if (tickBeginnt()) return;
  if (!frage('J', u_.korCom.JustageZeitLimit())) {
    verbindungVerloren();
    return;
  }
  if (abgeschlossen()) return;
  // A command may have ended the point while the answer was awaited.
  if (adaptiv_ == nullptr) {
    tmrPolling_->setEnabled(true);
    return;
  }
  const AdaptSchritt schritt = adaptSchritt();
  statusIcons();
  adaptZeigen();
  if (tastenzustand_ == 'M' || schritt != AdaptSchritt::weiter) {
    adaptBeenden();
  } else {
    tmrPolling_->setEnabled(false);
    tmrMj_->setEnabled(true);
  }
}

AdaptSchritt Messzyklus::adaptSchritt() {
  const float jetzt = u_.clock.secondsOfDay();
  adaptiv_->adaptAntwort(jetzt);
  if (u_.antwort.Antwortart != 'j') {
    icon(IconFrage);
    return AdaptSchritt::abgebrochen;
  }
  if (!AntwortPruefen()) {
    adaptiv_->adaptAbgelehnt();
    return AdaptSchritt::weiter;
  }
  const AdaptSchritt schritt = adaptiv_->adaptProbe(u_.antwort, jetzt);
  if (schritt == AdaptSchritt::angenommen) adaptAnnehmen();
  if (schritt == AdaptSchritt::verfehlt) adaptVerfehlt();
  return schritt;
}

void Messzyklus::adaptAnnehmen() {
  const Farbe imBereich = tastenzustand_ == 'K' ? FarbeWeiss : FarbeGelb;
  ansicht_.setWertFarbe(adaptiv_->adaptImBereich(u_.korCom.SensorHalbbereich()) ? imBereich : FarbeRot);
  tastenFrei(aufgabe_.beschreibung().messtasten, true);
  ansicht_.neuZeichnen(true);
  if (adaptiv_->adaptUebergeben()) ansicht_.neuZeichnen(false);
}

void Messzyklus::adaptVerfehlt() {
  kopfZeigen();
  ansicht_.neuZeichnen(false);
}

void Messzyklus::adaptZeigen() {
  ansicht_.zeigeAdaptProgress(adaptiv_->adaptFortschritt());
  ansicht_.zeigeServiceZeile(1, adaptiv_->adaptZeile());
}

void Messzyklus::adaptBeenden() {
  AdaptivAufgabe& punkt = *adaptiv_;
  laufBeenden();
  punkt.adaptNachTick();
}

void Messzyklus::adaptVerbergen() {
  ansicht_.zeigeAdaptProgress(std::nullopt);
  triggerBedient();
}

}  // namespace korvin
