#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace korvin {

/// Numbers and flags as users and settings write them. The decimal mark in what is written is always the
/// point; a comma is understood on entry.

/// The number at the front of `text`, read leniently: the first comma counts as a point, blanks before the
/// number are passed over, and reading ends at the first character that doesn't belong ("1,5,2" and "1.5 mm"
/// give 1.5). A sign, and an exponent behind E or D, belong. A text without a number gives 0; a number too
/// large to hold gives infinity.
double zahlAusText(std::string_view text);

/// `zahlAusText` as a whole number, halves away from zero, held within the 16 bits of a record's whole
/// numbers.
std::int16_t ganzzahlAusText(std::string_view text);

/// True only if the number of `text` is exactly −1: "-1", " -1 " and "-1.0", but not "1" or "true".
bool flagAusText(std::string_view text);
/// "-1" or "0".
std::string_view FlagText(bool flag);

/// The number pattern for that many decimals of the display: "0.0" for 0, "0.00" for 1, "0.000" for 2,
/// "0.0000" for any other number.
std::string_view ZahlMuster(int NKStellen);
/// What stands in place of a missing number: "-.-" for 0, "-.--" for 1, "-.---" for 2, "-.----" for any other
/// number.
std::string_view LeerMuster(int NKStellen);

/// `value` in the form of `muster`, or `vorgabe` if it is exactly 0.
std::string wertOderVorgabe(double value, std::string_view muster, std::string_view vorgabe);

}  // namespace korvin
