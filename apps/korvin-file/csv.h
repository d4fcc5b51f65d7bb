#pragma once

#include <string>
#include <vector>

#include "korvin-file/value.h"

namespace korvin::file {

/// One row of a table as comma-separated values (RFC 4180, but with "\n" at the end): null is an empty cell;
/// a text with a comma, a quotation mark or a line end is quoted.
std::string csvRow(const std::vector<Value>& cells);

}  // namespace korvin::file
