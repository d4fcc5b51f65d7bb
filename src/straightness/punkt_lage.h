#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "straightness/record.h"

namespace korvin {

/// Where the points of a line lie, and how the user moves the cursor and the points. All lengths in mm.

/// The least distance of two neighbouring points, and how near a press has to come: 1/200 of the line.
double kleinsterPunktabstand(const LinienGeometrie& linie);

/// `PunktWechseln`: moves the cursor by `schritt`, held within 1 and `AnzMPs`. Nothing without points.
void PunktWechseln(LinienGeometrie& linie, int schritt);

/// The point that a press at `z` means: the last that is nearer than 1/200 of the line.
std::optional<std::int16_t> punktBei(const LinienGeometrie& linie, double z);
/// The same for a drag, which the first point takes no part in.
std::optional<std::int16_t> ziehbarerPunktBei(const LinienGeometrie& linie, double z);

/// The point nearest to `z`, if it is no further than `weite`. `Z` holds the points from index 1 on.
std::optional<std::int16_t> naechsterPunkt(std::span<const double> Z, std::int16_t AnzMPs, double z,
                                           double weite);

/// Sets all points at even distances: point i at (i − 1) · `ZSchritt`. Throws `std::out_of_range` if `AnzMPs`
/// exceeds the line.
void punkteVerteilen(LinienGeometrie& linie);

/// Moves a point to `z`, or as near to it as its neighbours and the ends of the line allow: points keep their
/// order and a gap of 1/200 of the line. The first point stays at 0. A point outside 1 to `AnzMPs`, and a `z`
/// that is no finite number, change nothing.
void punktVerschieben(LinienGeometrie& linie, std::int16_t punkt, double z);

}  // namespace korvin
