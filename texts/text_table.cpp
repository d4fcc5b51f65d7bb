#include "text_table.h"

#include <algorithm>
#include <charconv>
#include <fstream>
#include <limits>
#include <optional>
#include <sstream>

#include "frame/cp1252.h"

namespace korvin::texts {
namespace {

constexpr std::string_view rangeMark = "#range";
constexpr int largestNumber = std::numeric_limits<std::int16_t>::max();
/// The languages before this one are written in Latin letters.
constexpr std::size_t firstOtherScript = 6;

std::vector<std::string> cellsOf(std::string_view line) {
  std::vector<std::string> cells;
  std::size_t start = 0;
  for (std::size_t tab = line.find('\t'); tab != std::string_view::npos; tab = line.find('\t', start)) {
    cells.emplace_back(line.substr(start, tab - start));
    start = tab + 1;
  }
  cells.emplace_back(line.substr(start));
  return cells;
}

std::optional<int> numberOf(std::string_view cell) {
  int number = 0;
  const auto [end, error] = std::from_chars(cell.data(), cell.data() + cell.size(), number);
  if (error != std::errc{} || end != cell.data() + cell.size()) return std::nullopt;
  return number;
}

std::vector<std::string> heading() {
  std::vector<std::string> cells = {"IDNr"};
  cells.insert(cells.end(), Sprachspalten.begin(), Sprachspalten.end());
  return cells;
}

bool sameInAllLanguages(const Row& row) {
  return std::all_of(row.wording.begin(), row.wording.end(),
                     [&row](const std::string& text) { return text == row.wording.front(); });
}

}  // namespace

void TextTable::read(const std::filesystem::path& file) {
  file_ = file.string();
  line_ = 0;
  hasRange_ = false;
  hasHeading_ = false;
  std::ifstream in(file, std::ios::binary);
  if (!in) return fail("the file cannot be read");
  std::string line;
  while (std::getline(in, line)) {
    ++line_;
    if (line.ends_with('\r')) line.pop_back();
    readLine(line);
  }
  if (!hasHeading_) fail("the heading is missing");
}

void TextTable::readLine(std::string_view line) {
  if (line.starts_with(rangeMark)) return readRange(line.substr(rangeMark.size()));
  if (line.empty() || line.starts_with('#')) return;
  const std::vector<std::string> cells = cellsOf(line);
  if (!hasHeading_) return readHeading(cells);
  readRow(cells);
}

void TextTable::readRange(std::string_view line) {
  std::istringstream in{std::string(line)};
  Range range{0, 0, file_};
  std::string rest;
  if (hasRange_ || !(in >> range.first >> range.last) || (in >> rest) || range.first < 1 ||
      range.last < range.first || range.last > largestNumber) {
    return fail("a file has one line \"#range FIRST LAST\" with numbers from 1 to 32767");
  }
  hasRange_ = true;
  for (const Range& other : ranges_) {
    if (range.first <= other.last && other.first <= range.last)
      fail("the range overlaps that of " + other.file);
  }
  ranges_.push_back(range);
}

void TextTable::readHeading(const std::vector<std::string>& cells) {
  hasHeading_ = true;
  if (!hasRange_) fail("the line \"#range FIRST LAST\" is missing above the heading");
  if (cells == heading()) return;
  std::string wanted;
  for (const std::string& cell : heading()) wanted += (wanted.empty() ? "" : " ") + cell;
  fail("the heading must be: " + wanted);
}

void TextTable::readRow(const std::vector<std::string>& cells) {
  if (cells.size() != heading().size()) {
    return fail("a row has " + std::to_string(heading().size()) + " columns, here are " +
                std::to_string(cells.size()));
  }
  const std::optional<int> number = numberOf(cells.front());
  if (!number) return fail("\"" + cells.front() + "\" is no number");
  checkNumber(*number);
  Row row;
  row.place = file_ + ":" + std::to_string(line_);
  for (std::size_t i = 0; i < row.wording.size(); ++i) {
    row.wording.at(i) = unescaped(cells.at(i + 1), Sprachspalten.at(i));
  }
  checkWording(row);
  rows_.emplace(*number, row);
}

void TextTable::checkNumber(int number) {
  if (hasRange_ && (number < ranges_.back().first || number > ranges_.back().last)) {
    fail("number " + std::to_string(number) + " is out of the file's range " +
         std::to_string(ranges_.back().first) + " to " + std::to_string(ranges_.back().last));
  }
  const auto other = rows_.find(number);
  if (other != rows_.end())
    fail("number " + std::to_string(number) + " stands already in " + other->second.place);
}

void TextTable::checkWording(const Row& row) {
  const bool ownScript = sameInAllLanguages(row);
  for (std::size_t i = 0; i < row.wording.size(); ++i) {
    if (row.wording.at(i).empty()) {
      fail(i == 0 ? "the German text is missing"
                  : std::string("the text is missing in ") + Sprachspalten.at(i));
    } else if (i < firstOtherScript && !ownScript && !passtInCp1252(row.wording.at(i))) {
      fail(std::string("the text does not fit Windows-1252 in ") + Sprachspalten.at(i));
    }
  }
}

std::string TextTable::unescaped(const std::string& cell, const std::string& column) {
  if (cell.starts_with(' ') || cell.ends_with(' ')) fail("a blank at the edge is written \\s, in " + column);
  std::string text;
  for (std::size_t i = 0; i < cell.size(); ++i) {
    if (cell.at(i) != '\\') {
      text += cell.at(i);
      continue;
    }
    const char escape = ++i < cell.size() ? cell.at(i) : ' ';
    if (escape == 'n') {
      text += '\n';
    } else if (escape == 's') {
      text += ' ';
    } else if (escape == '\\') {
      text += '\\';
    } else {
      fail("behind a backslash stands n, s or a backslash, in " + column);
    }
  }
  return text;
}

void TextTable::fail(const std::string& what) {
  errors_.push_back(file_ + ":" + std::to_string(line_) + ": " + what);
}

}  // namespace korvin::texts
