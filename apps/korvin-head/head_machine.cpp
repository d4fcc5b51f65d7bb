#include "korvin-head/head_machine.h"

#include <utility>

#include "korvin-head/head_trace.h"

namespace korvin::head {

HeadMachine::HeadMachine(HeadModel model, FaultInjector faults, KeyPad keys, LineProperties line)
    : model_(std::move(model)),
      faults_(std::move(faults)),
      keys_(std::move(keys)),
      line_(line),
      parser_(line.modulus) {}

void HeadMachine::receive(double now, std::string_view bytes, long lineBaud) {
  if (awayUntil_) return;
  if (trace_) say(now, "<- " + hexText(bytes));
  if (lineBaud != line_.baud) {
    counters_.wrongSpeed += static_cast<long>(bytes.size());
    parser_.reset();
    if (trace_) say(now, "   at " + std::to_string(lineBaud) + " baud, not understood");
    return;
  }
  for (const HeardFrame& frame : parser_.feed(bytes)) hear(now, frame);
}

void HeadMachine::hear(double now, const HeardFrame& frame) {
  if (trace_) say(now, "   " + explainHeard(frame));
  if (frame.verdict == Verdict::wrongCheck) ++counters_.wrongCheck;
  if (frame.verdict == Verdict::malformed) ++counters_.malformed;
  if (frame.verdict != Verdict::request) return;
  if (!model_.isMeant(frame.request)) {
    ++counters_.otherHead;
    if (trace_) say(now, "   for another head, not answered");
    return;
  }
  ++counters_.requests;
  if (pending_ && pending_->at <= now) answerPending();
  if (awayUntil_) return;
  pending_ = Pending{now + model_.answerSeconds(frame.request), frame.request};
}

HeadActions HeadMachine::step(double now) {
  HeadActions actions;
  if (pending_ && pending_->at <= now) answerPending();
  actions.hangUp = std::exchange(hangUpDue_, false);
  while (!leaving_.empty() && leaving_.begin()->first <= now) {
    if (trace_) say(now, "-> " + hexText(leaving_.begin()->second));
    actions.writes.push_back(std::move(leaving_.begin()->second));
    leaving_.erase(leaving_.begin());
  }
  if (awayUntil_ && *awayUntil_ <= now) {
    awayUntil_.reset();
    actions.comeBack = true;
    if (trace_) say(now, "   back on the line");
  }
  return actions;
}

std::optional<double> HeadMachine::nextMoment() const {
  std::optional<double> next = awayUntil_;
  if (hangUpDue_) next = 0;
  if (pending_ && (!next || pending_->at < *next)) next = pending_->at;
  if (!leaving_.empty() && (!next || leaving_.begin()->first < *next)) next = leaving_.begin()->first;
  return next;
}

void HeadMachine::answerPending() {
  const Pending pending = *std::exchange(pending_, std::nullopt);
  const std::string columns = model_.answer(pending.request, keys_.report(pending.at), pending.at);
  Delivery delivery = faults_.deliver(columns, line_.modulus);
  ++counters_.answers;
  if (trace_) {
    const std::string names = faultNames(delivery.faults);
    say(pending.at, "   " + explainAnswer(columns) + (names.empty() ? "" : "  ** " + names));
  }
  for (Piece& piece : delivery.pieces)
    leaving_.emplace(pending.at + piece.afterSeconds, std::move(piece.bytes));
  if (delivery.hangUp) hangUp(pending.at);
}

void HeadMachine::hangUp(double now) {
  leaving_.clear();
  pending_.reset();
  parser_.reset();
  hangUpDue_ = true;
  awayUntil_ = now + faults_.times().hangUp;
}

void HeadMachine::say(double now, const std::string& text) const {
  trace_(now, text);
}

}  // namespace korvin::head
