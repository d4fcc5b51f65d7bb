#pragma once

#include <cstddef>

#include "frame/posix_file_system.h"

namespace korvin::test {

/// What `FaultyFileSystem` throws where the process is to die.
struct Died {};

/// The real file system with faults: one call, or all calls from one on, fail with a number, or the process
/// dies at it. Counts all calls that a fault can strike.
class FaultyFileSystem : public PosixFileSystem {
 public:
  int calls = 0;                 ///< calls so far
  int failAt = 0;                ///< the call that fails, counted from 1; 0: none
  int number = 0;                ///< its errno; 0: the process dies (`Died`)
  bool stays = false;            ///< all calls from there on fail
  std::size_t mostPerWrite = 0;  ///< short writes: bytes taken at once, 0 for all

  int open(const std::string& path, Open how, std::uint32_t permissions) override {
    return strikes() ? -number : PosixFileSystem::open(path, how, permissions);
  }
  long read(int file, std::span<std::byte> to) override {
    return strikes() ? -number : PosixFileSystem::read(file, to);
  }
  long write(int file, std::span<const std::byte> from) override {
    if (strikes()) return -number;
    if (mostPerWrite != 0 && from.size() > mostPerWrite) from = from.first(mostPerWrite);
    return PosixFileSystem::write(file, from);
  }
  int sync(int file) override { return strikes() ? -number : PosixFileSystem::sync(file); }
  int close(int file) override {
    // The handle is gone even where closing tells of a failure.
    const int result = PosixFileSystem::close(file);
    return strikesClosing() ? -number : result;
  }
  int lock(int file) override { return strikes() ? -number : PosixFileSystem::lock(file); }
  int info(int file, FileInfo& to) override { return strikes() ? -number : PosixFileSystem::info(file, to); }
  int setPermissions(int file, std::uint32_t permissions) override {
    return strikes() ? -number : PosixFileSystem::setPermissions(file, permissions);
  }
  int infoOf(const std::string& path, FileInfo& to) override {
    return strikes() ? -number : PosixFileSystem::infoOf(path, to);
  }
  int mayWrite(const std::string& path) override {
    return strikes() ? -number : PosixFileSystem::mayWrite(path);
  }
  int link(const std::string& from, const std::string& to) override {
    return strikes() ? -number : PosixFileSystem::link(from, to);
  }
  int rename(const std::string& from, const std::string& to) override {
    return strikes() ? -number : PosixFileSystem::rename(from, to);
  }
  int remove(const std::string& path) override { return strikes() ? -number : PosixFileSystem::remove(path); }
  int syncFolder(const std::string& path) override {
    return strikes() ? -number : PosixFileSystem::syncFolder(path);
  }

 private:
  bool due() {
    ++calls;
    return failAt != 0 && (calls == failAt || (stays && calls > failAt));
  }
  bool strikes() {
    if (!due()) return false;
    if (number == 0) throw Died{};
    return true;
  }
  /// Closing happens in destructors too, so no process dies there.
  bool strikesClosing() { return due() && number != 0; }
};

}  // namespace korvin::test
