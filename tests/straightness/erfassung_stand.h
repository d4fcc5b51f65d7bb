#pragma once

#include <gtest/gtest.h>

#include <string>

#include "straightness/erfassung.h"
#include "support/recording_view.h"

namespace korvin {

/// The real task of straightness measuring in the real cycle, on the tests' clock: a new series of 6 points
/// over 2500 mm, and a head on the line.
class GeradErfassungTest : public ::testing::Test {
 protected:
  GeradErfassungTest() {
    world.head.x = 250500;
    world.head.y = 250300;
    world.system.DbPfad = "/nowhere/korvin.mdb";
    task.ersteAktivierung();
    world.korCom.FilterText(world.system.FilterVorgabe, world.dictionary);
  }
  GeradReihe& series() { return formgera.reihe(); }
  GeradInfo& info() { return series().Info; }
  LinienGeometrie& line() { return series().Linie; }
  double X(std::size_t point) { return series().X.Wert.at(point); }
  double Y(std::size_t point) { return series().Y.Wert.at(point); }
  void run(double seconds) { world.clock.advance(seconds); }
  /// A key of the toolbar, and the time until its measurement is over and the window polls again.
  void single() {
    cycle.anfordern('M');
    run(0.9);
  }
  void online() { cycle.M_KVNOnline(); }
  void startRun(char state = 'J') {
    online();
    cycle.anfordern(state);
    run(0.9);
    ASSERT_TRUE(cycle.laeuft());
  }
  std::size_t count(char command) {
    return static_cast<std::size_t>(
        std::count(world.head.commands.begin(), world.head.commands.end(), command));
  }
  /// Runs `what` as soon as the head has got this command.
  void whenAsked(char command, std::function<void()> what) {
    world.head.behaviour = [this, command, what](char asked) {
      if (asked == command) what();
      return test::answerFrame(test::answerBody(asked == 'M'   ? 'm'
                                                : asked == 'J' ? 'j'
                                                               : 'T',
                                                'K', world.head.x, world.head.y, world.head.intensity));
    };
  }
  /// Answers of this kind to a command, and good ones to all others.
  void answers(char command, char kind) {
    world.head.behaviour = [command, kind](char asked) {
      return test::answerFrame(test::answerBody(asked == command ? kind : 'T'));
    };
  }
  void silentTo(char command) {
    world.head.behaviour = [command](char asked) {
      return asked == command ? std::string{} : test::answerFrame(test::answerBody('T'));
    };
  }

  test::CycleWorld world;
  FORMGERA formgera;
  GeradErfassung task{{world.messages, world.dictionary, world.profil, world.system, formgera}};
  test::RecordingView view;
  Messzyklus cycle{world.surroundings(), world.head, task, view};
};

}  // namespace korvin
