#include "straightness/numeric/kennwerte.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "straightness/numeric/wurzel_sicher.h"
#include "straightness/numeric/zaehlung.h"

namespace korvin {
namespace {

Kennwert finite(double result) {
  return std::isfinite(result) ? Kennwert{result, true} : Kennwert{};
}

// Takes the values one by one; the order in which they come is the order in which they are added.
class Mean {
 public:
  void take(double value) {
    ++m_;
    S1_ += value;
  }
  Kennwert result() const { return m_ < 1 ? Kennwert{} : finite(S1_ / m_); }

 private:
  double m_ = 0;
  double S1_ = 0;
};

class Spread {
 public:
  void take(double value) {
    ++m_;
    S1_ += value;
    S2_ += value * value;
  }
  Kennwert result() const {
    if (m_ < 2) return {};
    const double radicand = (m_ * S2_ - S1_ * S1_) / (m_ * (m_ - 1));
    return std::isfinite(radicand) ? Kennwert{WurzelSicher(radicand), true} : Kennwert{};
  }

 private:
  double m_ = 0;
  double S1_ = 0;
  double S2_ = 0;
};

class Extremes {
 public:
  void take(double value) {
    if (!found_) maximum_ = minimum_ = value;
    found_ = true;
    if (value > maximum_) maximum_ = value;
    if (value < minimum_) minimum_ = value;
  }
  Extremwerte result() const {
    if (!found_ || !std::isfinite(maximum_) || !std::isfinite(minimum_)) return {};
    return {maximum_, minimum_, true};
  }

 private:
  bool found_ = false;
  double maximum_ = 0;
  double minimum_ = 0;
};

template <class Taker>
void offer(Taker& taker, double value) {
  if (!istLeer(value)) taker.take(value);
}

template <class Taker>
auto ofArray(std::span<const double> werte) {
  Taker taker;
  const std::size_t anzahl = anzahlWerte(werte);
  for (std::size_t i = 1; i <= anzahl; ++i) offer(taker, werte[i]);
  return taker.result();
}

template <class Taker>
void offerFile(Taker& taker, const MatrixAnsicht& matrix, std::size_t datei) {
  const std::size_t anzahl = matrix.anzahl(datei);
  for (std::size_t punkt = 1; punkt <= anzahl; ++punkt) offer(taker, matrix.at(punkt, datei));
}

template <class Taker>
auto ofFile(const MatrixAnsicht& matrix, std::size_t datei) {
  Taker taker;
  offerFile(taker, matrix, datei);
  return taker.result();
}

template <class Taker>
auto ofPoint(const MatrixAnsicht& matrix, std::size_t dateien, std::size_t punkt) {
  if (punkt < 1 || punkt >= matrix.zeilen()) throw std::out_of_range("point " + std::to_string(punkt));
  Taker taker;
  for (std::size_t datei = 1; datei <= dateien; ++datei)
    if (punkt <= matrix.anzahl(datei)) offer(taker, matrix.at(punkt, datei));
  return taker.result();
}

template <class Taker>
auto ofAll(const MatrixAnsicht& matrix, std::size_t dateien) {
  Taker taker;
  for (std::size_t datei = 1; datei <= dateien; ++datei) offerFile(taker, matrix, datei);
  return taker.result();
}

bool allHaveAValue(const MatrixAnsicht& matrix, std::size_t dateien, std::size_t punkt) {
  for (std::size_t datei = 1; datei <= dateien; ++datei)
    if (istLeer(matrix.at(punkt, datei))) return false;
  return true;
}

}  // namespace

Kennwert Mittelwert(std::span<const double> werte) {
  return ofArray<Mean>(werte);
}

Kennwert Standardabweichung(std::span<const double> werte) {
  return ofArray<Spread>(werte);
}

Extremwerte MinMax(std::span<const double> werte) {
  return ofArray<Extremes>(werte);
}

Kennwert MittelwertDatei(const MatrixAnsicht& matrix, std::size_t datei) {
  return ofFile<Mean>(matrix, datei);
}

Kennwert MittelwertPunkt(const MatrixAnsicht& matrix, std::size_t dateien, std::size_t punkt) {
  return ofPoint<Mean>(matrix, dateien, punkt);
}

Kennwert MittelwertGesamt(const MatrixAnsicht& matrix, std::size_t dateien) {
  return ofAll<Mean>(matrix, dateien);
}

Kennwert StandardabweichungDatei(const MatrixAnsicht& matrix, std::size_t datei) {
  return ofFile<Spread>(matrix, datei);
}

Kennwert StandardabweichungPunkt(const MatrixAnsicht& matrix, std::size_t dateien, std::size_t punkt) {
  return ofPoint<Spread>(matrix, dateien, punkt);
}

Kennwert StandardabweichungGesamt(const MatrixAnsicht& matrix, std::size_t dateien) {
  return ofAll<Spread>(matrix, dateien);
}

Extremwerte MinMaxDatei(const MatrixAnsicht& matrix, std::size_t datei) {
  return ofFile<Extremes>(matrix, datei);
}

Extremwerte MinMaxPunkt(const MatrixAnsicht& matrix, std::size_t dateien, std::size_t punkt) {
  return ofPoint<Extremes>(matrix, dateien, punkt);
}

Extremwerte MinMaxGesamt(const MatrixAnsicht& matrix, std::size_t dateien) {
  if (!ersterGemeinsamerPunkt(matrix, dateien)) return {};
  return ofAll<Extremes>(matrix, dateien);
}

std::optional<std::size_t> ersterGemeinsamerPunkt(const MatrixAnsicht& matrix, std::size_t dateien) {
  std::size_t reach = dateien < 1 ? 0 : matrix.anzahl(1);
  for (std::size_t datei = 2; datei <= dateien; ++datei) reach = std::min(reach, matrix.anzahl(datei));
  for (std::size_t punkt = 1; punkt <= reach; ++punkt)
    if (allHaveAValue(matrix, dateien, punkt)) return punkt;
  return std::nullopt;
}

}  // namespace korvin
