#pragma once

#include "frame/posix_file_system.h"

namespace korvin::test {

/// The real file system without the flush to the disk, which nothing but a power cut could tell from it; so
/// that thousands of saves take seconds. Whether a save flushes what it must is the power-cut tests' matter.
class UnflushedFileSystem : public PosixFileSystem {
 public:
  int sync(int) override { return 0; }
  int syncFolder(const std::string& path) override {
    FileInfo info;
    return infoOf(path, info);
  }
};

}  // namespace korvin::test
