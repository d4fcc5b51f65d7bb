#pragma once

#include <cstddef>
#include <variant>

#include "straightness/record.h"

namespace korvin {

/// A series as its file holds it, in the form of the file. The first form comes as the one behind it, with
/// the line settings that it lacks.
using GeladeneForm = std::variant<GeradDatei, GeradDateiVorher>;

/// The first form with line settings.
inline GeradDateiVorher mitBaudRate(const GeradDateiErste& erste) {
  GeradDateiVorher form{erste.X, erste.Y, erste.Info, erste.Linie, erste.Adapt};
  form.Info.BaudRate = "115200,N,8,1";
  return form;
}

/// Takes a series of an older form over into `bild`. What the older form does not give stays as `bild` held
/// it: elements above the number of points, the tolerances and results of X, the display of Y. Throws
/// `std::out_of_range` if the form counts more points than it holds.
inline void alteFormUebernehmen(const GeradDateiVorher& alt, GeradDatei& bild) {
  const std::size_t anzahl = alt.X.Wert.anzahl();
  for (std::size_t i = 0; i <= anzahl; ++i) {
    bild.X.Wert.at(i) = alt.X.Wert.at(i);
    bild.Y.Wert.at(i) = alt.Y.Wert.at(i);
    bild.Linie.Z.at(i) = alt.Linie.Z.at(i);
  }
  // Kept: a converted file has its own tolerances for Y alone. Those of X are the ones of the file handled
  // before, and so is the display of Y.
  static_cast<AchsenAnzeige&>(bild.X) = static_cast<const AchsenAnzeige&>(alt.X);
  static_cast<AchsenErgebnis&>(bild.Y) = static_cast<const AchsenErgebnis&>(alt.Y);
  bild.Info = alt.Info;
  bild.Linie.AktMP = alt.Linie.AktMP;
  bild.Linie.Distanz = alt.Linie.Distanz;
  bild.Linie.AnzMPs = alt.Linie.AnzMPs;
  bild.Linie.ZSchritt = alt.Linie.ZSchritt;
  bild.Adapt = alt.Adapt;
}

/// Takes a series of any form over into `bild`.
inline void formUebernehmen(const GeladeneForm& form, GeradDatei& bild) {
  if (const auto* alt = std::get_if<GeradDateiVorher>(&form)) {
    alteFormUebernehmen(*alt, bild);
  } else {
    bild = std::get<GeradDatei>(form);
  }
}

}  // namespace korvin
