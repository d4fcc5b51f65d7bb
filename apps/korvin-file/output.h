#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "frame/file_system.h"
#include "korvin-file/file_options.h"

namespace korvin::file {

/// Where the results go: one path for each of the files, in their order; empty for standard output. `ending`
/// is what a result's name gets behind that of its file in a folder, as ".csv"; `joined` if several results
/// may follow each other in one output. Throws `OptionError` for what would mix results, write two of them to
/// one place, or write over a measuring file.
std::vector<std::string> resultPaths(FileSystem& files, const FileOptions& options, std::string_view ending,
                                     bool joined);

/// Saves a result. Throws `std::runtime_error` with what went wrong and what stands there now.
void saveResult(FileSystem& files, const std::string& path, std::string_view bytes);

}  // namespace korvin::file
