#pragma once

#include <string>

namespace korvin {

/// The end of the program on the spot, for failures without which nothing can be shown. A port. It must not
/// be caught by a handler of `std::exception`: in tests it throws a type of its own.
class ProgramEnd {
 public:
  virtual ~ProgramEnd() = default;

  /// Shows a plain box with `systemText`, a blank and `number`, and ends the process.
  [[noreturn]] virtual void end(const std::string& systemText, long number) = 0;
};

}  // namespace korvin
