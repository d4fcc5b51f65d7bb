#pragma once

#include <chrono>
#include <filesystem>
#include <string>

#include "frame/settings_tree.h"
#include "frame/sqlite_statement.h"

namespace korvin {

/// The settings tree in one SQLite file. Tables: `settings_key` (path, class) and `settings_value` (path,
/// name, value: a text or a 32-bit number). Names keep the letters they were first written with and are
/// compared without regard to case (ASCII; letters beyond it byte by byte).
///
/// Every write is flushed to disk before it is answered with true; a crash at any moment leaves the file as
/// it was before or after the write. Several processes may use one file: each waits for the others up to its
/// `patience`.
///
/// A file that is missing or empty is an empty tree; it is made, with its folder, by the first key. A file
/// that can't be read (locked longer than `patience`, no rights, damaged, no database, another program's
/// database) is decided once, at construction or when the file comes up: `unreadable()` then stays set, and
/// nothing is ever written to the file. A single read that fails later sets `unreadable()` until the next one
/// succeeds.
class SqliteSettingsTree : public SettingsTree {
 public:
  explicit SqliteSettingsTree(std::filesystem::path file,
                              std::chrono::milliseconds patience = std::chrono::seconds{2});

  bool keyExists(std::string_view path) override;
  std::optional<RegWert> readValue(std::string_view path, std::string_view name) override;
  /// Refuses the kind that is neither text nor number.
  bool writeValue(std::string_view path, std::string_view name, const RegWert& value) override;
  Creation createKey(std::string_view path, std::string_view className) override;
  bool deleteKey(std::string_view path) override;
  bool inOneChange(const std::function<bool()>& steps) override;
  std::string unreadable() const override;
  bool lockedByAnother() const override { return locked_; }

  /// Class string of a key, or nothing if the key isn't there.
  std::optional<std::string> className(std::string_view path);

 private:
  enum class IfMissing { leave, create };

  /// A change under way; what isn't committed when it goes out of scope is rolled back.
  struct OpenChange {
    explicit OpenChange(SqliteSettingsTree& owner);
    ~OpenChange();
    SqliteSettingsTree& tree;
  };

  /// Opens the file unless it is open. False if it is missing or can't be used.
  bool connect(IfMissing ifMissing);
  bool prepareFile(IfMissing ifMissing);
  /// Why the last call failed: SQLite's words, and the system's where it has any. Takes note of a lock.
  std::string reason();
  /// Why the freshly opened file can't be read as a settings tree, or nothing.
  std::string flaw();
  /// True if the file is open and has the tables.
  bool readable();
  /// Takes note whether a read went well.
  bool noted(const SqliteStatement& statement);
  bool execute(const char* sql);
  /// True if no change is open: after a full disk SQLite drops a change by itself, and a later step must not
  /// count alone then.
  bool gaveUp() const;
  /// Runs a writing statement inside the present change. True if it went well.
  bool change(SqliteStatement& statement);
  bool hasKeysBelow(std::string_view path);
  Creation makeKey(std::string_view path, std::string_view className);

  const std::filesystem::path file_;
  const std::chrono::milliseconds patience_;
  SqliteConnection connection_;
  std::string refusal_;     ///< why the file can't be used at all
  std::string failedRead_;  ///< why the last read failed
  bool locked_ = false;     ///< a lock was the reason
  bool inChange_ = false;
};

}  // namespace korvin
