#include "FreedMemory.h"

#include <QGuiApplication>
#include <QWindow>

#include <algorithm>
#include <atomic>

// Any C library header defines __GLIBC__ when the library is glibc.
#include <cstdlib>
#if defined(__GLIBC__)
#include <malloc.h>
#endif
#if defined(__linux__)
#include <dlfcn.h>
#include <link.h>
#include <sys/mman.h>
#include <unistd.h>
#endif

namespace velto {

namespace {

// The base address of the first object of the windows' code; zero when none is marked.
std::atomic<quintptr> windowsCodeBase{0};

// Only Velto's own windows count: the tray icon has a window of its own where the tray is an XEmbed one.
bool anyVeltoWindowVisible()
{
    const QWindowList windows = QGuiApplication::topLevelWindows();
    return std::any_of(windows.cbegin(), windows.cend(),
                       [](const QWindow* w) { return w->isVisible() && w->inherits("QQuickWindow"); });
}

} // namespace

void rememberWindowsCodeFrom(const void* addressInside)
{
#if defined(__linux__)
    Dl_info info{};
    if (dladdr(addressInside, &info) != 0 && info.dli_fbase)
        windowsCodeBase = reinterpret_cast<quintptr>(info.dli_fbase);
#else
    Q_UNUSED(addressInside);
#endif
}

bool returnWindowsCodeToSystem()
{
#if defined(__linux__)
    struct Walk {
        quintptr firstBase;
        bool reached = false;
        long pageSize = sysconf(_SC_PAGESIZE);
    } walk{windowsCodeBase};
    if (walk.firstBase == 0 || walk.pageSize <= 0)
        return false;
    // Objects are listed in load order, so the windows' own come from the marked one on.
    dl_iterate_phdr(
        [](dl_phdr_info* object, size_t, void* data) {
            auto* w = static_cast<Walk*>(data);
            w->reached = w->reached || object->dlpi_addr == w->firstBase;
            if (!w->reached)
                return 0;
            for (int i = 0; i < object->dlpi_phnum; ++i) {
                const ElfW(Phdr)& segment = object->dlpi_phdr[i];
                // Only segments never written: a writable one holds relocated data, which the file does not.
                if (segment.p_type != PT_LOAD || (segment.p_flags & PF_W) != 0)
                    continue;
                const auto page = static_cast<quintptr>(w->pageSize);
                // Whole pages inside the segment only, so no neighbour is touched.
                const quintptr start = (object->dlpi_addr + segment.p_vaddr + page - 1) / page * page;
                const quintptr end = (object->dlpi_addr + segment.p_vaddr + segment.p_memsz) / page * page;
                if (end > start)
                    madvise(reinterpret_cast<void*>(start), end - start, MADV_DONTNEED);
            }
            return 0;
        },
        &walk);
    return walk.reached;
#else
    return false;
#endif
}

void returnFreedMemoryToSystem()
{
#if defined(__GLIBC__)
    malloc_trim(0);
#endif
    if (!anyVeltoWindowVisible())
        returnWindowsCodeToSystem();
}

} // namespace velto
