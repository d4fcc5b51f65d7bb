#pragma once

#include <initializer_list>

#include "straightness/achsen_anzeige.h"
#include "straightness/formgera.h"
#include "support/recording_surface.h"

namespace korvin {

/// A series whose X axis is drawn, and the drawing.
class AxisStand {
 public:
  /// Points at even distances over 1000 mm, shown raw, with the cursor at the first.
  explicit AxisStand(std::initializer_list<double> readings) {
    series.Linie.AnzMPs = static_cast<std::int16_t>(readings.size());
    series.Linie.Distanz = 1000;
    ReiheLeeren(series);
    std::size_t i = 0;
    for (const double reading : readings) series.X.Wert.at(++i) = reading;
    series.Info.Auswertung = AuswertungROH;
    series.Info.NKStellen = 2;
    series.Info.SFak = 2;
    series.Info.Gitter = true;
  }

  void tolerance(double whole, std::int16_t reference) {
    series.X.Gesamt = whole;
    series.X.ToleranzBezug = reference;
    series.Info.ZeigeAbschnitt = true;
  }

  void draw(std::int16_t system = 0) {
    data = achseBerechnen(series, series.X, system);
    const AchsenQuelle source = achsenQuelle(series, series.X, system);
    const AchsenRahmen frame = achsenRahmen(source, data, static_cast<bool>(series.Info.Gitter));
    achsenRahmenZeichnen(frameSurface, frame);
    achsenInhaltZeichnen(content, frame, achsenInhalt(source, data, achsenSchalter(series.Info, system)));
  }

  GeradReihe series;
  AchsenAnzeigeDaten data;
  test::RecordingSurface frameSurface;
  test::RecordingSurface content;
};

}  // namespace korvin
