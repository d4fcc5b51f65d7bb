#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "korvin-head/fault_injector.h"
#include "korvin-head/head_protocol.h"

/// Traffic in words, for people who watch the line.
namespace korvin::head {

/// "17 31 2D 1B": each byte as two hexadecimal digits.
std::string hexText(std::string_view bytes);

/// What a frame that was heard says: "T, id '0', level '2'", or what is wrong with it.
std::string explainHeard(const HeardFrame& frame);

/// What the columns of an answer say.
std::string explainAnswer(std::string_view columns);

/// Names of the faults, as "silence, split"; empty without a fault.
std::string faultNames(const std::vector<Fault>& faults);

}  // namespace korvin::head
