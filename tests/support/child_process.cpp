#include "support/child_process.h"

#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

namespace korvin::test {
namespace {

constexpr uid_t nobody = 65534;

bool answered(pid_t pid) {
  int status = 0;
  return pid > 0 && waitpid(pid, &status, 0) == pid && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

}  // namespace

bool inChild(const std::function<bool()>& work) {
  const pid_t pid = fork();
  // _exit: the child must not flush the parent's streams nor report the parent's tests.
  if (pid == 0) _exit(work() ? 0 : 1);
  return answered(pid);
}

bool inChildWithoutRights(const std::function<bool()>& work) {
  return inChild([&] {
    if (geteuid() == 0 && (setgid(nobody) != 0 || setuid(nobody) != 0)) return false;
    return work();
  });
}

KillableChild::KillableChild(const std::function<void(const std::function<void()>& beat)>& work) {
  int ends[2] = {-1, -1};
  if (pipe(ends) != 0) return;
  pid_ = fork();
  if (pid_ == 0) {
    close(ends[0]);
    work([&] {
      const char one = '.';
      if (write(ends[1], &one, 1) != 1) _exit(1);
    });
    _exit(0);
  }
  close(ends[1]);
  beats_ = ends[0];
}

KillableChild::~KillableChild() {
  kill();
  if (beats_ >= 0) close(beats_);
}

bool KillableChild::awaitBeats(int count) {
  char one = 0;
  for (int i = 0; i < count; ++i) {
    if (read(beats_, &one, 1) != 1) return false;
  }
  return true;
}

void KillableChild::kill() {
  if (pid_ <= 0) return;
  ::kill(pid_, SIGKILL);
  waitpid(pid_, nullptr, 0);
  pid_ = -1;
}

}  // namespace korvin::test
