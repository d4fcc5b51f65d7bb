#pragma once

namespace korvin {

/// What multi-point measuring hears of the adaptive points that it asked for. Called only while
/// `MehrPunktAktiv` holds, and all from inside the tick, so a transaction cannot start on the way.
class MehrPunktAbnehmer {
 public:
  virtual ~MehrPunktAbnehmer() = default;

  /// A single measurement was asked for, by the trigger line or by multi-point measuring itself. True if the
  /// cycle is to measure; false if the request is served otherwise, or not at all.
  virtual bool positionVerlangt() { return true; }
  /// The request was dropped without a measurement.
  virtual void anforderungVerfallen() {}
  /// An adaptive point was accepted: its means stand at the current point, which has not moved on. Colours
  /// and keys are shown; the point still counts as running.
  virtual void punktAngenommen() = 0;
  /// The window is at rest again after an adaptive point, whether it was accepted or not, and polls. With all
  /// positions taken the evaluation follows from here.
  virtual void punktBeendet() = 0;
};

}  // namespace korvin
