#include "frame/unfinished_save.h"

#include <cerrno>

namespace korvin {
namespace {

/// A name that is gone was dealt with before the save was cut off.
int unlessGone(int result) {
  return result == -ENOENT ? 0 : result;
}

/// Gives one target what it held before the save.
int moveBackOne(FileSystem& system, const SaveNames& names, char before) {
  FileInfo info;
  const int fresh = system.infoOf(names.fresh, info);
  if (fresh != -ENOENT) return fresh;  // the new file never came into place
  // Where there was none, the new file gets its name beside again, from where it is swept.
  if (before == 'o') return unlessGone(system.rename(names.old, names.target));
  if (before == 'n') return unlessGone(system.rename(names.target, names.fresh));
  return 0;
}

int moveBack(FileSystem& system, const SaveGroup& group, const SaveJournal& journal) {
  for (std::size_t i = 0; i < group.files.size(); ++i) {
    if (const int result = moveBackOne(system, group.files[i], journal.before(i)); result < 0) return result;
  }
  return 0;
}

}  // namespace

int moveForward(FileSystem& system, const SaveGroup& group, std::size_t& done) {
  for (done = 0; done < group.files.size(); ++done) {
    const SaveNames& names = group.files[done];
    if (const int result = unlessGone(system.rename(names.fresh, names.target)); result < 0) return result;
  }
  return 0;
}

int syncFolders(FileSystem& system, const SaveGroup& group) {
  for (const std::string& folder : group.folders) {
    if (const int result = system.syncFolder(folder); result < 0) return result;
  }
  return 0;
}

int sweep(FileSystem& system, const SaveGroup& group) {
  for (const SaveNames& names : group.files) {
    if (const int result = unlessGone(system.remove(names.fresh)); result < 0) return result;
    if (const int result = unlessGone(system.remove(names.old)); result < 0) return result;
  }
  return 0;
}

int clearAway(FileSystem& system, const SaveGroup& group) {
  int result = sweep(system, group);
  if (result == 0) result = unlessGone(system.remove(group.journal));
  // A journal that came back after a power cut would speak of files that a later save is writing.
  return result == 0 ? system.syncFolder(folderOf(group.journal)) : result;
}

int bringToEnd(FileSystem& system, const SaveGroup& group, const SaveJournal& journal) {
  int result = 0;
  std::size_t done = 0;
  if (journal.state() == SaveJournal::State::committed) result = moveForward(system, group, done);
  if (journal.state() == SaveJournal::State::undone) result = moveBack(system, group, journal);
  // The exchange has to be on the disk before anything goes that tells of it.
  if (result == 0 && journal.state() != SaveJournal::State::preparing) result = syncFolders(system, group);
  return result == 0 ? clearAway(system, group) : result;
}

}  // namespace korvin
