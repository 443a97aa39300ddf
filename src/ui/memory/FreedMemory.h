#pragma once

namespace velto {

// Hands memory that has been freed back to the system. The allocator keeps freed blocks for reuse, and after
// a large block it raises its threshold for mapping blocks of their own, so the pixels of a closed window can
// stay in the process for good. Once no window is visible, it also lets go of the pages of code the windows
// brought in (see rememberWindowsCodeFrom). Call it when a window's worth of memory has just been let go, not
// routinely: it walks the whole heap. Main thread.
void returnFreedMemoryToSystem();

// Marks the shared object that holds addressInside, and every one loaded after it (what it needs, and the
// plugins Qt Quick and Qt Multimedia load later), as code that only runs while a window is up. Between
// windows, their read-only pages are unmapped: they stay in the page cache, clean and reclaimable, and fault
// back in on the next window. Called once, by the windows module.
void rememberWindowsCodeFrom(const void* addressInside);

// Unmaps the read-only pages of the code marked above, now; what returnFreedMemoryToSystem does between
// windows. False when nothing is marked.
bool returnWindowsCodeToSystem();

} // namespace velto
