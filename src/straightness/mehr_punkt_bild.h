#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "frame/drawing_surface.h"
#include "straightness/mehr_punkt.h"

namespace korvin {

// Colours of the picture of a multi-point measurement.
inline constexpr Farbe FarbePosition = 0x8B0000;         ///< positions: dark blue
inline constexpr Farbe FarbeKreis = 0x0000FF;            ///< the fitted circle: red
inline constexpr Farbe FarbeMitte = 0x000000;            ///< the centre
inline constexpr Farbe FarbeGedreht = 0x50A050;          ///< angles that are done: green
inline constexpr Farbe FarbeNaechsterWinkel = 0x0060E0;  ///< the angle to turn to: orange
inline constexpr Farbe FarbeTeilkreis = 0xB0B0B0;        ///< the dial and the angles to come

/// What the picture shows: in the middle the positions as they lie, with the fitted circle and its centre;
/// round them a dial with the angles, of which the next one to turn to stands out. The dial tells the turning
/// of the head, from the top to the right; where the beam goes meanwhile is its own matter.
struct MehrPunktBild {
  int Soll = 3;
  int Ist = 0;
  std::vector<int> winkel;            ///< of each position to be taken, degrees
  std::vector<DataPoint> positionen;  ///< mm or mil, X to the right, Y upward
  std::optional<DataPoint> mitte;     ///< the centre, in the same unit
  double radius = 0;                  ///< of the fitted circle; 0 without one
  DataPoint ursprung;                 ///< middle of the picture
  double bereich = 1;                 ///< what the picture holds around it, to every side
  std::string bereichText;            ///< the same as text: "±0.1234 mm"
  std::vector<std::string> hinweise;  ///< of each position: "MP 2", its X and its Y
  std::string radiusText;             ///< "r 0.1234 mm"; empty without a circle
};

/// `Masssystem` 1 is inch.
MehrPunktBild mehrPunktBild(const MehrPunkt& messung, std::int16_t Masssystem);

/// Data coordinates of the picture's corners; it is square.
DataWindow mehrPunktFenster(const MehrPunktBild& bild);

/// Clears the picture and draws the dial and the labels.
void mehrPunktRahmenZeichnen(DrawingSurface& surface, const MehrPunktBild& bild);
/// Draws positions, circle and centre.
void mehrPunktInhaltZeichnen(DrawingSurface& surface, const MehrPunktBild& bild);

/// The position nearest to `stelle`, from 0, if it is near: within 1/20 of the range.
std::optional<std::size_t> positionBei(const MehrPunktBild& bild, DataPoint stelle);

}  // namespace korvin
