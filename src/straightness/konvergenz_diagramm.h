#pragma once

#include <array>
#include <string>
#include <vector>

#include "frame/drawing_surface.h"

namespace korvin {

// Colours of the convergence diagram; the two axes differ in lightness, too.
inline constexpr Farbe FarbeKonvergenzX = 0xA85A00;     ///< blue
inline constexpr Farbe FarbeKonvergenzY = 0x1E7AE6;     ///< orange
inline constexpr Farbe FarbeKonvergenzZiel = 0x3C8C1E;  ///< both axes' requirement, green
inline constexpr Farbe FarbeKonvergenzFeld = 0xE9F6E6;  ///< where a point is accepted
inline constexpr Farbe FarbeKonvergenzJetzt = 0xA8A8A8;
inline constexpr Farbe FarbeKonvergenzGitter = 0xE0E0E0;
inline constexpr Farbe FarbeKonvergenzZeit = 0x606060;  ///< marks of the times

/// What stands still from sample to sample. Lengths in the unit shown, times in seconds since the start.
struct KonvergenzRahmen {
  double unten = 0.001;                 ///< lowest half width, above 0
  double oben = 1;                      ///< highest half width, above `unten`
  double ende = 1;                      ///< end of the time axis, above 0
  std::array<double, 2> genauigkeit{};  ///< of X and Y, what is required; 0: nothing
  double MinEnde = 0;
  double MaxEnde = 0;
  std::string einheit;    ///< "mm" or "mil"
  std::string gefordert;  ///< word of the lines of the requirement, UTF-8
  friend bool operator==(const KonvergenzRahmen&, const KonvergenzRahmen&) = default;
};

/// The half widths of both axes over time.
struct KonvergenzInhalt {
  double jetzt = 0;  ///< time of the last answer
  std::vector<double> sekunden;
  std::array<std::vector<double>, 2> K;  ///< of X and Y, in the unit shown; as many as there are times
  std::string muster;                    ///< of their numbers in the legend, "0.0000"
};

/// The diagram of an adaptive point: half widths of the confidence interval upward on a logarithmic axis,
/// time to the right, the requirement as dashed lines, the least and the longest time as marks above the
/// plot. The legend lies below the plot. Data coordinates are seconds and decimal logarithms of the half
/// widths. Evaluates nothing.

/// Clears the picture and draws grid, lines, marks and labels. Sets the window of `surface`; its margins
/// follow the size of the texts.
void konvergenzRahmenZeichnen(DrawingSurface& surface, const KonvergenzRahmen& rahmen);
/// Draws curves, legend and a line at the present time, which runs on where samples fail to come; on the
/// window that the frame has set. A half width beyond the range lies on its edge.
void konvergenzInhaltZeichnen(DrawingSurface& surface, const KonvergenzRahmen& rahmen,
                              const KonvergenzInhalt& inhalt);

/// The half widths that get a grid line and a label, rising: 1, 2 and 5 of each power of ten, or fewer where
/// labels would be closer than `abstand`, a number of decades.
std::vector<double> konvergenzHoehen(double unten, double oben, double abstand);
/// The step of the labels of the time axis, in seconds: 1, 2 or 5 times a power of ten, at least `abstand`.
double konvergenzZeitschritt(double abstand);

}  // namespace korvin
