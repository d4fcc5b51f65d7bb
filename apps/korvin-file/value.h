#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "frame/layout.h"

namespace korvin::file {

/// What is told about a measuring file: a tree of named values, which is written as JSON or for the eye.
struct Value {
  enum class Kind { null, truth, number, text, list, object };
  using Member = std::pair<std::string, Value>;

  Kind kind = Kind::null;
  std::string text;             ///< of a truth "true" or "false", of a number its digits, of a text its UTF-8
  std::vector<Value> list;      ///< of a list
  std::vector<Member> members;  ///< of an object, in the order in which they are told

  /// Null where `value` is NaN or infinite; else as few digits as read back to the same number.
  static Value ofNumber(double value);
  static Value ofNumber(long long value);
  /// The same, and null for the empty value: nothing was measured there.
  static Value ofReading(double value);
  static Value ofTruth(bool value);
  static Value ofText(std::string utf8);
  static Value ofList(std::vector<Value> elements = {});
  static Value ofObject(std::vector<Member> members = {});

  /// Adds a member to an object.
  void add(std::string name, Value value) { members.emplace_back(std::move(name), std::move(value)); }

  /// True for a list or an object.
  bool nested() const { return kind == Kind::list || kind == Kind::object; }
};

/// All fields of a record under their names, in file order: flags and numbers as numbers, texts trimmed,
/// bytes that no one reads as pairs of hexadecimal digits. `canBeOpen` tells of a name whether the empty
/// value stands for "none" there.
Value fieldsOf(const std::vector<FieldDump>& record, bool (*canBeOpen)(std::string_view name));

}  // namespace korvin::file
