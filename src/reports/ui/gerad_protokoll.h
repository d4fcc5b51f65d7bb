#pragma once

#include <QWidget>

#include "frame/messplatz.h"
#include "reports/ui/berichtsausgabe.h"
#include "straightness/formgera.h"

namespace korvin {

/// What printing a straightness series works with. All outlive it.
struct GeradProtokollUmgebung {
  FORMGERA& formgera;
  const Systemwerte& system;
  Dictionary& dictionary;
  const Clock& clock;
};

/// The report of the straightness series in work, from `FormDruckInfoG` to paper.
class GeradProtokoll {
 public:
  GeradProtokoll(const GeradProtokollUmgebung& umgebung, Berichtsausgabe& ausgabe)
      : u_(umgebung), ausgabe_(ausgabe) {}

  /// Shows the dialog over `fenster` and does what is chosen there.
  void drucken(QWidget* fenster);

 private:
  Bericht bericht() const;

  GeradProtokollUmgebung u_;
  Berichtsausgabe& ausgabe_;
};

}  // namespace korvin
