#include "straightness/numeric/kreis_anpassung.h"

#include <array>
#include <cmath>
#include <stdexcept>
#include <string>

#include "straightness/numeric/wurzel_sicher.h"

namespace korvin {
namespace {

constexpr int StepsMax = 100;
constexpr double StepEnough = 0.0001;

double squared(double value) {
  return value * value;
}

class CircleFit {
 public:
  CircleFit(std::size_t n, std::span<const double> x, std::span<const double> y) : n_(n) {
    takeMean(x, y);
    takeDistances(x, y);
    D_ = Syy_ * Sxx_ - Sxy_ * Sxy_;
    // Points on an inclined line leave a trace of rounding in D, which would pass for a curvature.
    const double rounding = 1e-14 * squared(Sxx_ + Syy_);
    // Asked so that NaN throws too; where D is infinite, so is its rounding.
    if (!(D_ > rounding)) throw std::domain_error("no circle: all points lie on a line");
  }

  KreisMitte run() {
    double step = 0;
    for (int i = 0; i < StepsMax; ++i) {
      step = moveCentre();
      if (step <= StepEnough) break;
    }
    // A centre that ran off beyond the numbers makes a step of NaN, whose root is 0.
    const bool found = step <= StepEnough && std::isfinite(a_) && std::isfinite(b_);
    if (!found) return {Xc_, Yc_, KreisMitte::nichtKonvergiert};
    return {Xc_ + a_, Yc_ + b_, KreisMitte::gefunden};
  }

 private:
  double count() const { return static_cast<double>(n_); }

  void takeMean(std::span<const double> x, std::span<const double> y) {
    for (std::size_t i = 0; i < n_; ++i) {
      Xc_ += x[i] / count();
      Yc_ += y[i] / count();
    }
  }

  void takeDistances(std::span<const double> x, std::span<const double> y) {
    for (std::size_t i = 0; i < n_; ++i) {
      dx_[i] = x[i] - Xc_;
      dy_[i] = y[i] - Yc_;
      Sxx_ += squared(dx_[i]);
      Syy_ += squared(dy_[i]);
      Sxy_ += dx_[i] * dy_[i];
    }
  }

  // Takes the distances from the present centre and returns their mean.
  double takeRadii() {
    double R = 0;
    for (std::size_t i = 0; i < n_; ++i) {
      r_[i] = WurzelSicher(squared(dx_[i] - a_) + squared(dy_[i] - b_));
      R += r_[i] / count();
    }
    return R;
  }

  // One step; returns its length.
  double moveCentre() {
    const double R = takeRadii();
    double P = 0;
    double Q = 0;
    for (std::size_t i = 0; i < n_; ++i) {
      P += (r_[i] - R) * dx_[i];
      Q += (r_[i] - R) * dy_[i];
    }
    const double da = (Syy_ * P - Sxy_ * Q) * R / D_;
    const double db = (Sxx_ * Q - Sxy_ * P) * R / D_;
    a_ += da;
    b_ += db;
    return WurzelSicher(squared(da) + squared(db));
  }

  std::size_t n_;
  double Xc_ = 0;
  double Yc_ = 0;
  std::array<double, KreisPunkteMax> dx_{};
  std::array<double, KreisPunkteMax> dy_{};
  std::array<double, KreisPunkteMax> r_{};
  double Sxx_ = 0;
  double Syy_ = 0;
  double Sxy_ = 0;
  double D_ = 0;
  double a_ = 0;
  double b_ = 0;
};

}  // namespace

KreisMitte KreisAnpassung(std::size_t n, std::span<const double> x, std::span<const double> y) {
  if (n > KreisPunkteMax || n > x.size() || n > y.size())
    throw std::out_of_range("circle through " + std::to_string(n) + " points");
  return CircleFit(n, x, y).run();
}

}  // namespace korvin
