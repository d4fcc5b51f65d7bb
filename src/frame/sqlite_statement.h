#pragma once

#include <sqlite3.h>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace korvin {

struct SqliteCloser {
  void operator()(sqlite3* connection) const { sqlite3_close(connection); }
  void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};

/// A connection that closes itself.
using SqliteConnection = std::unique_ptr<sqlite3, SqliteCloser>;

/// A prepared statement. What was prepared in vain answers every `step` with the failure.
class SqliteStatement {
 public:
  SqliteStatement(sqlite3* connection, std::string_view sql) {
    sqlite3_stmt* made = nullptr;
    result_ = sqlite3_prepare_v2(connection, sql.data(), static_cast<int>(sql.size()), &made, nullptr);
    statement_.reset(made);
  }

  /// Parameters and columns count from 1 and from 0. The text must live until the last `step`.
  SqliteStatement& bind(int parameter, std::string_view text) {
    // A null pointer would bind NULL, not the empty text.
    const char* data = text.empty() ? "" : text.data();
    sqlite3_bind_text64(statement_.get(), parameter, data, text.size(), SQLITE_STATIC, SQLITE_UTF8);
    return *this;
  }
  SqliteStatement& bind(int parameter, std::int64_t number) {
    sqlite3_bind_int64(statement_.get(), parameter, number);
    return *this;
  }

  /// True while there is a row.
  bool step() {
    if (statement_) result_ = sqlite3_step(statement_.get());
    return result_ == SQLITE_ROW;
  }
  /// True if the last `step` gave a row or came to the regular end.
  bool good() const { return result_ == SQLITE_ROW || result_ == SQLITE_DONE || result_ == SQLITE_OK; }

  /// SQLITE_TEXT, SQLITE_INTEGER, ... as it is stored.
  int type(int column) const { return sqlite3_column_type(statement_.get(), column); }
  std::int64_t number(int column) const { return sqlite3_column_int64(statement_.get(), column); }
  /// All bytes of a text, zero bytes among them.
  std::string text(int column) const {
    const void* data = sqlite3_column_blob(statement_.get(), column);
    const auto size = static_cast<std::size_t>(sqlite3_column_bytes(statement_.get(), column));
    return data != nullptr ? std::string(static_cast<const char*>(data), size) : std::string();
  }

 private:
  std::unique_ptr<sqlite3_stmt, SqliteCloser> statement_;
  int result_ = SQLITE_OK;
};

}  // namespace korvin
