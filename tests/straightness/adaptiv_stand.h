#pragma once

#include "straightness/erfassung_stand.h"

namespace korvin {

/// Answers the failure dialog as the test says, and keeps what it would have shown.
class ScriptedFehlerFrage : public AdaptFehlerFrage {
 public:
  explicit ScriptedFehlerFrage(Dictionary& dictionary) : dictionary_(dictionary) {}
  void zeigen(AdaptFehler& fehler) override {
    shown.push_back(adaptFehlerTexte(fehler, dictionary_, 0));
    if (whileShown) whileShown();
    fehler.CmdAdaptCont(button);
  }
  int button = 1;
  std::vector<AdaptFehlerTexte> shown;
  std::function<void()> whileShown;

 private:
  Dictionary& dictionary_;
};

/// Straightness measuring with adaptive points: by default a head at rest that answers five times a second,
/// an accuracy of 0.01 mm, and 10 to 12 seconds.
class AdaptivTest : public GeradErfassungTest {
 protected:
  AdaptivTest() {
    adapt().AutoAdapt = true;
    world.head.delay = 0.19;
    task.setAdaptFehlerFrage(&question);
  }
  AdaptVorgaben& adapt() { return series().Adapt; }
  const AdaptivMessung& point() { return task.adaptMessung(); }
  const AdaptZustand& state() { return point().zustand(); }
  /// Asks for a point and lets the window begin it; it has no sample yet.
  void begin(char asked = 'M') {
    if (!cycle.verbindung().online) online();
    cycle.anfordern(asked);
    for (int i = 0; i < 200 && !cycle.adaptiv(); ++i) run(0.01);
    ASSERT_TRUE(cycle.adaptiv());
  }
  /// Runs until the point is over; false after `longest` seconds.
  bool finish(double longest = 400) {
    for (double waited = 0; waited < longest && cycle.adaptiv(); waited += 0.05) run(0.05);
    return !cycle.adaptiv();
  }
  /// Each sample of the head takes the next of these X, Y in counts from its centre, round and round.
  void samples(std::vector<std::pair<int, int>> counts) {
    world.head.behaviour = [this, counts, next = std::size_t{0}](char asked) mutable {
      if (asked != 'J') return test::answerFrame(test::answerBody('T'));
      const auto [x, y] = counts[next++ % counts.size()];
      return test::answerFrame(
          test::answerBody('j', 'K', 250000 + x, 250000 + y, world.head.intensity, '1', world.head.status));
    };
  }

  ScriptedFehlerFrage question{world.dictionary};
};

}  // namespace korvin
