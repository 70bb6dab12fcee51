#include "values/vector_registers.h"

namespace lapdesk {

void ClearUpperVectorRegisters() {
#if defined(__x86_64__) || defined(__i386__)
    static const bool hasAvx = __builtin_cpu_supports("avx");
    if (hasAvx) asm volatile("vzeroupper" ::: "memory");
#endif
}

}  // namespace lapdesk
