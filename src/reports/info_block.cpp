#include "reports/info_block.h"

#include "reports/druck_hilfen.h"

namespace korvin {
namespace {

constexpr double schrift = 9;
constexpr double zeilenHoehe = 4;
constexpr double wertX = 45;
constexpr double rechtsX = 90;
constexpr double wertRechtsX = 120;
constexpr double luft = 0.5;  // least gap to the next text

void zelle(Drucker& drucker, double x, double y, const std::string& text, double rechts) {
  if (text.empty()) return;
  PositionSetzen(drucker, x, y);
  LinksDruck(drucker, text, rechts);
}

void zeileDrucken(Drucker& drucker, double y, const InfoZeile& zeile) {
  const bool geteilt = !zeile.textRechts.empty();
  drucker.setFett(zeile.fett);
  zelle(drucker, LinkerRand, y, zeile.text, zeile.wert.empty() ? RechterRand : wertX - luft);
  drucker.setFett(false);
  zelle(drucker, wertX, y, zeile.wert, geteilt ? rechtsX - luft : RechterRand);
  zelle(drucker, rechtsX, y, zeile.textRechts, wertRechtsX - luft);
  zelle(drucker, wertRechtsX, y, zeile.wertRechts, RechterRand);
}

}  // namespace

void InfoBlock(Drucker& drucker, double y, const std::vector<InfoZeile>& zeilen) {
  schriftSetzen(drucker, schrift);
  for (const InfoZeile& zeile : zeilen) {
    zeileDrucken(drucker, y, zeile);
    y += zeilenHoehe;
  }
  PositionSetzen(drucker, wertX, y);
}

}  // namespace korvin
