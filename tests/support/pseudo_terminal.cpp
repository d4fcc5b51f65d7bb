#include "support/pseudo_terminal.h"

#include <fcntl.h>
#include <pty.h>
#include <termios.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <stdexcept>
#include <vector>

namespace korvin::test {

namespace {

/// Whether somebody holds the lock of a serial port, by which programs keep each other off it.
bool isLocked(const std::string& path) {
  std::string port = path.substr(std::string("/dev/").size());
  std::ranges::replace(port, '/', '_');
  return access(("/var/lock/LCK.." + port).c_str(), F_OK) == 0;
}

}  // namespace

PseudoTerminal::PseudoTerminal() {
  int slave = -1;
  std::array<char, 256> name{};
  // The system gives a number anew as soon as its last user closed it, and that one drops the lock only then:
  // a number of a test that runs beside this one may still be locked. It is held, so that the next differs.
  std::vector<int> locked;
  do {
    if (master_ >= 0) {
      locked.push_back(master_);
      close(slave);
    }
    if (openpty(&master_, &slave, name.data(), nullptr, nullptr) != 0)
      throw std::runtime_error("openpty failed");
  } while (isLocked(name.data()));
  for (const int master : locked) close(master);
  termios raw{};
  tcgetattr(slave, &raw);
  cfmakeraw(&raw);
  tcsetattr(slave, TCSANOW, &raw);
  close(slave);
  path_ = name.data();
}

PseudoTerminal::~PseudoTerminal() {
  hangUp();
  if (number_ >= 0) close(number_);
}

void PseudoTerminal::write(const std::string& bytes) const {
  if (::write(master_, bytes.data(), bytes.size()) != static_cast<ssize_t>(bytes.size())) {
    throw std::runtime_error("write to the pseudo-terminal failed");
  }
}

std::string PseudoTerminal::read(std::size_t count) const {
  std::string bytes;
  while (bytes.size() < count) {
    std::array<char, 4096> part{};
    const ssize_t got = ::read(master_, part.data(), std::min(part.size(), count - bytes.size()));
    if (got <= 0) {
      throw std::runtime_error("read from the pseudo-terminal failed: " +
                               std::string(got < 0 ? std::strerror(errno) : "end"));
    }
    bytes.append(part.data(), static_cast<std::size_t>(got));
  }
  return bytes;
}

unsigned PseudoTerminal::speed() const {
  termios settings{};
  tcgetattr(master_, &settings);
  return cfgetospeed(&settings);
}

void PseudoTerminal::hangUp() {
  if (master_ < 0) return;
  // An open end keeps the number: nobody else's line gets the name under which the program looks for this
  // one.
  number_ = open(path_.c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC);
  close(master_);
  master_ = -1;
}

}  // namespace korvin::test
