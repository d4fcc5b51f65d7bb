#include "position/text_copy.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "frame/cp1252.h"
#include "frame/date_format.h"
#include "frame/filterzeit.h"
#include "frame/leerwert.h"
#include "frame/message_port.h"
#include "frame/number_format.h"

namespace korvin {
namespace {

constexpr std::string_view datumMuster = "dd.mm.yyyy / hh:mm:ss";
constexpr std::string_view programm = "WIN-KORVIN, Version 5.55 / qk ";

template <std::size_t N>
std::string utf8(const FesterText<N>& text) {
  return vonCp1252(text.trimmed());
}

std::string wert(double zahl) {
  return istLeer(zahl) ? "?.?" : formatNumber(zahl, "0.0000");
}

std::string rechtsGetrimmt(std::string text) {
  text.erase(text.find_last_not_of(' ') + 1);
  return text;
}

class TextCopy {
 public:
  explicit TextCopy(Dictionary& dictionary) : dictionary_(dictionary) {}

  void zeile(const std::string& text = {}) { text_ += text + NeueZeile; }
  void angabe(std::int16_t nummer, const std::string& inhalt) {
    zeile(dictionary_.DicText(nummer) + ":\t" + inhalt);
  }
  std::string text() && { return std::move(text_); }

 private:
  Dictionary& dictionary_;
  std::string text_;
};

void kopf(TextCopy& kopie, const PositionsInfo& info, Dictionary& dictionary) {
  kopie.zeile("KORVIN-" + rechtsGetrimmt(dictionary.DicText(3019)) + ":\t" + utf8(info.FirmaName));
  kopie.angabe(3048, utf8(info.ProgrammText));
  kopie.angabe(3044, utf8(info.Bezeichnung));
  kopie.angabe(3049, utf8(info.DateiName));
  kopie.angabe(3056, reformatDate(utf8(info.Datum), datumMuster));
  kopie.angabe(3008, utf8(info.Bediener));
  kopie.angabe(3009, utf8(info.Kommentar));
  kopie.angabe(3010, "-" + formatNumber(info.AnzahlMP, "0") + "-");
  const std::string_view zeit = filterzeit(info.Filter.full().front());
  if (!zeit.empty()) kopie.angabe(3013, std::string(zeit));
  kopie.zeile();
  kopie.zeile(std::string(programm));
  kopie.zeile();
}

}  // namespace

std::string positionTextCopy(const PositionsInfo& info, const PointStore& points, Dictionary& dictionary) {
  TextCopy kopie(dictionary);
  kopf(kopie, info, dictionary);
  kopie.zeile(dictionary.DicText(3018) + ": ");
  kopie.zeile("MP\tDatum/Zeit\tX[mm]\tY[mm]");
  for (std::size_t i = 1; i <= static_cast<std::size_t>(std::max<std::int16_t>(info.AnzahlMP, 0)); ++i) {
    const double zeit = points.T().at(i);
    kopie.zeile(std::to_string(i) + "\t" + (istLeer(zeit) ? "?.?" : formatDate(zeit, datumMuster)) + "\t" +
                wert(points.X().at(i)) + "\t" + wert(points.Y().at(i)));
  }
  kopie.zeile();
  return std::move(kopie).text();
}

}  // namespace korvin
