#include "frame/ui/vector_registers.h"

#if defined(__x86_64__) && defined(__GNUC__)
#include <immintrin.h>
#endif

namespace korvin {

#if defined(__x86_64__) && defined(__GNUC__)

namespace {

__attribute__((target("avx"))) void zeroUpperParts() {
  _mm256_zeroupper();
}

}  // namespace

void releaseVectorRegisters() {
  if (__builtin_cpu_supports("avx") != 0) zeroUpperParts();
}

#else

void releaseVectorRegisters() {}

#endif

}  // namespace korvin
