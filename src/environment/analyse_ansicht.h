#pragma once

#include <optional>

namespace korvin {

/// What an environment analysis asks of its window beside what the measuring cycle does: to show things,
/// nothing else.
class AnalyseAnsicht {
 public:
  virtual ~AnalyseAnsicht() = default;

  /// `AdaptProgress`: seconds of the run that have passed, counted from 0 to 31; without a number it is
  /// hidden. A run over midnight counts far below 0.
  virtual void zeigeFortschritt(std::optional<int> sekunden) = 0;
  /// Brings `FrmAdaptSet` and the panels of the two maxima up to date with the result.
  virtual void zeigeErgebnis() = 0;
  /// Enables or disables `XYMPNN`, which starts a run.
  virtual void setStartFrei(bool frei) = 0;
  /// All points are gone: shows the record anew, with its keys.
  virtual void zeigeGeleert() = 0;
};

}  // namespace korvin
