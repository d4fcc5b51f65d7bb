#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "frame/bereich.h"
#include "frame/drawing_surface.h"
#include "straightness/achsen_kurve.h"

namespace korvin {

// Colours of the axis diagram.
inline constexpr Farbe FarbeAchsenGrund = 0xFFFFFF;   ///< light, also on a dark desktop
inline constexpr Farbe FarbeAchsenGitter = 0xC0C0C0;  ///< grid
inline constexpr Farbe FarbeAchsenLinie = 0x808080;   ///< zero line, end of the line, bands
inline constexpr Farbe FarbeAchsenText = 0x404040;
inline constexpr Farbe FarbeKurve = 0x0000FF;         ///< from value to value: red
inline constexpr Farbe FarbeUeberbrueckt = 0x00FFFF;  ///< over open points: yellow
inline constexpr Farbe FarbeCursor = 0x000000;

/// A row of values below the diagram.
struct AchsenZeile {
  std::string anfang;  ///< at the left edge
  std::string ende;    ///< behind the last value, as far as it belongs to it with a blank before
};

/// How the frame is labelled. As it stands it is the screen's way; paper's is `achsenPapierRahmen`.
struct AchsenBeschriftung {
  AchsenZeile punkte{"", " [MP]"};  ///< numbers of the points
  std::optional<AchsenZeile> z;     ///< a row of their z below them
  double mmJeEinheit = 1;           ///< of that row: 1 mm, 25.4 inch
  /// The half range as the heights tell it, with one decimal at least: 20 for "±20um". 0: they tell it in the
  /// unit of the data.
  double R = 0;
};

/// What stands still while a line is measured.
struct AchsenRahmen {
  double R = 1;               ///< half range, in the unit shown
  double Distanz = 1;         ///< length of the line, mm
  std::span<const double> z;  ///< z of the points in mm, from index 1
  std::int16_t AnzMPs = 0;    ///< number of points
  bool Gitter = true;         ///< grid lines; without it the vertical ones stay, unless `umrahmt`
  std::string einheit;        ///< of the heights: "mm" or "mil"; on paper that of the range's label
  AchsenBeschriftung beschriftung{};
  bool umrahmt = false;  ///< a frame round the plot, whatever `Gitter` is
};

/// One curve with its colours.
struct AchsenKurve {
  KurvenWerte werte;
  Farbe farbe = FarbeKurve;
  Farbe farbeUeberbrueckt = FarbeUeberbrueckt;
  bool punkte = false;  ///< a disc on each value inside the range
};

/// A line across the diagram from the first point to the last, with a short text beside it. Beyond the range
/// it is left out.
struct AchsenZusatzlinie {
  enum class Seite { links, rechts };

  double hoehe = 0;  ///< in the unit shown
  std::string text;  ///< "x", "s", "R", "t"
  LineStyle art = LineStyle::dashed;
  Farbe farbe = FarbeAchsenLinie;
  Seite seite = Seite::rechts;
};

/// A point of the zero line that the evaluation refers to.
struct AchsenMarke {
  double z = 0;
  std::string text;  ///< "Ref1", "Ref2"
  Farbe farbe = FarbeKurve;
};

/// What changes with each value.
struct AchsenInhalt {
  std::vector<AchsenMarke> marken;
  std::vector<AchsenZusatzlinie> linien;
  std::vector<AchsenKurve> kurven;
  std::optional<double> cursorZ;  ///< z of the current point
};

/// The diagram of an axis: z along the line to the right, deviations upward. It is handed what it shows, in
/// the units shown (deviations mm or mil, z mm), and evaluates nothing. Drawn in two layers, each on a
/// surface with the window `achsenFenster`.

/// Makes `rahmen` that of paper: a frame round the plot, heights in the unit of the label of `bereich`, and,
/// with `mitZ`, the z of the points in mm or inch (`Masssystem` 1) below their numbers.
void achsenPapierRahmen(AchsenRahmen& rahmen, const DiagrammBereich& bereich, bool mitZ, int Masssystem);

/// Data coordinates of the picture's corners. A line without a length counts as 1 mm long.
DataWindow achsenFenster(const AchsenRahmen& rahmen);

/// Clears the picture and draws grid, points, labels and unit.
void achsenRahmenZeichnen(DrawingSurface& surface, const AchsenRahmen& rahmen);
/// Draws all the rest.
void achsenInhaltZeichnen(DrawingSurface& surface, const AchsenRahmen& rahmen, const AchsenInhalt& inhalt);

}  // namespace korvin
