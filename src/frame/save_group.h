#pragma once

#include <string>
#include <vector>

#include "frame/file_system.h"

namespace korvin {

/// A file that is saved, and the two names beside it that a save works with.
struct SaveNames {
  std::string target;  ///< the file itself, behind all symbolic links
  std::string fresh;   ///< its new content until the save is complete
  std::string old;     ///< a second name of its old content while several files are exchanged
};

/// The files of one save, which belong together. Every save of the same files gives the same names, so a save
/// that was cut off is found again by its targets alone; nothing that stands in a file leads to other files.
struct SaveGroup {
  std::vector<SaveNames> files;
  std::string journal;  ///< beside the first target; there as long as any of the names beside may be
  std::vector<std::string> folders;  ///< that hold targets, each once

  /// Follows the links of `paths`. 0, or minus the error number.
  static int of(FileSystem& system, const std::vector<std::string>& paths, SaveGroup& group);
};

/// The folder part of a path; "." if it has none.
std::string folderOf(const std::string& path);

/// A hidden name in the folder of `path`: a point, its last name and `ending`; shortened, with a number that
/// stands for the whole, if file systems would refuse its length.
std::string besideName(const std::string& path, const std::string& ending);

}  // namespace korvin
