#include "VeltoWindows.h"

#include <QtGlobal>

// The module's entry point, looked up by name once it has been loaded.
extern "C" Q_DECL_EXPORT velto::VeltoWindows* velto_windows()
{
    return velto::builtInVeltoWindows();
}
