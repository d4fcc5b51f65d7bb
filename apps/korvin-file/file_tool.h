#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "frame/clock.h"
#include "frame/file_system.h"
#include "reports/bericht.h"

namespace korvin::file {

/// What the tool works with.
struct Surroundings {
  FileSystem& files;
  std::function<bool(std::string_view bytes)> print;    ///< to standard output; false if that failed
  std::function<void(std::string_view line)> complain;  ///< a line to standard error
  std::vector<std::string> dictionaryPaths;             ///< where a dictionary is looked for, in order
  const Clock& clock;
  /// The bytes of a report's PDF; `language` 0 to 7. Throws `std::exception`.
  std::function<std::string(const Bericht& report, int language)> pdf;
};

/// Runs the tool with its arguments (without the program's name). Answers the exit status: 0 all went well, 1
/// a file is bad or a result could not be written, 2 wrong use, and then nothing was done.
int runFileTool(const std::vector<std::string>& arguments, const Surroundings& surroundings);

}  // namespace korvin::file
