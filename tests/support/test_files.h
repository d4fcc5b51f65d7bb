#pragma once

#include <cstddef>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "support/temp_folder.h"

namespace korvin::test {

/// A file of the tests' data folder, as "reference/point.O".
std::filesystem::path dataFile(std::string_view name);

/// The whole content of a file; fails the test if there is none.
std::string readFile(const std::filesystem::path& path);
void writeFile(const std::filesystem::path& path, std::string_view content);

inline std::span<const std::byte> bytesOf(std::string_view text) {
  return std::as_bytes(std::span(text));
}
inline std::string textOf(std::span<const std::byte> bytes) {
  std::string text;
  for (const std::byte b : bytes) text += static_cast<char>(b);
  return text;
}

/// An empty folder of its own with what tests of measuring files ask of it.
class TestFolder {
 public:
  std::string path(std::string_view name) const { return (folder_.path() / name).string(); }
  std::string path() const { return folder_.path().string(); }

  /// Copies a data file here under its own last name and returns its path.
  std::string copyOf(std::string_view dataName) const;

  /// Names of all entries, sorted; hidden ones too.
  std::vector<std::string> names() const;

 private:
  TempFolder folder_;
};

}  // namespace korvin::test
