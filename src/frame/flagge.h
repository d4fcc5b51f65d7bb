#pragma once

#include <concepts>
#include <cstdint>

namespace korvin {

/// A flag of a record: 16 bits, −1 for true and 0 for false. Any other value counts as true and is carried
/// along unchanged until the flag is set anew.
class Flagge {
 public:
  constexpr Flagge() = default;
  constexpr explicit(false) Flagge(std::same_as<bool> auto value) : raw_(value ? -1 : 0) {}

  /// The flag with exactly the 16 bits of `value`.
  static constexpr Flagge ofRaw(std::int16_t value) {
    Flagge flag;
    flag.raw_ = value;
    return flag;
  }

  constexpr std::int16_t raw() const { return raw_; }
  constexpr explicit operator bool() const { return raw_ != 0; }

  friend constexpr bool operator==(Flagge, Flagge) = default;

 private:
  std::int16_t raw_ = 0;
};

}  // namespace korvin
