#include "frame/safe_save.h"

#include <cerrno>

#include "frame/file_handle.h"
#include "frame/save_group.h"
#include "frame/save_journal.h"
#include "frame/unfinished_save.h"

namespace korvin {
namespace {

constexpr std::uint32_t ordinary = 0666;   // less the user's mask
constexpr std::uint32_t ownerOnly = 0600;  // until the target's own permissions are set
constexpr std::uint32_t sameOwner = ~0U;

std::vector<std::string> pathsOf(const std::vector<SaveItem>& items) {
  std::vector<std::string> paths;
  for (const SaveItem& item : items) paths.push_back(item.path);
  return paths;
}

/// One run of `saveTogether`. Steps answer 0 or minus the error number; `at_` is the file that a step is
/// about.
class Save {
 public:
  Save(FileSystem& system, const std::vector<SaveItem>& items)
      : system_(system), items_(items), journal_(system) {}

  SaveResult run() {
    int result = SaveGroup::of(system_, pathsOf(items_), group_);
    if (result == 0) result = takeJournal();
    if (result < 0) return failed(SaveState::unchanged, result);
    result = forEachItem(&Save::look);
    if (result == 0) result = forEachItem(&Save::writeBeside);
    if (result < 0) return gaveUp(result);
    return items_.size() == 1 ? replaceOne() : replaceTogether();
  }

 private:
  SaveResult failed(SaveState state, int result) const {
    return {state, FileError::ofSystem(-result, items_[at_].path)};
  }

  /// Before the commit: what lies beside is not needed.
  SaveResult gaveUp(int result) {
    clearAway(system_, group_);
    return failed(SaveState::unchanged, result);
  }

  /// Takes the journal; a save that was cut off is brought to its end first, since its names are needed.
  int takeJournal() {
    for (int tries = 0; tries < 100; ++tries) {
      const int result = journal_.acquire(group_.journal, FileSystem::Open::update);
      if (result < 0) return result;
      if (journal_.isNew()) return sweep(system_, group_);
      if (const int ended = bringToEnd(system_, group_, journal_); ended < 0) return ended;
    }
    return -EWOULDBLOCK;
  }

  int forEachItem(int (Save::*step)()) {
    for (at_ = 0; at_ < items_.size(); ++at_) {
      if (const int result = (this->*step)(); result < 0) return result;
    }
    at_ = 0;
    return 0;
  }

  /// Notes the target as it is and refuses what a save must not replace.
  int look() {
    const std::string& target = group_.files[at_].target;
    FileInfo info;
    const int result = system_.infoOf(target, info);
    before_.push_back(info);
    present_.push_back(result == 0);
    if (result < 0) return result == -ENOENT ? 0 : result;
    return info.regular ? system_.mayWrite(target) : -EISDIR;
  }

  int writeBeside() {
    const std::uint32_t permissions = present_[at_] ? ownerOnly : ordinary;
    FileHandle file(system_, system_.open(group_.files[at_].fresh, FileSystem::Open::createNew, permissions));
    if (!file.isOpen()) return file.get();
    SaveSink sink(system_, file.get());
    items_[at_].content(sink);
    int result = sink.result();
    if (result == 0 && present_[at_]) result = keepPermissions(file.get());
    if (result == 0) result = system_.sync(file.get());
    const int closed = file.close();
    return result < 0 ? result : closed;
  }

  int keepPermissions(int file) {
    const FileInfo& wanted = before_[at_];
    FileInfo info;
    if (const int result = system_.info(file, info); result < 0) return result;
    if (info.owner != wanted.owner || info.group != wanted.group) keepOwner(file);
    return info.permissions == wanted.permissions ? 0 : system_.setPermissions(file, wanted.permissions);
  }

  /// As far as the user may: most can pass on the group at best.
  void keepOwner(int file) {
    const FileInfo& wanted = before_[at_];
    if (system_.setOwner(file, wanted.owner, wanted.group) < 0)
      system_.setOwner(file, sameOwner, wanted.group);
  }

  SaveResult replaceOne() {
    const int result = system_.rename(group_.files[0].fresh, group_.files[0].target);
    if (result < 0) return gaveUp(result);
    const int flushed = syncFolders(system_, group_);
    system_.remove(group_.journal);
    return flushed < 0 ? failed(SaveState::inPlace, flushed) : SaveResult{};
  }

  SaveResult replaceTogether() {
    const std::string before = keepOld();
    // All names beside have to outlast a power cut before the journal says that they count.
    int result = syncFolders(system_, group_);
    if (result == 0) result = journal_.commit(before);
    if (result < 0) return withdrawn(result);
    result = moveForward(system_, group_, at_);
    if (result < 0) return at_ == 0 ? withdrawn(result) : undone(result);
    at_ = 0;
    result = syncFolders(system_, group_);
    if (result < 0)
      return failed(SaveState::inPlace, result);  // the journal stays: a power cut may undo a part
    clearAway(system_, group_);
    return {};
  }

  /// Gives the old files second names. Returns the journal's letters.
  std::string keepOld() {
    std::string letters;
    for (std::size_t i = 0; i < items_.size(); ++i) {
      const SaveNames& names = group_.files[i];
      letters += !present_[i] ? 'n' : system_.link(names.target, names.old) == 0 ? 'o' : 'x';
    }
    return letters;
  }

  /// After a commit of which nothing is in place yet: without its journal it never was.
  SaveResult withdrawn(int reason) {
    const int removed = system_.remove(group_.journal);
    if (removed < 0) return failed(SaveState::pending, reason);
    system_.syncFolder(folderOf(group_.journal));
    sweep(system_, group_);
    return failed(SaveState::unchanged, reason);
  }

  /// After an exchange that stopped at file `at_`: the files before it become the old ones again.
  SaveResult undone(int reason) {
    for (std::size_t i = 0; i < at_; ++i) {
      if (journal_.before(i) == 'x') return failed(SaveState::pending, reason);
    }
    if (journal_.undo() < 0 || bringToEnd(system_, group_, journal_) < 0)
      return failed(SaveState::pending, reason);
    return failed(SaveState::unchanged, reason);
  }

  FileSystem& system_;
  const std::vector<SaveItem>& items_;
  SaveGroup group_;
  SaveJournal journal_;
  std::vector<FileInfo> before_;
  std::vector<bool> present_;
  std::size_t at_ = 0;
};

/// For a folder that cannot be written: the save stays as it is, but its journal tells if the files are
/// whole.
FinishResult lookOnly(FileSystem& system, const SaveGroup& group, int denied, const std::string& path) {
  SaveJournal journal(system);
  const int result = journal.acquire(group.journal, FileSystem::Open::read);
  if (result == -ENOENT) return {};
  if (result < 0) return {FileError::ofSystem(-result, path), false};
  if (journal.state() == SaveJournal::State::preparing) return {{}, true};
  return {FileError::ofSystem(-denied, path), false};
}

bool isDenied(int result) {
  return result == -EACCES || result == -EPERM || result == -EROFS;
}

}  // namespace

void SaveSink::write(std::span<const std::byte> bytes) {
  while (result_ == 0 && !bytes.empty()) {
    const long written = system_.write(file_, bytes);
    if (written <= 0) {
      result_ = written < 0 ? static_cast<int>(written) : -EIO;
    } else {
      bytes = bytes.subspan(static_cast<std::size_t>(written));
    }
  }
}

SaveResult saveTogether(FileSystem& system, const std::vector<SaveItem>& items) {
  return Save(system, items).run();
}

SaveResult saveFile(FileSystem& system, const std::string& path, std::string_view bytes) {
  const auto content = [bytes](SaveSink& sink) { sink.write(std::as_bytes(std::span(bytes))); };
  return saveTogether(system, {{path, content}});
}

FinishResult finishSave(FileSystem& system, const std::vector<std::string>& paths) {
  const std::string& first = paths.at(0);
  SaveGroup group;
  if (const int result = SaveGroup::of(system, paths, group); result < 0) {
    return {FileError::ofSystem(-result, first), false};
  }
  FileInfo info;
  if (system.infoOf(group.journal, info) < 0) return {};
  SaveJournal journal(system);
  const int result = journal.acquire(group.journal, FileSystem::Open::updatePresent);
  if (result == -ENOENT) return {};
  if (isDenied(result)) return lookOnly(system, group, result, first);
  if (result < 0) return {FileError::ofSystem(-result, first), false};
  const int ended = bringToEnd(system, group, journal);
  if (ended == 0) return {};
  if (journal.state() == SaveJournal::State::preparing) return {{}, true};
  return {FileError::ofSystem(-ended, first), false};
}

}  // namespace korvin
