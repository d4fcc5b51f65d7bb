#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace korvin {

/// The hive of the present user; the only root in use.
inline constexpr std::uint32_t HKEY_CURRENT_USER_Root = 0x80000001;

/// A stored value: a text (`REG_SZ`), a 32-bit number (`REG_DWORD`), or another kind that is never read.
using RegWert = std::variant<std::monostate, std::string, std::int32_t>;

/// The hierarchical store of settings, below the registry operations. A port: one SQLite file in the program,
/// memory in tests. Paths separate keys by '\\'; key and value names compare without regard to case. Texts
/// are UTF-8.
class SettingsTree {
 public:
  virtual ~SettingsTree() = default;

  enum class Creation { created, existed, failed };

  /// True if the key can be opened for reading.
  virtual bool keyExists(std::string_view path) = 0;
  /// The value, or nothing if the key or the value isn't there or can't be read.
  virtual std::optional<RegWert> readValue(std::string_view path, std::string_view name) = 0;
  /// True on success; false if the key isn't there or the store can't be written.
  virtual bool writeValue(std::string_view path, std::string_view name, const RegWert& value) = 0;
  /// Makes the key and all above it. The class string is stored only with a new key.
  virtual Creation createKey(std::string_view path, std::string_view className) = 0;
  /// Deletes the key with its values. False if it isn't there, has keys below it, or can't be deleted.
  virtual bool deleteKey(std::string_view path) = 0;

  /// Runs `steps` as one change: another process, and the next start after a crash, sees all of it or nothing
  /// of it. The result is that of `steps`, or false if the change can't be begun or kept. What `steps` did
  /// stays, also when they answer false. A change inside a change belongs to the outer one.
  virtual bool inOneChange(const std::function<bool()>& steps) { return steps(); }

  /// Empty while the store can be read; otherwise why it can't, in the system's words. A store in this state
  /// holds its file untouched, reads as empty and refuses to write.
  virtual std::string unreadable() const = 0;
  /// True if another program's lock is the reason.
  virtual bool lockedByAnother() const { return false; }
};

}  // namespace korvin
