#pragma once

#include <fstream>
#include <string>

namespace korvin::tour {

/// walk.txt: what the walk did and what it read, step by step. Each line is on disk as soon as it is told, so
/// that a walk that comes to a bad end has its story too.
class Journal {
 public:
  /// Throws `std::runtime_error` if the file can't be written.
  explicit Journal(const std::string& file);

  void line(const std::string& text);
  /// A step that went well: its time in seconds, and what was read.
  void done(double seconds, const std::string& step, const std::string& read);
  /// A step that did not; told on standard error too.
  void failed(const std::string& step, const std::string& why);

 private:
  std::ofstream out_;
  int number_ = 0;
};

}  // namespace korvin::tour
