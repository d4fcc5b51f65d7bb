#include "support/test_files.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <sstream>

namespace korvin::test {

namespace fs = std::filesystem;

fs::path dataFile(std::string_view name) {
  return fs::path(KORVIN_TEST_DATA) / name;
}

std::string readFile(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  EXPECT_TRUE(file) << path;
  std::ostringstream content;
  content << file.rdbuf();
  return content.str();
}

void writeFile(const fs::path& path, std::string_view content) {
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  file.write(content.data(), static_cast<std::streamsize>(content.size()));
  EXPECT_TRUE(file.flush()) << path;
}

std::string TestFolder::copyOf(std::string_view dataName) const {
  const fs::path to = folder_.path() / fs::path(dataName).filename();
  fs::copy_file(dataFile(dataName), to);
  fs::permissions(to, fs::perms::owner_write, fs::perm_options::add);
  return to.string();
}

std::vector<std::string> TestFolder::names() const {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(folder_.path()))
    names.push_back(entry.path().filename().string());
  std::sort(names.begin(), names.end());
  return names;
}

}  // namespace korvin::test
