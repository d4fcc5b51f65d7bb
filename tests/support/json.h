#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace korvin::test {

/// A value of a JSON file. Just enough to read the reference files beside the golden records.
struct Json {
  enum class Kind { null, number, text, list, object };
  Kind kind = Kind::null;
  double number = 0;   ///< true reads as 1, false as 0
  std::string text{};  ///< UTF-8
  std::vector<Json> list{};
  std::map<std::string, Json> object{};

  const Json& operator[](const std::string& key) const { return object.at(key); }
};

/// Throws `std::runtime_error` if `source` is no JSON.
Json parseJson(std::string_view source);

}  // namespace korvin::test
