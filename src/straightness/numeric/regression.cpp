#include "straightness/numeric/regression.h"

#include <cmath>
#include <stdexcept>

#include "straightness/numeric/leerwert.h"
#include "straightness/numeric/zaehlung.h"

namespace korvin {
namespace {

struct Sums {
  double N = 0;
  double Sx = 0;
  double Sy = 0;
  double Sxx = 0;
  double Sxy = 0;
  double firstX = 0;
  bool allXEqual = true;

  void take(double x, double y) {
    if (N < 1) firstX = x;
    if (x != firstX) allXEqual = false;
    ++N;
    Sx += x;
    Sy += y;
    Sxx += x * x;
    Sxy += x * y;
  }
};

Sums sumsOf(std::span<const double> x, std::span<const double> y) {
  const std::size_t anzahl = anzahlWerte(y);
  if (anzahl > 0 && anzahl >= x.size()) throw std::out_of_range("fewer x than y");
  Sums sums;
  for (std::size_t i = 1; i <= anzahl; ++i)
    if (!istLeer(y[i])) sums.take(x[i], y[i]);
  return sums;
}

}  // namespace

AusgleichsGerade Regression(std::span<const double> x, std::span<const double> y) {
  const Sums s = sumsOf(x, y);
  if (s.N < 2) return {};
  const double spread = s.Sxx - s.Sx * s.Sx / s.N;
  // Equal x leave a trace of rounding in the difference, which would pass for a spread.
  if (s.allXEqual || spread == 0) throw std::domain_error("no slope: all x are equal");
  if (!std::isfinite(spread)) return {};
  const double slope = (s.Sxy - s.Sx * s.Sy / s.N) / spread;
  const double intercept = s.Sy / s.N - slope * s.Sx / s.N;
  // Without a finite slope there is no finite intercept either.
  if (!std::isfinite(intercept)) return {};
  return {intercept, slope, true};
}

}  // namespace korvin
