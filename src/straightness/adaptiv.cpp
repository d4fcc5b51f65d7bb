#include "straightness/adaptiv.h"

#include <stdexcept>
#include <string>

#include "straightness/numeric/kennwerte.h"
#include "straightness/numeric/student_t.h"
#include "straightness/numeric/wurzel_sicher.h"

namespace korvin {
namespace {

constexpr int ProbenProSekunde = 5;  // that the bar expects
constexpr int Umlaeufe = 6;
constexpr double Verlaengerung = 0.5;      // of `MessZeitMax`
constexpr double FastErreicht = 1.2;       // half width to accuracy
constexpr double LaengsteMessZeit = 99.0;  // seconds
constexpr double MitVerlaengerung = 1.5;   // of `MessZeitMax`
constexpr double Tag = 86400;              // seconds

/// Times of day are compared in the width that the clock has.
bool spaeter(double jetzt, double ende) {
  return static_cast<float>(jetzt) > static_cast<float>(ende);
}

bool erreicht(const AdaptZustand& z, const AdaptVorgaben& vorgaben) {
  return z.AdaptKX < vorgaben.X_Genauigkeit && z.AdaptKY < vorgaben.Y_Genauigkeit;
}

/// Nearly there, and an extension still leaves a time that can be set.
bool verlaengern(const AdaptZustand& z, const AdaptVorgaben& vorgaben) {
  const bool zuWeitX = vorgaben.X_Genauigkeit * FastErreicht <= z.AdaptKX;
  const bool zuWeitY = vorgaben.Y_Genauigkeit * FastErreicht <= z.AdaptKY;
  const bool keineZeit = vorgaben.MessZeitMax * MitVerlaengerung >= LaengsteMessZeit;
  return !zuWeitX && !zuWeitY && !keineZeit;
}

}  // namespace

void AdaptivMessung::starten(const AdaptVorgaben& vorgaben, float jetzt) {
  z_.AdaptRohX.clear();
  z_.AdaptRohY.clear();
  z_.AdaptAlpha = vorgaben.Beta1 ? 1 : 5;
  z_.AdaptLaufzeit = 0;
  progressMax_ = vorgaben.MessZeitMax * ProbenProSekunde;
  progressWert_ = 0;
  verlauf_.clear();
  verlauf_.reserve(MaxProben);
  neuZaehlen(vorgaben, jetzt);
  laeuft_ = true;
}

void AdaptivMessung::neuZaehlen(const AdaptVorgaben& vorgaben, float jetzt) {
  z_.AdaptWeiter = false;
  z_.AdaptN = 0;
  z_.AdaptStart = jetzt;
  z_.AdaptMinEnde = z_.AdaptStart + vorgaben.MessZeitMin;
  z_.AdaptMaxEnde = z_.AdaptStart + vorgaben.MessZeitMax;
}

double AdaptivMessung::fortlaufend(float jetzt) const {
  // A time of day far before the start lies behind midnight; a clock set back a little does not.
  return jetzt < z_.AdaptStart - Tag / 2 ? jetzt + Tag : jetzt;
}

void AdaptivMessung::antwort(float jetzt) {
  z_.AdaptWeiter = true;
  z_.AdaptLaufzeit = fortlaufend(jetzt) - z_.AdaptStart;
}

AdaptErgebnis AdaptivMessung::probe(double X, double Y, const AdaptVorgaben& vorgaben, float jetzt) {
  eintragen(X, Y);
  fortschreiten();
  const AdaptErgebnis ergebnis = urteil(vorgaben, fortlaufend(jetzt));
  z_.AdaptWeiter = ergebnis != AdaptErgebnis::weiter;
  return ergebnis;
}

void AdaptivMessung::eintragen(double X, double Y) {
  const auto index = static_cast<std::size_t>(z_.AdaptN) + 1;
  if (index > MaxProben) throw std::out_of_range("sample " + std::to_string(index));
  z_.AdaptN = static_cast<std::int16_t>(index);
  z_.AdaptRohX.at(index) = X;
  z_.AdaptRohY.at(index) = Y;
  z_.AdaptRohX.setAnzahl(index);
  z_.AdaptRohY.setAnzahl(index);
}

void AdaptivMessung::fortschreiten() {
  for (int umlauf = 0; umlauf <= Umlaeufe; ++umlauf) {
    const int wert = z_.AdaptN - umlauf * progressMax_;
    if (wert < progressMax_) {
      progressWert_ = wert;
      return;
    }
  }
}

AdaptErgebnis AdaptivMessung::urteil(const AdaptVorgaben& vorgaben, double jetzt) {
  const Streuung x = streuung(z_.AdaptRohX);
  const Streuung y = streuung(z_.AdaptRohY);
  if (z_.AdaptN > 1) verlauf_.push_back({jetzt - z_.AdaptStart, {x.halbweite, y.halbweite}});
  if (!spaeter(jetzt, z_.AdaptMinEnde)) return AdaptErgebnis::weiter;
  z_.AdaptSX = x.s;
  z_.AdaptSY = y.s;
  z_.AdaptKX = x.halbweite;
  z_.AdaptKY = y.halbweite;
  if (!spaeter(jetzt, z_.AdaptMaxEnde)) {
    return erreicht(z_, vorgaben) ? AdaptErgebnis::angenommen : AdaptErgebnis::weiter;
  }
  // Once time is up, reaching the accuracy in the same moment is not enough: with an extension the next
  // sample decides, without one the point has failed.
  if (!verlaengern(z_, vorgaben)) return AdaptErgebnis::verfehlt;
  z_.AdaptMaxEnde = jetzt + vorgaben.MessZeitMax * Verlaengerung;
  return AdaptErgebnis::weiter;
}

AdaptivMessung::Streuung AdaptivMessung::streuung(const Zaehlfeld<MaxProben>& proben) const {
  const Kennwert s = Standardabweichung(proben.elements());
  if (!s.gueltig) return {};
  return {s.wert, StudentT(z_.AdaptN - 1, z_.AdaptAlpha) * s.wert / WurzelSicher(z_.AdaptN)};
}

double AdaptivMessung::MittelX() const {
  return Mittelwert(z_.AdaptRohX.elements()).wert;
}

double AdaptivMessung::MittelY() const {
  return Mittelwert(z_.AdaptRohY.elements()).wert;
}

}  // namespace korvin
