#pragma once

#include <optional>
#include <string>

namespace korvin::file {

/// A moment (days since 30 December 1899, local time of the measurement) as ISO 8601 to the microsecond,
/// "2004-01-14T13:58:47.627267"; a moment of our times has about as many digits. Nothing for what is no
/// moment of the years 100 to 9999, and for the empty value.
std::optional<std::string> isoTime(double days);

}  // namespace korvin::file
