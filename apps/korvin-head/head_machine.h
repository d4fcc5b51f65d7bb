#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "korvin-head/fault_injector.h"
#include "korvin-head/head_keys.h"
#include "korvin-head/head_model.h"
#include "korvin-head/head_protocol.h"

namespace korvin::head {

/// What the head listens to.
struct LineProperties {
  long baud = 115200;  ///< bits per second
  int modulus = 223;   ///< of the check character: 95 or 223
};

/// What the machine has counted since its start.
struct HeadCounters {
  long requests = 0;    ///< understood and meant for this head
  long answers = 0;     ///< made, spoiled or not
  long otherHead = 0;   ///< requests for another id
  long wrongCheck = 0;  ///< frames with a wrong check character
  long malformed = 0;   ///< frames that are no request
  long wrongSpeed = 0;  ///< bytes that came at another line speed
};

/// What the line has to do now.
struct HeadActions {
  std::vector<std::string> writes;  ///< each to be written by itself
  bool hangUp = false;
  bool comeBack = false;
};

/// The head in time, without a clock or a line of its own: bytes and moments go in, bytes and moments come
/// out. Moments are seconds since the head's start and never go back.
///
/// A head does one thing at a time: a request that comes while a measurement is under way ends that one,
/// unanswered. What was delayed by a fault is already on its way and still comes.
class HeadMachine {
 public:
  using Trace = std::function<void(double now, std::string_view text)>;

  HeadMachine(HeadModel model, FaultInjector faults, KeyPad keys, LineProperties line);

  /// Told of all traffic, in words.
  void setTrace(Trace trace) { trace_ = std::move(trace); }

  /// Takes bytes that arrived at `now` while the line ran at `lineBaud`; at another speed than its own the
  /// head understands nothing.
  void receive(double now, std::string_view bytes, long lineBaud);
  /// Does what is due at `now`.
  HeadActions step(double now);
  /// The next moment at which `step` has something to do; nothing while the head only waits for bytes.
  std::optional<double> nextMoment() const;

  KeyPad& keys() { return keys_; }
  /// Carries the head on to its next place.
  void carryOn() { model_.carryOn(); }
  const HeadCounters& counters() const { return counters_; }
  const FaultInjector& faults() const { return faults_; }

 private:
  struct Pending {
    double at;
    Request request;
  };

  void hear(double now, const HeardFrame& frame);
  void answerPending();
  void hangUp(double now);
  void say(double now, const std::string& text) const;

  HeadModel model_;
  FaultInjector faults_;
  KeyPad keys_;
  LineProperties line_;
  RequestParser parser_;
  Trace trace_;
  HeadCounters counters_;
  std::optional<Pending> pending_;
  std::multimap<double, std::string> leaving_;
  std::optional<double> awayUntil_;
  bool hangUpDue_ = false;
};

}  // namespace korvin::head
