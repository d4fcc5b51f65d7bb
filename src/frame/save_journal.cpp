#include "frame/save_journal.h"

#include <array>
#include <cerrno>
#include <string_view>

namespace korvin {
namespace {

constexpr std::string_view commitMark = "KORVIN commit ";
constexpr std::string_view undoMark = "undo\n";
constexpr int mostTries = 10000;  // journals that came and went before they could be held

}  // namespace

int SaveJournal::acquire(const std::string& path, FileSystem::Open how) {
  for (int tries = 0; tries < mostTries; ++tries) {
    file_ = FileHandle(system_, system_.open(path, how));
    if (!file_.isOpen()) return file_.get();
    // Other failures tell of a file system without locks; no second program saves there.
    if (system_.lock(file_.get()) == -EWOULDBLOCK) return -EWOULDBLOCK;
    if (isCurrent(path)) return read();  // else another save removed it while this one waited
  }
  return -EWOULDBLOCK;
}

SaveJournal::State SaveJournal::stateOf(FileSystem& system, const std::string& path) {
  SaveJournal journal(system);
  journal.file_ = FileHandle(system, system.open(path, FileSystem::Open::read));
  if (journal.file_.get() == -ENOENT) return State::preparing;
  // One that cannot be read may be anywhere.
  return journal.file_.isOpen() && journal.read() == 0 ? journal.state_ : State::committed;
}

bool SaveJournal::isCurrent(const std::string& path) {
  FileInfo held;
  FileInfo named;
  return system_.info(file_.get(), held) == 0 && system_.infoOf(path, named) == 0 && held.sameFile(named);
}

int SaveJournal::read() {
  std::array<std::byte, 256> buffer{};
  const long length = system_.read(file_.get(), buffer);
  if (length < 0) return static_cast<int>(length);
  std::string text;
  for (long i = 0; i < length; ++i) text += static_cast<char>(buffer.at(static_cast<std::size_t>(i)));

  isNew_ = text.empty();
  state_ = State::preparing;
  before_.clear();
  const std::size_t end = text.find('\n');
  if (!text.starts_with(commitMark) || end == std::string::npos) return 0;
  const std::string letters = text.substr(commitMark.size(), end - commitMark.size());
  if (letters.find_first_not_of("onx") != std::string::npos) return 0;
  before_ = letters;
  state_ = text.substr(end + 1) == undoMark ? State::undone : State::committed;
  return 0;
}

int SaveJournal::append(const std::string& text) {
  isNew_ = false;
  const auto bytes = std::as_bytes(std::span(text));
  const long written = system_.write(file_.get(), bytes);
  if (written < 0) return static_cast<int>(written);
  if (static_cast<std::size_t>(written) < bytes.size()) return -ENOSPC;  // only a full disk cuts so few bytes
  return system_.sync(file_.get());
}

int SaveJournal::commit(const std::string& before) {
  const int result = append(std::string(commitMark) + before + "\n");
  if (result < 0) return result;
  before_ = before;
  state_ = State::committed;
  return 0;
}

int SaveJournal::undo() {
  const int result = append(std::string(undoMark));
  if (result == 0) state_ = State::undone;
  return result;
}

}  // namespace korvin
