#include "korvin-file/csv.h"

namespace korvin::file {
namespace {

std::string cell(const Value& value) {
  if (value.text.find_first_of(",\"\r\n") == std::string::npos) return value.text;
  std::string quoted = "\"";
  for (const char c : value.text) quoted += c == '"' ? std::string("\"\"") : std::string(1, c);
  return quoted + "\"";
}

}  // namespace

std::string csvRow(const std::vector<Value>& cells) {
  std::string row;
  for (std::size_t i = 0; i < cells.size(); ++i) {
    if (i > 0) row += ',';
    row += cell(cells[i]);
  }
  return row + "\n";
}

}  // namespace korvin::file
