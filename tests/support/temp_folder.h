#pragma once

#include <filesystem>
#include <string>

namespace korvin::test {

/// A folder of its own for one test, gone with it. Other users may enter and read it, but not write.
class TempFolder {
 public:
  TempFolder();
  ~TempFolder();
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  const std::filesystem::path& path() const { return path_; }
  std::filesystem::path operator/(const std::string& name) const { return path_ / name; }

 private:
  std::filesystem::path path_;
};

/// All bytes of a file; empty if it can't be read.
std::string fileBytes(const std::filesystem::path& file);
void writeBytes(const std::filesystem::path& file, const std::string& bytes);

}  // namespace korvin::test
