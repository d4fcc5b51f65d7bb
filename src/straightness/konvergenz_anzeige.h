#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "frame/settings_defaults.h"
#include "straightness/adaptiv.h"
#include "straightness/konvergenz_diagramm.h"
#include "straightness/record.h"

namespace korvin {

/// True while the user wants to see the diagram; changed by the windows that show it.
inline constexpr Einstellung KonvergenzAnzeige{"MessInfo_G", "KonvergenzAnzeige", "-1"};

/// What an adaptive point aims at, and how far it is. Lengths in mm, times in seconds since its start.
struct KonvergenzZiel {
  double X_Genauigkeit = 0;  ///< required half width; 0 or less: none
  double Y_Genauigkeit = 0;
  double MinEnde = 0;  ///< before it the point is not accepted
  double MaxEnde = 0;  ///< when the time is up; moves out with each extension
  double jetzt = 0;    ///< the last answer, also where it was no sample
};

/// Before the first point the times are those that are set.
KonvergenzZiel konvergenzZiel(const AdaptZustand& zustand, const AdaptVorgaben& vorgaben);

/// What the convergence diagram shows of an adaptive point. `Masssystem` 1 is mil, any other number mm.

/// The frame. Its ranges only grow while a point goes on, so that it stands still most of the time. Half
/// widths are shown from half the smaller requirement to ten times the larger one at least, and from a
/// twentieth to the hundredfold at most; without any requirement around 0.01 mm. Time is shown to a little
/// beyond its end, or beyond the last answer. `gefordert` is the word of the requirement, UTF-8.
KonvergenzRahmen konvergenzRahmen(const KonvergenzZiel& ziel, std::span<const AdaptVerlauf> verlauf,
                                  std::int16_t Masssystem, const std::string& gefordert);
KonvergenzInhalt konvergenzInhalt(const KonvergenzZiel& ziel, std::span<const AdaptVerlauf> verlauf,
                                  std::int16_t Masssystem);

}  // namespace korvin
