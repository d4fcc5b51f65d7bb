#pragma once

#include <cerrno>
#include <cstddef>

#include "support/unflushed_file_system.h"

namespace korvin::test {

/// What a `Faulty` file system throws where the process is to die.
struct Died {};

/// A file system with faults: one call, or all calls from one on, fail with a number, or the process dies at
/// it. Counts all calls.
template <class Base>
class Faulty : public Base {
 public:
  using Base::Base;
  using Open = FileSystem::Open;

  int calls = 0;                 ///< calls so far
  int failAt = 0;                ///< the call that fails, counted from 1; 0: none
  int number = EIO;              ///< its errno
  bool stays = false;            ///< all calls from there on fail
  int dieAt = 0;                 ///< the call at which the process dies (`Died`); 0: it lives
  std::size_t mostPerWrite = 0;  ///< short writes: bytes taken at once, 0 for all

  int open(const std::string& path, Open how, std::uint32_t permissions) override {
    return strikes() ? -number : Base::open(path, how, permissions);
  }
  long read(int file, std::span<std::byte> to) override { return strikes() ? -number : Base::read(file, to); }
  long write(int file, std::span<const std::byte> from) override {
    if (strikes()) return -number;
    if (mostPerWrite != 0 && from.size() > mostPerWrite) from = from.first(mostPerWrite);
    return Base::write(file, from);
  }
  int sync(int file) override { return strikes() ? -number : Base::sync(file); }
  int close(int file) override {
    // The handle is gone even where closing tells of a failure.
    const int result = Base::close(file);
    return fails() ? -number : result;  // closing happens in destructors too, so no process dies there
  }
  int lock(int file) override { return strikes() ? -number : Base::lock(file); }
  int info(int file, FileInfo& to) override { return strikes() ? -number : Base::info(file, to); }
  int setPermissions(int file, std::uint32_t permissions) override {
    return strikes() ? -number : Base::setPermissions(file, permissions);
  }
  int setOwner(int file, std::uint32_t owner, std::uint32_t group) override {
    return strikes() ? -number : Base::setOwner(file, owner, group);
  }
  int infoOf(const std::string& path, FileInfo& to) override {
    return strikes() ? -number : Base::infoOf(path, to);
  }
  int mayWrite(const std::string& path) override { return strikes() ? -number : Base::mayWrite(path); }
  int readLink(const std::string& path, std::string& to) override {
    return strikes() ? -number : Base::readLink(path, to);
  }
  int link(const std::string& from, const std::string& to) override {
    return strikes() ? -number : Base::link(from, to);
  }
  int rename(const std::string& from, const std::string& to) override {
    return strikes() ? -number : Base::rename(from, to);
  }
  int remove(const std::string& path) override { return strikes() ? -number : Base::remove(path); }
  int syncFolder(const std::string& path) override { return strikes() ? -number : Base::syncFolder(path); }

 private:
  /// Counts a call and tells if it fails.
  bool fails() {
    ++calls;
    return failAt != 0 && (calls == failAt || (stays && calls > failAt));
  }
  bool strikes() {
    const bool failing = fails();
    if (calls == dieAt) throw Died{};
    return failing;
  }
};

using FaultyFileSystem = Faulty<UnflushedFileSystem>;

}  // namespace korvin::test
