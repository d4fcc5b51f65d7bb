#include "dialogs/field_check.h"

#include <algorithm>

#include "frame/datum_text.h"
#include "frame/zahl_text.h"
#include "straightness/masseinheit.h"

namespace korvin {
namespace {

constexpr std::int16_t TextUngueltig = 6013;
constexpr std::int16_t TextBereich = 6014;
constexpr const char* ErsteZeit = "00:00:00";
constexpr const char* LetzteZeit = "23:59:59";
constexpr std::string_view Ganz = "0";

}  // namespace

std::string messZeitMaxZu(const std::string& min, const std::string& max) {
  const std::int16_t sekunden = ganzzahlAusText(min);
  return sekunden >= MessZeitMinimum && ganzzahlAusText(max) < sekunden ? min : max;
}

std::optional<ZahlGrenzen> Feldpruefer::grenzen(FeldPruefung pruefung) const {
  switch (pruefung) {
    case FeldPruefung::port:
      return ZahlGrenzen{Ganz, PortMinimum, PortMaximum};
    case FeldPruefung::anzahlPunkte:
      return ZahlGrenzen{Ganz, PunkteMinimum, PunkteMaximum};
    case FeldPruefung::messlaenge:
      return laengeGrenzen("0.0", MesslaengeMinimum, MesslaengeMaximum, false, Masssystem_);
    case FeldPruefung::toleranz:
      return genauigkeitGrenzen(Masssystem_);
    case FeldPruefung::genauigkeit:
      return Masssystem_ == MasssystemInch ? ZahlGrenzen{"0.00", 1, 1000} : ZahlGrenzen{"0.0000", 0.001, 1};
    case FeldPruefung::messZeitMin:
      return ZahlGrenzen{Ganz, MessZeitMinimum, MessZeitMaximum};
    case FeldPruefung::messZeitMax:
      return ZahlGrenzen{Ganz, static_cast<double>(std::min(messZeitMin_, MessZeitMaximum)), MessZeitMaximum};
    case FeldPruefung::zeit:
    case FeldPruefung::keine:
      break;
  }
  return {};
}

bool Feldpruefer::pruefen(FeldPruefung pruefung, std::string& text) {
  if (const auto zahl = grenzen(pruefung)) {
    return zahl->muster == Ganz ? eingabe_.ganzzahl(text, static_cast<int>(zahl->minimum),
                                                    static_cast<int>(zahl->maximum), zahl->leerErlaubt)
                                : eingabe_.zahl(text, *zahl);
  }
  if (pruefung == FeldPruefung::keine || zeitPruefen(text)) return true;
  zeitMelden();
  return false;
}

std::string Feldpruefer::bereichText(FeldPruefung pruefung) {
  if (pruefung == FeldPruefung::keine) return {};
  const auto zahl = grenzen(pruefung);
  const auto [von, bis] =
      zahl ? grenzTexte(*zahl) : std::pair<std::string, std::string>{ErsteZeit, LetzteZeit};
  return dictionary_.DicText(TextBereich) + ": " + von + " .. " + bis;
}

// The time check itself is silent; the box has the form of those of checked numbers.
void Feldpruefer::zeitMelden() {
  meldung_.MsgTitel = dictionary_.DicText(TextUngueltig) + ":";
  meldung_.MsgText = dictionary_.DicText(TextBereich) + NeueZeile + ErsteZeit + " .." + LetzteZeit + ": ";
  messages_.beep();
  messages_.show(meldung_, MessageIcon::warning, MessageButtons::ok);
}

}  // namespace korvin
