#pragma once

#include "dialogs/options_g.h"
#include "dialogs/ui/line_settings_dialog.h"

namespace korvin {

/// `FormOptionsG`: what a new straightness series starts with, and what the series in work uses. Nothing but
/// the distances of the points changes before taking over.
class FormOptionsG : public LineSettingsDialog {
  Q_OBJECT

 public:
  /// `reihe`: null when the main window opens it.
  FormOptionsG(const SettingsDialogUmgebung& umgebung, OffeneReihe* reihe, QWidget* parent = nullptr);

 protected:
  FeldWerte lesen() override { return optionen_.lesen(); }
  void uebernehmen(const FeldWerte& werte) override { optionen_.uebernehmen(werte); }
  void messungZeigen() override;

 private:
  void seiteMessobjekt();
  Gruppe* gruppePunkte(QWidget* parent);
  Gruppe* gruppeToleranzen(QWidget* parent);
  void gleichVerteilen();

  OptionsG optionen_;
  QCheckBox* CheckzAquidistant_ = nullptr;
  QLabel* zurLage_ = nullptr;
  Hinweis* verschoben_ = nullptr;
};

}  // namespace korvin
