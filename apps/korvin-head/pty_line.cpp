#include "korvin-head/pty_line.h"

#include <fcntl.h>
#include <stdlib.h>
#include <termios.h>
#include <unistd.h>

#include <array>
#include <cerrno>
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

}  // namespace

PtyLine::PtyLine() : master_(::posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC)) {
  if (!master_.valid()) fail("cannot open a pseudo-terminal");
  std::array<char, 128> name{};
  if (::grantpt(master_.get()) != 0 || ::unlockpt(master_.get()) != 0 ||
      ::ptsname_r(master_.get(), name.data(), name.size()) != 0) {
    fail("cannot prepare the pseudo-terminal");
  }
  device_ = name.data();
  park();
  makeRaw(parked_.get());
}

void PtyLine::park() {
  parked_ = FileDescriptor(::open(device_.c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC));
  if (!parked_.valid()) fail("cannot open the pseudo-terminal's device");
  ::tcflush(parked_.get(), TCIFLUSH);
}

std::string PtyLine::read() {
  std::array<char, 4096> buffer;
  const ssize_t count = ::read(master_.get(), buffer.data(), buffer.size());
  if (count >= 0) {
    parked_ = FileDescriptor();
    return {buffer.data(), static_cast<std::size_t>(count)};
  }
  if (errno == EIO) {
    park();
  } else if (errno != EAGAIN && errno != EINTR) {
    fail("cannot read from the pseudo-terminal");
  }
  return {};
}

void PtyLine::write(std::string_view bytes) {
  if (parked_.valid()) return;
  while (!bytes.empty()) {
    const ssize_t count = ::write(master_.get(), bytes.data(), bytes.size());
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) return;
    bytes.remove_prefix(static_cast<std::size_t>(count));
  }
}

long PtyLine::baud() const {
  termios settings{};
  if (::tcgetattr(master_.get(), &settings) != 0) return 0;
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

}  // namespace korvin::head
