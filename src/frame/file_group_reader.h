#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "frame/file_error.h"
#include "frame/file_handle.h"

namespace korvin {

/// Reads files that were saved together, all from the same save: a save that was cut off is brought to its
/// end first, and one that another program makes meanwhile is waited for. Nothing is created where a file is
/// missing.
class FileGroupReader {
 public:
  /// Opens all `paths`, in the order in which they were saved.
  FileGroupReader(FileSystem& system, const std::vector<std::string>& paths);

  /// Why file `index` cannot be read; none if it can.
  const FileError& error(std::size_t index) const { return files_.at(index).error; }

  /// Length in bytes; 0 for a file that cannot be read.
  std::uint64_t size(std::size_t index) const { return files_.at(index).info.size; }

  /// Fills `to` with the next bytes of file `index`. An error, also if fewer bytes come.
  FileError read(std::size_t index, std::span<std::byte> to);

 private:
  struct File {
    std::string path;
    FileHandle handle;
    FileInfo info;
    FileError error;
  };

  void open(File& file);
  /// True if no save came between the openings of the files.
  bool allCurrent();
  /// No file can be read.
  void refuse(const FileError& error);

  FileSystem& system_;
  std::vector<File> files_;
};

}  // namespace korvin
