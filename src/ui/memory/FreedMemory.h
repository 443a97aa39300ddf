#pragma once

namespace velto {

// Hands memory that has been freed back to the system. The allocator keeps freed blocks for reuse, and after
// a large block it raises its threshold for mapping blocks of their own, so the pixels of a closed window can
// stay in the process for good. Call it when a window's worth of memory has just been let go, not routinely:
// it walks the whole heap. Main thread.
void returnFreedMemoryToSystem();

} // namespace velto
