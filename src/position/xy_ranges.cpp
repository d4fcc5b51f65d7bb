#include "position/xy_ranges.h"

#include "frame/bereich.h"

namespace korvin {
namespace {

void setBereichHand(PositionsDatei& datei, bool hand) {
  datei.X.BereichHand = hand ? 1 : 0;
  datei.Y.BereichHand = hand ? 1 : 0;
}

bool rangeKey(PositionsDatei& datei, std::string_view taste, int Masssystem) {
  const auto isFor = [&](char axis, std::string_view key) {
    return taste.starts_with(axis) && taste.substr(1) == key;
  };
  for (AchsenInfo* achse : {&datei.X, &datei.Y}) {
    const char name = achse == &datei.X ? 'X' : 'Y';
    if (isFor(name, "PLUS")) return achse->Bereich = bereichGroesser(achse->Bereich, Masssystem), true;
    if (isFor(name, "MINUS")) return achse->Bereich = bereichKleiner(achse->Bereich, Masssystem), true;
  }
  return false;
}

}  // namespace

bool bereichVonHand(const PositionsDatei& datei) {
  return datei.X.BereichHand != 0 || datei.Y.BereichHand != 0;
}

void bereichAuto(PositionsDatei& datei) {
  setBereichHand(datei, false);
}

void bereichHand(PositionsDatei& datei) {
  setBereichHand(datei, true);
}

bool bereichsTaste(PositionsDatei& datei, std::string_view taste, int Masssystem) {
  if (taste == "AUTO") return bereichAuto(datei), true;
  if (taste == "HAND") return bereichHand(datei), true;
  return bereichVonHand(datei) && rangeKey(datei, taste, Masssystem);
}

}  // namespace korvin
