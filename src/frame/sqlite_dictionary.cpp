#include "frame/sqlite_dictionary.h"

#include <sqlite3.h>

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "frame/sprache.h"

namespace korvin {
namespace {

/// Ends a lookup when it goes out of scope, in failures too.
class Reset {
 public:
  explicit Reset(sqlite3_stmt* statement) : statement_(statement) {}
  ~Reset() { sqlite3_reset(statement_); }
  Reset(const Reset&) = delete;
  Reset& operator=(const Reset&) = delete;

 private:
  sqlite3_stmt* statement_;
};

/// With the table in front, an unknown column is an error; alone and quoted, SQLite would take it for a text.
std::string quoted(const std::string& column) {
  std::string name = "DIC.\"";
  for (const char c : column) name += c == '"' ? std::string("\"\"") : std::string(1, c);
  return name + "\"";
}

}  // namespace

void SqliteDictionary::DatabaseCloser::operator()(sqlite3* database) const {
  sqlite3_close(database);
}
void SqliteDictionary::StatementCloser::operator()(sqlite3_stmt* statement) const {
  sqlite3_finalize(statement);
}

SqliteDictionary::SqliteDictionary(const std::string& spracheSpalte, ProgramEnd& programEnd)
    : spracheSpalte_(spracheSpalte), programEnd_(programEnd) {}

SqliteDictionary::~SqliteDictionary() {
  close();
}

void SqliteDictionary::DicOeffnen(const std::string& path) {
  close();
  sqlite3* raw = nullptr;
  const int result = sqlite3_open_v2(path.c_str(), &raw, SQLITE_OPEN_READONLY | SQLITE_OPEN_NOMUTEX, nullptr);
  database_.reset(raw);
  if (result != SQLITE_OK) fail();
  // The first look into the table begins the read transaction and tells a broken file at once.
  execute("BEGIN");
  execute("SELECT IDNr FROM DIC LIMIT 1");
}

std::string SqliteDictionary::DicText(std::int16_t id) {
  sqlite3_stmt* statement = lookup();
  const Reset atEnd(statement);
  return read(statement, id);
}

void SqliteDictionary::close() {
  lookups_.clear();
  database_.reset();
}

sqlite3_stmt* SqliteDictionary::lookup() {
  // The present language's lookup stands in front.
  if (!lookups_.empty() && lookups_.front().column == spracheSpalte_) return lookups_.front().statement.get();
  auto found = std::find_if(lookups_.begin(), lookups_.end(),
                            [this](const Lookup& each) { return each.column == spracheSpalte_; });
  if (found == lookups_.end()) found = lookups_.insert(lookups_.end(), prepare(spracheSpalte_));
  std::iter_swap(lookups_.begin(), found);
  return lookups_.front().statement.get();
}

SqliteDictionary::Lookup SqliteDictionary::prepare(const std::string& column) {
  if (!database_) endWith(sqlite3_errstr(SQLITE_MISUSE), SQLITE_MISUSE);
  const std::string sql =
      "SELECT coalesce(" + quoted(column) + ", " + quoted(SpalteDeutsch) + ") FROM DIC WHERE IDNr = ?";
  sqlite3_stmt* raw = nullptr;
  if (sqlite3_prepare_v3(database_.get(), sql.c_str(), -1, SQLITE_PREPARE_PERSISTENT, &raw, nullptr) !=
      SQLITE_OK)
    fail();
  return {column, std::unique_ptr<sqlite3_stmt, StatementCloser>(raw)};
}

std::string SqliteDictionary::read(sqlite3_stmt* statement, std::int16_t id) {
  sqlite3_bind_int(statement, 1, id);
  if (sqlite3_step(statement) != SQLITE_ROW) fail();
  const unsigned char* text = sqlite3_column_text(statement, 0);
  if (text == nullptr) endWith(sqlite3_errstr(SQLITE_CONSTRAINT), SQLITE_CONSTRAINT_NOTNULL);
  return {reinterpret_cast<const char*>(text), static_cast<std::size_t>(sqlite3_column_bytes(statement, 0))};
}

void SqliteDictionary::execute(const char* sql) {
  if (sqlite3_exec(database_.get(), sql, nullptr, nullptr, nullptr) != SQLITE_OK) fail();
}

void SqliteDictionary::fail() {
  if (!database_) endWith(sqlite3_errstr(SQLITE_NOMEM), SQLITE_NOMEM);
  endWith(sqlite3_errmsg(database_.get()), sqlite3_extended_errcode(database_.get()));
}

void SqliteDictionary::endWith(const char* systemText, int number) {
  programEnd_.end(systemText, number);
  std::abort();  // g++ doesn't see that a virtual call never returns
}

}  // namespace korvin
