#include "head_process.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/prctl.h>
#include <unistd.h>

#include <QProcessEnvironment>
#include <array>
#include <stdexcept>

#include "gui.h"

namespace korvin::tour {
namespace {

constexpr int limitMs = 10000;

}  // namespace

HeadProcess::HeadProcess(const QString& program, const QStringList& arguments, const QString& configFolder) {
  // The keys go through a pipe of our own: a QProcess may be written to from its own thread only.
  std::array<int, 2> pipe{};
  if (::pipe2(pipe.data(), O_CLOEXEC) != 0) throw std::runtime_error("no pipe to the virtual head");
  keys_ = pipe[1];
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert(QStringLiteral("XDG_CONFIG_HOME"), configFolder);
  process_.setProcessEnvironment(environment);
  process_.setChildProcessModifier([in = pipe[0]] {
    ::dup2(in, STDIN_FILENO);
    ::prctl(PR_SET_PDEATHSIG, SIGTERM);
  });
  process_.start(program, arguments, QIODevice::ReadOnly);
  const bool answered = process_.waitForStarted(limitMs) && process_.waitForReadyRead(limitMs);
  ::close(pipe[0]);
  ready_ = process_.readLine().trimmed().toStdString();
  if (!answered || !ready_.starts_with("ready")) {
    const std::string words = process_.readAllStandardError().trimmed().toStdString();
    throw std::runtime_error("the virtual head does not start: " +
                             (words.empty() ? process_.errorString().toStdString() : words));
  }
  pid_ = process_.processId();
}

HeadProcess::~HeadProcess() {
  process_.terminate();
  if (!process_.waitForFinished(limitMs)) process_.kill();
  ::close(keys_);
}

void HeadProcess::press(char key) const {
  if (::write(keys_, &key, 1) != 1) throw StepFailed("the virtual head takes no keys");
}

void HeadProcess::endNow() const {
  if (pid_ > 0) ::kill(static_cast<pid_t>(pid_), SIGTERM);
}

}  // namespace korvin::tour
