#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace korvin {

/// The half ranges of diagrams. Every half range is a rung of one of two ladders, 0.001 mm to 20 mm or 0.02
/// mil to 1000 mil; `Masssystem` chooses the ladder (1 inch, any other number metric) and is the unit of all
/// lengths here.

/// A half range as a diagram shows it.
struct DiagrammBereich {
  double bereich;         ///< half range, mm or mil
  double schritt;         ///< distance of two grid lines: a fifth of the half range
  std::string_view text;  ///< label: "±5um", "±0.2mil"
};

/// The unit that the label tells, "um", "mm", "mil" or "in", and the half range in it.
std::string_view bereichsEinheit(const DiagrammBereich& bereich);
double bereichsZahl(const DiagrammBereich& bereich);

/// The smallest rung that isn't below `wert`. Above the ladder it is the top rung (such points lie outside
/// the diagram); 0, negative values and NaN give the bottom rung.
DiagrammBereich bereichAnpassen(double wert, int Masssystem);

/// The next lower half range. From a rung it goes down to the lowest but one; a value between two rungs falls
/// to the rung below it, and the bottom stays.
double bereichKleiner(double bereich, int Masssystem);

/// The next higher half range; the top stays.
double bereichGroesser(double bereich, int Masssystem);

/// What the diagram of an axis has to hold, not yet on a rung: `Bereich` if `BereichHand` is set; else the
/// highest distance of a value from `Offset`, 0.001 at least. `werte` is a counted array: element 0 holds the
/// number of points, point n is at index n; the empty value is skipped. Throws `std::out_of_range` if the
/// count exceeds the array.
double bereichDerAchse(bool BereichHand, double Bereich, double Offset, std::span<const double> werte);

}  // namespace korvin
