#include "position/commands.h"

#include <algorithm>
#include <optional>

#include "frame/cp1252.h"
#include "frame/datei_dialog.h"
#include "frame/datum_text.h"
#include "frame/messart.h"
#include "frame/pfade.h"

namespace korvin {
namespace {

constexpr std::int16_t TextKind = 505;
constexpr std::int16_t TextOeffnen = 2044;
constexpr std::int16_t TextSpeichernUnter = 2045;
constexpr std::int16_t TextAenderungen = 6009;
constexpr std::int16_t StatusGeladen = 1;
constexpr std::int16_t StatusGespeichert = 2;

}  // namespace

bool PositionsBefehle::aenderungenBehandelt() {
  if (!u_.formpos.Info().Geaendert) return true;
  u_.meldung.MsgTitel = "KORVIN-" + MessartTitel(u_.dictionary, MessartPosition);
  u_.meldung.MsgText = u_.dictionary.DicText(TextAenderungen);
  u_.messages.beep();
  switch (u_.messages.show(u_.meldung, MessageIcon::question, MessageButtons::yesNoCancel)) {
    case MessageAnswer::yes:
      return M_Speichern();
    case MessageAnswer::no:
      return true;
    default:
      return false;
  }
}

bool PositionsBefehle::M_Neu(const std::function<void()>& entschieden) {
  if (!aenderungenBehandelt()) return false;
  entschieden();
  u_.erfassung.neueMessung();
  return true;
}

bool PositionsBefehle::M_Oeffnen(const std::function<void()>& entschieden) {
  if (!aenderungenBehandelt()) return false;
  const std::int16_t behandelt = u_.formpos.Info().AnzahlMP;
  const std::string name =
      dateiErfragen(u_.fileDialog, messordner(), u_.dictionary.DicText(TextKind) + "(*.O)|*.O",
                    u_.dictionary.DicText(TextOeffnen), true);
  if (name.empty()) return false;
  // A run goes on behind the dialog: points that came meanwhile are asked for too.
  if (u_.formpos.Info().AnzahlMP != behandelt && !aenderungenBehandelt()) return false;
  // Its messages speak of the file's kind.
  u_.system.Messart = MessartPosition;
  if (!u_.dateien.o_DateiLaden(name)) return false;
  entschieden();
  u_.erfassung.bildUebernehmen();
  return true;
}

bool PositionsBefehle::M_Speichern() {
  return u_.formpos.Info().DateiStatus == StatusGespeichert ? schreiben() : M_SpeichernUnter();
}

bool PositionsBefehle::M_SpeichernUnter() {
  const std::string name =
      dateiErfragen(u_.fileDialog, messordner(), u_.dictionary.DicText(TextKind) + "(*.O)|",
                    u_.dictionary.DicText(TextSpeichernUnter), false, bisherigerName());
  if (name.empty()) return false;
  PositionsInfo& info = u_.formpos.Info();
  const std::optional<std::string> bytes = zuCp1252(name);
  // A name that the record can't hold is refused by the operation itself, which says why.
  if (!bytes || !decltype(info.DateiName)::fits(*bytes)) return u_.dateien.o_DateiSpeichern(name);
  info.InfoAbbruch = !u_.dateiInfo.bearbeiten(info);
  if (info.InfoAbbruch) return false;
  const auto vorherName = info.DateiName;
  const std::int16_t vorherStatus = info.DateiStatus;
  info.DateiName = *bytes;
  info.DateiStatus = StatusGespeichert;
  if (schreiben()) return true;
  // Nothing stands under the new name, and from the old one the user had turned away: the next Save asks.
  info.DateiName = vorherName;
  info.DateiStatus = std::min(vorherStatus, StatusGeladen);
  return false;
}

bool PositionsBefehle::schreiben() {
  PositionsInfo& info = u_.formpos.Info();
  info.Datum = DatumText(u_.clock);
  if (!u_.dateien.o_DateiSpeichern(vonCp1252(info.DateiName.trimmed()))) {
    info.Datum = LeerDatum;
    return false;
  }
  info.Geaendert = false;
  return true;
}

std::string PositionsBefehle::bisherigerName() const {
  const std::string name = pfadTeilen(vonCp1252(u_.formpos.Info().DateiName.trimmed())).name;
  return name == "*.O" ? std::string() : name;
}

std::string PositionsBefehle::messordner() {
  return MessOrdner(u_.profil.wert(einstellung::FormPosition::PfadMessFile),
                    pfadTeilen(u_.system.DbPfad).ordner);
}

}  // namespace korvin
