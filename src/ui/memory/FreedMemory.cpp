#include "FreedMemory.h"

// Any C library header defines __GLIBC__ when the library is glibc.
#include <cstdlib>
#if defined(__GLIBC__)
#include <malloc.h>
#endif

namespace velto {

void returnFreedMemoryToSystem()
{
#if defined(__GLIBC__)
    malloc_trim(0);
#endif
}

} // namespace velto
