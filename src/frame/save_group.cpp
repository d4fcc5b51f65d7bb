#include "frame/save_group.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>

namespace korvin {
namespace {

constexpr std::size_t longestName = 255;  // bytes, on all file systems in use
constexpr int mostLinks = 40;             // in a chain, as in the kernel

/// The file behind the symbolic links of `path`; it need not be there yet.
int followLinks(FileSystem& system, std::string& path) {
  for (int links = 0; links < mostLinks; ++links) {
    std::string to;
    const int result = system.readLink(path, to);
    if (result == -EINVAL || result == -ENOENT) return 0;
    if (result < 0) return result;
    path = to.starts_with('/') ? to : folderOf(path) + "/" + to;
  }
  return -ELOOP;
}

/// FNV-1a, 64 bits (Fowler, Noll, Vo: draft-eastlake-fnv).
std::string hashOf(const std::string& text) {
  std::uint64_t hash = 0xCBF29CE484222325U;
  for (const char c : text) hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001B3U;
  return std::to_string(hash);
}

}  // namespace

std::string folderOf(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  if (slash == std::string::npos) return ".";
  return slash == 0 ? "/" : path.substr(0, slash);
}

std::string besideName(const std::string& path, const std::string& ending) {
  const std::size_t start = path.rfind('/') + 1;  // 0 without a slash
  std::string name = path.substr(start);
  if (1 + name.size() + ending.size() > longestName) name = name.substr(0, longestName / 2) + hashOf(name);
  return path.substr(0, start) + "." + name + ending;
}

int SaveGroup::of(FileSystem& system, const std::vector<std::string>& paths, SaveGroup& group) {
  group = {};
  for (std::string path : paths) {
    if (const int result = followLinks(system, path); result < 0) return result;
    group.files.push_back({path, besideName(path, ".korvin-new"), besideName(path, ".korvin-old")});
    const std::string folder = folderOf(path);
    if (std::find(group.folders.begin(), group.folders.end(), folder) == group.folders.end()) {
      group.folders.push_back(folder);
    }
  }
  group.journal = besideName(group.files.at(0).target, ".korvin-save");
  return 0;
}

}  // namespace korvin
