#include "position/text_copy.h"

#include <algorithm>
#include <string_view>

#include "frame/date_format.h"
#include "frame/filterzeit.h"
#include "frame/leerwert.h"
#include "frame/number_format.h"
#include "frame/textkopie.h"

namespace korvin {
namespace {

constexpr std::string_view datumMuster = "dd.mm.yyyy / hh:mm:ss";

std::string wert(double zahl) {
  return istLeer(zahl) ? "?.?" : formatNumber(zahl, "0.0000");
}

void kopf(Textkopie& kopie, const PositionsInfo& info, Dictionary& dictionary) {
  const auto angabe = [&](std::int16_t was, std::string_view inhalt) {
    kopie.angabe(dictionary.DicText(was), inhalt);
  };
  kopie.angabe("KORVIN-" + rechtsGetrimmt(dictionary.DicText(3019)), utf8(info.FirmaName));
  angabe(3048, utf8(info.ProgrammText));
  angabe(3044, utf8(info.Bezeichnung));
  angabe(3049, utf8(info.DateiName));
  angabe(3056, reformatDate(utf8(info.Datum), datumMuster));
  angabe(3008, utf8(info.Bediener));
  angabe(3009, utf8(info.Kommentar));
  angabe(3010, "-" + formatNumber(info.AnzahlMP, "0") + "-");
  const std::string_view zeit = filterzeit(info.Filter.full().front());
  if (!zeit.empty()) angabe(3013, zeit);
  kopie.zeile();
  kopie.zeile(Programmzeile);
  kopie.zeile();
}

}  // namespace

std::string positionTextCopy(const PositionsInfo& info, const PointStore& points, Dictionary& dictionary) {
  Textkopie kopie;
  kopf(kopie, info, dictionary);
  kopie.zeile(dictionary.DicText(3018) + ": ");
  kopie.zeile("MP\tDatum/Zeit\tX[mm]\tY[mm]");
  for (std::size_t i = 1; i <= static_cast<std::size_t>(std::max<std::int16_t>(info.AnzahlMP, 0)); ++i) {
    const double zeit = points.T().at(i);
    kopie.zeile(std::to_string(i) + "\t" + (istLeer(zeit) ? "?.?" : formatDate(zeit, datumMuster)) + "\t" +
                wert(points.X().at(i)) + "\t" + wert(points.Y().at(i)));
  }
  kopie.zeile();
  return kopie.text();
}

}  // namespace korvin
