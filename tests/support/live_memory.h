#pragma once

#include <malloc.h>

#include <cstddef>

#ifdef KORVIN_SANITIZE
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#endif

namespace korvin::test {

/// Bytes that this process has allocated and not freed.
inline std::size_t liveBytes() {
#ifdef KORVIN_SANITIZE
  return __sanitizer_get_current_allocated_bytes();
#else
  return mallinfo2().uordblks;
#endif
}

}  // namespace korvin::test
