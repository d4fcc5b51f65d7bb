#include "korvin-head/head_server.h"

#include <poll.h>
#include <time.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cmath>
#include <system_error>

namespace korvin::head {

namespace {

double monotonicSeconds() {
  timespec time{};
  ::clock_gettime(CLOCK_MONOTONIC, &time);
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

timespec spanOf(double seconds) {
  const double whole = std::floor(seconds);
  return {static_cast<time_t>(whole), static_cast<long>((seconds - whole) * 1e9)};
}

/// On a terminal or a pipe: carries the head on.
constexpr char CarryOn = 'n';

HeadMachine machineOf(const HeadConfig& config) {
  return {HeadModel(config.head, beamOf(config)), FaultInjector(config.faults),
          KeyPad(config.keyScript, config.keyHoldSeconds), config.line};
}

}  // namespace

Beam beamOf(const HeadConfig& config) {
  Beam beam = driftingBeam(config.start, config.driftMmPerHour);
  return onCircle(alongLine(std::move(beam), config.guideway), config.circle);
}

HeadServer::HeadServer(const HeadConfig& config)
    : machine_(machineOf(config)),
      link_(config.linkPath),
      keysFd_(config.keysFd),
      startSeconds_(monotonicSeconds()) {
  connect();
}

void HeadServer::runUntil(int stopFd) {
  while (!wait(stopFd)) act(machine_.step(now()));
}

double HeadServer::now() const {
  return monotonicSeconds() - startSeconds_;
}

bool HeadServer::wait(int stopFd) {
  // A descriptor of −1 is passed over by the system.
  std::array<pollfd, 3> fds{
      {{stopFd, POLLIN, 0}, {line_ ? line_->fd() : -1, POLLIN, 0}, {keysFd_, POLLIN, 0}}};
  const auto next = machine_.nextMoment();
  const timespec span = spanOf(next ? std::max(0.0, *next - now()) : 0);
  const int ready = ::ppoll(fds.data(), fds.size(), next ? &span : nullptr, nullptr);
  if (ready < 0 && errno != EINTR)
    throw std::system_error(errno, std::generic_category(), "cannot wait for the line");
  if (ready <= 0) return false;
  if (fds[0].revents != 0) return true;
  if (fds[1].revents != 0) receive();
  if (fds[2].revents != 0) readKeys();
  return false;
}

void HeadServer::receive() {
  const std::string bytes = line_->read();
  if (!bytes.empty()) machine_.receive(now(), bytes, line_->baud());
}

void HeadServer::readKeys() {
  std::array<char, 64> letters;
  const ssize_t count = ::read(keysFd_, letters.data(), letters.size());
  if (count < 0 && (errno == EINTR || errno == EAGAIN)) return;
  // At its end, or as a background job that may not read the terminal: no more keys from here.
  if (count <= 0) keysFd_ = -1;
  for (ssize_t i = 0; i < count; ++i) {
    const char letter = letters.at(static_cast<std::size_t>(i));
    const char key = keyOf(letter);
    if (key != '\0') machine_.keys().press(key);
    if (letter == CarryOn) machine_.carryOn();
  }
}

void HeadServer::act(const HeadActions& actions) {
  if (actions.hangUp) {
    link_.remove();
    line_.reset();
    if (lineChange_) lineChange_({});
  }
  for (const std::string& bytes : actions.writes) {
    if (line_) line_->write(bytes);
  }
  if (actions.comeBack) {
    connect();
    if (lineChange_) lineChange_(device());
  }
}

void HeadServer::connect() {
  line_ = std::make_unique<PtyLine>();
  link_.place(line_->device());
}

}  // namespace korvin::head
