#pragma once

#include <string>
#include <string_view>

#include "frame/message_port.h"
#include "frame/record_text.h"

namespace korvin {

/// The line of the program in every text copy; its last character is a blank.
inline constexpr std::string_view Programmzeile = "WIN-KORVIN, Version 5.55 / qk ";

/// `text` without the blanks on the right.
inline std::string rechtsGetrimmt(std::string_view text) {
  return std::string(text.substr(0, text.find_last_not_of(' ') + 1));
}

/// The text copy of a measurement as it grows: UTF-8, lines end with "\r\n", columns are parted by tabs.
class Textkopie {
 public:
  void zeile(std::string_view inhalt = {}) { stueck(inhalt), text_ += NeueZeile; }
  /// A line of the head: what it is, a colon, a tab, the thing itself.
  void angabe(const std::string& was, std::string_view inhalt) { zeile(was + ":\t" + std::string(inhalt)); }
  /// A piece of a line, which goes on with whatever comes next.
  void stueck(std::string_view inhalt) { text_ += inhalt; }

  const std::string& text() const { return text_; }

 private:
  std::string text_;
};

}  // namespace korvin
