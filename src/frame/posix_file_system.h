#pragma once

#include "frame/file_system.h"

namespace korvin {

/// The files of the computer.
class PosixFileSystem : public FileSystem {
 public:
  int open(const std::string& path, Open how, std::uint32_t permissions = 0666) override;
  long read(int file, std::span<std::byte> to) override;
  long write(int file, std::span<const std::byte> from) override;
  int sync(int file) override;
  int close(int file) override;
  int lock(int file) override;
  int info(int file, FileInfo& to) override;
  int setPermissions(int file, std::uint32_t permissions) override;
  int setOwner(int file, std::uint32_t owner, std::uint32_t group) override;
  int infoOf(const std::string& path, FileInfo& to) override;
  int mayWrite(const std::string& path) override;
  int readLink(const std::string& path, std::string& to) override;
  int link(const std::string& from, const std::string& to) override;
  int rename(const std::string& from, const std::string& to) override;
  int remove(const std::string& path) override;
  int syncFolder(const std::string& path) override;
};

}  // namespace korvin
