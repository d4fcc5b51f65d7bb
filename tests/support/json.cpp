#include "support/json.h"

#include <charconv>
#include <stdexcept>

namespace korvin::test {
namespace {

class Parser {
 public:
  explicit Parser(std::string_view source) : rest_(source) {}

  Json value() {
    skipBlanks();
    switch (peek()) {
      case '{':
        return object();
      case '[':
        return list();
      case '"':
        return {.kind = Json::Kind::text, .text = quoted()};
      default:
        return word();
    }
  }

 private:
  char peek() const {
    if (rest_.empty()) throw std::runtime_error("JSON ends too early");
    return rest_.front();
  }

  void skipBlanks() {
    const std::size_t start = rest_.find_first_not_of(" \t\r\n");
    rest_.remove_prefix(start == std::string_view::npos ? rest_.size() : start);
  }

  bool take(char wanted) {
    skipBlanks();
    if (peek() != wanted) return false;
    rest_.remove_prefix(1);
    return true;
  }

  void expect(char wanted) {
    if (!take(wanted)) throw std::runtime_error(std::string("JSON lacks ") + wanted);
  }

  std::string quoted() {
    expect('"');
    std::string text;
    while (peek() != '"') {
      if (peek() == '\\') rest_.remove_prefix(1);
      text += peek();
      rest_.remove_prefix(1);
    }
    expect('"');
    return text;
  }

  Json object() {
    Json json{.kind = Json::Kind::object};
    expect('{');
    if (take('}')) return json;
    do {
      skipBlanks();
      const std::string key = quoted();
      expect(':');
      json.object[key] = value();
    } while (take(','));
    expect('}');
    return json;
  }

  Json list() {
    Json json{.kind = Json::Kind::list};
    expect('[');
    if (take(']')) return json;
    do json.list.push_back(value());
    while (take(','));
    expect(']');
    return json;
  }

  Json word() {
    const std::string_view text = rest_.substr(0, rest_.find_first_of(",]} \t\r\n"));
    rest_.remove_prefix(text.size());
    if (text == "null") return {};
    Json json{.kind = Json::Kind::number};
    if (text == "true") json.number = 1;
    if (text == "true" || text == "false") return json;
    const auto end = std::from_chars(text.data(), text.data() + text.size(), json.number);
    if (end.ptr != text.data() + text.size()) throw std::runtime_error("JSON holds " + std::string(text));
    return json;
  }

  std::string_view rest_;
};

}  // namespace

Json parseJson(std::string_view source) {
  return Parser(source).value();
}

}  // namespace korvin::test
