#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "frame/file_group_reader.h"
#include "frame/safe_save.h"
#include "support/test_files.h"

namespace korvin::test {

/// Two files that belong together, as a head and its points; each save is a generation, told in both.
class SavedPair {
 public:
  /// In a folder of the system, or, without one, under plain names.
  SavedPair() = default;
  explicit SavedPair(const TestFolder& folder) : head(folder.path("F.O")), points(folder.path("F.O1")) {}

  SaveResult save(FileSystem& system, const std::string& generation) const {
    return saveTogether(system, {item(head, "head " + generation), item(points, "points " + generation)});
  }

  /// The generation that both files are of, "" if both are missing; nothing if they do not belong together.
  std::optional<std::string> read(FileSystem& system) const {
    FileGroupReader reader(system, {head, points});
    const std::string a = content(reader, 0);
    const std::string b = content(reader, 1);
    if (a.empty() && b.empty()) return "";
    if (!a.starts_with("head ") || !b.starts_with("points ") || a.substr(5) != b.substr(7))
      return std::nullopt;
    return a.substr(5);
  }

  std::string head = "F.O";
  std::string points = "F.O1";

 private:
  static SaveItem item(const std::string& path, std::string content) {
    return {path, [content](SaveSink& sink) { sink.write(bytesOf(content)); }};
  }
  static std::string content(FileGroupReader& reader, std::size_t index) {
    FileError error = reader.error(index);
    if (error.kind == FileErrorKind::notFound) return {};
    std::vector<std::byte> bytes(reader.size(index));
    if (!error) error = reader.read(index, bytes);
    EXPECT_FALSE(error) << error.path << ": " << error.systemText();
    return textOf(bytes);
  }
};

}  // namespace korvin::test
