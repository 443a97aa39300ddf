#include "FreedMemory.h"

#include <QQmlEngine>
#include <qqml.h>

// Any C library header defines __GLIBC__ when the library is glibc.
#include <cstdlib>
#if defined(__GLIBC__)
#include <malloc.h>
#endif

namespace velto {

namespace {
int liveEngines = 0;
// Whether an engine was made since the registrations were last let go: clearing again would only build and tear
// down the sweeping engine for nothing.
bool registrationsHeld = false;

void letGoOfQmlTypes()
{
    qmlClearTypeRegistrations();
    // The property caches of the types just dropped stay in Qt's process-wide table until an engine is destroyed,
    // which frees every cache no type holds any longer. A bare engine costs a few milliseconds and registers
    // only the core QML types, dropped again right after.
    {
        QQmlEngine sweep;
    }
    qmlClearTypeRegistrations();
}
} // namespace

void WindowEngineDeleter::operator()(QQmlEngine* engine) const
{
    delete engine;
    --liveEngines;
}

WindowEngine makeWindowEngine()
{
    ++liveEngines;
    registrationsHeld = true;
    return WindowEngine(new QQmlEngine);
}

void returnFreedMemoryToSystem()
{
    // Qt allows it only while no engine exists.
    if (liveEngines == 0 && registrationsHeld) {
        letGoOfQmlTypes();
        registrationsHeld = false;
    }
#if defined(__GLIBC__)
    malloc_trim(0);
#endif
}

} // namespace velto
