#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

#include "frame/settings_defaults.h"

namespace korvin {

/// A settings dialog is a table of such lines: which control shows which setting, in what form, under what
/// check. The order of the lines is the order in which the dialog writes.
///
/// To add a setting to a dialog: its reader's default in settings_defaults.h, a line in the dialog's table,
/// and a control of that name in its window. To add a form or a check: one more value below, with its case in
/// settings_field.cpp or in field_check.cpp.
enum class FeldForm {
  text,         ///< entry box: the stored text as it stands
  laenge,       ///< entry box: a length along the beam; mm, with one decimal, or inches with one
  toleranz,     ///< entry box: a deviation; mm with three decimals, or mil with two
  genauigkeit,  ///< entry box: a required accuracy; mm with four decimals, or mil with two
  index,        ///< list: the stored number is the place of the entry, from 0
  faktor,       ///< list of the factors 1, 2, 3 …: the stored number is the factor itself
  schalter      ///< check box or option: a flag, "-1" or "0"
};

/// What is checked when an entry box is left.
enum class FeldPruefung {
  keine,         ///< nothing; numbers are read leniently
  port,          ///< whole number from 1 to 16
  zeit,          ///< time of day, or blank
  anzahlPunkte,  ///< whole number from 2 to 200
  messlaenge,    ///< length along the beam from 10 to 50000 mm
  toleranz,      ///< deviation from 0 to 10 mm, or blank
  genauigkeit,   ///< from 0.001 to 1 mm, or from 1 to 1000 mil
  messZeitMin,   ///< whole seconds from 5 to 99
  messZeitMax    ///< whole seconds from `MessZeitMin` to 99
};

struct EinstellFeld {
  std::string_view control;  ///< object name of the control: "TextEinstellung(0)"
  Einstellung einstellung;   ///< section, key, and the dialog's own default
  FeldForm form = FeldForm::text;
  int umfang = 0;  ///< characters an entry box takes, or entries of a list
  FeldPruefung pruefung = FeldPruefung::keine;
};

/// What a control holds: text, chosen entry of a list (from 0), check mark.
using FeldWert = std::variant<std::string, int, bool>;

/// True for an entry box that shows a stored length in the unit and the decimals of its form.
constexpr bool istMassZahl(FeldForm form) {
  return form == FeldForm::laenge || form == FeldForm::toleranz || form == FeldForm::genauigkeit;
}

/// A length in mm as a box of such a form shows it; `Masssystem` 1 is inch and mil.
std::string massText(FeldForm form, double mm, std::int16_t Masssystem);

/// The stored text as its control shows it: mm become inches or mil with `Masssystem` 1; what is no finite
/// number is 0. A place beyond the list's end selects the last entry, one before its beginning the first; a
/// factor that isn't in the list selects the first.
FeldWert feldWert(const EinstellFeld& feld, std::string_view gespeichert, std::int16_t Masssystem = 0);

/// What is stored of a control that holds `wert`: lengths in mm in the general number format. Throws
/// `std::bad_variant_access` if its kind isn't that of the field's form.
std::string gespeicherterText(const EinstellFeld& feld, const FeldWert& wert, std::int16_t Masssystem = 0);

}  // namespace korvin
