#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "frame/bereich.h"
#include "straightness/achsen_diagramm.h"
#include "straightness/auswertung.h"
#include "straightness/record.h"
#include "straightness/toleranz.h"

namespace korvin {

/// The lines of an axis' panel, UTF-8. A missing one is switched off.
struct AchsenTexte {
  std::optional<std::string> Mittel;             ///< "x 0.000", "x  ?.?"
  std::optional<std::string> Streuung;           ///< "±2s 0.000", "±2s ?.?"
  std::optional<std::string> Spanne;             ///< "R 0.000", "R ?.?"
  std::optional<std::string> ToleranzGesamt;     ///< the allowed
  std::optional<std::string> ToleranzAbschnitt;  ///< the allowed in a section
  std::optional<std::string> ErgebnisGesamt;     ///< the measured
  std::optional<std::string> ErgebnisAbschnitt;  ///< the measured in the worst section
  std::string Bereich;                           ///< range of the diagram, "±20um"
  std::string Wert;                              ///< value at the current point
};

/// How results are shown.
struct AchsenSchalter {
  bool Mittel = false;
  bool Streuung = false;
  bool Spanne = false;
  bool Abschnitt = false;
  std::int16_t SFak = 1;
  std::int16_t NKStellen = 3;
  std::int16_t Masssystem = 0;
};

AchsenSchalter achsenSchalter(const GeradInfo& info, std::int16_t Masssystem);

/// The evaluated values of an axis with all that is shown of them. Holds no reference to the series but the
/// z positions of `linie` and what `kurve` was made of, so it may be used as long as the line stands.
struct AchsenAnzeigeDaten {
  Auswertefeld ausgewertet;
  Auswertefeld kurve;  ///< the same with all open readings empty, in every mode and unit
  DiagrammBereich bereich{};
  std::optional<Kennwert> mittel;  ///< where switched on
  std::optional<Kennwert> streuung;
  std::optional<Extremwerte> extreme;  ///< where switched on, or needed for the tolerance
  std::optional<Toleranzband> band;
  AchsenTexte texte;
};

/// What one axis of a line is made of.
struct AchsenQuelle {
  Messreihe reihe;
  Auswertevorgabe vorgabe;
  const LinienGeometrie& linie;
};

/// Evaluates an axis afresh and stores what the record keeps of it: `Bereich`, and, where switched on, mean,
/// deviation, extremes and worst section.
AchsenAnzeigeDaten achseBerechnen(const AchsenQuelle& quelle, const AchsenSchalter& schalter,
                                  AchsenAnzeige& anzeige, AchsenErgebnis& ergebnis);
/// The same for an axis of a series.
AchsenAnzeigeDaten achseBerechnen(const GeradReihe& reihe, GeradAchse& achse, std::int16_t Masssystem);

/// The extra lines of the diagram: mean, deviation, extremes as far as switched on, and the tolerance band
/// held within the range.
std::vector<AchsenZusatzlinie> achsenZusatzlinien(const AchsenAnzeigeDaten& daten,
                                                  const AchsenSchalter& schalter);
/// The marks of the reference points: red, or grey if one of them has no reading. None but in REF.
std::vector<AchsenMarke> referenzMarken(const AchsenQuelle& quelle);

/// Frame and content of the diagram of one axis. They look into `daten` and the line of `quelle`.
AchsenRahmen achsenRahmen(const AchsenQuelle& quelle, const AchsenAnzeigeDaten& daten, bool Gitter);
AchsenInhalt achsenInhalt(const AchsenQuelle& quelle, const AchsenAnzeigeDaten& daten,
                          const AchsenSchalter& schalter);

/// What the pointer tells over a point: its number, its z in mm or inch and, under `name`, its value. Empty
/// for a point outside the line.
std::string punktHinweis(const AchsenQuelle& quelle, const AchsenAnzeigeDaten& daten,
                         const AchsenSchalter& schalter, std::string_view name, std::int16_t punkt);

/// `reihe` as the source of one of its axes.
AchsenQuelle achsenQuelle(const GeradReihe& reihe, const GeradAchse& achse, std::int16_t Masssystem);

}  // namespace korvin
