#include "MemoryPolicy.h"

// Any C library header defines __GLIBC__ when the library is glibc.
#include <cstdlib>
#if defined(__GLIBC__)
#include <malloc.h>
#endif

namespace velto {

void useOneHeapForAllThreads()
{
#if defined(__GLIBC__)
    mallopt(M_ARENA_MAX, 1);
#endif
}

} // namespace velto
