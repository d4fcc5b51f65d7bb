#include "dialogs/field_check.h"

#include "frame/datum_text.h"

namespace korvin {
namespace {

constexpr std::int16_t TextUngueltig = 6013;
constexpr std::int16_t TextBereich = 6014;
constexpr const char* ErsteZeit = "00:00:00";
constexpr const char* LetzteZeit = "23:59:59";

}  // namespace

bool Feldpruefer::pruefen(FeldPruefung pruefung, std::string& text) {
  switch (pruefung) {
    case FeldPruefung::port:
      return eingabe_.ganzzahl(text, PortMinimum, PortMaximum, false);
    case FeldPruefung::zeit:
      if (zeitPruefen(text)) return true;
      zeitMelden();
      return false;
    case FeldPruefung::keine:
      break;
  }
  return true;
}

std::string Feldpruefer::bereichText(FeldPruefung pruefung) {
  const std::string anfang = dictionary_.DicText(TextBereich) + ": ";
  switch (pruefung) {
    case FeldPruefung::port:
      return anfang + std::to_string(PortMinimum) + " .. " + std::to_string(PortMaximum);
    case FeldPruefung::zeit:
      return anfang + ErsteZeit + " .. " + LetzteZeit;
    case FeldPruefung::keine:
      break;
  }
  return {};
}

// The time check itself is silent; the box has the form of those of checked numbers.
void Feldpruefer::zeitMelden() {
  meldung_.MsgTitel = dictionary_.DicText(TextUngueltig) + ":";
  meldung_.MsgText = dictionary_.DicText(TextBereich) + NeueZeile + ErsteZeit + " .." + LetzteZeit + ": ";
  messages_.beep();
  messages_.show(meldung_, MessageIcon::warning, MessageButtons::ok);
}

}  // namespace korvin
