#include "korvin-file/read_only_files.h"

#include <cerrno>

#include "frame/save_group.h"

namespace korvin::file {
namespace {

/// A journal that another save takes over stays the same file, but grows.
bool unchanged(const FileInfo& a, const FileInfo& b) {
  return a.sameFile(b) && a.size == b.size;
}

}  // namespace

const ReadOnlyFiles::Change* ReadOnlyFiles::changeOf(const std::string& path) const {
  if (changes_.empty()) return nullptr;
  auto found = changes_.find(path);
  // A save works on the files behind symbolic links.
  SaveGroup behind;
  if (found == changes_.end() && SaveGroup::of(base_, {path}, behind) == 0)
    found = changes_.find(behind.files.front().target);
  return found == changes_.end() ? nullptr : &found->second;
}

void ReadOnlyFiles::fallBack() {
  changes_.clear();
  overtaken_ = true;
}

int ReadOnlyFiles::open(const std::string& path, Open how, std::uint32_t permissions) {
  if (how == Open::createNew || how == Open::update) return -EROFS;
  FileInfo wanted;
  if (const int result = infoOf(path, wanted); result < 0) return result;
  const Change* change = changeOf(path);
  const int file = base_.open(change == nullptr ? path : change->realName, Open::read, permissions);
  FileInfo opened;
  if (change == nullptr || file < 0 || base_.info(file, opened) < 0) return file;
  if (!unchanged(opened, change->file)) fallBack();
  return file;
}

int ReadOnlyFiles::infoOf(const std::string& path, FileInfo& to) {
  const Change* change = changeOf(path);
  if (change == nullptr) return base_.infoOf(path, to);
  const int result = base_.infoOf(change->realName, to);
  if (result == 0 && unchanged(to, change->file)) return change->gone ? -ENOENT : 0;
  if (result == -ENOENT && change->gone) return result;  // another program removed it, too
  fallBack();
  return base_.infoOf(path, to);
}

int ReadOnlyFiles::rename(const std::string& from, const std::string& to) {
  FileInfo file;
  if (const int result = infoOf(from, file); result < 0) return result;
  const Change* change = changeOf(from);
  Change moved{change == nullptr ? from : change->realName, file, false};
  if (const int result = remove(from); result < 0) return result;
  changes_[to] = std::move(moved);
  return 0;
}

int ReadOnlyFiles::remove(const std::string& path) {
  FileInfo file;
  if (const int result = infoOf(path, file); result < 0) return result;
  // Behind a name that led elsewhere, what really lies there is gone with it.
  if (base_.infoOf(path, file) < 0) file = {};
  changes_[path] = {path, file, true};
  return 0;
}

long ReadOnlyFiles::write(int, std::span<const std::byte>) {
  return -EROFS;
}
int ReadOnlyFiles::setPermissions(int, std::uint32_t) {
  return -EROFS;
}
int ReadOnlyFiles::setOwner(int, std::uint32_t, std::uint32_t) {
  return -EROFS;
}
int ReadOnlyFiles::mayWrite(const std::string&) {
  return -EROFS;
}
int ReadOnlyFiles::link(const std::string&, const std::string&) {
  return -EROFS;
}

}  // namespace korvin::file
