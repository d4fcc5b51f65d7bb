#pragma once

#include <memory>
#include <optional>

#include "dialogs/measuring_plan.h"
#include "dialogs/ui/field_watch.h"
#include "dialogs/ui/form_rows.h"
#include "frame/clock.h"
#include "frame/timer.h"

namespace korvin {

/// The measuring plan in the settings dialog: `CheckAutoOn` with the six boxes it shows, and the present date
/// and time, which `TimerUhrTick` keeps while they are shown.
class PlanPanel : public Gruppe {
  Q_OBJECT

 public:
  PlanPanel(Dictionary& dictionary, const Clock& clock, TimerSource& timers, QWidget* parent);

  /// Fills the boxes; `an`: they are shown.
  void setPlan(const MessplanTexte& plan, bool an);
  /// What the boxes hold. A plan that was switched off is empty.
  MessplanTexte plan() const;
  /// There is no measurement that a plan could belong to: says so.
  void sperren();
  void uhrAnhalten() { TimerUhrTick_->setEnabled(false); }

  /// Hands the checked boxes to `watch`. Switching the plan off drops them, so that checks nothing.
  void ueberwachen(FieldWatch& watch);

 private:
  void aufbauen();
  TextEntry* feld(std::size_t platz, std::int16_t name, std::int16_t blass);
  void reihe(int reihe, std::int16_t name, QWidget* erstes, QWidget* zweites, QWidget* neben);
  void schalten(bool an);
  void zeigeUhr();
  void hinweiseZeigen();

  Dictionary& dictionary_;
  const Clock& clock_;
  std::unique_ptr<Timer> TimerUhrTick_;
  QCheckBox* CheckAutoOn_;
  QWidget* felder_;
  QLabel* gesperrt_;
  std::array<TextEntry*, PlanFelder.size()> boxen_{};
  Hinweis* zurAnzahl_;
  Hinweis* zumIntervall_;
  Hinweis* zumStart_;
  Hinweis* zumStop_;
  QLabel* lblDatumAktuell_;
  QLabel* lblZeitAktuell_;
  std::optional<MessplanTexte> ausgeschaltet_;  ///< what comes back when the plan is switched on again
};

}  // namespace korvin
