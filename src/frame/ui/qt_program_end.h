#pragma once

#include "frame/program_end.h"

namespace korvin {

/// Ends the process on the spot, with exit code 1, after a plain box; the text goes to the error output too.
/// Needs no running event queue, and where there is no application yet it makes one for the box.
class QtProgramEnd : public ProgramEnd {
 public:
  [[noreturn]] void end(const std::string& systemText, long number) override;
};

}  // namespace korvin
