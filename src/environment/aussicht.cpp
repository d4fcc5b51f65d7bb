#include "environment/aussicht.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "frame/zahl_text.h"
#include "link/messwert.h"
#include "straightness/numeric/student_t.h"

namespace korvin {
namespace {

/// The most samples that an adaptive point takes.
constexpr double ProbenMax = 1000;
constexpr std::int16_t Inch = 1;
/// How many standard deviations of s keep the grades apart.
constexpr double Abstand = 2;

int probenIn(std::int16_t sekunden, const AnalyseErgebnis& ergebnis) {
  const double dauer = ergebnis.dauer();
  if (!(dauer > 0) || sekunden < 1) return 0;
  // Multiplied first: samples that fit exactly then come out exactly.
  return static_cast<int>(std::min(sekunden * ergebnis.AnalyseAnzahl / dauer, ProbenMax));
}

/// Relative variance of a standard deviation from `n` samples, 2 at least.
double varianzVonS(double n) {
  return 1 / (2 * (n - 1));
}

/// How much of the accuracy a half width takes up.
double anteil(double halbbreite, double genauigkeit) {
  return genauigkeit > 0 ? halbbreite / genauigkeit : std::numeric_limits<double>::infinity();
}

Erfolg erfolgVon(const Aussicht& aussicht, std::int16_t N) {
  if (aussicht.proben < 2 || N < 2) return Erfolg::unwahrscheinlich;
  const double q = std::max(anteil(aussicht.halbbreiteX, aussicht.vorgabe.X_Genauigkeit),
                            anteil(aussicht.halbbreiteY, aussicht.vorgabe.Y_Genauigkeit));
  const double spielraum = 1 + Abstand * std::sqrt(varianzVonS(aussicht.proben) + varianzVonS(N));
  if (q * spielraum < 1) return Erfolg::wahrscheinlich;
  return q < spielraum ? Erfolg::fraglich : Erfolg::unwahrscheinlich;
}

}  // namespace

AdaptivVorgabe adaptivVorgabe(Profil& profil) {
  namespace gerade = einstellung::FormGeradheit;
  AdaptivVorgabe vorgabe;
  vorgabe.X_Genauigkeit = zahlAusText(profil.wert(gerade::X_Genauigkeit));
  vorgabe.Y_Genauigkeit = zahlAusText(profil.wert(gerade::Y_Genauigkeit));
  vorgabe.MessZeitMax = ganzzahlAusText(profil.wert(gerade::MessZeitMax));
  vorgabe.Beta = flagAusText(profil.wert(gerade::Beta1)) ? 1 : 5;
  return vorgabe;
}

Aussicht adaptivAussicht(const AnalyseErgebnis& ergebnis, const AdaptivVorgabe& vorgabe) {
  Aussicht aussicht;
  aussicht.vorgabe = vorgabe;
  aussicht.proben = probenIn(vorgabe.MessZeitMax, ergebnis);
  if (aussicht.proben >= 2) {
    const double mm = ergebnis.Masssystem == Inch ? MmProMil : 1;
    const double faktor = StudentT(aussicht.proben - 1, vorgabe.Beta) / std::sqrt(aussicht.proben) * mm;
    aussicht.halbbreiteX = faktor * ergebnis.sX;
    aussicht.halbbreiteY = faktor * ergebnis.sY;
  }
  aussicht.erfolg = erfolgVon(aussicht, ergebnis.AnalyseAnzahl);
  return aussicht;
}

}  // namespace korvin
