#pragma once

#include <cstdint>
#include <string>

#include "frame/file_error.h"
#include "frame/file_group_reader.h"
#include "frame/file_system.h"
#include "straightness/older_forms.h"
#include "straightness/record.h"

namespace korvin {

/// Why a straightness measurement could not be read.
struct StraightnessReadError {
  enum class Kind {
    none,
    unreadable,     ///< `file` tells why
    unknownForm,    ///< the length belongs to no form
    tooManyPoints,  ///< counts more points than its form holds, or what is no count
    noSuchPoint,    ///< cursor or reference point lie outside of every series
    notANumber,     ///< NaN or infinite, where a number that is worked with should stand
  };
  Kind kind = Kind::none;
  FileError file;

  explicit operator bool() const { return kind != Kind::none; }
};

/// Reads a straightness measurement of any form. It shows nothing and asks nothing.
class StraightnessReader {
 public:
  /// Opens the file. `name` in UTF-8. Nothing is created where there is no file.
  StraightnessReader(FileSystem& system, const std::string& name) : files_(system, {name}) {}

  /// Why the file cannot be opened; none if it can.
  const FileError& error() const { return files_.error(0); }
  /// Length in bytes; 0 for a file that cannot be opened.
  std::uint64_t length() const { return files_.size(0); }
  /// True unless the file has the length of the present form.
  bool otherLength() const { return length() != recordSize<GeradDatei>(); }

  /// Reads the measurement into `image`, once. One of an older form leaves in `image` what it does not give
  /// (see older_forms.h). After a failure `image` is as before.
  StraightnessReadError read(GeradDatei& image);
  /// Reads the measurement as it lies in the file, once. After a failure `form` is as before.
  StraightnessReadError readForm(GeladeneForm& form);

 private:
  template <class Form>
  StraightnessReadError readRecord(Form& record);

  FileGroupReader files_;
};

}  // namespace korvin
