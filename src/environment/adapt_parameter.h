#pragma once

#include <cstdint>
#include <string>

#include "frame/profil.h"

namespace korvin {

/// The values that an analysis hands to adaptive measuring, as they stand in its panels. Numbers are stored
/// as shown, in mil too, although adaptive measuring reads them as mm.
struct AdaptParameter {
  std::string zeit;    ///< "25 s": `PanelFx(0)`
  std::string FX;      ///< "0.1234": `PanelFx(1)`
  std::string FY;      ///< `PanelFx(2)`
  bool Beta5 = true;   ///< `OptPrio(0)` is chosen
  bool Beta1 = false;  ///< `OptPrio(1)` is chosen
};

/// Seconds: `MessZeitMin` of straightness, where nothing is stored 5. As a whole number.
std::int16_t messZeitMin(Profil& profil);

/// Lifts `FX` and `FY` to "0.0002" where their numbers are below, then writes the settings of adaptive
/// measuring for straightness, parallelism and squareness, each key into `MessInfo_G`, `MessInfo_P` and
/// `MessInfo_R` before the next: `AutoAdapt` (switched on), `X_Genauigkeit`, `Y_Genauigkeit`, `Beta5`,
/// `Beta1`, `MessZeitMin`, `MessZeitMax`.
///
/// `MessZeitMin` becomes the largest of the three stored ones; a shorter `zeit` is lifted to it. Where it is
/// not, `MessZeitMax` gets the text of the panel with its " s". Other numbers have a leading blank and no
/// digit before the point: " .1234", " 8". A write that fails is silent.
void ParameterSpeichern(Profil& profil, AdaptParameter& parameter);

}  // namespace korvin
