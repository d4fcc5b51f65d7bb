#pragma once

// Saving files so that nothing is ever lost: the new content is written beside the target, every write is
// checked, it is flushed to the disk, takes the target's place in one step, and the folder is flushed. Files
// that belong together are exchanged as one: after a fault, a kill or a power cut either all of them are old
// or all are new, once `finishSave` has looked after them (`FileGroupReader` and every save do so).

#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "frame/file_error.h"
#include "frame/file_system.h"

namespace korvin {

/// Takes the content of a file that is being saved, in pieces.
class SaveSink {
 public:
  SaveSink(FileSystem& system, int file) : system_(system), file_(file) {}

  /// Writes all of `bytes`. After a failure nothing more is written.
  void write(std::span<const std::byte> bytes);

  /// 0, or minus the error number of the write that failed.
  int result() const { return result_; }

 private:
  FileSystem& system_;
  int file_;
  int result_ = 0;
};

/// A file to be saved: its path and what writes its content.
struct SaveItem {
  std::string path;
  std::function<void(SaveSink&)> content;
};

/// What stands on the disk after a save.
enum class SaveState {
  saved,      ///< the new files, flushed
  unchanged,  ///< the old files, untouched; or none, if there were none
  inPlace,    ///< the new files, whole; but the disk did not confirm that they will outlast a power cut
  pending,    ///< both beside each other, whole: the next opening or saving of these files brings one of them
              ///< in place
};

struct SaveResult {
  SaveState state = SaveState::saved;
  FileError error;  ///< none if, and only if, `state` is `saved`
};

/// Saves all `items` (at least one) as one. Their permissions stay as they were, and a symbolic link goes on
/// pointing to its file. Files without write permission are refused, whatever the rights in their folder.
SaveResult saveTogether(FileSystem& system, const std::vector<SaveItem>& items);

/// Saves one file with the content `bytes`.
SaveResult saveFile(FileSystem& system, const std::string& path, std::string_view bytes);

/// What `finishSave` found.
struct FinishResult {
  FileError error;          ///< set only if the files cannot be read as they stand
  bool leftBehind = false;  ///< what lies beside could not be removed; the files are the old ones, whole
};

/// Brings a save of these files that was cut off to its end and sweeps what it left; does nothing if there is
/// none. The paths are those of the save, in its order.
FinishResult finishSave(FileSystem& system, const std::vector<std::string>& paths);

}  // namespace korvin
