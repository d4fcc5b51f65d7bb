#pragma once

#include <gtest/gtest.h>

#include <cerrno>
#include <chrono>
#include <functional>

#include "support/child_process.h"
#include "support/faulty_file_system.h"

namespace korvin::test {

/// Calls `attempt(faulty)` with a disk that fails at each of its first `calls` calls in turn, and a little
/// beyond, for each of three reasons.
template <class Attempt>
void withEachCallFailing(int calls, Attempt attempt) {
  for (const int number : {ENOSPC, EIO, EACCES}) {
    for (int at = 1; at <= calls + 5; ++at) {
      SCOPED_TRACE(testing::Message() << "errno " << number << " at call " << at);
      FaultyFileSystem faulty;
      faulty.failAt = at;
      faulty.number = number;
      attempt(faulty);
    }
  }
}

/// Kills a process that saves without a pause, `rounds` times at ever other moments, and has `whole()` look
/// each time at what stands there. `save(n)` saves, in the process, something else for each n from 1.
template <class Save, class Whole>
void killWhileSaving(int rounds, Save save, Whole whole) {
  for (int round = 0; round < rounds; ++round) {
    KillableChild child([&](const std::function<void()>& beat) {
      for (int generation = 1;; ++generation) {
        save(round * 31 + generation * 17);
        beat();
      }
    });
    ASSERT_TRUE(child.awaitBeats(1));
    const auto moment = std::chrono::steady_clock::now() + std::chrono::microseconds(round * 7919 % 700);
    while (std::chrono::steady_clock::now() < moment) {
    }
    child.kill();
    ASSERT_TRUE(whole()) << "after kill " << round;
  }
}

}  // namespace korvin::test
