#include "korvin-file/value.h"

#include <cmath>

#include "frame/layout_text.h"
#include "frame/leerwert.h"

namespace korvin::file {
namespace {

Value ofDigits(std::string digits) {
  Value value;
  value.kind = Value::Kind::number;
  value.text = std::move(digits);
  return value;
}

/// A number of a dump; `open` if the empty value stands for "none".
Value ofDumped(std::string_view digits, bool open) {
  const bool finite = digits.find_first_of("nf") == std::string_view::npos;  // "nan", "inf", "-inf"
  if (!finite || (open && digits == numberText(Leerwert))) return {};
  return ofDigits(std::string(digits));
}

/// "[1, 2.5]".
Value ofDumpedList(std::string_view text, bool open) {
  constexpr std::string_view between = ", ";
  Value list = Value::ofList();
  text = text.substr(1, text.size() - 2);
  while (!text.empty()) {
    const std::string_view digits = text.substr(0, text.find(between));
    list.list.push_back(ofDumped(digits, open));
    text.remove_prefix(std::min(text.size(), digits.size() + between.size()));
  }
  return list;
}

Value ofField(const FieldDump& field, bool open) {
  switch (field.kind) {
    case FieldKind::number:
      return ofDumped(field.text, open);
    case FieldKind::numbers:
      return ofDumpedList(field.text, open);
    case FieldKind::text:
    case FieldKind::reserved:
      break;
  }
  return Value::ofText(field.text);
}

}  // namespace

Value Value::ofNumber(double value) {
  return std::isfinite(value) ? ofDigits(numberText(value)) : Value{};
}

Value Value::ofNumber(long long value) {
  return ofDigits(std::to_string(value));
}

Value Value::ofReading(double value) {
  return istLeer(value) ? Value{} : ofNumber(value);
}

Value Value::ofTruth(bool value) {
  Value truth;
  truth.kind = Kind::truth;
  truth.text = value ? "true" : "false";
  return truth;
}

Value Value::ofText(std::string utf8) {
  Value value;
  value.kind = Kind::text;
  value.text = std::move(utf8);
  return value;
}

Value Value::ofList(std::vector<Value> elements) {
  Value value;
  value.kind = Kind::list;
  value.list = std::move(elements);
  return value;
}

Value Value::ofObject(std::vector<Member> members) {
  Value value;
  value.kind = Kind::object;
  value.members = std::move(members);
  return value;
}

Value fieldsOf(const std::vector<FieldDump>& record, bool (*canBeOpen)(std::string_view name)) {
  Value fields = Value::ofObject();
  for (const FieldDump& field : record) fields.add(field.name, ofField(field, canBeOpen(field.name)));
  return fields;
}

}  // namespace korvin::file
