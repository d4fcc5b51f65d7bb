#pragma once

#include <cstdint>

namespace korvin {

/// Two-sided quantile of Student's t distribution by the program's own tables: the factor between a standard
/// deviation of a mean and the half width of its confidence interval (JCGM 100:2008, G.3 and table G.2).
///
/// `k` is the number of samples less one, from 1. `level` above 1 gives the 5 % values, t(0.975), else the
/// 1 % values, t(0.995).
///
/// - k to 49: the quantile of k + 1 degrees of freedom, three decimals. The samples have k, so the factor is
/// too
///   small: by 1 % for k = 11 at 5 %, and a third of the right one for k = 1. Kept: results of earlier
///   measurements rely on it.
/// - k to 199: entries t0, t1 of ten k each; t0 − (t1 − t0) / 10, the same within the ten.
/// - k to 999: entries of a hundred k each; t0 − (t1 − t0) / 100, likewise.
/// - from 1000 on: 1.962 or 2.581.
///
/// Throws `std::out_of_range` for k below 1. Accuracy against k + 1 degrees of freedom: within half a unit of
/// the third decimal up to k = 29; beyond that within 0.007 at 5 % and 0.018 at 1 % (k = 49). See
/// docs/numerics.md.
double StudentT(std::int32_t k, std::int16_t level);

}  // namespace korvin
