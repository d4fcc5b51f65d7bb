#pragma once

#include <deque>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace korvin::head {

/// Letter of the key that `letter` names (M, J, L, R in either case), or 0.
char keyOf(char letter);

/// A press at a moment, in seconds since the head's start.
struct ScriptedKey {
  double seconds = 0;
  char key = 'M';
};

/// Says which line of a key script cannot be read, and why.
struct ScriptError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// Reads a key script: one press a line, "SECONDS KEY", as "2.5 M"; "+1 J" is one second after the line
/// before. Empty lines and what follows a "#" are left out; the moments must not go back. Throws
/// `ScriptError`.
std::vector<ScriptedKey> parseKeyScript(std::string_view text);

/// The keys of the head. A press waits until an answer has reported it, so no press is lost between two
/// polls, and is reported in that one answer only: a program that runs on J answers takes a second report for
/// the press that ends the run. With a hold time the key is reported in every answer until that time has
/// passed since its first report.
class KeyPad {
 public:
  explicit KeyPad(std::vector<ScriptedKey> script = {}, double holdSeconds = 0);

  /// Presses `key` (M, J, L or R) at once.
  void press(char key) { waiting_.push_back(key); }
  /// Letter for an answer at the moment `now`: the key to report, or 'K' for none.
  char report(double now);

 private:
  void takeFromScript(double now);

  std::deque<ScriptedKey> script_;
  double holdSeconds_;
  std::deque<char> waiting_;
  char held_ = 'K';
  double heldUntil_ = 0;
};

}  // namespace korvin::head
