#pragma once

#include <cstdint>
#include <string>

#include "korvin-head/head_model.h"
#include "korvin-head/head_protocol.h"
#include "support/recording_view.h"

namespace korvin::test {

/// A measuring place with the virtual head in process, on the tests' clock: hours of measuring in seconds.
/// The same seed gives the same noise. For targets that link korvin_head.
class HeadOnClock {
 public:
  /// `noiseUm`: standard deviation of an axis after 1 s of averaging, in µm.
  HeadOnClock(double noiseUm, std::uint64_t seed)
      : model_(propertiesOf(noiseUm, seed), [this](const head::Moment&) { return spot; }) {
    world.system.DbPfad = "/nowhere/korvin.mdb";
    world.head.behaviour = [this](char command) { return answer(command); };
  }

  CycleWorld world;
  head::Spot spot;  ///< where the beam strikes

 private:
  static head::HeadProperties propertiesOf(double noiseUm, std::uint64_t seed) {
    head::HeadProperties properties;
    properties.noiseUm = noiseUm;
    properties.seed = seed;
    return properties;
  }

  std::string answer(char command) {
    const head::Request request{'0', world.head.filters.back(), command};
    world.head.delay = 0.002 + model_.answerSeconds(request);
    return head::answerFrame(model_.answer(request, 'K', world.clock.elapsed()), world.head.modulus);
  }

  head::HeadModel model_;
};

}  // namespace korvin::test
