#include "frame/datei_befehle.h"

#include <algorithm>
#include <optional>

#include "frame/cp1252.h"
#include "frame/datei_dialog.h"
#include "frame/datum_text.h"
#include "frame/messart.h"
#include "frame/messordner.h"
#include "frame/pfade.h"

namespace korvin {
namespace {

constexpr std::int16_t TextOeffnen = 2044;
constexpr std::int16_t TextSpeichernUnter = 2045;
constexpr std::int16_t TextAenderungen = 6009;

}  // namespace

bool DateiBefehle::aenderungenBehandelt() {
  if (!u_.daten.kopf().Geaendert) return true;
  u_.meldung.MsgTitel = "KORVIN-" + MessartTitel(u_.dictionary, u_.daten.messart());
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

bool DateiBefehle::M_Neu(const std::function<void()>& entschieden) {
  if (!aenderungenBehandelt()) return false;
  entschieden();
  u_.daten.neu();
  return true;
}

bool DateiBefehle::M_Oeffnen(const std::function<void()>& entschieden) {
  if (!aenderungenBehandelt()) return false;
  const std::uint32_t behandelt = u_.daten.stand();
  const std::string maske(MessartEndung(u_.daten.messart()));
  const std::string name = dateiErfragen(u_.fileDialog, MessOrdner(u_.profil, u_.system),
                                         filterText() + maske, u_.dictionary.DicText(TextOeffnen), true);
  if (name.empty()) return false;
  // A run goes on behind the dialog: readings that came meanwhile are asked for too.
  if (u_.daten.stand() != behandelt && !aenderungenBehandelt()) return false;
  // Its messages speak of the file's kind.
  u_.system.Messart = u_.daten.messart();
  if (!u_.daten.laden(name)) return false;
  entschieden();
  u_.daten.bildUebernehmen();
  return true;
}

bool DateiBefehle::M_Speichern() {
  return u_.daten.kopf().DateiStatus == DateiGespeichert ? schreiben() : M_SpeichernUnter();
}

bool DateiBefehle::M_SpeichernUnter() {
  const std::string name = dateiErfragen(u_.fileDialog, MessOrdner(u_.profil, u_.system), filterText(),
                                         u_.dictionary.DicText(TextSpeichernUnter), false, bisherigerName());
  if (name.empty()) return false;
  const DateiKopf kopf = u_.daten.kopf();
  const std::optional<std::string> bytes = zuCp1252(name);
  // A name that the record can't hold is refused by the operation itself, which says why.
  if (!bytes || !kopf.DateiName.fits(*bytes)) return u_.daten.speichern(name);
  kopf.InfoAbbruch = !u_.dateiInfo.bearbeiten(kopf);
  if (kopf.InfoAbbruch) return false;
  const auto vorherName = kopf.DateiName;
  const std::int16_t vorherStatus = kopf.DateiStatus;
  kopf.DateiName = *bytes;
  kopf.DateiStatus = DateiGespeichert;
  if (schreiben()) return true;
  // Nothing stands under the new name, and from the old one the user had turned away: the next Save asks.
  kopf.DateiName = vorherName;
  kopf.DateiStatus = std::min(vorherStatus, DateiGeladen);
  return false;
}

bool DateiBefehle::schreiben() {
  const DateiKopf kopf = u_.daten.kopf();
  kopf.Datum = DatumText(u_.clock);
  if (!u_.daten.speichern(vonCp1252(kopf.DateiName.trimmed()))) {
    kopf.Datum = LeerDatum;
    return false;
  }
  kopf.Geaendert = false;
  return true;
}

std::string DateiBefehle::filterText() {
  const std::int16_t messart = u_.daten.messart();
  return MessartName(u_.dictionary, messart) + "(" + std::string(MessartEndung(messart)) + ")|";
}

std::string DateiBefehle::bisherigerName() const {
  const std::string name = pfadTeilen(vonCp1252(u_.daten.kopf().DateiName.trimmed())).name;
  return name == MessartEndung(u_.daten.messart()) ? std::string() : name;
}

}  // namespace korvin
