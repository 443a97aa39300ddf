#pragma once

#include <QString>

namespace velto {

class VeltoWindows;

// Where the windows module sits: in Velto's private library directory, relative to the executable.
[[nodiscard]] QString defaultWindowsModulePath();

// Loads the windows module at path, once; null when it cannot be loaded or lacks its entry point, said on
// standard error. The module is never unloaded: Qt Quick does not survive being taken out of a process.
[[nodiscard]] VeltoWindows* loadWindowsModule(const QString& path);

// The module at its default path, loaded on first call; the same answer, null included, ever after.
[[nodiscard]] VeltoWindows* veltoWindows();

} // namespace velto
