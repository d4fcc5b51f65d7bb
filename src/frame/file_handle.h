#pragma once

#include <span>

#include "frame/file_system.h"

namespace korvin {

/// An open file that closes itself.
class FileHandle {
 public:
  FileHandle() = default;
  FileHandle(FileSystem& system, int file) : system_(&system), file_(file) {}
  ~FileHandle() { close(); }
  FileHandle(FileHandle&& other) noexcept : system_(other.system_), file_(other.release()) {}
  FileHandle& operator=(FileHandle&& other) noexcept {
    close();
    system_ = other.system_;
    file_ = other.release();
    return *this;
  }

  /// The handle, or minus the error number that opening gave.
  int get() const { return file_; }
  bool isOpen() const { return file_ >= 0; }

  /// 0, or minus the error number. A handle that isn't open closes well.
  int close() {
    const int file = release();
    return file >= 0 ? system_->close(file) : 0;
  }

 private:
  int release() {
    const int file = file_;
    file_ = -1;
    return file;
  }

  FileSystem* system_ = nullptr;
  int file_ = -1;
};

}  // namespace korvin
