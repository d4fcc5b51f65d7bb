#pragma once

#include <string>

namespace korvin {

enum class MessageIcon { none, information, question, warning };
enum class MessageButtons { ok, okCancel, yesNo, yesNoCancel };
enum class MessageAnswer { ok, cancel, yes, no };

/// The two shared texts in which every message is composed before it is shown. UTF-8; lines end with "\r\n".
struct Meldung {
  std::string MsgTitel;
  std::string MsgText;
};

/// Shows message boxes. A port. Closing the box by its corner answers `cancel` where there is a Cancel
/// button, else the least harmful button (`no`, `ok`).
class MessagePort {
 public:
  virtual ~MessagePort() = default;

  /// Shows `message` modally and returns the button pressed.
  virtual MessageAnswer show(const Meldung& message, MessageIcon icon, MessageButtons buttons) = 0;

  virtual void beep() = 0;
};

/// The line end inside messages and text copies, characters 13 and 10.
inline constexpr const char* NeueZeile = "\r\n";

}  // namespace korvin
