#include "straightness/mehr_punkt.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <stdexcept>
#include <string>

#include "link/messwert.h"
#include "straightness/numeric/kreis_anpassung.h"

namespace korvin {
namespace {

constexpr double Spreizung = 0.005;  ///< mm between two positions that shows a movement
/// Readings are decimal numbers of 0.0001 mm: one that differs by 0.005 differs so whatever its last bit is.
constexpr double Rundung = 1e-9;
constexpr std::size_t Gepruefte = 3;  ///< the positions that are looked at for it

bool gespreizt(std::span<const double> werte) {
  const auto [kleinster, groesster] = std::ranges::minmax(werte.first(std::min(werte.size(), Gepruefte)));
  return groesster - kleinster >= Spreizung - Rundung;
}

double mittel(std::span<const double> werte) {
  return std::accumulate(werte.begin(), werte.end(), 0.0) / static_cast<double>(werte.size());
}

std::optional<MehrPunktMitte> kreismitte(std::span<const double> X, std::span<const double> Y) {
  if (!gespreizt(X) || !gespreizt(Y)) return std::nullopt;
  try {
    const KreisMitte kreis = KreisAnpassung(X.size(), X, Y);
    return MehrPunktMitte{kreis.Xc, kreis.Yc, true};
  } catch (const std::domain_error&) {
    // All on one line: a movement, but no circle.
    return std::nullopt;
  }
}

double mittlererAbstand(const MehrPunktMitte& mitte, std::span<const double> X, std::span<const double> Y) {
  double summe = 0;
  for (std::size_t i = 0; i < X.size(); ++i) summe += std::hypot(X[i] - mitte.Xc, Y[i] - mitte.Yc);
  return summe / static_cast<double>(X.size());
}

}  // namespace

void MehrPunkt::beginnen() {
  MehrPunktIst_ = 0;
  X_.fill(0);
  Y_.fill(0);
  mitte_.reset();
}

void MehrPunkt::aufnehmen(double X, double Y) {
  const auto k = static_cast<std::size_t>(MehrPunktIst_);
  if (k >= PositionenMax) throw std::out_of_range("position " + std::to_string(k + 1));
  X_[k] = X;
  Y_[k] = Y;
  ++MehrPunktIst_;
}

void MehrPunkt::auswerten() {
  mitte_ = kreismitte(X(), Y());
  if (!mitte_) mitte_ = MehrPunktMitte{mittel(X()), mittel(Y())};
  mitte_->radius = mittlererAbstand(*mitte_, X(), Y());
}

bool imMessbereich(const MehrPunktMitte& mitte, double SensorHalbbereich) {
  const double grenze = 2 * SensorHalbbereich;
  return std::fabs(mitte.Xc) <= grenze && std::fabs(mitte.Yc) <= grenze;
}

void uebergeben(const MehrPunktMitte& mitte, KameraAntwort& antwort) {
  antwort.RohX = std::round(mitte.Xc * RohProMm + RohMitte);
  antwort.RohY = std::round(mitte.Yc * RohProMm + RohMitte);
}

}  // namespace korvin
