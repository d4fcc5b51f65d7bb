#pragma once

#include <cstdint>
#include <string>

#include "straightness/record.h"

namespace korvin {

/// No readings, and the points at even distances again, point 1 at 0, the last at `Distanz`; reference points
/// and cursor to the ends, statistics switches off. Takes `AnzMPs` and `Distanz` of the series; both axes
/// count `AnzMPs` points afterwards. Changes nothing and throws `std::domain_error` for a single point, whose
/// step would divide by zero, and `std::out_of_range` if `AnzMPs` isn't 0 to 201.
void ReiheLeeren(GeradReihe& reihe);

/// z of a point in mm. Throws `std::out_of_range` outside 0 to 201.
double ZWert(const LinienGeometrie& linie, std::int16_t punkt);

/// The module `FORMGERA`: the straightness series in work, and beside it the image that the file operations
/// read and write. Outlives the windows. Lengths and readings are in mm in every system of units.
class FORMGERA {
 public:
  GeradReihe& reihe() { return reihe_; }
  const GeradReihe& reihe() const { return reihe_; }

  /// The image of the file last loaded or saved.
  GeradDatei& bild() { return bild_; }
  const GeradDatei& bild() const { return bild_; }

  /// Path of the file last loaded or saved, as it was chosen, UTF-8; the record may tell another one, since a
  /// file that was moved keeps the path of its saving. Empty before the first.
  std::string& dateiGewaehlt() { return dateiGewaehlt_; }
  const std::string& dateiGewaehlt() const { return dateiGewaehlt_; }

  /// Takes a pair of readings in mm, turned for the mounting, at the current point; what stood there is
  /// replaced. Throws `std::out_of_range` if the current point lies outside 1 to 201.
  void punktEintragen(double X, double Y);
  /// How many pairs were taken; runs round at its end.
  std::uint32_t eingetragen() const { return eingetragen_; }

  /// Copies the series into the image, before saving.
  void bildFuellen() { bild_ = reihe_; }
  /// Copies the image into the series, when a window shows a loaded file: it counts as loaded, and the
  /// diagrams are drawn anew.
  void bildUebernehmen();

 private:
  GeradReihe reihe_;
  GeradDatei bild_;
  std::string dateiGewaehlt_;
  std::uint32_t eingetragen_ = 0;
};

}  // namespace korvin
