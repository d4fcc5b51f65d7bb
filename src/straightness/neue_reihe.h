#pragma once

#include <string>

#include "frame/profil.h"
#include "straightness/record.h"

namespace korvin {

/// A new series as the settings want it, without readings. `messordner` is the folder of the measuring files,
/// UTF-8. A number of points that makes no line (a line has 2 to 201), and a length that is not above 0, give
/// way to 6 points and 2500 mm; a setting that does not fit the record's character set gives way to its
/// default.
GeradReihe neueReihe(Profil& profil, const std::string& messordner);

}  // namespace korvin
