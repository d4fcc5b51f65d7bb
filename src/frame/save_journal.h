#pragma once

#include <string>

#include "frame/file_handle.h"
#include "frame/file_system.h"

namespace korvin {

/// The journal of a save: a small file beside the first target. Whoever holds it may use the save's names; it
/// goes when they are gone. It is written once, and never used again for another save:
///
///   empty                        the new files are being written; the targets stand untouched
///   "KORVIN commit on\n"         the new files are whole and on the disk, and are taking the targets' places
///   "KORVIN commit on\nundo\n"   an exchange failed: the old files come back
///
/// One letter for each target tells what was there before: 'o' an old file, which has a second name beside;
/// 'n' none; 'x' an old file for which the file system allowed no second name. Anything else counts as empty:
/// its writing was cut off.
class SaveJournal {
 public:
  enum class State { preparing, committed, undone };

  explicit SaveJournal(FileSystem& system) : system_(system) {}

  /// Opens the journal, takes it for this save alone, waiting for another save of the same files, and reads
  /// how far the save came. 0, or minus the error number.
  int acquire(const std::string& path, FileSystem::Open how);

  /// How far the save of that journal is, looked at without taking it: `preparing` if there is none.
  static State stateOf(FileSystem& system, const std::string& path);

  State state() const { return state_; }
  /// True while nothing is written in it.
  bool isNew() const { return isNew_; }
  /// The letter of target `index`; 'x' if none was written.
  char before(std::size_t index) const { return index < before_.size() ? before_[index] : 'x'; }

  /// Writes the commit, on the disk when it returns. 0, or minus the error number; then it may be written or
  /// not.
  int commit(const std::string& before);
  /// Calls the commit off, in the same way.
  int undo();

 private:
  int read();
  int append(const std::string& text);
  /// True if the open file is still the one of that name.
  bool isCurrent(const std::string& path);

  FileSystem& system_;
  FileHandle file_;
  State state_ = State::preparing;
  bool isNew_ = true;
  std::string before_;
};

}  // namespace korvin
