#pragma once

#include <string_view>

#include "position/record.h"

namespace korvin {

// The keys of the toolbar `tbrXYBereich`, and what they do to the record. After each of them that has done
// something the diagram is to be drawn again.

/// True if the ranges are set by hand: the key "HAND" of the pair is pressed, and the four keys that change a
/// range are enabled. A file whose axes differ counts as by hand, so that both keys of the pair can end that.
bool bereichVonHand(const PositionsDatei& datei);

/// "AUTO": the ranges follow the points, from the next drawing on.
void bereichAuto(PositionsDatei& datei);
/// "HAND": the ranges stay as they are, until a key changes them.
void bereichHand(PositionsDatei& datei);

/// Carries out the key of that name: "AUTO", "HAND"; "XPLUS", "XMINUS", "YPLUS", "YMINUS" set the range of
/// their axis a rung up or down the ladder of `Masssystem` (1 inch, else metric). Nothing, and false, for
/// another name, and for the last four as long as the ranges are not set by hand.
bool bereichsTaste(PositionsDatei& datei, std::string_view taste, int Masssystem);

}  // namespace korvin
