#include "straightness/achsen_kurve.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "frame/leerwert.h"

namespace korvin {
namespace {

/// Where the straight line from `von` to `bis`, which have different heights, has the height `y`.
DataPoint aufHoehe(DataPoint von, DataPoint bis, double y) {
  const double anteil = (y - von.y) / (bis.y - von.y);
  return {von.x + anteil * (bis.x - von.x), y};
}

DataPoint gehalten(DataPoint punkt, double R) {
  return {punkt.x, std::clamp(punkt.y, -R, R)};
}

/// The line from `von` to `bis` in pieces that lie wholly inside or wholly beyond one edge.
void stueckeln(std::vector<KurvenStueck>& stuecke, DataPoint von, DataPoint bis, double R,
               bool ueberbrueckt) {
  std::array<DataPoint, 4> ecken{von};
  std::size_t n = 1;
  const bool steigt = bis.y > von.y;
  for (const double kante : {steigt ? -R : R, steigt ? R : -R}) {
    if ((von.y < kante) != (bis.y < kante) && von.y != kante && bis.y != kante)
      ecken.at(n++) = aufHoehe(von, bis, kante);
  }
  ecken.at(n++) = bis;
  for (std::size_t i = 1; i < n; ++i) {
    const DataPoint a = ecken.at(i - 1);
    const DataPoint b = ecken.at(i);
    const bool ausserhalb = std::max(a.y, b.y) > R || std::min(a.y, b.y) < -R;
    stuecke.push_back({gehalten(a, R), gehalten(b, R), ueberbrueckt, ausserhalb});
  }
}

}  // namespace

std::vector<KurvenStueck> kurvenStuecke(const KurvenWerte& kurve, double R) {
  std::vector<KurvenStueck> stuecke;
  const auto n = kurve.werte.empty() ? 0 : static_cast<std::size_t>(kurve.werte[0]);
  std::size_t letzter = 0;
  for (std::size_t i = 1; i <= n; ++i) {
    if (istLeer(kurve.werte[i])) continue;
    if (letzter != 0) {
      const bool ueberbrueckt = i - letzter > 1;
      stueckeln(stuecke, {kurve.z[letzter], kurve.werte[letzter]}, {kurve.z[i], kurve.werte[i]}, R,
                ueberbrueckt);
    }
    letzter = i;
  }
  return stuecke;
}

}  // namespace korvin
