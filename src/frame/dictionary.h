#pragma once

#include <cstdint>
#include <string>

namespace korvin {

/// The text dictionary. A port: every visible word is a number, its wording lies in the table `DIC`.
class Dictionary {
 public:
  virtual ~Dictionary() = default;

  /// The text of `id` in the present language as UTF-8; German where the language has none. Nothing is
  /// cached. Any failure (missing file, column or number) shows the system's error text and ends the program.
  virtual std::string DicText(std::int16_t id) = 0;
};

}  // namespace korvin
