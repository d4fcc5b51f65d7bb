#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "frame/dictionary.h"
#include "frame/program_end.h"

struct sqlite3;
struct sqlite3_stmt;

namespace korvin {

/// The dictionary in an SQLite file with the table `DIC` (IDNr and one column a language).
///
/// The file is opened for reading only and stays open, inside one read transaction: no call takes file locks,
/// and a writer can't change texts under the program. Each call is one indexed lookup; no text is kept. Not
/// for use by several threads at once.
///
/// Every failure shows SQLite's error text and number and ends the program: a file that is missing or no
/// database, a table, column or number that isn't there, a text without German wording, a call while closed.
class SqliteDictionary : public Dictionary {
 public:
  /// `spracheSpalte` names the column of the present language at each call; a change counts at once. Both
  /// references must outlive the dictionary.
  SqliteDictionary(const std::string& spracheSpalte, ProgramEnd& programEnd);
  ~SqliteDictionary() override;
  SqliteDictionary(const SqliteDictionary&) = delete;
  SqliteDictionary& operator=(const SqliteDictionary&) = delete;

  /// Opens the file at `path` (UTF-8); one that was open is closed.
  void DicOeffnen(const std::string& path);
  /// The text of `id` in the present language: where that column holds null, the German one; an empty text as
  /// it is.
  std::string DicText(std::int16_t id) override;
  /// Closes the file. Harmless if none is open.
  void close();

 private:
  struct DatabaseCloser {
    void operator()(sqlite3* database) const;
  };
  struct StatementCloser {
    void operator()(sqlite3_stmt* statement) const;
  };
  /// The prepared lookup in one column.
  struct Lookup {
    std::string column;
    std::unique_ptr<sqlite3_stmt, StatementCloser> statement;
  };

  sqlite3_stmt* lookup();
  Lookup prepare(const std::string& column);
  std::string read(sqlite3_stmt* statement, std::int16_t id);
  void execute(const char* sql);
  /// Ends the program with SQLite's last failure.
  [[noreturn]] void fail();
  [[noreturn]] void endWith(const char* systemText, int number);

  const std::string& spracheSpalte_;
  ProgramEnd& programEnd_;
  std::unique_ptr<sqlite3, DatabaseCloser> database_;
  std::vector<Lookup> lookups_;
};

}  // namespace korvin
