#pragma once

#include <string>

namespace korvin::test {

/// A pseudo-terminal: its other end, which a serial port opens by `path()`, is a serial line for the program.
class PseudoTerminal {
 public:
  PseudoTerminal();
  ~PseudoTerminal();
  PseudoTerminal(const PseudoTerminal&) = delete;
  PseudoTerminal& operator=(const PseudoTerminal&) = delete;

  const std::string& path() const { return path_; }

  void write(const std::string& bytes) const;
  /// Waits until `count` bytes came from the other end and returns them.
  std::string read(std::size_t count) const;
  /// The line speed that the other end has set, as the system's constant (B19200).
  unsigned speed() const;
  /// The cable is pulled.
  void hangUp();

 private:
  int master_ = -1;
  int number_ = -1;
  std::string path_;
};

}  // namespace korvin::test
