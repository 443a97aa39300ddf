#include "FreedMemory.h"
#include "VeltoWindows.h"

#include <QtGlobal>

// The module's entry point, looked up by name once it has been loaded.
extern "C" Q_DECL_EXPORT velto::VeltoWindows* velto_windows()
{
    // Everything from this module on in the load order is code that only runs while a window is up.
    velto::rememberWindowsCodeFrom(reinterpret_cast<const void*>(&velto_windows));
    return velto::builtInVeltoWindows();
}
