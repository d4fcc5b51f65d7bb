#pragma once

#include <cstdint>
#include <span>

#include "dialogs/field_set.h"
#include "dialogs/measuring_plan.h"
#include "dialogs/options.h"
#include "position/erfassung.h"
#include "position/formpos.h"

namespace korvin {

/// The settings of position measuring, in the order in which they are written.
std::span<const EinstellFeld> FelderO();

/// The measurement in work, if the measuring window opened the dialog.
struct OffeneMessung {
  FORMPOS& formpos;
  PositionsErfassung& erfassung;
};

/// `FormOptionsO` without its window: what it shows, and what OK does.
class OptionsO {
 public:
  /// `messung`: null where no measuring window is open; the plan then has no effect.
  OptionsO(const OptionenUmgebung& umgebung, OffeneMessung* messung);

  /// The stored settings, each under the dialog's own default.
  FeldWerte lesen() { return satz_.lesen(); }
  /// The plan of the measurement in work; empty without one.
  MessplanTexte messplan() const;
  /// True if the measurement in work has a plan.
  bool messplanAn() const { return messung_ != nullptr && hatMessplan(messung_->formpos.Info()); }
  bool mitMessung() const { return messung_ != nullptr; }

  /// OK: brings the measurement in work, if there is one, to the new values, then stores all settings. The
  /// entries have passed their checks.
  void uebernehmen(const FeldWerte& werte, const MessplanTexte& plan);

 private:
  void messungAnpassen(const FeldTexte& texte, const MessplanTexte& plan);
  void filterUndMontage(char filter, std::int16_t montage);
  bool frageLoeschen();

  OptionenUmgebung u_;
  OffeneMessung* messung_;
  FeldSatz satz_;
};

}  // namespace korvin
