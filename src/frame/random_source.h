#pragma once

namespace korvin {

/// Random numbers for the simulated head. A port.
class RandomSource {
 public:
  virtual ~RandomSource() = default;

  /// Uniform from 0 up to, but not including, 1.
  virtual float next() = 0;
};

}  // namespace korvin
