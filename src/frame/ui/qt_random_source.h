#pragma once

#include <QRandomGenerator>

#include "frame/random_source.h"

namespace korvin {

class QtRandomSource : public RandomSource {
 public:
  /// 24 random bits: as many as a float holds, so that rounding never gives 1.
  float next() override {
    return static_cast<float>(QRandomGenerator::global()->generate() >> 8) / 16777216.0F;
  }
};

}  // namespace korvin
