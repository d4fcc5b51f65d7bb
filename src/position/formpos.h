#pragma once

#include <cstdint>
#include <string>

#include "position/point_store.h"
#include "position/record.h"

namespace korvin {

/// The module `FORMPOS`: the position measurement in work, and beside it the image that the file operations
/// read and write. Outlives the windows. Lengths are in the unit in force when they were measured, mm or mil.
class FORMPOS {
 public:
  PositionsDatei& arbeit() { return arbeit_; }
  const PositionsDatei& arbeit() const { return arbeit_; }
  PositionsInfo& Info() { return arbeit_.Info; }
  const PositionsInfo& Info() const { return arbeit_.Info; }
  PointStore& punkte() { return punkte_; }
  const PointStore& punkte() const { return punkte_; }

  /// The image of the file last loaded or saved. Saving takes the points of the measurement, loading fills
  /// them.
  PositionsDatei& bild() { return bild_; }
  const PositionsDatei& bild() const { return bild_; }

  /// Path of the file last loaded or saved, as it was chosen, UTF-8; the record may tell another one, since a
  /// file that was moved keeps the path of its saving. Empty before the first.
  std::string& dateiGewaehlt() { return dateiGewaehlt_; }
  const std::string& dateiGewaehlt() const { return dateiGewaehlt_; }

  /// No points: cursor, count and statistics back to their start values, statistics switches off.
  void messungLoeschen();

  /// Takes `Aktuell` of both axes as a new point at the moment `jetzt` (days since 30 December 1899). Never
  /// allocates. Beyond the limit of 29999 points nothing is taken; `RestMP` falls even then.
  void punktHinzufuegen(double jetzt);

  /// Sums and extremes anew from all points, after an offset has changed.
  void statistikNeu();

  /// Copies the working record into the image, before saving.
  void bildFuellen() { bild_ = arbeit_; }
  /// Copies the image into the working record, when a window shows a loaded file.
  void bildUebernehmen() { arbeit_ = bild_; }

 private:
  PositionsDatei arbeit_;
  PositionsDatei bild_;
  PointStore punkte_;
  std::string dateiGewaehlt_;
};

}  // namespace korvin
