#pragma once

#include <cstdint>

#include "environment/unsicherheit.h"
#include "frame/profil.h"

namespace korvin {

/// What adaptive straightness measuring is set to reach at present.
struct AdaptivVorgabe {
  double X_Genauigkeit = 0;      ///< mm
  double Y_Genauigkeit = 0;      ///< mm
  std::int16_t MessZeitMax = 0;  ///< seconds
  std::int16_t Beta = 5;         ///< level of significance in percent, 5 or 1
};

/// The stored settings of straightness, as its window reads them.
AdaptivVorgabe adaptivVorgabe(Profil& profil);

enum class Erfolg { wahrscheinlich, fraglich, unwahrscheinlich };

/// Whether adaptive measuring is likely to reach its accuracy where the run was made, and the figures behind
/// it.
struct Aussicht {
  Erfolg erfolg = Erfolg::unwahrscheinlich;
  AdaptivVorgabe vorgabe;
  int proben = 0;          ///< samples that fit in `MessZeitMax`
  double halbbreiteX = 0;  ///< half width of the mean of so many samples, mm; 0 with fewer than 2
  double halbbreiteY = 0;  ///< likewise
};

/// Judges by the half widths that adaptive measuring will look at. At the pace of the run n samples fit in
/// `MessZeitMax`, 1000 at most; with the s of the run the half width of an axis is K = t · s / √n, t =
/// `StudentT`(n − 1, `Beta`), and q the larger of K / `X_Genauigkeit` and K / `Y_Genauigkeit`.
///
/// Neither the s of the run nor that of a later point is the true one. The relative standard deviation of an
/// s from n samples is 1 / √(2(n − 1)) (JCGM 100:2008, E.4.3); both together make u = √(1 / (2(n − 1)) + 1 /
/// (2(N − 1))).
///
/// - likely: q (1 + 2u) < 1. The point succeeds even if its spread comes out two standard deviations larger.
/// - unlikely: q ≥ 1 + 2u, or fewer than two samples, or an accuracy of 0: that much beyond what is asked.
/// - doubtful: all between.
///
/// The extension of a point that just misses its accuracy is not counted. A run in mil is brought to mm; the
/// accuracy is taken as adaptive measuring takes it, as mm. The run has at least one sample.
Aussicht adaptivAussicht(const AnalyseErgebnis& ergebnis, const AdaptivVorgabe& vorgabe);

}  // namespace korvin
