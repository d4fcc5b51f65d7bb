#include "support/pseudo_terminal.h"

#include <fcntl.h>
#include <pty.h>
#include <termios.h>
#include <unistd.h>

#include <array>
#include <stdexcept>

namespace korvin::test {

PseudoTerminal::PseudoTerminal() {
  int slave = -1;
  std::array<char, 256> name{};
  if (openpty(&master_, &slave, name.data(), nullptr, nullptr) != 0)
    throw std::runtime_error("openpty failed");
  termios raw{};
  tcgetattr(slave, &raw);
  cfmakeraw(&raw);
  tcsetattr(slave, TCSANOW, &raw);
  close(slave);
  path_ = name.data();
}

PseudoTerminal::~PseudoTerminal() {
  hangUp();
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
    if (got <= 0) throw std::runtime_error("read from the pseudo-terminal failed");
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
  if (master_ >= 0) close(master_);
  master_ = -1;
}

}  // namespace korvin::test
