#pragma once

#include <string>
#include <vector>

#include "frame/drucker.h"

namespace korvin {

/// A rule of a block; mm from the block's corner.
struct BlockRegel {
  double x1;
  double y1;
  double x2;
  double y2;
};

/// A text of a block: `x`, `y` its top left corner and `rechts` how far it may reach, mm from the block's
/// corner. A text that is longer shrinks.
struct BlockZelle {
  double x;
  double y;
  double rechts;
  std::string text;
  bool mittelStrich = false;  ///< a short bar over the first letter, for the sign of a mean
};

/// A framed block of texts, as the statistics of an axis.
struct Block {
  std::vector<BlockRegel> regeln;
  std::vector<BlockZelle> zellen;
};

/// Prints a block with its corner at (x0, y).
void AchsenBlock(Drucker& drucker, double x0, double y, const Block& block);

/// What a statistics block of one row says; all texts are UTF-8.
struct BlockTexte {
  std::string achse;  ///< in the narrow first column
  std::string titel;
  std::string mittel;
  std::string streuung;
  std::string spanne;
};

/// The statistics block of one row: 5 mm high, rules from x 20 to 176.5.
Block statistikBlock(const BlockTexte& texte);

}  // namespace korvin
