#include "frame/posix_file_system.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <climits>
#include <cstdio>
#include <thread>

namespace korvin {
namespace {

/// The answer of a system call, taken up again as long as signals interrupt it.
template <class Call>
auto answer(Call call) {
  auto result = call();
  while (result == -1 && errno == EINTR) result = call();
  return result == -1 ? static_cast<decltype(result)>(-errno) : result;
}

int flagsOf(FileSystem::Open how) {
  switch (how) {
    case FileSystem::Open::createNew:
      return O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC;
    case FileSystem::Open::update:
      return O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
    case FileSystem::Open::updatePresent:
      return O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
    case FileSystem::Open::read:
      break;
  }
  return O_RDONLY | O_NONBLOCK | O_CLOEXEC;
}

FileInfo infoFrom(const struct stat& status) {
  FileInfo info;
  info.regular = S_ISREG(status.st_mode);
  info.folder = S_ISDIR(status.st_mode);
  info.permissions = status.st_mode & 07777U;
  info.owner = status.st_uid;
  info.group = status.st_gid;
  info.size = static_cast<std::uint64_t>(status.st_size);
  info.device = status.st_dev;
  info.number = status.st_ino;
  return info;
}

}  // namespace

int PosixFileSystem::open(const std::string& path, Open how, std::uint32_t permissions) {
  return answer([&] { return ::open(path.c_str(), flagsOf(how), permissions); });
}

long PosixFileSystem::read(int file, std::span<std::byte> to) {
  return answer([&] { return ::read(file, to.data(), to.size()); });
}

long PosixFileSystem::write(int file, std::span<const std::byte> from) {
  return answer([&] { return ::write(file, from.data(), from.size()); });
}

int PosixFileSystem::sync(int file) {
  return answer([&] { return ::fsync(file); });
}

int PosixFileSystem::close(int file) {
  // Not repeated: the handle is gone even if a signal interrupted the call.
  return ::close(file) == -1 && errno != EINTR ? -errno : 0;
}

int PosixFileSystem::lock(int file) {
  using namespace std::chrono_literals;
  // Looked for often at first: a program that saves again and again leaves short gaps only.
  const auto end = std::chrono::steady_clock::now() + 2s;
  auto between = 20us;
  while (true) {
    const int result = answer([&] { return ::flock(file, LOCK_EX | LOCK_NB); });
    if (result != -EWOULDBLOCK || std::chrono::steady_clock::now() > end) return result;
    std::this_thread::sleep_for(between);
    between = std::min<std::chrono::microseconds>(between * 2, 1ms);
  }
}

int PosixFileSystem::info(int file, FileInfo& to) {
  struct stat status {};
  const int result = answer([&] { return ::fstat(file, &status); });
  if (result == 0) to = infoFrom(status);
  return result;
}

int PosixFileSystem::setPermissions(int file, std::uint32_t permissions) {
  return answer([&] { return ::fchmod(file, permissions); });
}

int PosixFileSystem::setOwner(int file, std::uint32_t owner, std::uint32_t group) {
  return answer([&] { return ::fchown(file, owner, group); });
}

int PosixFileSystem::infoOf(const std::string& path, FileInfo& to) {
  struct stat status {};
  const int result = answer([&] { return ::stat(path.c_str(), &status); });
  if (result == 0) to = infoFrom(status);
  return result;
}

int PosixFileSystem::mayWrite(const std::string& path) {
  return answer([&] { return ::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS); });
}

int PosixFileSystem::readLink(const std::string& path, std::string& to) {
  std::array<char, PATH_MAX> buffer{};
  const ssize_t length = answer([&] { return ::readlink(path.c_str(), buffer.data(), buffer.size()); });
  if (length < 0) return static_cast<int>(length);
  to.assign(buffer.data(), static_cast<std::size_t>(length));
  return 0;
}

int PosixFileSystem::link(const std::string& from, const std::string& to) {
  return answer([&] { return ::link(from.c_str(), to.c_str()); });
}

int PosixFileSystem::rename(const std::string& from, const std::string& to) {
  return answer([&] { return ::rename(from.c_str(), to.c_str()); });
}

int PosixFileSystem::remove(const std::string& path) {
  return answer([&] { return ::unlink(path.c_str()); });
}

int PosixFileSystem::syncFolder(const std::string& path) {
  const int folder = answer([&] { return ::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); });
  if (folder == -EACCES) return 0;  // may be written but not listed: it cannot be flushed by hand
  if (folder < 0) return folder;
  const int result = sync(folder);
  close(folder);
  // Some network and user-space file systems know no flush of a folder.
  return result == -EINVAL || result == -ENOTSUP ? 0 : result;
}

}  // namespace korvin
