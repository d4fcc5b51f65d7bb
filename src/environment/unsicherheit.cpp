#include "environment/unsicherheit.h"

#include <algorithm>
#include <cmath>

#include "environment/messzahl.h"
#include "straightness/numeric/student_t.h"

namespace korvin {
namespace {

constexpr int ErstePosition = 6;  ///< where the raw curve begins

/// The two ends of the raw curve of an axis; both 0 where it has no point.
struct KurvenEnden {
  double maximum = 0;
  double letztes = 0;
};

KurvenEnden kurvenEnden(std::int16_t N, std::int16_t Beta, double s) {
  KurvenEnden enden;
  for (int i = ErstePosition; i <= N; ++i) {
    enden.letztes = StudentT(i - 1, Beta) * s / std::sqrt(i);
    enden.maximum = std::max(enden.maximum, enden.letztes);
  }
  return enden;
}

/// Positions 1 to N: from the largest value to the last one.
void ersteHaelfte(UnsicherheitsTabelle& tabelle, std::int16_t N, const KurvenEnden& enden) {
  const double schritt = (enden.maximum - enden.letztes) / N;
  for (int i = 1; i <= N; ++i)
    tabelle.at(static_cast<std::size_t>(i)) = std::max(enden.maximum - (i - 1) * schritt, GenauigkeitMin);
}

/// Positions N + 1 to 2N: from there to the lowest uncertainty. The end of the table has no guard but its
/// bounds check.
void zweiteHaelfte(UnsicherheitsTabelle& tabelle, std::int16_t N) {
  const double anfang = tabelle.at(static_cast<std::size_t>(N));
  const double schritt = (anfang - GenauigkeitMin) / N;
  for (int i = N + 1; i <= 2 * N; ++i)
    tabelle.at(static_cast<std::size_t>(i)) = std::max(anfang - (i - N) * schritt, GenauigkeitMin);
}

double tabelleFuellen(UnsicherheitsTabelle& tabelle, const AnalyseErgebnis& ergebnis, double s) {
  const std::int16_t N = ergebnis.AnalyseAnzahl;
  const KurvenEnden enden = kurvenEnden(N, ergebnis.Beta, s);
  ersteHaelfte(tabelle, N, enden);
  zweiteHaelfte(tabelle, N);
  return enden.maximum;
}

}  // namespace

void Unsicherheit::UnsicherheitBerechnen(const AnalyseErgebnis& ergebnis) {
  FxTabelle.fill(0);
  FyTabelle.fill(0);
  if (ergebnis.AnalyseAnzahl < 1) return;
  MaxFx = tabelleFuellen(FxTabelle, ergebnis, ergebnis.sX);
  MaxFy = tabelleFuellen(FyTabelle, ergebnis, ergebnis.sY);
}

std::string Unsicherheit::MaxFxText() const {
  return "MAX_Fx: " + messzahl(MaxFx);
}

std::string Unsicherheit::MaxFyText() const {
  return "MAX_Fy: " + messzahl(MaxFy);
}

}  // namespace korvin
