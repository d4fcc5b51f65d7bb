#include "system/child_program.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <stdexcept>
#include <thread>

namespace korvin::test {

namespace {

using Time = std::chrono::steady_clock;

std::array<int, 2> makePipe() {
  std::array<int, 2> ends{};
  if (::pipe2(ends.data(), O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
  return ends;
}

std::vector<char*> pointers(std::vector<std::string>& texts) {
  std::vector<char*> found;
  for (std::string& text : texts) found.push_back(text.data());
  found.push_back(nullptr);
  return found;
}

int millisecondsUntil(Time::time_point end) {
  const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(end - Time::now()).count();
  return left > 0 ? static_cast<int>(left) : 0;
}

}  // namespace

ChildProgram::ChildProgram(const std::string& name, const std::vector<std::string>& arguments,
                           const std::vector<std::string>& environment) {
  std::vector<std::string> argumentTexts{std::string(KORVIN_BIN "/") + name};
  argumentTexts.insert(argumentTexts.end(), arguments.begin(), arguments.end());
  std::vector<std::string> environmentTexts = environment;
  for (char** variable = environ; *variable != nullptr; ++variable) environmentTexts.emplace_back(*variable);
  const auto argv = pointers(argumentTexts);
  const auto envp = pointers(environmentTexts);

  const auto in = makePipe();
  const auto out = makePipe();
  const auto err = makePipe();
  pid_ = ::fork();
  if (pid_ < 0) throw std::runtime_error("no process");
  if (pid_ == 0) {
    ::dup2(in[0], STDIN_FILENO);
    ::dup2(out[1], STDOUT_FILENO);
    ::dup2(err[1], STDERR_FILENO);
    ::execve(argv[0], argv.data(), envp.data());
    ::_exit(127);
  }
  ::close(in[0]);
  ::close(out[1]);
  ::close(err[1]);
  in_ = in[1];
  out_ = out[0];
  err_ = err[0];
}

ChildProgram::~ChildProgram() {
  if (pid_ > 0) {
    sendSignal(SIGTERM);
    if (wait(5) == -1000) {
      sendSignal(SIGKILL);
      wait(5);
    }
  }
  for (const int fd : {in_, out_, err_}) ::close(fd);
}

std::string ChildProgram::readLine(double seconds) {
  const auto end =
      Time::now() + std::chrono::duration_cast<Time::duration>(std::chrono::duration<double>(seconds));
  for (;;) {
    if (const auto at = pending_.find('\n'); at != std::string::npos) {
      std::string line = pending_.substr(0, at);
      pending_.erase(0, at + 1);
      return line;
    }
    pollfd fd{out_, POLLIN, 0};
    if (::poll(&fd, 1, millisecondsUntil(end)) <= 0) return {};
    std::array<char, 1024> buffer;
    const ssize_t count = ::read(out_, buffer.data(), buffer.size());
    if (count <= 0) return {};
    pending_.append(buffer.data(), static_cast<std::size_t>(count));
  }
}

std::string ChildProgram::errors() {
  std::string text;
  std::array<char, 1024> buffer;
  ssize_t count = 0;
  while ((count = ::read(err_, buffer.data(), buffer.size())) > 0) {
    text.append(buffer.data(), static_cast<std::size_t>(count));
  }
  return text;
}

void ChildProgram::write(const std::string& text) const {
  if (::write(in_, text.data(), text.size()) != static_cast<ssize_t>(text.size())) {
    throw std::runtime_error("the program does not read");
  }
}

void ChildProgram::sendSignal(int number) const {
  if (pid_ > 0) ::kill(pid_, number);
}

int ChildProgram::wait(double seconds) {
  const auto end = Time::now() + std::chrono::duration<double>(seconds);
  int status = 0;
  while (::waitpid(pid_, &status, WNOHANG) == 0) {
    if (Time::now() > end) return -1000;
    std::this_thread::sleep_for(std::chrono::milliseconds(2));
  }
  pid_ = -1;
  return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

}  // namespace korvin::test
