#include "support/live_memory.h"

#ifdef KORVIN_SANITIZE

#include <atomic>

extern "C" {
int __sanitizer_install_malloc_and_free_hooks(void (*onMalloc)(const volatile void*, std::size_t),
                                              void (*onFree)(const volatile void*));
std::size_t __sanitizer_get_allocated_size(const volatile void* memory);
}

namespace korvin::test {
namespace {

std::atomic<long> live{1L << 40};  // from a height, since what was allocated before may be freed now

void allocated(const volatile void*, std::size_t size) {
  live += static_cast<long>(size);
}
void freed(const volatile void* memory) {
  if (memory != nullptr) live -= static_cast<long>(__sanitizer_get_allocated_size(memory));
}

}  // namespace

std::size_t liveBytes() {
  static const int installed = __sanitizer_install_malloc_and_free_hooks(allocated, freed);
  static_cast<void>(installed);
  return static_cast<std::size_t>(live.load());
}

}  // namespace korvin::test

#else

#include <malloc.h>

namespace korvin::test {

std::size_t liveBytes() {
  const struct mallinfo2 info = mallinfo2();
  return info.uordblks + info.hblkhd;
}

}  // namespace korvin::test

#endif
