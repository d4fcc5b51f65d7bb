#pragma once

namespace korvin {

/// The time, as the program reads it. A port: the system's clock in the program, a clock that moves by hand
/// in tests.
class Clock {
 public:
  virtual ~Clock() = default;

  /// Local time of day in seconds since midnight, 0 up to 86400. A 32-bit float on purpose: times of day are
  /// compared in this width everywhere, so the grain near midnight is 1/128 s.
  virtual float secondsOfDay() const = 0;

  /// Local date and time in days; day 0 is 30 December 1899, the fraction is the time of day.
  virtual double now() const = 0;
};

/// The clock of the computer.
class SystemClock : public Clock {
 public:
  float secondsOfDay() const override;
  double now() const override;
};

}  // namespace korvin
