#pragma once

#include <span>

#include "dialogs/field_set.h"
#include "dialogs/options.h"
#include "straightness/erfassung.h"
#include "straightness/formgera.h"

namespace korvin {

/// The settings of straightness measuring, in the order in which they are written.
std::span<const EinstellFeld> FelderG();

/// The series in work, if the measuring window opened the dialog.
struct OffeneReihe {
  FORMGERA& formgera;
  GeradErfassung& erfassung;
};

/// `FormOptionsG` without its window: what it shows, and what taking over does.
class OptionsG {
 public:
  /// `reihe`: null where no measuring window is open; only the settings are stored then.
  OptionsG(const OptionenUmgebung& umgebung, OffeneReihe* reihe);

  /// The stored settings, each under the dialog's own default, in the units in force. Of the two confidence
  /// levels one is always chosen: 1 % if it is set, else 5 %.
  FeldWerte lesen();

  bool mitReihe() const { return reihe_ != nullptr; }
  /// The points of the series stand at even distances; false without a series.
  bool ZAequidistant() const;
  /// Points of the series were moved, and none has a reading: another number or length of the line would hold
  /// for the next new series only.
  bool nurFuerNeueReihe() const;
  /// The box `CheckzAquidistant`: brings the points of the series back to even distances, at once.
  void punkteGleichVerteilen();

  /// Takes over: brings the series in work, if there is one, to the new values, and stores all settings. Asks
  /// before readings would go. The entries have passed their checks.
  void uebernehmen(const FeldWerte& werte);

 private:
  /// What the boxes hold differs from the line of the series, or the filter or the mounting does. A length is
  /// compared as its box shows it.
  bool geometrieAnders(const FeldWerte& werte, const FeldTexte& texte) const;
  void geometrie(const FeldWerte& werte, const FeldTexte& texte);
  void geometrieSetzen(const FeldTexte& texte);
  void toleranzenSetzen(const FeldTexte& texte);
  void adaptionSetzen(const FeldTexte& texte);
  bool hatMesswerte() const;
  bool frageLoeschen();
  GeradReihe& reihe() const { return reihe_->formgera.reihe(); }

  OptionenUmgebung u_;
  OffeneReihe* reihe_;
  FeldSatz satz_;
};

}  // namespace korvin
