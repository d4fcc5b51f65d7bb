#pragma once

// How to add a kind of measuring file
//
// 1. One header and one source, as position_kind.h and position_kind.cpp: a class of `MeasuringKind` (what
//    its files are called, how they are read) and a class of `MeasuringFile` (what a file that was read can
//    tell), and a function that gives the one kind:
//
//      const MeasuringKind& parallelKind();
//
// 2. Name that function in `allKinds()`, measuring_kind.cpp.
// 3. Tell of the kind in the manual page (docs/man/korvin-file.1) and in the help (file_help.cpp).
//
// Commands, options, outputs, several files and messages come by themselves. A kind reads through the
// `FileSystem` that it is given, and through nothing else: it is a view that writes nothing.

#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "frame/clock.h"
#include "frame/dictionary.h"
#include "frame/file_error.h"
#include "frame/file_system.h"
#include "korvin-file/value.h"
#include "reports/bericht.h"

namespace korvin::file {

/// Why a file is refused, in words for the user, without the name of the file.
struct FileProblem : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// What the system's error means for a file that is read.
std::string readingTrouble(const FileError& error);

/// In what a measurement is told.
struct Units {
  bool inch = false;           ///< lengths in the inch system; see the kind for what that changes
  double pentaArcseconds = 0;  ///< squareness error of the penta prism
};

/// What a report is made with.
struct ReportMeans {
  Units units;
  std::vector<std::string> parts;  ///< names of `MeasuringKind::reportParts()`, at least one if it has any
  std::string path;                ///< of the measuring file, UTF-8; the report tells its last name
  Dictionary& dictionary;          ///< asked while the report is made, not later
  const Clock& clock;              ///< tells the time of printing; outlives the report
};

/// A measuring file that was read, whole and checked.
class MeasuringFile {
 public:
  virtual ~MeasuringFile() = default;

  /// What is in it, in a few words: "40 points".
  virtual std::string summary() const = 0;
  /// Adds "length", "fields" and what else the kind has to tell to the object that `show` shows.
  virtual void tell(Value& object, const Units& units) const = 0;
  /// The bytes of the text copy, as saving would write them.
  virtual std::string textCopy(const Units& units, Dictionary& dictionary) const = 0;
  /// The table of `csv`: UTF-8, lines end with "\n".
  virtual std::string table(const Units& units) const = 0;
  /// The printed report. It does not need the file any more. Throws `FileProblem` if the kind has none.
  virtual Bericht report(const ReportMeans& means) const = 0;
};

/// A kind of measuring file.
class MeasuringKind {
 public:
  virtual ~MeasuringKind() = default;

  /// "position".
  virtual std::string_view name() const = 0;
  /// Of the head file, ".O"; it is found in capitals and in small letters.
  virtual std::string_view extension() const = 0;
  /// Endings that the files beside a head have behind its name, such as "1".
  virtual std::vector<std::string_view> endingsBeside() const = 0;
  /// Names of the parts of its report, in the order of the pages; none if it has no report.
  virtual std::vector<std::string_view> reportParts() const = 0;
  /// Reads the measurement in `path`. Throws `FileProblem`.
  virtual std::unique_ptr<MeasuringFile> read(FileSystem& files, const std::string& path) const = 0;
};

/// All kinds.
const std::vector<const MeasuringKind*>& allKinds();

/// The kind whose head `path` names; none if it names none.
const MeasuringKind* kindOfHead(std::string_view path);

/// The head to which `path` belongs as a file beside it, as "a.O" of "a.O1"; empty if it is no such file.
std::string headOf(std::string_view path);

/// Reads `path` without leaving a trace, from one save also while another program saves. Throws
/// `FileProblem`, also for what is no measuring file.
std::unique_ptr<MeasuringFile> readMeasuringFile(FileSystem& files, const std::string& path);

}  // namespace korvin::file
