// Makes the dictionary's database of its source files: make_dictionary OUTPUT FILE...
//
// The database has the table DIC, one row a number (IDNr, the primary key) and one column a language. The
// same sources give the same bytes. If a source is wrong, every mistake is told as "file:line: what", the
// result is 1, and a database that was there before stays.

#include <sqlite3.h>

#include <filesystem>
#include <iostream>
#include <memory>
#include <stdexcept>
#include <string>

#include "text_table.h"

namespace korvin::texts {
namespace {

struct Closer {
  void operator()(sqlite3* database) const { sqlite3_close(database); }
  void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using Database = std::unique_ptr<sqlite3, Closer>;
using Statement = std::unique_ptr<sqlite3_stmt, Closer>;

void check(sqlite3* database, int result, int wanted = SQLITE_OK) {
  if (result != wanted) throw std::runtime_error(sqlite3_errmsg(database));
}

void execute(sqlite3* database, const std::string& sql) {
  check(database, sqlite3_exec(database, sql.c_str(), nullptr, nullptr, nullptr));
}

Database create(const std::filesystem::path& path) {
  sqlite3* raw = nullptr;
  const int result = sqlite3_open_v2(path.c_str(), &raw, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
  Database database(raw);
  check(raw, result);
  execute(raw,
          "PRAGMA page_size = 4096; PRAGMA journal_mode = OFF; PRAGMA synchronous = OFF; PRAGMA encoding = "
          "'UTF-8'");
  return database;
}

std::string createTable() {
  std::string sql = "CREATE TABLE DIC (IDNr INTEGER PRIMARY KEY";
  for (const std::string column : Sprachspalten)
    sql += ", " + column + (column == SpalteDeutsch ? " TEXT NOT NULL" : " TEXT");
  return sql + ")";
}

Statement prepareInsert(sqlite3* database) {
  std::string sql = "INSERT INTO DIC VALUES (?";
  for (std::size_t i = 0; i < Sprachspalten.size(); ++i) sql += ", ?";
  sqlite3_stmt* raw = nullptr;
  check(database, sqlite3_prepare_v2(database, (sql + ")").c_str(), -1, &raw, nullptr));
  return Statement(raw);
}

void insert(sqlite3* database, sqlite3_stmt* statement, int number, const Row& row) {
  sqlite3_bind_int(statement, 1, number);
  int column = 2;
  for (const std::string& text : row.wording) {
    sqlite3_bind_text(statement, column++, text.data(), static_cast<int>(text.size()), SQLITE_STATIC);
  }
  check(database, sqlite3_step(statement), SQLITE_DONE);
  sqlite3_reset(statement);
}

void fill(const std::filesystem::path& path, const TextTable& table) {
  const Database database = create(path);
  execute(database.get(), "BEGIN");
  execute(database.get(), createTable());
  const Statement statement = prepareInsert(database.get());
  for (const auto& [number, row] : table.rows()) insert(database.get(), statement.get(), number, row);
  execute(database.get(), "COMMIT");
}

/// Written beside its place and then moved there, so that a program that runs keeps its whole old one.
void write(const std::filesystem::path& path, const TextTable& table) {
  const std::filesystem::path unfinished = path.string() + ".new";
  std::filesystem::remove(unfinished);
  fill(unfinished, table);
  std::filesystem::rename(unfinished, path);
}

int run(int count, char** arguments) {
  if (count < 3) {
    std::cerr << "usage: make_dictionary OUTPUT FILE...\n";
    return 2;
  }
  TextTable table;
  for (int i = 2; i < count; ++i) table.read(arguments[i]);
  for (const std::string& error : table.errors()) std::cerr << error << "\n";
  if (!table.errors().empty()) return 1;
  write(arguments[1], table);
  return 0;
}

}  // namespace
}  // namespace korvin::texts

int main(int count, char** arguments) {
  try {
    return korvin::texts::run(count, arguments);
  } catch (const std::exception& error) {
    std::cerr << "make_dictionary: " << error.what() << "\n";
    return 1;
  }
}
