// What the settings that an environment analysis hands over are worth, and its outlook: runs many analyses
// with the virtual head in process, on the tests' clock, and measures adaptive points on the same head
// afterwards. Prints the two tables of docs/adaptive-measuring.md.
//
// analysis_handover [RUNS [SEED]]
#include <array>
#include <cstdio>
#include <cstdlib>
#include <optional>

#include "environment/handover_study.h"

namespace {

using korvin::Erfolg;
using korvin::test::HandoverCase;
using korvin::test::HandoverResult;
using korvin::test::HandoverStudy;
using korvin::test::OutlookResult;

constexpr int defaultRuns = 200;
constexpr int pointsOfARun = 10;
constexpr std::uint64_t defaultSeed = 20240718;

constexpr HandoverCase saved[] = {
    {.place = 0},
    {.place = 0.1},
    {.place = 0.25},
    {.place = 0.5},
    {.place = 0.75},
    {.place = 0.99},
    {.noiseUm = 1, .place = 0.5},
    {.noiseUm = 1, .place = 0.99},
    {.noiseUm = 100, .place = 0.5},
    {.noiseUm = 100, .place = 0.99},
    {.place = 0.5, .onePercent = true},
    {.place = 0.99, .onePercent = true},
    {.place = 0.99, .onePercent = true, .openedOnePercent = true},
    {.place = 1.2},
    {.place = 1.6},
};

/// In these the settings of a new series go from easily reached to out of reach.
constexpr double noises[] = {5, 10, 12, 13, 14, 15, 16, 17, 18, 19, 20, 22, 25, 30};

void handOver(const HandoverCase& each, int runs, std::uint64_t seed) {
  const HandoverResult result = HandoverStudy(each, seed).measure(runs, pointsOfARun);
  std::printf("| %d | %d | %g | %g | %.1f | %.4f | %.0f | %.1f | %.1f |", each.openedOnePercent ? 99 : 95,
              each.onePercent ? 99 : 95, each.noiseUm, *each.place, result.proposed, result.FX,
              100 * result.shareOfRuns(Erfolg::wahrscheinlich), 100.0 * result.accepted / result.points,
              100 * result.shareInTime());
  if (result.accepted > 0) std::printf(" %.1f |\n", result.seconds);
  if (result.accepted == 0) std::printf(" - |\n");
  std::fflush(stdout);
}

void printOutlook(const OutlookResult& outlook) {
  if (outlook.points == 0) std::printf(" 0 | - |");
  if (outlook.points > 0) std::printf(" %d | %.1f |", outlook.runs, 100.0 * outlook.inTime / outlook.points);
}

void outlooks(int runs, std::uint64_t seed) {
  std::array<OutlookResult, 3> sums{};
  for (const double noise : noises) {
    const HandoverResult result =
        HandoverStudy({.noiseUm = noise, .place = std::nullopt}, seed).measure(runs, pointsOfARun);
    std::printf("| %g |", noise);
    for (std::size_t i = 0; i < sums.size(); ++i) {
      printOutlook(result.outlooks[i]);
      sums[i].runs += result.outlooks[i].runs;
      sums[i].points += result.outlooks[i].points;
      sums[i].inTime += result.outlooks[i].inTime;
    }
    std::printf("\n");
    std::fflush(stdout);
  }
  std::printf("| all |");
  for (const OutlookResult& sum : sums) printOutlook(sum);
  std::printf("\n");
}

}  // namespace

int main(int count, char** arguments) {
  const int runs = count > 1 ? std::atoi(arguments[1]) : defaultRuns;
  const std::uint64_t seed = count > 2 ? std::strtoull(arguments[2], nullptr, 10) : defaultSeed;
  if (runs < 1) {
    std::fprintf(stderr, "usage: analysis_handover [RUNS [SEED]]\n");
    return 1;
  }
  std::printf("%d runs of %d points each, seed %llu\n\n", runs, pointsOfARun,
              static_cast<unsigned long long>(seed));
  std::printf(
      "| opened %% | saved %% | noise µm | slider | time s | FX mm | likely %% | accepted %% | in time %% | "
      "mean s |\n|---|---|---|---|---|---|---|---|---|---|\n");
  for (const HandoverCase& each : saved) handOver(each, runs, seed);
  std::printf(
      "\n| noise µm | likely: runs | in time %% | doubtful: runs | in time %% | unlikely: runs | in time %% "
      "|\n"
      "|---|---|---|---|---|---|---|\n");
  outlooks(runs, seed);
  return 0;
}
