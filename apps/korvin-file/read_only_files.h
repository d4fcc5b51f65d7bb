#pragma once

#include <map>
#include <optional>
#include <string>

#include "frame/file_system.h"

namespace korvin::file {

/// The files of `base` to look at only. What changes names (a save that was cut off is brought to its end
/// before its files are read) happens in this view alone, so reading leaves an archive as it is and also
/// works where nothing can be written. Whatever would change a content is refused as on a read-only disk.
class ReadOnlyFiles : public FileSystem {
 public:
  explicit ReadOnlyFiles(FileSystem& base) : base_(base) {}

  /// True if another program changed, behind a name that this view had changed, what lies there; then what
  /// was read may be of two saves. A new view sees the files as they are now.
  bool overtaken() const { return overtaken_; }

  int open(const std::string& path, Open how, std::uint32_t permissions = 0666) override;
  long read(int file, std::span<std::byte> to) override { return base_.read(file, to); }
  long write(int file, std::span<const std::byte> from) override;
  int sync(int) override { return 0; }
  int close(int file) override { return base_.close(file); }
  int lock(int file) override { return base_.lock(file); }
  int info(int file, FileInfo& to) override { return base_.info(file, to); }
  int setPermissions(int file, std::uint32_t permissions) override;
  int setOwner(int file, std::uint32_t owner, std::uint32_t group) override;
  int infoOf(const std::string& path, FileInfo& to) override;
  int mayWrite(const std::string& path) override;
  int readLink(const std::string& path, std::string& to) override { return base_.readLink(path, to); }
  int link(const std::string& from, const std::string& to) override;
  int rename(const std::string& from, const std::string& to) override;
  int remove(const std::string& path) override;
  int syncFolder(const std::string&) override { return 0; }

 private:
  /// What a changed name leads to: a file of the base under its real name, or nothing.
  struct Change {
    std::string realName;  ///< of the file that it leads to; of a name that is gone, its own
    FileInfo file;         ///< what lay there
    bool gone = false;
  };

  const Change* changeOf(const std::string& path) const;
  /// Forgets all changes: the base is no longer what they were made for.
  void fallBack();

  FileSystem& base_;
  std::map<std::string, Change> changes_;
  bool overtaken_ = false;
};

}  // namespace korvin::file
