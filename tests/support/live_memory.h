#pragma once

#include <cstddef>

namespace korvin::test {

/// Bytes that this process has allocated and not freed. With the sanitizer it counts from the first call on,
/// since freed memory is held back there for a while.
std::size_t liveBytes();

}  // namespace korvin::test
