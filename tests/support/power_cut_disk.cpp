#include "support/power_cut_disk.h"

#include <algorithm>
#include <cerrno>
#include <utility>

namespace korvin::test {

PowerCutDisk::PowerCutDisk(const PowerCutDisk& other) {
  *this = other;
}

PowerCutDisk& PowerCutDisk::operator=(const PowerCutDisk& other) {
  // Handles belong to the programs that opened them, not to the disk.
  files_ = other.files_;
  names_ = other.names_;
  flushedNames_ = other.flushedNames_;
  unflushed_ = other.unflushed_;
  return *this;
}

void PowerCutDisk::cut() {
  lose([] { return false; });
}

void PowerCutDisk::cut(std::mt19937& random) {
  lose([&random] { return (random() & 1U) != 0; });
}

void PowerCutDisk::lose(const std::function<bool()>& keeps) {
  handles_.clear();
  names_ = flushedNames_;
  for (const auto& change : unflushed_) {
    if (keeps()) change(names_);
  }
  unflushed_.clear();
  flushedNames_ = names_;
  for (File& file : files_) {
    // Kept whole, kept in part, or lost.
    if (!keeps()) file.content = file.flushed;
    if (!keeps()) file.content.resize(std::max(file.flushed.size(), file.content.size() / 2));
    file.flushed = file.content;
  }
}

std::vector<std::string> PowerCutDisk::names() const {
  std::vector<std::string> names;
  for (const auto& [name, file] : names_) names.push_back(name);
  return names;
}

void PowerCutDisk::change(std::function<void(Names&)> change) {
  change(names_);
  unflushed_.push_back(std::move(change));
}

int PowerCutDisk::open(const std::string& path, Open how, std::uint32_t permissions) {
  const auto found = names_.find(path);
  if (found != names_.end() && how == Open::createNew) return -EEXIST;
  if (found == names_.end() && (how == Open::read || how == Open::updatePresent)) return -ENOENT;
  std::size_t file = files_.size();
  if (found != names_.end()) {
    file = found->second;
  } else {
    files_.push_back({{}, {}, permissions});
    change([path, file](Names& names) { names[path] = file; });
  }
  handles_[nextHandle_] = {file};
  return nextHandle_++;
}

long PowerCutDisk::read(int file, std::span<std::byte> to) {
  Handle& handle = handles_.at(file);
  const std::vector<std::byte>& content = files_[handle.file].content;
  const std::size_t count = std::min(to.size(), content.size() - handle.position);
  std::copy_n(content.begin() + static_cast<std::ptrdiff_t>(handle.position), count, to.begin());
  handle.position += count;
  return static_cast<long>(count);
}

long PowerCutDisk::write(int file, std::span<const std::byte> from) {
  Handle& handle = handles_.at(file);
  std::vector<std::byte>& content = files_[handle.file].content;
  content.resize(std::max(content.size(), handle.position + from.size()));
  std::copy(from.begin(), from.end(), content.begin() + static_cast<std::ptrdiff_t>(handle.position));
  handle.position += from.size();
  return static_cast<long>(from.size());
}

int PowerCutDisk::sync(int file) {
  File& flushed = files_[handles_.at(file).file];
  flushed.flushed = flushed.content;
  return 0;
}

int PowerCutDisk::close(int file) {
  return handles_.erase(file) == 1 ? 0 : -EBADF;
}

int PowerCutDisk::info(int file, FileInfo& to) {
  const std::size_t number = handles_.at(file).file;
  to = {};
  to.regular = true;
  to.permissions = files_[number].permissions;
  to.size = files_[number].content.size();
  to.number = number;
  return 0;
}

int PowerCutDisk::setPermissions(int file, std::uint32_t permissions) {
  files_[handles_.at(file).file].permissions = permissions;
  return 0;
}

int PowerCutDisk::infoOf(const std::string& path, FileInfo& to) {
  const auto found = names_.find(path);
  if (found == names_.end()) return -ENOENT;
  to = {};
  to.regular = true;
  to.permissions = files_[found->second].permissions;
  to.size = files_[found->second].content.size();
  to.number = found->second;
  return 0;
}

int PowerCutDisk::mayWrite(const std::string& path) {
  return names_.contains(path) ? 0 : -ENOENT;
}

int PowerCutDisk::readLink(const std::string& path, std::string&) {
  return names_.contains(path) ? -EINVAL : -ENOENT;
}

int PowerCutDisk::link(const std::string& from, const std::string& to) {
  const auto found = names_.find(from);
  if (found == names_.end()) return -ENOENT;
  if (names_.contains(to)) return -EEXIST;
  change([to, file = found->second](Names& names) { names[to] = file; });
  return 0;
}

int PowerCutDisk::rename(const std::string& from, const std::string& to) {
  const auto found = names_.find(from);
  if (found == names_.end()) return -ENOENT;
  const auto taken = names_.find(to);
  if (taken != names_.end() && taken->second == found->second)
    return 0;  // two names of one file: nothing happens
  change([from, to, file = found->second](Names& names) {
    names.erase(from);
    names[to] = file;
  });
  return 0;
}

int PowerCutDisk::remove(const std::string& path) {
  if (!names_.contains(path)) return -ENOENT;
  change([path](Names& names) { names.erase(path); });
  return 0;
}

int PowerCutDisk::syncFolder(const std::string&) {
  flushedNames_ = names_;
  unflushed_.clear();
  return 0;
}

}  // namespace korvin::test
