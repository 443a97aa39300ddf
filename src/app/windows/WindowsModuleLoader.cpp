#include "WindowsModuleLoader.h"

#include "VeltoWindows.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibrary>

namespace velto {

QString defaultWindowsModulePath()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + u'/' +
                           QString::fromUtf8(VELTO_WINDOWS_MODULE_FROM_BINDIR));
}

VeltoWindows* loadWindowsModule(const QString& path)
{
    QLibrary library(path);
    library.setLoadHints(QLibrary::PreventUnloadHint);
    using EntryPoint = VeltoWindows* (*)();
    auto entry = reinterpret_cast<EntryPoint>(library.resolve(veltoWindowsEntryPoint));
    VeltoWindows* windows = entry ? entry() : nullptr;
    if (!windows)
        qWarning("velto: cannot load the windows (%s); breaks run without a break screen or sound",
                 qPrintable(library.errorString()));
    return windows;
}

VeltoWindows* veltoWindows()
{
    static VeltoWindows* const windows = loadWindowsModule(defaultWindowsModulePath());
    return windows;
}

} // namespace velto
