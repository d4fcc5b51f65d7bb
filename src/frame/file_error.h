#pragma once

#include <string>

namespace korvin {

/// What a failed file operation means for the user.
enum class FileErrorKind {
  none,
  notFound,      ///< no such file or folder
  noPermission,  ///< no rights, write-protected file or read-only disk
  noSpace,       ///< disk or quota full
  inputOutput,   ///< the disk or the connection to it fails
  notAFile,      ///< a folder, a device or the like
  nameTooLong,
  busy,  ///< another program is saving the same files
  other,
};

/// A failed file operation as a value; none by default.
struct FileError {
  FileErrorKind kind = FileErrorKind::none;
  int number = 0;    ///< the system's error number (errno)
  std::string path;  ///< the file that the user knows, never one that a save works with beside it

  explicit operator bool() const { return kind != FileErrorKind::none; }

  /// The error with the system's `number`, which isn't 0.
  static FileError ofSystem(int number, std::string path);

  /// The system's words for the error; empty if there is none.
  std::string systemText() const;
};

}  // namespace korvin
