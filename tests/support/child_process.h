#pragma once

#include <sys/types.h>

#include <functional>

namespace korvin::test {

/// Runs `work` in a process of its own and returns what it answered; false also if the child died.
bool inChild(const std::function<bool()>& work);

/// The same under a user without special rights, so that file rights count even where the tests run as root.
bool inChildWithoutRights(const std::function<bool()>& work);

/// A child that runs `work` until it is killed. `work` calls `beat` once for each thing done.
class KillableChild {
 public:
  explicit KillableChild(const std::function<void(const std::function<void()>& beat)>& work);
  ~KillableChild();
  KillableChild(const KillableChild&) = delete;
  KillableChild& operator=(const KillableChild&) = delete;

  /// Waits until the child has done `count` more things. False if it ended before.
  bool awaitBeats(int count);
  /// Ends the child at once, wherever it stands, and waits for its end.
  void kill();

 private:
  pid_t pid_ = -1;
  int beats_ = -1;
};

}  // namespace korvin::test
