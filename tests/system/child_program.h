#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

namespace korvin::test {

/// A program of the build that runs beside the test, with pipes to its standard input, output and errors.
/// Ended and waited for when this goes.
class ChildProgram {
 public:
  /// Starts `name` of the build's program folder with `arguments`; `environment` ("NAME=value") is added to
  /// the test's own.
  ChildProgram(const std::string& name, const std::vector<std::string>& arguments,
               const std::vector<std::string>& environment = {});
  ~ChildProgram();
  ChildProgram(const ChildProgram&) = delete;
  ChildProgram& operator=(const ChildProgram&) = delete;

  /// Next line of its output without the line end; empty after `seconds` or at the end of the output.
  std::string readLine(double seconds = 10);
  /// All that it wrote to standard error; waits for its end.
  std::string errors();
  void write(const std::string& text) const;
  void sendSignal(int number) const;
  /// Waits for its end: its exit status, or minus the signal that ended it; −1000 if it did not end within
  /// `seconds`.
  int wait(double seconds = 10);
  pid_t pid() const { return pid_; }

 private:
  pid_t pid_ = -1;
  int in_ = -1;
  int out_ = -1;
  int err_ = -1;
  std::string pending_;
};

}  // namespace korvin::test
