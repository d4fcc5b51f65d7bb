#pragma once

#include <QWidget>

#include "frame/messplatz.h"
#include "position/formpos.h"
#include "reports/ui/berichtsausgabe.h"

namespace korvin {

/// What printing a position measurement works with. All outlive it.
struct ProtokollUmgebung {
  FORMPOS& formpos;
  const Systemwerte& system;
  Dictionary& dictionary;
  const Clock& clock;
};

/// The report of the position measurement in work, from `FormDruckInfoO` to paper.
class PositionsProtokoll {
 public:
  PositionsProtokoll(const ProtokollUmgebung& umgebung, Berichtsausgabe& ausgabe)
      : u_(umgebung), ausgabe_(ausgabe) {}

  /// Shows the dialog over `fenster` and does what is chosen there.
  void drucken(QWidget* fenster);

 private:
  Bericht bericht() const;

  ProtokollUmgebung u_;
  Berichtsausgabe& ausgabe_;
};

}  // namespace korvin
