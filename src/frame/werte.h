#pragma once

#include <string>

namespace korvin {

/// `value` held within −`grenze` and +`grenze`; `grenze` is at least 0. NaN stays NaN.
double begrenzen(double grenze, double value);

/// The cursor after a step of `delta`, within 1 and `anzahl`; where there is nothing (`anzahl` 0) it stays as
/// it is.
int cursorSchritt(int cursor, int anzahl, int delta);

/// The character with the code 64 plus `index`, as UTF-8: 1 gives "A". "?" where there is no such code in
/// Windows-1252.
std::string Buchstabe(int index);

}  // namespace korvin
