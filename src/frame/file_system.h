#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace korvin {

/// What the system tells about a file.
struct FileInfo {
  bool regular = false;  ///< a plain file
  bool folder = false;
  std::uint32_t permissions = 0;  ///< the lower twelve bits of the mode
  std::uint32_t owner = 0;
  std::uint32_t group = 0;
  std::uint64_t size = 0;  ///< bytes
  std::uint64_t device = 0;
  std::uint64_t number = 0;  ///< tells files of one device apart

  bool sameFile(const FileInfo& other) const { return device == other.device && number == other.number; }
};

/// The system's file calls. A port: the system itself in the program, faults and crashes in tests.
///
/// Every call answers as the kernel does: 0 or more on success, minus the error number (errno) on failure.
/// Paths are the system's bytes, UTF-8 as a rule. An interrupted call is taken up again below this port.
class FileSystem {
 public:
  virtual ~FileSystem() = default;

  enum class Open {
    read,          ///< for reading; never waits, also on a pipe
    createNew,     ///< for writing; fails with EEXIST if the name is taken, by a link too
    update,        ///< for reading and writing, created if missing; follows no link
    updatePresent  ///< the same, only if it is there
  };

  /// A handle. `permissions` count for a file that is created, less the user's mask.
  virtual int open(const std::string& path, Open how, std::uint32_t permissions = 0666) = 0;
  /// The number of bytes read or written; it may be less than asked for. Reading answers 0 at the end.
  virtual long read(int file, std::span<std::byte> to) = 0;
  virtual long write(int file, std::span<const std::byte> from) = 0;
  /// Returns when the content is on the disk.
  virtual int sync(int file) = 0;
  virtual int close(int file) = 0;
  /// Takes the file for this handle alone; other handles wait for a moment, then get -EWOULDBLOCK. Ends with
  /// the handle or the process.
  virtual int lock(int file) = 0;
  virtual int info(int file, FileInfo& to) = 0;
  virtual int setPermissions(int file, std::uint32_t permissions) = 0;
  virtual int setOwner(int file, std::uint32_t owner, std::uint32_t group) = 0;

  /// Of the file that `path` leads to, links followed.
  virtual int infoOf(const std::string& path, FileInfo& to) = 0;
  /// 0 if the user may write the file.
  virtual int mayWrite(const std::string& path) = 0;
  /// Where a symbolic link points to; -EINVAL if `path` is none.
  virtual int readLink(const std::string& path, std::string& to) = 0;
  /// A second name for the same file; fails if it is taken.
  virtual int link(const std::string& from, const std::string& to) = 0;
  /// `to` becomes the file `from` in one step; what was there before is gone.
  virtual int rename(const std::string& from, const std::string& to) = 0;
  virtual int remove(const std::string& path) = 0;
  /// Returns when the names in the folder are on the disk.
  virtual int syncFolder(const std::string& path) = 0;
};

}  // namespace korvin
