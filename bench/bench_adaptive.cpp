// One tick of an adaptive point with 1000 samples: all that the cycle does beside the question and answer
// itself, with the settings in their file; and the share of the samples' evaluation in it, against the barest
// loop over the same numbers. Prints the figures of this run.
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

#include "frame/sqlite_settings_tree.h"
#include "in_turns.h"
#include "straightness/erfassung.h"
#include "support/recording_view.h"

namespace korvin {
namespace {

constexpr double limit = 50;  // µs
constexpr int lastSamples = 100;
constexpr int points = 20;

/// Tested at every sample, and never reached.
AdaptVorgaben neverReached() {
  AdaptVorgaben adapt;
  adapt.MessZeitMax = 99;
  return adapt;
}

/// A head that answers at once; the program asks it through its own link.
class Place {
 public:
  explicit Place(SettingsTree& tree) : profil_(tree) {
    world_.system.DbPfad = "/nowhere/korvin.mdb";
    world_.head.delay = 0;
    task_.ersteAktivierung();
    AdaptVorgaben& adapt = formgera_.reihe().Adapt;
    adapt = neverReached();
    adapt.AutoAdapt = true;
    world_.head.behaviour = [n = 0](char command) mutable {
      const int x = 250000 + (++n * 7919) % 1000;
      return test::answerFrame(test::answerBody(command == 'J' ? 'j' : 'T', 'K', x, 500000 - x));
    };
    cycle_.M_KVNOnline();
  }

  /// Takes samples up to 900 of a new point.
  void prepare() {
    cycle_.laufBeenden();
    while (!cycle_.adaptiv()) {
      cycle_.anfordern('M');
      world_.clock.advance(0.4);
    }
    while (samples() < static_cast<int>(MaxProben) - lastSamples) tick();
  }
  /// One tick of `tmrMj`, with the question, the answer and all that follows.
  void tick() { cycle_.tmrMj().onTick(); }
  /// The question and the answer alone.
  void link() { world_.korCom.KameraAbfrage(world_.head, "002-J", 3, world_.answer, true); }
  int samples() const { return task_.adaptMessung().zustand().AdaptN; }
  const AdaptZustand& state() const { return task_.adaptMessung().zustand(); }
  /// What a recording view has gathered.
  void forget() {
    view_.telegrams.clear();
    view_.leds.clear();
    view_.valueColours.clear();
    world_.head.sent.clear();
  }

 private:
  test::CycleWorld world_;
  Profil profil_;
  FORMGERA formgera_;
  GeradErfassung task_{{world_.messages, world_.dictionary, profil_, world_.system, formgera_}};
  test::RecordingView view_;
  ZyklusUmgebung surroundings() {
    return {world_.clock, world_.clock,   world_.clock,  world_.messages, world_.dictionary,
            profil_,      world_.meldung, world_.korCom, world_.answer,   world_.system};
  }
  Messzyklus cycle_{surroundings(), world_.head, task_, view_};
};

double median(std::vector<double> times) {
  std::nth_element(times.begin(), times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2), times.end());
  return times[times.size() / 2];
}

/// The sums that both half widths need, and nothing else.
double bareSums(const AdaptZustand& z) {
  double result = 0;
  for (const auto* samples : {&z.AdaptRohX, &z.AdaptRohY}) {
    double sum = 0;
    double squares = 0;
    for (std::size_t i = 1; i < samples->elements().size(); ++i) {
      const double value = samples->elements()[i];
      sum += value;
      squares += value * value;
    }
    result += squares - sum;
  }
  return result;
}

void wholeTick(Place& place) {
  std::vector<double> ticks;
  std::vector<double> links;
  for (int i = 0; i < points; ++i) {
    place.prepare();
    while (place.samples() < static_cast<int>(MaxProben)) {
      ticks.push_back(microseconds([&] { place.tick(); }));
      links.push_back(microseconds([&] { place.link(); }));
      place.forget();
    }
  }
  const double beside = median(ticks) - median(links);
  std::printf("adaptive tick, samples 901 to 1000, beside the link: %.1f us, %.2f of the limit of %.0f us\n",
              beside, beside / limit, limit);
}

void evaluation(const AdaptZustand& full) {
  AdaptivMessung point;
  const AdaptVorgaben adapt = neverReached();
  double sink = 0;
  AdaptivMessung copy;
  const auto fill = [&] {
    point.starten(adapt, 0);
    for (std::size_t i = 1; i < MaxProben; ++i)
      point.probe(full.AdaptRohX.at(i), full.AdaptRohY.at(i), adapt, 1);
  };
  fill();
  std::vector<double> ours;
  std::vector<double> bare;
  for (int i = 0; i < 500; ++i) {
    copy = point;
    ours.push_back(microseconds([&] { copy.probe(0.1, 0.2, adapt, 2); }));
    bare.push_back(microseconds([&] { sink += bareSums(full); }));
  }
  std::printf("sample 1000 in the core: %.2f us, %.1f times the bare sums of %.2f us (%g)\n", median(ours),
              median(ours) / median(bare), median(bare), sink);
}

}  // namespace
}  // namespace korvin

int main() {
  const std::filesystem::path folder = std::filesystem::temp_directory_path() / "korvin_bench_adaptive";
  std::filesystem::create_directories(folder);
  {
    korvin::SqliteSettingsTree tree(folder / "settings.db");
    korvin::Profil(tree).schreiben(korvin::einstellung::Verbindung::NormInt_Laser, "80");
    korvin::Place place(tree);
    korvin::wholeTick(place);
    korvin::evaluation(place.state());
  }
  std::filesystem::remove_all(folder);
  return 0;
}
