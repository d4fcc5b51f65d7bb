#include "dialogs/field_set.h"

#include <algorithm>
#include <stdexcept>

#include "dialogs/entered_number.h"
#include "frame/zahl_text.h"

namespace korvin {

std::size_t zeileVon(std::span<const EinstellFeld> felder, const Einstellung& gesucht) {
  const auto zeile = std::find_if(felder.begin(), felder.end(), [&](const EinstellFeld& feld) {
    return feld.einstellung.section == gesucht.section && feld.einstellung.key == gesucht.key;
  });
  if (zeile == felder.end()) throw std::out_of_range("no field of " + std::string(gesucht.key));
  return static_cast<std::size_t>(zeile - felder.begin());
}

// ---- FeldTexte ----

std::int16_t FeldTexte::ganz(const Einstellung& e) const {
  return ganzzahlAusText(text(e));
}

bool FeldTexte::flag(const Einstellung& e) const {
  return flagAusText(text(e));
}

double FeldTexte::zahl(const Einstellung& e) const {
  return endlicheZahl(text(e));
}

void FeldTexte::schreiben(Profil& profil, std::size_t von, std::size_t bis) const {
  for (std::size_t i = von; i < bis; ++i) profil.schreiben(felder_[i].einstellung, texte_.at(i));
}

// ---- FeldSatz ----

FeldWerte FeldSatz::lesen() {
  gezeigt_.clear();
  gespeichert_.clear();
  for (const EinstellFeld& feld : felder_) {
    gespeichert_.push_back(profil_.wert(feld.einstellung));
    gezeigt_.push_back(feldWert(feld, gespeichert_.back(), Masssystem_));
  }
  return gezeigt_;
}

FeldTexte FeldSatz::texte(const FeldWerte& werte) const {
  std::vector<std::string> texte;
  for (std::size_t i = 0; i < felder_.size(); ++i) {
    const bool unveraendert = i < gezeigt_.size() && gezeigt_[i] == werte.at(i);
    texte.push_back(unveraendert && istMassZahl(felder_[i].form)
                        ? gespeichert_[i]
                        : gespeicherterText(felder_[i], werte.at(i), Masssystem_));
  }
  return {felder_, std::move(texte)};
}

void FeldSatz::merken(const FeldWerte& werte, const FeldTexte& texte) {
  gezeigt_ = werte;
  gespeichert_ = texte.alle();
}

}  // namespace korvin
