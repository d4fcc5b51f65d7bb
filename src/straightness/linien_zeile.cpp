#include "straightness/linien_zeile.h"

#include <algorithm>
#include <cstddef>

#include "frame/number_format.h"
#include "straightness/auswertung.h"
#include "straightness/masseinheit.h"

namespace korvin {
namespace {

constexpr const char* ZMuster = "0.0";

std::string wertText(const GeradAchse& achse, const AchsenAnzeigeDaten& daten, std::size_t punkt,
                     std::int16_t NKStellen) {
  const std::string text = punktWertText(achse.Wert.at(punkt), daten.ausgewertet.at(punkt), NKStellen);
  return text.substr(text.find_first_not_of(' '));
}

}  // namespace

int linienZeilen(const GeradReihe& reihe, const AchsenAnzeigeDaten& X, const AchsenAnzeigeDaten& Y) {
  const std::size_t raum = reihe.Linie.Z.size() - 1;
  return static_cast<int>(std::min({X.ausgewertet.anzahl(), Y.ausgewertet.anzahl(), raum}));
}

LinienZeile linienZeile(const GeradReihe& reihe, const AchsenAnzeigeDaten& X, const AchsenAnzeigeDaten& Y,
                        int nummer, std::int16_t Masssystem) {
  const auto punkt = static_cast<std::size_t>(nummer);
  const std::int16_t stellen = reihe.Info.NKStellen;
  return {formatNumber(nummer, "0"),
          formatNumber(anzeigeLaenge(reihe.Linie.Z.at(punkt), Masssystem), ZMuster),
          wertText(reihe.X, X, punkt, stellen), wertText(reihe.Y, Y, punkt, stellen)};
}

}  // namespace korvin
