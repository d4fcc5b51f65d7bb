#pragma once

namespace korvin {

/// The mouse pointer of the whole program: it is either the hourglass or the normal one, however often it is
/// set.
void showHourglass();
void showNormalPointer();
bool hourglassShown();

/// Shows the normal pointer while it lives, then what was shown before: for boxes that a user must answer.
class NormalPointerScope {
 public:
  NormalPointerScope();
  ~NormalPointerScope();
  NormalPointerScope(const NormalPointerScope&) = delete;
  NormalPointerScope& operator=(const NormalPointerScope&) = delete;

 private:
  bool hourglassBefore_;
};

/// Shows the hourglass while it lives, then what was shown before.
class HourglassScope {
 public:
  HourglassScope();
  ~HourglassScope();
  HourglassScope(const HourglassScope&) = delete;
  HourglassScope& operator=(const HourglassScope&) = delete;

 private:
  bool hourglassBefore_;
};

}  // namespace korvin
