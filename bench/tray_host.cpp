// A stand-in tray host for measurements: owns org.kde.StatusNotifierWatcher on the session bus and says a
// host is there, so Velto exports its icon and menu as it would on a desktop panel. Runs until killed.
#include "FakeStatusNotifierWatcher.h"

#include <QCoreApplication>
#include <QDBusConnection>

#include <cstdio>

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    FakeStatusNotifierWatcher watcher;
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.registerObject(QStringLiteral("/StatusNotifierWatcher"), &watcher,
                            QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllProperties) ||
        !bus.registerService(QStringLiteral("org.kde.StatusNotifierWatcher"))) {
        std::fputs("tray host: the session bus is not available\n", stderr);
        return 1;
    }
    std::puts("tray host: ready");
    std::fflush(stdout);
    return QCoreApplication::exec();
}
