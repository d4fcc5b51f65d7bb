#include "frame/sqlite_settings_tree.h"

#include <array>
#include <limits>
#include <system_error>
#include <utility>

namespace korvin {
namespace {

constexpr const char* Tables =
    "CREATE TABLE IF NOT EXISTS settings_key ("
    " path TEXT NOT NULL COLLATE NOCASE PRIMARY KEY, class TEXT NOT NULL) WITHOUT ROWID;"
    "CREATE TABLE IF NOT EXISTS settings_value ("
    " path TEXT NOT NULL COLLATE NOCASE, name TEXT NOT NULL COLLATE NOCASE, value,"
    " PRIMARY KEY (path, name)) WITHOUT ROWID;";

/// SQLite takes a small file of any text for an empty database and would overwrite it. Looks through SQLite's
/// own file handle: a second one, when closed, would drop the locks of this process.
bool emptyOrDatabase(sqlite3* connection) {
  constexpr std::string_view magic("SQLite format 3\0", 16);
  std::array<char, magic.size()> start{};
  sqlite3_file* file = nullptr;
  sqlite3_int64 size = 0;
  sqlite3_file_control(connection, "main", SQLITE_FCNTL_FILE_POINTER, &file);
  if (file == nullptr || file->pMethods == nullptr) return false;
  if (file->pMethods->xFileSize(file, &size) != SQLITE_OK) return false;
  file->pMethods->xRead(file, start.data(), static_cast<int>(start.size()), 0);
  const std::string_view bytes(start.data(), start.size());
  // The size of a file of one byte is given as 0 too, so the byte itself is looked at.
  return size == 0 ? bytes.front() == '\0' : bytes == magic;
}

RegWert storedValue(const SqliteStatement& row, int column) {
  if (row.type(column) == SQLITE_TEXT) return row.text(column);
  if (row.type(column) != SQLITE_INTEGER) return std::monostate{};
  const std::int64_t number = row.number(column);
  if (!std::in_range<std::int32_t>(number)) return std::monostate{};
  return static_cast<std::int32_t>(number);
}

}  // namespace

SqliteSettingsTree::SqliteSettingsTree(std::filesystem::path file, std::chrono::milliseconds patience)
    : file_(std::move(file)), patience_(patience) {
  connect(IfMissing::leave);
}

std::string SqliteSettingsTree::unreadable() const {
  return refusal_.empty() ? failedRead_ : refusal_;
}

bool SqliteSettingsTree::prepareFile(IfMissing ifMissing) {
  std::error_code error;
  const auto status = std::filesystem::status(file_, error);
  if (status.type() == std::filesystem::file_type::not_found) {
    if (ifMissing == IfMissing::leave) return false;
    std::filesystem::create_directories(file_.parent_path(), error);
    return !error;
  }
  if (error) refusal_ = error.message();
  return !error;
}

bool SqliteSettingsTree::connect(IfMissing ifMissing) {
  if (connection_) return true;
  if (!refusal_.empty() || !prepareFile(ifMissing)) return false;

  const int creation = ifMissing == IfMissing::create ? SQLITE_OPEN_CREATE : 0;
  sqlite3* made = nullptr;
  const int result = sqlite3_open_v2(file_.c_str(), &made, SQLITE_OPEN_READWRITE | creation, nullptr);
  connection_.reset(made);
  if (result == SQLITE_OK) {
    sqlite3_busy_timeout(made, static_cast<int>(patience_.count()));
    refusal_ = flaw();
    // EXTRA flushes the folder too: a change that was answered with true survives a power cut.
    if (refusal_.empty()) execute("PRAGMA synchronous = EXTRA");
  } else if (std::error_code error; std::filesystem::exists(file_, error)) {
    refusal_ = reason();
  }
  if (result != SQLITE_OK || !refusal_.empty()) connection_.reset();
  return connection_ != nullptr;
}

std::string SqliteSettingsTree::reason() {
  std::string text = sqlite3_errmsg(connection_.get());
  const int system = sqlite3_system_errno(connection_.get());
  const int code = sqlite3_errcode(connection_.get());
  locked_ = code == SQLITE_BUSY;
  if (code == SQLITE_CANTOPEN && system != 0) text += ": " + std::generic_category().message(system);
  return text;
}

std::string SqliteSettingsTree::flaw() {
  SqliteStatement check(connection_.get(), "PRAGMA quick_check(1)");
  if (!check.step()) return reason();
  if (const std::string found = check.text(0); found != "ok") return found;

  SqliteStatement content(connection_.get(), "SELECT count(*) FROM sqlite_schema");
  if (!content.step()) return reason();
  if (content.number(0) == 0) return emptyOrDatabase(connection_.get()) ? "" : sqlite3_errstr(SQLITE_NOTADB);
  // Another program's database lacks these columns, and SQLite says which.
  SqliteStatement ours(
      connection_.get(),
      "SELECT k.path, k.class, v.path, v.name, v.value FROM settings_key k, settings_value v LIMIT 0");
  ours.step();
  return ours.good() ? std::string() : reason();
}

bool SqliteSettingsTree::readable() {
  if (!connect(IfMissing::leave)) return false;
  SqliteStatement tables(connection_.get(), "SELECT 1 FROM sqlite_schema WHERE name = 'settings_value'");
  const bool found = tables.step();
  return noted(tables) && found;
}

bool SqliteSettingsTree::noted(const SqliteStatement& statement) {
  locked_ = false;
  failedRead_ = statement.good() ? std::string() : reason();
  return statement.good();
}

bool SqliteSettingsTree::keyExists(std::string_view path) {
  if (!readable()) return false;
  SqliteStatement key(connection_.get(), "SELECT 1 FROM settings_key WHERE path = ?");
  const bool found = key.bind(1, path).step();
  return noted(key) && found;
}

std::optional<std::string> SqliteSettingsTree::className(std::string_view path) {
  if (!readable()) return std::nullopt;
  SqliteStatement key(connection_.get(), "SELECT class FROM settings_key WHERE path = ?");
  const bool found = key.bind(1, path).step();
  if (!noted(key) || !found) return std::nullopt;
  return key.text(0);
}

std::optional<RegWert> SqliteSettingsTree::readValue(std::string_view path, std::string_view name) {
  if (!readable()) return std::nullopt;
  SqliteStatement row(connection_.get(), "SELECT value FROM settings_value WHERE path = ? AND name = ?");
  const bool found = row.bind(1, path).bind(2, name).step();
  if (!noted(row) || !found) return std::nullopt;
  return storedValue(row, 0);
}

bool SqliteSettingsTree::execute(const char* sql) {
  return sqlite3_exec(connection_.get(), sql, nullptr, nullptr, nullptr) == SQLITE_OK;
}

bool SqliteSettingsTree::gaveUp() const {
  return sqlite3_get_autocommit(connection_.get()) != 0;
}

bool SqliteSettingsTree::change(SqliteStatement& statement) {
  if (gaveUp()) return false;
  statement.step();
  return statement.good();
}

bool SqliteSettingsTree::inOneChange(const std::function<bool()>& steps) {
  if (inChange_) return steps();
  if (!connect(IfMissing::create) || !execute("BEGIN IMMEDIATE")) return false;
  const OpenChange open(*this);
  const bool done = steps();
  return execute("COMMIT") && done;
}

SqliteSettingsTree::OpenChange::OpenChange(SqliteSettingsTree& owner) : tree(owner) {
  tree.inChange_ = true;
}

SqliteSettingsTree::OpenChange::~OpenChange() {
  tree.inChange_ = false;
  if (!tree.gaveUp()) tree.execute("ROLLBACK");
}

bool SqliteSettingsTree::writeValue(std::string_view path, std::string_view name, const RegWert& value) {
  if (std::holds_alternative<std::monostate>(value) || !readable()) return false;
  return inOneChange([&] {
    if (!keyExists(path)) return false;
    SqliteStatement row(connection_.get(),
                        "INSERT INTO settings_value (path, name, value) VALUES (?, ?, ?)"
                        " ON CONFLICT (path, name) DO UPDATE SET value = excluded.value");
    row.bind(1, path).bind(2, name);
    if (const auto* text = std::get_if<std::string>(&value)) row.bind(3, *text);
    if (const auto* number = std::get_if<std::int32_t>(&value)) row.bind(3, std::int64_t{*number});
    return change(row);
  });
}

SettingsTree::Creation SqliteSettingsTree::createKey(std::string_view path, std::string_view className) {
  if (keyExists(path)) return Creation::existed;
  Creation result = Creation::failed;
  const bool kept = inOneChange([&] {
    result = makeKey(path, className);
    return result != Creation::failed;
  });
  return kept ? result : Creation::failed;
}

SettingsTree::Creation SqliteSettingsTree::makeKey(std::string_view path, std::string_view className) {
  if (keyExists(path)) return Creation::existed;
  if (gaveUp() || !execute(Tables)) return Creation::failed;
  for (std::size_t end = 0; end != std::string_view::npos;) {
    end = path.find('\\', end + 1);
    const bool whole = end == std::string_view::npos;
    SqliteStatement key(connection_.get(), "INSERT OR IGNORE INTO settings_key (path, class) VALUES (?, ?)");
    key.bind(1, path.substr(0, end)).bind(2, whole ? className : "");
    if (!change(key)) return Creation::failed;
  }
  return Creation::created;
}

bool SqliteSettingsTree::hasKeysBelow(std::string_view path) {
  const std::string prefix = std::string(path) + "\\";
  SqliteStatement below(
      connection_.get(),
      "SELECT 1 FROM settings_key WHERE substr(path, 1, length(?1)) = ?1 COLLATE NOCASE LIMIT 1");
  return below.bind(1, prefix).step() || !below.good();
}

bool SqliteSettingsTree::deleteKey(std::string_view path) {
  if (!readable()) return false;
  return inOneChange([&] {
    if (!keyExists(path) || hasKeysBelow(path)) return false;
    SqliteStatement values(connection_.get(), "DELETE FROM settings_value WHERE path = ?");
    SqliteStatement key(connection_.get(), "DELETE FROM settings_key WHERE path = ?");
    return change(values.bind(1, path)) && change(key.bind(1, path));
  });
}

}  // namespace korvin
