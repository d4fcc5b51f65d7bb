#include "support/temp_folder.h"

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace korvin::test {

namespace fs = std::filesystem;

TempFolder::TempFolder() {
  std::string pattern = fs::temp_directory_path() / "korvin-test-XXXXXX";
  if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no folder for a test");
  path_ = pattern;
  fs::permissions(path_, fs::perms::owner_all | fs::perms::group_read | fs::perms::group_exec |
                             fs::perms::others_read | fs::perms::others_exec);
}

TempFolder::~TempFolder() {
  std::error_code ignored;
  // A test may have locked itself out.
  fs::permissions(path_, fs::perms::owner_all, fs::perm_options::add, ignored);
  fs::remove_all(path_, ignored);
}

std::string fileBytes(const fs::path& file) {
  std::ostringstream bytes;
  bytes << std::ifstream(file, std::ios::binary).rdbuf();
  return bytes.str();
}

void writeBytes(const fs::path& file, const std::string& bytes) {
  std::ofstream(file, std::ios::binary | std::ios::trunc) << bytes;
}

}  // namespace korvin::test
