#include "reports/statistik_block.h"

#include <array>

#include "reports/druck_hilfen.h"

namespace korvin {
namespace {

constexpr double schrift = 9;

// The bar over the x of a mean.
constexpr double strichAbstand = 0.5;
constexpr double strichLaenge = 1.5;
constexpr double strichY = 0.8;

constexpr double blockLinks = 20;
constexpr double blockRechts = 176.5;
constexpr double blockHoehe = 5;
constexpr double textY = 1;
constexpr double luft = 0.5;
/// Rules between the cells: the axis, the title, mean, spread and range.
constexpr std::array<double, 6> senkrechte = {blockLinks, 25, 101, 126, 151, blockRechts};

}  // namespace

void AchsenBlock(Drucker& drucker, double x0, double y, const Block& block) {
  schriftSetzen(drucker, schrift);
  for (const BlockRegel& r : block.regeln) regel(drucker, x0 + r.x1, y + r.y1, x0 + r.x2, y + r.y2);
  for (const BlockZelle& zelle : block.zellen) {
    const double x = x0 + zelle.x;
    PositionSetzen(drucker, x, y + zelle.y);
    LinksDruck(drucker, zelle.text, x0 + zelle.rechts);
    if (!zelle.mittelStrich) continue;
    const double strich = y + zelle.y + strichY;
    regel(drucker, x + strichAbstand, strich, x + strichAbstand + strichLaenge, strich);
  }
}

Block statistikBlock(const BlockTexte& texte) {
  Block block;
  block.regeln = {{blockLinks, 0, blockRechts, 0}, {blockLinks, blockHoehe, blockRechts, blockHoehe}};
  for (const double x : senkrechte) block.regeln.push_back({x, 0, x, blockHoehe});
  block.zellen = {{21, textY, 25 - luft, texte.achse},
                  {25, textY, 101 - luft, texte.titel},
                  {103, textY, 126 - luft, texte.mittel, true},
                  {128, textY, 151 - luft, texte.streuung},
                  {153, textY, blockRechts - luft, texte.spanne}};
  return block;
}

}  // namespace korvin
