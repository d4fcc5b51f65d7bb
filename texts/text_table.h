#pragma once

#include <array>
#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "frame/sprache.h"

namespace korvin::texts {

/// One row of the dictionary: its wording in every language, UTF-8, escapes resolved.
struct Row {
  std::array<std::string, Sprachspalten.size()> wording;
  std::string place;  ///< "file:line", for messages
};

/// Reads the source files of the dictionary and checks them.
///
/// A file is UTF-8. A line "#range FIRST LAST" says which numbers it may hold (1 to 32767; files don't
/// overlap). Then comes the heading, "IDNr" and the language columns, and one row for each number, all parted
/// by tabs. Empty lines and lines that start with '#' are skipped. In a text "\n" is a line end, "\s" a
/// blank, "\\" a backslash; a blank at its edge has to be written "\s", so that no editor strips it unseen.
///
/// Latin texts must fit Windows-1252, the character set of records and text copies. A text that is the same
/// in all languages is free: a name in its own script.
class TextTable {
 public:
  /// Adds the rows of `file`. What is wrong goes to `errors`.
  void read(const std::filesystem::path& file);

  const std::map<int, Row>& rows() const { return rows_; }
  /// "file:line: what is wrong", one for each mistake.
  const std::vector<std::string>& errors() const { return errors_; }

 private:
  struct Range {
    int first;
    int last;
    std::string file;
  };

  void readLine(std::string_view line);
  void readRange(std::string_view line);
  void readHeading(const std::vector<std::string>& cells);
  void readRow(const std::vector<std::string>& cells);
  void checkNumber(int number);
  void checkWording(const Row& row);
  std::string unescaped(const std::string& cell, const std::string& column);
  void fail(const std::string& what);

  std::map<int, Row> rows_;
  std::vector<Range> ranges_;
  std::vector<std::string> errors_;

  // The file that is being read.
  std::string file_;
  int line_ = 0;
  bool hasRange_ = false;
  bool hasHeading_ = false;
};

}  // namespace korvin::texts
