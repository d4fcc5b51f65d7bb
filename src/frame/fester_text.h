#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace korvin {

/// A text of a record: exactly `N` bytes of Windows-1252, filled with blanks on the right, without an end
/// mark. All `N` bytes are kept as they were read, so a record comes back unchanged.
template <std::size_t N>
class FesterText {
 public:
  /// All blanks.
  constexpr FesterText() { bytes_.fill(' '); }
  constexpr explicit FesterText(std::string_view cp1252) { *this = cp1252; }

  /// Takes the first `N` bytes of `cp1252`; what is missing becomes blanks.
  constexpr FesterText& operator=(std::string_view cp1252) {
    const std::size_t length = std::min(cp1252.size(), N);
    std::copy_n(cp1252.begin(), length, bytes_.begin());
    std::fill(bytes_.begin() + length, bytes_.end(), ' ');
    return *this;
  }

  /// The text as it is shown: without the blanks on the right, nor the zero bytes of a field that was never
  /// set.
  constexpr std::string_view trimmed() const {
    const std::size_t last = full().find_last_not_of(std::string_view(" \0", 2));
    return full().substr(0, last == std::string_view::npos ? 0 : last + 1);
  }

  /// All `N` bytes.
  constexpr std::string_view full() const { return {bytes_.data(), N}; }

  constexpr std::array<char, N>& bytes() { return bytes_; }
  constexpr const std::array<char, N>& bytes() const { return bytes_; }

  /// True if `cp1252` can be kept whole.
  static constexpr bool fits(std::string_view cp1252) { return cp1252.size() <= N; }

  friend constexpr bool operator==(const FesterText&, const FesterText&) = default;

 private:
  std::array<char, N> bytes_{};
};

}  // namespace korvin
