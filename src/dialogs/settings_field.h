#pragma once

#include <string>
#include <string_view>
#include <variant>

#include "frame/profil.h"

namespace korvin {

/// A settings dialog is a table of such lines: which control shows which setting, in what form, under what
/// check. The order of the lines is the order in which the dialog writes.
///
/// To add a setting to a dialog: its reader's default in settings_defaults.h, a line in the dialog's table,
/// and a control of that name in its window. To add a form or a check: one more value below, with its case in
/// settings_field.cpp or in field_check.cpp.
enum class FeldForm {
  text,     ///< entry box: the stored text as it stands
  index,    ///< list: the stored number is the place of the entry, from 0
  faktor,   ///< list of the factors 1, 2, 3 …: the stored number is the factor itself
  schalter  ///< check box: a flag, "-1" or "0"
};

/// What is checked when an entry box is left.
enum class FeldPruefung {
  keine,  ///< nothing; numbers are read leniently
  port,   ///< whole number from 1 to 16
  zeit    ///< time of day, or blank
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

/// The stored text as its control shows it. A place beyond the list's end selects the last entry, one before
/// its beginning the first; a factor that isn't in the list selects the first.
FeldWert feldWert(const EinstellFeld& feld, std::string_view gespeichert);

/// What is stored of a control that holds `wert`. Throws `std::bad_variant_access` if its kind isn't that of
/// the field's form.
std::string gespeicherterText(const EinstellFeld& feld, const FeldWert& wert);

/// The field's present value in the store, or its default.
FeldWert feldLesen(Profil& profil, const EinstellFeld& feld);
/// Stores the value of a control; a failure is silent.
void feldSchreiben(Profil& profil, const EinstellFeld& feld, const FeldWert& wert);

}  // namespace korvin
