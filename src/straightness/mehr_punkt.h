#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

#include "link/kamera_antwort.h"

namespace korvin {

/// The centre that the positions of a multi-point measurement give, in mm.
struct MehrPunktMitte {
  double Xc = 0;
  double Yc = 0;
  bool kreis = false;  ///< a circle was fitted; else the centre is the plain mean of the positions
  double radius = 0;   ///< mean distance of the positions from the centre
};

/// The positions of one multi-point measurement: readings at even angles around a circle, and the centre of
/// that circle. Knows neither window nor head. All lengths are in mm, turned for the mounting as the series
/// holds them.
class MehrPunkt {
 public:
  static constexpr std::size_t PositionenMax = 4;

  /// Positions to be taken: 3, at 120 degrees, or 4, at 90 degrees.
  std::int16_t MehrPunktSoll() const { return MehrPunktSoll_; }
  /// Any other number than 4 is 3.
  void setMehrPunktSoll(std::int16_t positionen) { MehrPunktSoll_ = positionen == 4 ? 4 : 3; }
  /// Positions taken so far.
  std::int16_t MehrPunktIst() const { return MehrPunktIst_; }
  bool vollstaendig() const { return MehrPunktIst_ >= MehrPunktSoll_; }
  /// Degrees at which position `k` lies, the first one, 0, at 0: what is to be turned to before it is taken.
  int winkel(int k) const { return k * 360 / MehrPunktSoll_; }

  /// No positions, no centre. The number to be taken stays.
  void beginnen();
  /// Takes the next position. Throws `std::out_of_range`, with nothing changed, if there are four.
  void aufnehmen(double X, double Y);
  /// Finds the centre. The positions describe a circle if, in X and in Y alike, two of the first three differ
  /// by 0.005 mm at least; `KreisAnpassung` then tells its centre, whether it converged or not. If they do
  /// not, or lie on one line, the centre is their mean. Requires a position.
  void auswerten();

  /// The readings, `MehrPunktIst` of them.
  std::span<const double> X() const { return taken(X_); }
  std::span<const double> Y() const { return taken(Y_); }
  /// Nothing before `auswerten`.
  const std::optional<MehrPunktMitte>& mitte() const { return mitte_; }

 private:
  using Liste = std::array<double, PositionenMax>;

  std::span<const double> taken(const Liste& werte) const {
    return std::span(werte).first(static_cast<std::size_t>(MehrPunktIst_));
  }

  std::int16_t MehrPunktSoll_ = 3;
  std::int16_t MehrPunktIst_ = 0;
  Liste X_{};
  Liste Y_{};
  std::optional<MehrPunktMitte> mitte_;
};

/// True if a centre may be taken for a reading of a head with this half range: in each axis it may lie twice
/// as far out as a reading, edge included, since the head is turned round it.
bool imMessbereich(const MehrPunktMitte& mitte, double SensorHalbbereich);

/// Writes a centre into `antwort` as if the head had reported it: whole counts, 250000 being 0 mm.
void uebergeben(const MehrPunktMitte& mitte, KameraAntwort& antwort);

}  // namespace korvin
