#include "reports/protokoll.h"

#include <cstddef>
#include <utility>

#include "frame/date_format.h"
#include "frame/filterzeit.h"
#include "frame/montage.h"
#include "frame/number_format.h"
#include "frame/pfade.h"

namespace korvin {
namespace {

constexpr double infoY = 25;
constexpr std::size_t druckZeile = 5;  // tells the time of printing

std::string ohneEndung(const std::string& name) {
  const std::size_t punkt = name.rfind('.');
  return punkt == std::string::npos || punkt == 0 ? name : name.substr(0, punkt);
}

}  // namespace

ProtokollInfo::ProtokollInfo(Dictionary& dictionary, const ProtokollAngaben& a) {
  const auto text = [&dictionary](std::int16_t nummer, std::string_view dahinter = ":") {
    return dictionary.DicText(nummer) + std::string(dahinter);
  };
  zeilen_ = {
      {text(3001), {}, {}, {}, true},
      {text(3044), a.Bezeichnung, {}, {}},
      {text(3048), a.system, {}, {}},
      {text(3050), a.dateiName, {}, {}},
      {text(3008), a.Bediener, {}, {}},
      {text(3050, " (t):"),
       reformatDate(a.Datum, " " + std::string(ProtokollZeitMuster)),
       text(3051, " (t):"),
       {}},
      {text(3010), formatNumber(a.AnzMPs, "0"), text(a.nebenText), a.neben},
      {text(3003, "°:"), MontageText(dictionary, a.Montage), text(3013), std::string(filterzeit(a.Filter))},
      {text(3009), a.Kommentar, {}, {}}};
}

void ProtokollInfo::drucken(Drucker& drucker, double druckzeit) const {
  std::vector<InfoZeile> zeilen = zeilen_;
  zeilen.at(druckZeile).wertRechts = formatDate(druckzeit, ProtokollZeitMuster);
  InfoBlock(drucker, infoY, zeilen);
}

std::string protokollDatei(const std::string& pfad) {
  std::string name = pfadTeilen(pfad).name;
  name.erase(0, name.find_first_not_of(' '));
  return name.starts_with("*.") ? std::string() : name;
}

Bericht protokoll(Dictionary& dictionary, const std::string& dateiName,
                  std::function<void(Drucker&)> drucken) {
  const std::string art = "KORVIN-" + dictionary.DicText(3057);
  return {dateiName.empty() ? art : art + ": " + dateiName, dateiName.empty() ? art : ohneEndung(dateiName),
          std::move(drucken)};
}

}  // namespace korvin
