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

/// Calls `tun` with each value and the next one, and whether points without a value lie between.
template <class Tun>
void jedesStueck(const KurvenWerte& kurve, const Tun& tun) {
  const auto n = kurve.werte.empty() ? 0 : static_cast<std::size_t>(kurve.werte[0]);
  std::size_t letzter = 0;
  for (std::size_t i = 1; i <= n; ++i) {
    if (istLeer(kurve.werte[i])) continue;
    if (letzter != 0)
      tun(DataPoint{kurve.z[letzter], kurve.werte[letzter]}, DataPoint{kurve.z[i], kurve.werte[i]},
          i - letzter > 1);
    letzter = i;
  }
}

}  // namespace

std::vector<KurvenStueck> kurvenStuecke(const KurvenWerte& kurve, double R) {
  std::vector<KurvenStueck> stuecke;
  jedesStueck(kurve, [&](DataPoint von, DataPoint bis, bool ueberbrueckt) {
    stueckeln(stuecke, von, bis, R, ueberbrueckt);
  });
  return stuecke;
}

std::optional<double> kurveBei(const KurvenWerte& kurve, double z) {
  std::optional<double> hoehe;
  jedesStueck(kurve, [&](DataPoint von, DataPoint bis, bool) {
    if (von.x <= z && z <= bis.x && von.x < bis.x)
      hoehe = von.y + (z - von.x) / (bis.x - von.x) * (bis.y - von.y);
  });
  return hoehe;
}

}  // namespace korvin
