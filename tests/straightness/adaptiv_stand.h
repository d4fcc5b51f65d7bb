#pragma once

#include <cmath>
#include <functional>
#include <utility>
#include <vector>

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
    // A point before has made requests lapse before the next poll may come.
    cycle.tmrKeyPressed().setInterval(1000);
    cycle.anfordern(asked);
    for (int i = 0; i < 200 && !cycle.adaptiv(); ++i) run(0.01);
    ASSERT_TRUE(cycle.adaptiv());
  }
  /// Runs until the point is over; false after `longest` seconds.
  bool finish(double longest = 400) {
    for (double waited = 0; waited < longest && cycle.adaptiv(); waited += 0.05) run(0.05);
    return !cycle.adaptiv();
  }
  /// Sample n of the head, from 1, stands at these X, Y in counts from its centre.
  void samples(std::function<std::pair<double, double>(int n)> counts) {
    world.head.behaviour = [this, counts, n = 0](char asked) mutable {
      if (asked != 'J') return test::answerFrame(test::answerBody('T'));
      const auto [x, y] = counts(++n);
      return sampleFrame(x, y);
    };
  }
  /// Samples to either side of the centre in turn, in counts.
  void swinging(double x, double y) {
    samples([x, y](int n) { return n % 2 == 1 ? std::pair(x, y) : std::pair(-x, -y); });
  }
  std::string sampleFrame(double x, double y, char kind = 'j') {
    const auto counts = [](double from) { return 250000 + static_cast<int>(std::lround(from)); };
    return test::answerFrame(
        test::answerBody(kind, 'K', counts(x), counts(y), world.head.intensity, '1', world.head.status));
  }

  ScriptedFehlerFrage question{world.dictionary};
};

}  // namespace korvin
