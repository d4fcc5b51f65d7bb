#pragma once

#include <functional>
#include <map>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "frame/file_system.h"

namespace korvin::test {

/// One folder in memory that tells what was flushed from what was not. A power cut keeps what was flushed; of
/// each change to a name since, and of each content since, it keeps or loses any. So it is harder than any
/// real disk: whatever survives here needs no promise but those of `sync` and `syncFolder`. Copies are
/// independent disks.
class PowerCutDisk : public FileSystem {
 public:
  PowerCutDisk() = default;
  PowerCutDisk(const PowerCutDisk& other);
  PowerCutDisk& operator=(const PowerCutDisk& other);

  /// Cuts the power. Nothing that was not flushed survives, or a part chosen by `random`.
  void cut();
  void cut(std::mt19937& random);

  std::vector<std::string> names() const;

  int open(const std::string& path, Open how, std::uint32_t permissions = 0666) override;
  long read(int file, std::span<std::byte> to) override;
  long write(int file, std::span<const std::byte> from) override;
  int sync(int file) override;
  int close(int file) override;
  int lock(int) override { return 0; }
  int info(int file, FileInfo& to) override;
  int setPermissions(int file, std::uint32_t permissions) override;
  int setOwner(int, std::uint32_t, std::uint32_t) override { return 0; }
  int infoOf(const std::string& path, FileInfo& to) override;
  int mayWrite(const std::string& path) override;
  int readLink(const std::string& path, std::string& to) override;
  int link(const std::string& from, const std::string& to) override;
  int rename(const std::string& from, const std::string& to) override;
  int remove(const std::string& path) override;
  int syncFolder(const std::string& path) override;

 private:
  struct File {
    std::vector<std::byte> content;
    std::vector<std::byte> flushed;
    std::uint32_t permissions = 0644;
  };
  using Names = std::map<std::string, std::size_t>;  ///< numbers of `files_`
  struct Handle {
    std::size_t file;
    std::size_t position = 0;
  };

  void change(std::function<void(Names&)> change);
  void lose(const std::function<bool()>& keeps);

  std::vector<File> files_;
  Names names_;
  Names flushedNames_;
  std::vector<std::function<void(Names&)>>
      unflushed_;  ///< changes of names since the last flush, in their order
  std::map<int, Handle> handles_;
  int nextHandle_ = 3;
};

}  // namespace korvin::test
