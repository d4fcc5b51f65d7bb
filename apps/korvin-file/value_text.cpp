#include "korvin-file/value_text.h"

#include <algorithm>
#include <vector>

#include "korvin-file/utf8.h"

namespace korvin::file {
namespace {

using Member = Value::Member;

// ---- JSON ----

std::string hexDigits(unsigned value, int digits) {
  constexpr std::string_view all = "0123456789abcdef";
  std::string text;
  for (int shift = 4 * (digits - 1); shift >= 0; shift -= 4) text += all[(value >> shift) & 0xFU];
  return text;
}

std::string escaped(char c) {
  switch (c) {
    case '"':
      return "\\\"";
    case '\\':
      return "\\\\";
    case '\n':
      return "\\n";
    case '\r':
      return "\\r";
    case '\t':
      return "\\t";
    default:
      break;
  }
  const auto byte = static_cast<unsigned char>(c);
  return byte < 0x20 || byte == 0x7F ? "\\u" + hexDigits(byte, 4) : std::string(1, c);
}

/// U+0080 to U+009F, "\u0080": they are control characters, too, two bytes in UTF-8.
bool isHighControl(std::string_view utf8, std::size_t at) {
  return utf8[at] == '\xC2' && at + 1 < utf8.size() && static_cast<unsigned char>(utf8[at + 1]) < 0xA0;
}

std::string quoted(std::string_view text) {
  const std::string utf8 = asUtf8(text);
  std::string json = "\"";
  for (std::size_t i = 0; i < utf8.size(); ++i) {
    if (isHighControl(utf8, i)) {
      json += "\\u" + hexDigits(static_cast<unsigned char>(utf8[++i]), 4);
    } else {
      json += escaped(utf8[i]);
    }
  }
  return json + "\"";
}

bool isFlat(const Value& value) {
  return std::none_of(value.list.begin(), value.list.end(), [](const Value& v) { return v.nested(); }) &&
         std::none_of(value.members.begin(), value.members.end(),
                      [](const Member& m) { return m.second.nested(); });
}

/// Writes a tree, one blank of indent a level.
class JsonWriter {
 public:
  /// `row` if the value is an element of a list.
  void write(const Value& value, bool row) {
    switch (value.kind) {
      case Value::Kind::null:
        text_ += "null";
        return;
      case Value::Kind::truth:
      case Value::Kind::number:
        text_ += value.text;
        return;
      case Value::Kind::text:
        text_ += quoted(value.text);
        return;
      case Value::Kind::list:
        elements(value.list, '[', ']', row && isFlat(value));
        return;
      case Value::Kind::object:
        elements(value.members, '{', '}', row && isFlat(value));
        return;
    }
  }

  std::string text() && { return std::move(text_); }

 private:
  void element(const Value& value) { write(value, true); }
  void element(const Member& member) {
    text_ += quoted(member.first) + ": ";
    write(member.second, false);
  }

  template <class Element>
  void elements(const std::vector<Element>& all, char opening, char closing, bool onOneLine) {
    text_ += opening;
    ++depth_;
    for (std::size_t i = 0; i < all.size(); ++i) {
      if (i > 0) text_ += ',';
      if (!onOneLine) newLine();
      if (onOneLine && i > 0) text_ += ' ';
      element(all[i]);
    }
    --depth_;
    if (!onOneLine && !all.empty()) newLine();
    text_ += closing;
  }

  void newLine() { text_ += '\n' + std::string(depth_, ' '); }

  std::string text_;
  std::size_t depth_ = 0;
};

// ---- For the eye ----

constexpr std::string_view columnGap = "  ";
constexpr std::size_t lineWidth = 80;  ///< of a terminal

std::string plain(const Value& value) {
  return value.kind == Value::Kind::null ? "-" : printable(value.text);
}

std::string padded(const std::string& text, std::size_t width, bool toTheRight) {
  const std::string blanks(width - std::min(width, characters(text)), ' ');
  return toTheRight ? blanks + text : text + blanks;
}

std::string withoutEndBlanks(std::string line) {
  line.erase(line.find_last_not_of(' ') + 1);
  return line;
}

/// Rows of objects that all have the same names, under a heading.
class Table {
 public:
  explicit Table(const std::vector<Value>& rows) {
    for (const Member& member : rows.front().members) cells_.emplace_back(1, member.first);
    for (const Value& row : rows) {
      for (std::size_t i = 0; i < cells_.size(); ++i) cells_[i].push_back(plain(row.members.at(i).second));
    }
  }

  std::string text(const std::string& indent) const {
    std::vector<std::size_t> widths;
    for (const auto& column : cells_) widths.push_back(widest(column));
    std::string text;
    for (std::size_t row = 0; row < cells_.front().size(); ++row) {
      std::string line = indent;
      for (std::size_t i = 0; i < cells_.size(); ++i) {
        if (i > 0) line += columnGap;
        line += padded(cells_[i][row], widths[i], true);
      }
      text += line + "\n";
    }
    return text;
  }

 private:
  static std::size_t widest(const std::vector<std::string>& column) {
    std::size_t width = 0;
    for (const std::string& cell : column) width = std::max(width, characters(cell));
    return width;
  }

  std::vector<std::vector<std::string>> cells_;  ///< by column
};

bool isTable(const Value& value) {
  return value.kind == Value::Kind::list && !value.list.empty() &&
         std::all_of(value.list.begin(), value.list.end(), [&value](const Value& row) {
           return row.kind == Value::Kind::object && !row.members.empty() && isFlat(row) &&
                  row.members.size() == value.list.front().members.size();
         });
}

void plainMembers(const Value& object, const std::string& indent, std::string& text);

/// A list of plain values, as many to a line as fit.
std::string plainRow(const Value& list, const std::string& indent) {
  std::string text;
  std::string line;
  for (const Value& element : list.list) {
    const std::string word = plain(element);
    if (!line.empty() && characters(indent + line + word) + columnGap.size() > lineWidth) {
      text += indent + line + "\n";
      line.clear();
    }
    line += (line.empty() ? "" : std::string(columnGap)) + word;
  }
  return line.empty() ? text : text + indent + line + "\n";
}

void plainNested(const Value& value, const std::string& indent, std::string& text) {
  if (isTable(value)) {
    text += Table(value.list).text(indent);
  } else if (value.kind == Value::Kind::list && isFlat(value)) {
    text += plainRow(value, indent);
  } else if (value.kind == Value::Kind::object) {
    plainMembers(value, indent, text);
  } else {
    for (const Value& element : value.list) {
      if (element.nested()) {
        plainNested(element, indent, text);
      } else {
        text += indent + plain(element) + "\n";
      }
    }
  }
}

void plainMembers(const Value& object, const std::string& indent, std::string& text) {
  std::size_t width = 0;
  for (const auto& [name, value] : object.members) {
    if (!value.nested()) width = std::max(width, characters(name));
  }
  for (const auto& [name, value] : object.members) {
    if (value.nested()) {
      text += indent + name + "\n";
      plainNested(value, indent + std::string(columnGap), text);
    } else {
      text += withoutEndBlanks(indent + padded(name, width, false) + std::string(columnGap) + plain(value)) +
              "\n";
    }
  }
}

}  // namespace

std::string jsonText(const Value& value) {
  JsonWriter writer;
  writer.write(value, false);
  return std::move(writer).text() + "\n";
}

std::string plainText(const Value& value) {
  std::string text;
  plainNested(value, {}, text);
  return text;
}

std::string printable(std::string_view text) {
  const std::string utf8 = asUtf8(text);
  std::string shown;
  for (std::size_t i = 0; i < utf8.size(); ++i) {
    const auto byte = static_cast<unsigned char>(utf8[i]);
    if (isHighControl(utf8, i)) {
      shown += "\\x" + hexDigits(static_cast<unsigned char>(utf8[++i]), 2);
    } else if (byte < 0x20 || byte == 0x7F) {
      shown += "\\x" + hexDigits(byte, 2);
    } else {
      shown += utf8[i];
    }
  }
  return shown;
}

}  // namespace korvin::file
