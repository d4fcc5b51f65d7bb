#pragma once

#include "dialogs/options_o.h"
#include "dialogs/ui/plan_panel.h"
#include "dialogs/ui/settings_dialog.h"
#include "frame/clock.h"
#include "frame/timer.h"

namespace korvin {

/// What `FormOptionsO` works with. All outlive it.
struct FormOptionsOUmgebung {
  SettingsDialogUmgebung dialog;
  const Clock& clock;
  TimerSource& timers;
};

/// `FormOptionsO`: the settings of position measuring, and the plan of the measurement in work. Changes
/// nothing before OK.
class FormOptionsO : public SettingsDialog {
  Q_OBJECT

 public:
  /// `messung`: null when the main window opens it.
  FormOptionsO(const FormOptionsOUmgebung& umgebung, OffeneMessung* messung, QWidget* parent = nullptr);

 private:
  void seiteAllgemein();
  void seiteMessinstrument(const FormOptionsOUmgebung& umgebung);
  void seiteDisplay();
  QLayout* knopfleiste();
  void ok();

  OptionsO optionen_;
  PlanPanel* plan_ = nullptr;
};

}  // namespace korvin
