#pragma once

#include <memory>

class QQmlEngine;

namespace velto {

struct WindowEngineDeleter {
    void operator()(QQmlEngine* engine) const;
};

// The QML engine of one kind of Velto window (break screen, card, settings), kept only while such windows
// show. Every QML engine in the process must be made through makeWindowEngine(): returnFreedMemoryToSystem()
// drops Qt's type registrations once none is left, which an engine made otherwise would not survive.
using WindowEngine = std::unique_ptr<QQmlEngine, WindowEngineDeleter>;
[[nodiscard]] WindowEngine makeWindowEngine();

// Hands memory that has been freed back to the system. The allocator keeps freed blocks for reuse, and after
// a large block it raises its threshold for mapping blocks of their own, so the pixels of a closed window can
// stay in the process for good. Once no window engine is left, the QML type registrations and caches that Qt
// keeps for the whole process (megabytes for Qt Quick Controls, and only windows use them) go first; the next
// engine registers them again as it imports its modules. Call it when a window's worth of memory has just been
// let go, not routinely: it walks the whole heap. Main thread.
void returnFreedMemoryToSystem();

} // namespace velto
