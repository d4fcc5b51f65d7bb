// What the accuracy of adaptive points is worth: measures many points with the virtual head in process, on
// the tests' clock, and counts the accepted means that lie within the required accuracy of the true position.
// Prints the table of docs/adaptive-measuring.md.
//
// adaptive_coverage [POINTS [SEED]]
#include <cstdio>
#include <cstdlib>

#include "straightness/adaptive_study.h"

namespace {

using korvin::test::AdaptiveStudy;
using korvin::test::StudyCase;
using korvin::test::StudyResult;

constexpr int defaultPoints = 2000;
constexpr std::uint64_t defaultSeed = 20240611;

/// The first is the one that the program's defaults lead to in a noise where they just do; each of the others
/// changes something.
constexpr StudyCase cases[] = {
    {.noiseUm = 16},
    {.noiseUm = 5},
    {.noiseUm = 13},
    {.noiseUm = 18},
    {.noiseUm = 21.5},
    {.noiseUm = 18, .MessZeitMax = 30},
    {.noiseUm = 22, .MessZeitMax = 60},
    {.noiseUm = 16, .MessZeitMin = 5, .MessZeitMax = 30},
    {.noiseUm = 13, .MessZeitMax = 30, .onePercent = true},
    {.noiseUm = 16, .Y_Genauigkeit = 1},
    {.noiseUm = 22, .Y_Genauigkeit = 1, .MessZeitMax = 60},
    {.noiseUm = 16, .Y_Genauigkeit = 1, .MessZeitMin = 5, .MessZeitMax = 30},
};

void printShare(const StudyResult& result, double share) {
  std::printf(" %.2f ± %.2f |", 100 * share, 100 * result.samplingError(share));
}

void run(const StudyCase& each, int points, std::uint64_t seed) {
  const StudyResult result = AdaptiveStudy(each, seed).measure(points);
  std::printf("| %g | %g | %g / %g | %d to %d | %d | %d | %.1f | %.0f |", each.onePercent ? 99.0 : 95.0,
              each.noiseUm, each.X_Genauigkeit, each.Y_Genauigkeit, each.MessZeitMin, each.MessZeitMax,
              result.accepted, result.failed, result.seconds, result.samples);
  for (const double share : {result.shareX(), result.shareY(), result.shareBoth()}) printShare(result, share);
  std::printf("\n");
  std::fflush(stdout);
}

}  // namespace

int main(int count, char** arguments) {
  const int points = count > 1 ? std::atoi(arguments[1]) : defaultPoints;
  const std::uint64_t seed = count > 2 ? std::strtoull(arguments[2], nullptr, 10) : defaultSeed;
  if (points < 1) {
    std::fprintf(stderr, "usage: adaptive_coverage [POINTS [SEED]]\n");
    return 1;
  }
  std::printf("%d points each, seed %llu\n\n", points, static_cast<unsigned long long>(seed));
  std::printf(
      "| level %% | noise µm | accuracy X / Y mm | time s | accepted | failed | mean s | samples | X %% | Y "
      "%% | "
      "both %% |\n|---|---|---|---|---|---|---|---|---|---|---|\n");
  for (const StudyCase& each : cases) run(each, points, seed);
  return 0;
}
