#include "platform/qt/VectorRegisters.h"

namespace gp {

#if defined(__x86_64__)

namespace {

__attribute__((target("avx"), noinline)) void resetUpperHalves() { __builtin_ia32_vzeroupper(); }

}  // namespace

void resetVectorRegisters() {
  if (__builtin_cpu_supports("avx")) resetUpperHalves();
}

#else

void resetVectorRegisters() {}

#endif

}  // namespace gp
