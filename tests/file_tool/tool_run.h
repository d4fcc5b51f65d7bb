#pragma once

#include <string>
#include <vector>

#include "korvin-file/file_tool.h"
#include "support/recording_drucker.h"
#include "support/test_clock.h"
#include "support/test_files.h"
#include "support/unflushed_file_system.h"

namespace korvin::test {

/// In place of a PDF: the texts of the report, a line each, "page: text".
inline std::string textsOf(const Bericht& report, int /*language*/) {
  RecordingDrucker drucker;
  report.drucken(drucker);
  std::string texts;
  for (const DruckMarke& mark : drucker.alle) {
    if (mark.art == DruckMarke::Art::text) texts += std::to_string(mark.seite) + ": " + mark.text + "\n";
  }
  return texts;
}

/// Runs the tool in process and keeps what it printed.
class ToolRun {
 public:
  explicit ToolRun(FileSystem& files) : files_(files) {}
  ToolRun() : files_(system_) {}

  int operator()(const std::vector<std::string>& arguments) {
    output.clear();
    errors.clear();
    const auto print = [this](std::string_view bytes) {
      output += bytes;
      return !outputFull;
    };
    const auto complain = [this](std::string_view line) { errors.append(line).append("\n"); };
    return file::runFileTool(arguments, {files_, print, complain, dictionaryPaths, clock, pdf});
  }

  std::string output;
  std::string errors;
  TestClock clock;
  std::function<std::string(const Bericht&, int)> pdf = textsOf;
  bool outputFull = false;  ///< standard output takes nothing
  std::vector<std::string> dictionaryPaths{KORVIN_BIN "/korvin.mdb"};

 private:
  UnflushedFileSystem system_;
  FileSystem& files_;
};

/// "point.O" of the reference in `folder`, with its points.
inline std::string referenceIn(const TestFolder& folder) {
  folder.copyOf("reference/point.O1");
  return folder.copyOf("reference/point.O");
}

}  // namespace korvin::test
