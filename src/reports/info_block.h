#pragma once

#include <string>
#include <vector>

#include "frame/drucker.h"

namespace korvin {

/// One line of an information block; texts are UTF-8, labels with their colon. What is empty isn't printed.
struct InfoZeile {
  std::string text;        ///< label at the left margin
  std::string wert;        ///< its value
  std::string textRechts;  ///< label of the right half
  std::string wertRechts;
  bool fett = false;  ///< the left label is a heading
};

/// Prints an information block from `y` on, a line every 4 mm, as many as there are, and leaves the position
/// where the next value would stand. Texts that are too long for their place shrink.
void InfoBlock(Drucker& drucker, double y, const std::vector<InfoZeile>& zeilen);

}  // namespace korvin
