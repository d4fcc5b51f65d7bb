#include "korvin-head/pty_line.h"

#include <fcntl.h>
#include <stdlib.h>
#include <sys/inotify.h>
#include <termios.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <system_error>

namespace korvin::head {

namespace {

[[noreturn]] void fail(const char* what) {
  throw std::system_error(errno, std::generic_category(), what);
}

void makeRaw(int fd) {
  termios settings{};
  if (::tcgetattr(fd, &settings) != 0) fail("cannot read the terminal's settings");
  ::cfmakeraw(&settings);
  if (::tcsetattr(fd, TCSANOW, &settings) != 0) fail("cannot set the terminal to raw mode");
}

FileDescriptor watchOf(const std::string& device) {
  FileDescriptor watch(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC));
  if (watch.valid() && ::inotify_add_watch(watch.get(), device.c_str(), IN_OPEN | IN_CLOSE) < 0)
    return FileDescriptor();
  return watch;
}

}  // namespace

PtyLine::PtyLine() : master_(::posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC)) {
  if (!master_.valid()) fail("cannot open a pseudo-terminal");
  std::array<char, 128> name{};
  if (::grantpt(master_.get()) != 0 || ::unlockpt(master_.get()) != 0 ||
      ::ptsname_r(master_.get(), name.data(), name.size()) != 0) {
    fail("cannot prepare the pseudo-terminal");
  }
  device_ = name.data();
  slave_ = FileDescriptor(::open(name.data(), O_RDWR | O_NOCTTY | O_CLOEXEC));
  if (!slave_.valid()) fail("cannot open the pseudo-terminal's device");
  makeRaw(slave_.get());
  watch_ = watchOf(device_);
}

std::string PtyLine::read() {
  std::array<char, 4096> buffer;
  const ssize_t count = ::read(master_.get(), buffer.data(), buffer.size());
  if (count < 0) {
    if (errno == EAGAIN || errno == EINTR) return {};
    fail("cannot read from the pseudo-terminal");
  }
  return {buffer.data(), static_cast<std::size_t>(count)};
}

void PtyLine::write(std::string_view bytes) {
  if (!listenedTo()) return;
  while (!bytes.empty()) {
    const ssize_t count = ::write(master_.get(), bytes.data(), bytes.size());
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) return;
    bytes.remove_prefix(static_cast<std::size_t>(count));
  }
}

long PtyLine::baud() const {
  termios settings{};
  if (::tcgetattr(slave_.get(), &settings) != 0) return 0;
  switch (::cfgetospeed(&settings)) {
    case B9600:
      return 9600;
    case B19200:
      return 19200;
    case B38400:
      return 38400;
    case B57600:
      return 57600;
    case B115200:
      return 115200;
    default:
      return 0;
  }
}

bool PtyLine::listenedTo() {
  if (!watch_.valid()) return true;
  if (clients_ == 0) noticeClients();  // an opening and its first bytes may be seen in either order
  return clients_ > 0;
}

void PtyLine::noticeClients() {
  if (!watch_.valid()) return;
  alignas(inotify_event) std::array<char, 4096> buffer;
  ssize_t count = 0;
  while ((count = ::read(watch_.get(), buffer.data(), buffer.size())) > 0) {
    for (ssize_t at = 0; at < count;) {
      inotify_event event{};
      std::memcpy(&event, buffer.data() + at, sizeof event);
      clients_ = std::max(0, clients_ + ((event.mask & IN_OPEN) != 0 ? 1 : -1));
      at += static_cast<ssize_t>(sizeof event + event.len);
    }
  }
  if (clients_ == 0) ::tcflush(slave_.get(), TCIFLUSH);
}

}  // namespace korvin::head
