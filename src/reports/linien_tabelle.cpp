#include "reports/linien_tabelle.h"

#include <utility>

#include "frame/number_format.h"
#include "reports/druck_hilfen.h"
#include "reports/protokoll.h"
#include "straightness/masseinheit.h"

namespace korvin {
namespace {

constexpr double nummerKopfX = 60;
constexpr double nummerX = 55;
constexpr double zX = 85;
constexpr double zKopfInchX = 90;  // kept: the heading in inch ends further right than its column
constexpr double ersterWertX = 125;
constexpr double zweiterWertX = 165;
constexpr double spaltenLuft = 2;
constexpr double markenPlatz = 5;  // behind a value, for its mark

}  // namespace

void nummernSpalte(Tabelle& tabelle, const std::string& kopf) {
  tabelle.spalten.push_back(
      {nummerKopfX, kopf, nummerX, true, LinkerRand, [](int i) { return formatNumber(i, "0"); }, {}});
}

void zSpalte(Tabelle& tabelle, std::int16_t Masssystem, std::function<double(int)> mm) {
  const bool inch = Masssystem == MasssystemInch;
  TabellenSpalte spalte{inch ? zKopfInchX : zX,
                        inch ? "Z[in]" : "Z[mm]",
                        zX,
                        true,
                        nummerX + spaltenLuft,
                        [Masssystem, mm = std::move(mm)](int i) {
                          return formatNumber(anzeigeLaenge(mm(i), Masssystem), "0.0");
                        },
                        {}};
  spalte.kopfRechts = true;
  tabelle.spalten.push_back(std::move(spalte));
}

void wertSpalten(Tabelle& tabelle, std::int16_t Masssystem, const std::vector<WertSpalte>& spalten) {
  const std::string einheit = Masssystem == MasssystemInch ? "[mil]" : "[mm]";
  double x = ersterWertX;
  double grenze = zX + spaltenLuft;
  for (const WertSpalte& spalte : spalten) {
    tabelle.spalten.push_back(
        {x, std::string(spalte.name) + einheit, x, true, grenze, spalte.wert, spalte.marke});
    grenze = x + markenPlatz + spaltenLuft;
    x = zweiterWertX;
  }
}

std::vector<Fussnote> linienFussnoten(Dictionary& dictionary, const std::string& auswertung) {
  const auto text = [&dictionary](std::int16_t nummer) { return dictionary.DicText(nummer); };
  // Each mark's number stands behind its text.
  return {{text(3064) + ": " + auswertung},
          {text(3065) + std::string(OhneWert) + "="},
          {text(3011) + " (" + text(3027) + ": 0= ", text(3028) + "; 1= ", text(3026) + "; 2= )"}};
}

}  // namespace korvin
