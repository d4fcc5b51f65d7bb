#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "frame/file_error.h"
#include "frame/file_group_reader.h"
#include "frame/file_system.h"
#include "position/point_store.h"
#include "position/record.h"

namespace korvin {

/// Why a position measurement could not be read.
struct PositionReadError {
  enum class Kind {
    none,
    headUnreadable,    ///< `file` tells why
    pointsMissing,     ///< the point file cannot be opened; `file` tells why
    pointsUnreadable,  ///< the point file breaks off while it is read; `file` tells why
    tooManyPoints,     ///< the head counts more points than a measurement holds
    otherCount,        ///< the point file does not hold the points that the head counts
    notANumber,        ///< NaN or infinite, where a number that is worked with should stand
  };
  Kind kind = Kind::none;
  FileError file;

  explicit operator bool() const { return kind != Kind::none; }
};

/// Reads a position measurement: a head file and, with "1" behind its name, the points. It shows nothing and
/// asks nothing. Both files come from the same save.
class PositionReader {
 public:
  /// Opens both files. `name` in UTF-8.
  PositionReader(FileSystem& system, const std::string& name);

  /// The name of the point file of `head`.
  static std::string pointName(const std::string& head) { return head + "1"; }

  /// Why the head cannot be opened; none if it can.
  const FileError& headError() const { return files_.error(0); }
  /// Length of the files in bytes; 0 for one that cannot be opened.
  std::uint64_t headLength() const { return files_.size(0); }
  std::uint64_t pointLength() const { return files_.size(1); }
  /// True if the head is shorter or longer than the record.
  bool otherLength() const { return headLength() != recordSize<PositionsDatei>(); }

  /// Reads the measurement, once. A head of another length is taken as far as it goes; what it lacks is as in
  /// a new record. The head is there even where the points are refused; then `points` may hold anything.
  /// `room` is kept between readings only to spare allocations.
  PositionReadError read(PositionsDatei& head, PointStore& points, std::vector<std::byte>& room);

 private:
  FileGroupReader files_;
};

}  // namespace korvin
