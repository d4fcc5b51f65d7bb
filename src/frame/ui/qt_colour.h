#pragma once

#include <QColor>

#include "frame/farbe.h"

namespace korvin {

/// The colour of a number 0xBBGGRR.
inline QColor qColour(Farbe farbe) {
  return {farbe & 0xFF, (farbe >> 8) & 0xFF, (farbe >> 16) & 0xFF};
}

}  // namespace korvin
