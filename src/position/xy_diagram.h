#pragma once

#include <optional>

#include "frame/drawing_surface.h"
#include "position/axis_extent.h"
#include "position/point_store.h"
#include "position/record.h"
#include "position/xy_frame.h"

namespace korvin {

// Colours of what the diagram shows of the points; those of the frame stand in xy_frame.h.
inline constexpr Farbe FarbeMesspunkt = 0x8B0000;     ///< all points: dark blue
inline constexpr Farbe FarbePunktAktuell = 0x2828D0;  ///< the point under the cursor: red
inline constexpr Farbe FarbeCursorKreis = 0x808080;   ///< the circle round it

/// The XY diagram: where the beam was, X to the right and Y upward, on a square with the half ranges
/// `Bereich` of the two axes. It draws the points of a position measurement less the `Offset` of their axis,
/// in the unit they were measured in (mm or mil).
///
/// A screen keeps three layers: the frame, drawn anew when `bereicheErmitteln` says so; the points on it,
/// each drawn once as it comes; and the mark of the cursor on top, drawn anew each time. Paper draws all of
/// it with `zeichnen`. All pieces but the frame expect the window `fenster` on the surface.
///
/// Record and points are those of the owner and outlive the diagram. It keeps nothing beside them but what
/// spares a pass over all points; who exchanges points without a change of their number or of an offset tells
/// it by `BereichAlt` 0, as `rahmenVerwerfen` sets it.
class XYDiagramm {
 public:
  /// `Masssystem` (1 inch, else metric) chooses the ladder of the ranges.
  XYDiagramm(PositionsDatei& datei, const PointStore& punkte, int Masssystem)
      : datei_(datei), punkte_(punkte), masssystem_(Masssystem) {}

  /// Brings `Bereich` of both axes up to date: the range set by hand, else the one that holds all points.
  /// True if the frame has to be drawn anew, since a range differs from that of the last drawing;
  /// `BereichAlt` then tells the new one. Costs one look at each point that came since the last call. Throws
  /// `std::out_of_range` if element 0 of the points is no count.
  bool bereicheErmitteln();

  /// Data coordinates of the picture's corners for the present ranges.
  DataWindow fenster() const { return xyFenster(datei_.X.Bereich, datei_.Y.Bereich); }

  /// Clears the picture and draws grid, axes and labels.
  void rahmenZeichnen(DrawingSurface& surface, const XYBeschriftung& beschriftung = {}) const;

  /// Draws the points with the numbers `von` to `bis`, each as a circle of 1/125 of the range. What lies
  /// outside the ranges or has no value is left out; numbers outside 1 to `AnzahlMP` are, too.
  void punkteZeichnen(DrawingSurface& surface, int von, int bis) const;
  /// All points, or none with `NurAktuell`: the one under the cursor is then all there is, and comes with its
  /// mark.
  void punkteZeichnen(DrawingSurface& surface) const;
  /// The point under the cursor in its own colour, and the circle of 1/75 of the range round it. Nothing if
  /// it lies outside the ranges or there is none.
  void markeZeichnen(DrawingSurface& surface) const;

  /// The whole picture: frame, points and mark. Ranges are taken as they stand.
  void zeichnen(DrawingSurface& surface, const XYBeschriftung& beschriftung = {}) const;

  /// Ranges and grid as they stand; for the labels of paper, too.
  XYRahmen rahmen() const;

  /// Place of point `nummer` in the diagram, less the offsets, whether inside the ranges or not. Nothing
  /// outside 1 to `AnzahlMP` and for a point without a value.
  std::optional<DataPoint> ort(int nummer) const;
  /// True if a place lies inside the ranges, edges included.
  bool imBereich(DataPoint ort) const;

  /// The point that a press at `klick` means: the first, from 1 upward, that is no further away than 1/50 of
  /// the range along each axis, be there nearer ones or not, and drawn or not.
  std::optional<int> treffer(DataPoint klick) const;
  /// The drawn point nearest to `stelle` within 1/50 of the range, for a hint under the pointer; the later
  /// one of two equally near, since it lies on top.
  std::optional<int> naechster(DataPoint stelle) const;

 private:
  int anzahl() const;

  PositionsDatei& datei_;
  const PointStore& punkte_;
  int masssystem_;
  AxisExtent weiteX_;
  AxisExtent weiteY_;
};

/// The next drawing builds the frame anew. To be called when `Gitter` has changed or the points are others.
void rahmenVerwerfen(PositionsDatei& datei);

/// `M_Gitter`: grid on or off.
void gitterUmschalten(PositionsDatei& datei);

}  // namespace korvin
