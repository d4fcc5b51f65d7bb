#pragma once

#include <string>
#include <vector>

#include "korvin-head/fault_injector.h"
#include "korvin-head/head_model.h"

namespace korvin::test {

/// Judges a frame apart from the program's own link: whether its check character is right, by the head's
/// side of the line.
bool checkFits(const std::string& body, int modulus);

/// What a still head with faults will do to a program that asks it for quick measurements, one after the
/// other, each up to three times: its noise and its chance come from seeds, so every byte is known
/// beforehand. Knows nothing of time: not for late and split answers, and right only while no answer takes
/// longer than the program waits.
class HeadForecast {
 public:
  /// The head's own options.
  explicit HeadForecast(const std::vector<std::string>& options);

  /// One transaction.
  void ask();

  long sent = 0;         ///< questions that the program sends
  long failed = 0;       ///< transactions without an answer after three attempts
  long wrongFrames = 0;  ///< frames whose check character does not fit
  long undetected = 0;   ///< damaged frames whose check character fits all the same
  /// Body of a frame that nothing has spoiled.
  const std::string& trueBody() const { return trueBody_; }

 private:
  enum class Verdict { nothing, wrong, right };

  /// One question that the head understands.
  Verdict question();
  Verdict judge();
  Verdict judgeBody(const std::string& body);

  int headModulus_;
  int programModulus_ = 223;
  head::HeadModel model_;
  head::FaultInjector faults_;
  std::string trueBody_;
  std::string waiting_;  ///< bytes of frames that never ended
};

}  // namespace korvin::test
