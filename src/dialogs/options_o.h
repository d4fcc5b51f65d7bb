#pragma once

#include <array>
#include <span>
#include <string>
#include <vector>

#include "dialogs/measuring_plan.h"
#include "dialogs/settings_field.h"
#include "frame/dictionary.h"
#include "frame/message_port.h"
#include "frame/messplatz.h"
#include "frame/profil.h"
#include "position/erfassung.h"
#include "position/formpos.h"

namespace korvin {

inline constexpr int AnzahlFilter = 5;
inline constexpr int AnzahlMontagen = 4;
inline constexpr int AnzahlBaudRaten = 2;
inline constexpr int AnzahlNKStellen = 4;
/// The factors 1 to 6 of the sample deviation.
inline constexpr int AnzahlSFaktoren = 6;

/// The settings of position measuring, in the order in which they are written.
std::span<const EinstellFeld> FelderO();

/// What a dialog holds: one value for each line of `FelderO`, in its order.
using FeldWerte = std::vector<FeldWert>;

/// The measurement in work, if the measuring window opened the dialog.
struct OffeneMessung {
  FORMPOS& formpos;
  PositionsErfassung& erfassung;
};

/// What the dialog works with. All outlive it.
struct OptionsOUmgebung {
  Dictionary& dictionary;
  MessagePort& messages;
  Meldung& meldung;
  Profil& profil;
  Systemwerte& system;
};

/// `FormOptionsO` without its window: what it shows, and what OK does.
class OptionsO {
 public:
  /// `messung`: null where no measuring window is open; the plan then has no effect.
  OptionsO(const OptionsOUmgebung& umgebung, OffeneMessung* messung) : u_(umgebung), messung_(messung) {}

  /// The stored settings, each under the dialog's own default.
  FeldWerte lesen();
  /// The plan of the measurement in work; empty without one.
  MessplanTexte messplan() const;
  /// True if the measurement in work has a plan.
  bool messplanAn() const { return messung_ != nullptr && hatMessplan(messung_->formpos.Info()); }
  bool mitMessung() const { return messung_ != nullptr; }

  /// OK: brings the measurement in work, if there is one, to the new values, then stores all settings. The
  /// entries have passed their checks.
  void uebernehmen(const FeldWerte& werte, const MessplanTexte& plan);

 private:
  void messungAnpassen(const FeldWerte& werte, const MessplanTexte& plan);
  void filterUndMontage(char filter, std::int16_t montage);
  bool frageLoeschen();

  OptionsOUmgebung u_;
  OffeneMessung* messung_;
};

}  // namespace korvin
