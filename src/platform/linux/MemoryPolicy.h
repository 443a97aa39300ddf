#pragma once

namespace velto {

// One heap for all of Velto's threads. The C library gives each thread that allocates at the same moment as
// another a heap of its own, and a heap keeps its freed pieces for good: the QML loader thread of a settings
// window once left 2 MB of freed but unreturnable memory behind in its own heap. Velto's threads allocate
// little and seldom together, so sharing costs them nothing measurable. Call before any thread starts.
void useOneHeapForAllThreads();

} // namespace velto
