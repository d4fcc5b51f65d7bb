#pragma once

#include <algorithm>
#include <cstddef>
#include <ctime>
#include <functional>
#include <vector>

namespace korvin {

using Work = std::function<void()>;

/// Time on the processor: a busy machine would count for a long job many times over, for a short one hardly
/// ever.
inline double processorTime() {
  timespec now{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) * 1e6 + static_cast<double>(now.tv_nsec) / 1e3;
}

inline double microseconds(const Work& work) {
  const double start = processorTime();
  work();
  return processorTime() - start;
}

/// Median times of all `works` in microseconds, done in turns, so that a busy machine meets all alike.
inline std::vector<double> inTurns(int rounds, const std::vector<Work>& works) {
  std::vector<std::vector<double>> times(works.size());
  for (int i = 0; i < rounds; ++i) {
    for (std::size_t k = 0; k < works.size(); ++k) times[k].push_back(microseconds(works[k]));
  }
  std::vector<double> medians;
  for (auto& each : times) {
    const auto middle = each.begin() + static_cast<std::ptrdiff_t>(each.size() / 2);
    std::nth_element(each.begin(), middle, each.end());
    medians.push_back(*middle);
  }
  return medians;
}

}  // namespace korvin
