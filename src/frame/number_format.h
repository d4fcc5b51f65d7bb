#pragma once

#include <string>
#include <string_view>

namespace korvin {

/// The one way in which numbers become text, on screen, on paper and in files. No locale plays a part: the
/// decimal mark is always the point, and there are no separators between thousands.
///
/// Every number is first taken as a decimal number of 15 significant digits, which is what its user typed or
/// knows: 1.005 is then 1.005 and not the binary number just below. Rounding of that decimal number is by
/// halves away from zero: with two decimals 1.005 gives "1.01", 0.125 gives "0.13", -0.125 gives "-0.13". A
/// number that rounds to zero has no sign. What is no number reads "NaN", "Inf" or "-Inf".

/// `value` in the form of `pattern`: zeros stand for digits, a point for the decimal mark, all before and
/// behind them is taken over as it stands. As many zeros as stand before the point are the least whole digits
/// ("00", "000000"), those behind the point are the decimals. A minus sign stands right before the first
/// digit, so "   0" gives "   -5". An empty pattern is the general number format; a pattern without a zero is
/// the answer itself.
std::string formatNumber(double value, std::string_view pattern);

/// The general number format: as many digits as the number has, 15 at most, without closing zeros ("2500",
/// "0.1"); with an exponent of at least two digits from 1E+15 up and below 0.0001 ("1.5E-05").
std::string formatGeneral(double value);

/// The number as text with a leading blank: the general number format without a zero before the point; a
/// blank takes the place of the sign where none is needed (" 12", " .5", "-.5", " 0").
std::string formatWithBlank(double value);

}  // namespace korvin
