#pragma once

#include <string>
#include <vector>

#include "frame/profil.h"
#include "frame/sqlite_dictionary.h"
#include "frame/sqlite_settings_tree.h"
#include "link/messzyklus.h"
#include "position/erfassung.h"
#include "support/recording_view.h"
#include "system/link_stand.h"

namespace korvin::test {

/// A position measurement as the program makes it, but for its window: the real cycle and record over the
/// real line, with the real settings and texts. Only the view is one that remembers.
class CycleStand {
 public:
  /// A head will be on port 1. `options` of the measurement: the filter level "0", so that the limits are 2
  /// s.
  explicit CycleStand(const Clock& clockOfDay) : clock(clockOfDay) {
    KorRegistry(tree).RegistryAnlegen(link.home.path().string());
    profil.schreiben(einstellung::FormPosition::Filter, "0");
    dictionary.DicOeffnen(KORVIN_BIN "/korvin.mdb");
    task.ersteAktivierung();
    link.korCom.FilterText(task.filter(), dictionary);
  }

  std::size_t points() const { return static_cast<std::size_t>(formpos.Info().AnzahlMP); }
  /// Numbers of the points that are not at `x` and `y` (mm, as the record has them).
  std::vector<std::size_t> pointsElsewhere(double x, double y) const {
    std::vector<std::size_t> found;
    for (std::size_t n = 1; n <= points(); ++n) {
      if (formpos.punkte().X().at(n) != x || formpos.punkte().Y().at(n) != y) found.push_back(n);
    }
    return found;
  }
  bool until(const std::function<bool()>& done, double seconds = 30) { return link.until(done, seconds); }
  /// Waits for `count` points.
  bool untilPoints(std::size_t count, double seconds = 30) {
    return until([&] { return points() >= count; }, seconds);
  }

  const Clock& clock;
  LinkStand link{clock};
  QtTimerSource timers;
  SqliteSettingsTree tree{link.home / "korvin" / "settings.db"};
  Profil profil{tree};
  Systemwerte system;
  Meldung message;
  TestProgramEnd programEnd;
  SqliteDictionary dictionary{system.SpracheSpalte, programEnd};
  FORMPOS formpos;
  PositionsErfassung task{{clock, link.messages, dictionary, profil, message, system, formpos}};
  RecordingView view;
  Messzyklus cycle{{clock, link.pump, timers, link.messages, dictionary, profil, message, link.korCom,
                    link.answer, system},
                   link.port,
                   task,
                   view};
};

}  // namespace korvin::test
