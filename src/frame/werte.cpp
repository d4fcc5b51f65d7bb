#include "frame/werte.h"

#include <algorithm>
#include <cstdint>

#include "frame/cp1252.h"

namespace korvin {

double begrenzen(double grenze, double value) {
  if (value > grenze) return grenze;
  return value < -grenze ? -grenze : value;
}

int cursorSchritt(int cursor, int anzahl, int delta) {
  if (anzahl <= 0) return cursor;
  const std::int64_t wanted = std::int64_t{cursor} + delta;
  return static_cast<int>(std::clamp<std::int64_t>(wanted, 1, anzahl));
}

std::string Buchstabe(int index) {
  if (index < -64 || index > 255 - 64) return "?";
  return vonCp1252(std::string(1, static_cast<char>(64 + index)));
}

}  // namespace korvin
