#include "support/test_files.h"

#include <gtest/gtest.h>
#include <stdlib.h>  // mkdtemp

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

TestFolder::TestFolder() {
  std::string pattern = (fs::temp_directory_path() / "korvin-test-XXXXXX").string();
  EXPECT_NE(mkdtemp(pattern.data()), nullptr);
  folder_ = pattern;
}

TestFolder::~TestFolder() {
  std::error_code ignored;
  fs::permissions(folder_, fs::perms::owner_all, fs::perm_options::add, ignored);
  fs::remove_all(folder_, ignored);
}

std::string TestFolder::copyOf(std::string_view dataName) const {
  const fs::path to = folder_ / fs::path(dataName).filename();
  fs::copy_file(dataFile(dataName), to);
  fs::permissions(to, fs::perms::owner_write, fs::perm_options::add);
  return to.string();
}

std::vector<std::string> TestFolder::names() const {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(folder_)) names.push_back(entry.path().filename().string());
  std::sort(names.begin(), names.end());
  return names;
}

}  // namespace korvin::test
