#include "environment/adapt_set.h"

#include <algorithm>
#include <cstddef>

#include "environment/messzahl.h"
#include "frame/number_format.h"

namespace korvin {
namespace {

/// The time of a run, in seconds.
constexpr int Laufzeit = 31;
/// How far the slider goes beyond the run.
constexpr double Hinaus = 1.8;

AdaptSlider sliderFuer(std::int16_t N, std::int16_t messZeitMin) {
  AdaptSlider slider;
  slider.maximum = static_cast<int>(N * Hinaus);
  slider.minimum = std::max(0, N * messZeitMin / Laufzeit);
  if (slider.minimum > slider.maximum) slider.minimum = N;
  slider.wert = N;
  return slider;
}

}  // namespace

void AdaptSet::ersteAktivierung() {
  anzeige_ = {};
  verbergen();
}

void AdaptSet::verbergen() {
  sichtbar_ = false;
  speichernFrei_ = true;
}

void AdaptSet::UnsicherheitBerechnen(const AnalyseErgebnis& ergebnis) {
  ergebnis_ = ergebnis;
  unsicherheit_.UnsicherheitBerechnen(ergebnis);
}

void AdaptSet::SliderEinrichten() {
  sichtbar_ = !sichtbar_;
  slider_ = sliderFuer(ergebnis_.AnalyseAnzahl, messZeitMin(profil_));
  aussicht_ = adaptivAussicht(ergebnis_, adaptivVorgabe(profil_));
  SliderGeaendert(slider_.wert);
}

bool AdaptSet::istDicht() const {
  const double N = ergebnis_.AnalyseAnzahl;
  return N * ergebnis_.sekundenJePosition() <= N;
}

void AdaptSet::texteSetzen(AdaptParameter& texte, int position) const {
  const bool dicht = istDicht();
  const auto index = static_cast<std::size_t>(position);
  texte.zeit = formatNumber(position * ergebnis_.sekundenJePosition(), "0") + " s";
  texte.FX = dicht ? messzahl(unsicherheit_.FxTabelle.at(index)) : "0";
  texte.FY = dicht ? messzahl(unsicherheit_.FyTabelle.at(index)) : "0";
}

void AdaptSet::SliderGeaendert(int wert) {
  slider_.wert = std::clamp(wert, slider_.minimum, slider_.maximum);
  texteSetzen(anzeige_, slider_.wert);
  speichernFrei_ = true;
}

std::string AdaptSet::hinweis(int position) const {
  AdaptParameter texte;
  texteSetzen(texte, position);
  return texte.zeit + ": FX " + texte.FX + "  FY " + texte.FY;
}

void AdaptSet::OptPrio(int index) {
  anzeige_.Beta5 = index == 0;
  anzeige_.Beta1 = index == 1;
  speichernFrei_ = true;
}

void AdaptSet::ParameterSpeichern() {
  korvin::ParameterSpeichern(profil_, anzeige_);
  speichernFrei_ = false;
}

UnsicherheitsBild AdaptSet::bild() const {
  UnsicherheitsBild bild;
  bild.Fx = unsicherheit_.FxTabelle;
  bild.Fy = unsicherheit_.FyTabelle;
  bild.N = ergebnis_.AnalyseAnzahl;
  bild.maximum = istDicht() ? slider_.maximum : 0;
  bild.wert = slider_.wert;
  bild.sekundenJePosition = ergebnis_.sekundenJePosition();
  bild.inch = ergebnis_.Masssystem == 1;
  return bild;
}

}  // namespace korvin
