#include "position/panel_texts.h"

#include "frame/cp1252.h"
#include "frame/date_format.h"
#include "frame/leerwert.h"
#include "frame/messart.h"
#include "frame/number_format.h"
#include "frame/zahl_text.h"

namespace korvin {
namespace {

constexpr const char* OhnePunkt = "- ";
constexpr const char* OhneOffset = "--- / -.--- / -.--- ";
constexpr const char* OffsetMuster = "0.000";

/// The value under the cursor. A cursor that a file brought along may stand outside the points.
std::string wertText(const PunktFeld& werte, const AchsenInfo& achse, const PositionsInfo& info) {
  const int punkt = info.MPAktuell;
  if (punkt >= 1 && punkt <= info.AnzahlMP) {
    const double wert = werte.at(static_cast<std::size_t>(punkt));
    if (!istLeer(wert)) return formatNumber(wert - achse.Offset, ZahlMuster(info.NKStellen));
  }
  return std::string(LeerMuster(info.NKStellen));
}

std::string offsetText(const PositionsDatei& arbeit) {
  if (!arbeit.Info.OffsetAktiv) return OhneOffset;
  return formatNumber(arbeit.Info.OffsetMP, "0") + " / " + formatNumber(arbeit.X.Offset, OffsetMuster) +
         " / " + formatNumber(arbeit.Y.Offset, OffsetMuster);
}

}  // namespace

PositionsTexte positionsTexte(const FORMPOS& formpos) {
  const PositionsDatei& arbeit = formpos.arbeit();
  const PositionsInfo& info = arbeit.Info;
  PositionsTexte texte;
  texte.X = wertText(formpos.punkte().X(), arbeit.X, info);
  texte.Y = wertText(formpos.punkte().Y(), arbeit.Y, info);
  texte.MessPkt = info.AnzahlMP > 0 ? formatNumber(info.MPAktuell, "0") : OhnePunkt;
  texte.MPsTotal = info.AnzahlMP > 0 ? formatNumber(info.AnzahlMP, "0") : OhnePunkt;
  texte.Offset = offsetText(arbeit);
  if (info.Intervall != 0) texte.MessRate = formatGeneral(info.Intervall);
  if (info.RestMP != -1) texte.MpsStart = formatNumber(info.RestMP, "0");
  if (info.StartAktiv) texte.StartZeit = panelZeit(info.StartZeit);
  if (info.StopAktiv) texte.StopZeit = panelZeit(info.StopZeit);
  return texte;
}

std::string panelZeit(double tage) {
  return "  " + formatDate(tage, "hh:mm:ss");
}

std::string fensterTitel(const PositionsInfo& info, Dictionary& dictionary) {
  return vonCp1252(info.DateiName.trimmed()) + " [" + MessartTitel(dictionary, MessartPosition) + "]";
}

}  // namespace korvin
