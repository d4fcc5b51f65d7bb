#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "system/child_program.h"

namespace korvin::test {

/// The virtual head as a process of its own, on a port of a configuration folder that only its test knows.
class HeadProcess {
 public:
  /// Starts the head and waits until its line is there. Throws if it does not come up.
  HeadProcess(const std::filesystem::path& configHome, int port,
              const std::vector<std::string>& options = {});

  /// Presses the head's keys: letters m, j, l, r; n carries it on to its next place.
  void press(const std::string& keys) const { program_.write(keys); }
  /// The next line that it prints ("gone 7", "ready 7 DEVICE").
  std::string nextLine() { return program_.readLine(); }
  /// Ends it. What it counted, by the names in its last line: "requests", "wrong-check", "flip" …
  std::map<std::string, long> end();

 private:
  ChildProgram program_;
};

}  // namespace korvin::test
