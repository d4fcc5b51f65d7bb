#include "frame/file_group_reader.h"

#include <algorithm>
#include <cerrno>

#include "frame/safe_save.h"
#include "frame/save_group.h"
#include "frame/save_journal.h"

namespace korvin {
namespace {

// Openings that a save came between: about a second of another program saving without a pause.
constexpr int mostTries = 10000;

}  // namespace

FileGroupReader::FileGroupReader(FileSystem& system, const std::vector<std::string>& paths)
    : system_(system) {
  for (const std::string& path : paths) files_.push_back({path, {}, {}, {}});
  for (int tries = 0; tries < mostTries; ++tries) {
    const FinishResult finished = finishSave(system, paths);
    if (finished.error) {
      refuse(finished.error);
      return;
    }
    for (File& file : files_) open(file);
    if (finished.leftBehind || allCurrent()) return;
  }
  refuse(FileError::ofSystem(EWOULDBLOCK, paths.at(0)));
}

void FileGroupReader::open(File& file) {
  file.info = {};
  file.error = {};
  file.handle = FileHandle(system_, system_.open(file.path, FileSystem::Open::read));
  int result = std::min(0, file.handle.get());
  if (result == 0) result = system_.info(file.handle.get(), file.info);
  if (result == 0 && !file.info.regular) result = -EISDIR;
  if (result == 0) return;
  file.error = FileError::ofSystem(-result, file.path);
  file.info = {};
}

bool FileGroupReader::allCurrent() {
  std::vector<std::string> paths;
  for (const File& file : files_) paths.push_back(file.path);
  SaveGroup group;
  if (SaveGroup::of(system_, paths, group) < 0) return false;
  // In this order: a save that exchanges files after the look at its journal began after the openings.
  if (SaveJournal::stateOf(system_, group.journal) != SaveJournal::State::preparing) return false;
  return std::all_of(files_.begin(), files_.end(), [this](const File& file) {
    FileInfo present;
    const int result = system_.infoOf(file.path, present);
    if (result < 0) return file.error.number == -result;
    return file.info.sameFile(present) || file.error;
  });
}

void FileGroupReader::refuse(const FileError& error) {
  for (File& file : files_) {
    file.error = error;
    file.info = {};
    file.handle.close();
  }
}

FileError FileGroupReader::read(std::size_t index, std::span<std::byte> to) {
  File& file = files_.at(index);
  while (!file.error && !to.empty()) {
    const long got = system_.read(file.handle.get(), to);
    // The end came before the length that was told.
    if (got <= 0) return FileError::ofSystem(got < 0 ? static_cast<int>(-got) : EIO, file.path);
    to = to.subspan(static_cast<std::size_t>(got));
  }
  return file.error;
}

}  // namespace korvin
