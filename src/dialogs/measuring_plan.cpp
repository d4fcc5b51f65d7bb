#include "dialogs/measuring_plan.h"

#include <cstdint>
#include <tuple>
#include <utility>

#include "dialogs/entered_number.h"
#include "frame/date_format.h"
#include "frame/number_format.h"
#include "frame/zahl_text.h"

namespace korvin {
namespace {

constexpr std::int16_t ohneGrenze = -1;
constexpr std::int16_t TextKeinDatum = 7481;
constexpr std::int16_t TextStartSofort = 7482;
constexpr std::int16_t TextStopSofort = 7483;

/// Date and time of a moment.
std::pair<std::string, std::string> momentTexte(double moment) {
  const bool ohneDatum = formatDate(moment, "dd.mm.yyyy") == formatDate(0, "dd.mm.yyyy");
  return {ohneDatum ? "" : formatDate(moment, "dd.mm.yy"), formatDate(moment, "hh:mm:ss")};
}

void momentSetzen(const std::string& datum, const std::string& zeit, Flagge& aktiv, double& moment) {
  const bool unveraendert = aktiv && std::pair(datum, zeit) == momentTexte(moment);
  aktiv = !istLeerText(zeit);
  if (aktiv && !unveraendert) moment = parseDate(datum).value_or(0) + parseTime(zeit).value_or(0);
}

std::string momentHinweis(const std::string& datum, const std::string& zeit, std::int16_t sofort,
                          Dictionary& dictionary) {
  if (!istLeerText(datum) && !parseDate(datum)) return dictionary.DicText(TextKeinDatum);
  if (istLeerText(datum) && !istLeerText(zeit)) return dictionary.DicText(sofort);
  return {};
}

}  // namespace

bool hatMessplan(const PositionsInfo& info) {
  return info.RestMP != ohneGrenze || info.Intervall != 0 || info.StartAktiv || info.StopAktiv;
}

MessplanTexte messplanTexte(const PositionsInfo& info) {
  MessplanTexte plan;
  if (info.RestMP != ohneGrenze) plan.anzahl = formatNumber(info.RestMP, "0");
  plan.intervall = formatGeneral(info.Intervall);
  if (info.StartAktiv) std::tie(plan.startDatum, plan.startZeit) = momentTexte(info.StartZeit);
  if (info.StopAktiv) std::tie(plan.stopDatum, plan.stopZeit) = momentTexte(info.StopZeit);
  return plan;
}

void messplanSetzen(const MessplanTexte& plan, PositionsInfo& info) {
  info.RestMP = istLeerText(plan.anzahl) ? ohneGrenze : ganzzahlAusText(plan.anzahl);
  info.Intervall = endlicheZahl(plan.intervall);
  momentSetzen(plan.startDatum, plan.startZeit, info.StartAktiv, info.StartZeit);
  momentSetzen(plan.stopDatum, plan.stopZeit, info.StopAktiv, info.StopZeit);
}

MessplanHinweise messplanHinweise(const MessplanTexte& plan, Dictionary& dictionary) {
  return {
      zahlHinweis(plan.anzahl, ganzzahlAusText(plan.anzahl), dictionary),
      zahlHinweis(plan.intervall, endlicheZahl(plan.intervall), dictionary),
      momentHinweis(plan.startDatum, plan.startZeit, TextStartSofort, dictionary),
      momentHinweis(plan.stopDatum, plan.stopZeit, TextStopSofort, dictionary),
  };
}

}  // namespace korvin
