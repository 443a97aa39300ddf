// A stand-in tray host for measurements: owns org.kde.StatusNotifierWatcher on the session bus and says a
// host is there, so Velto exports its icon and menu as it would on a desktop panel. Runs until killed.
#include <QCoreApplication>
#include <QDBusConnection>
#include <QStringList>

#include <cstdio>

class Watcher final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(bool IsStatusNotifierHostRegistered READ isHostRegistered)
    Q_PROPERTY(int ProtocolVersion READ protocolVersion)
    Q_PROPERTY(QStringList RegisteredStatusNotifierItems READ items)

public:
    [[nodiscard]] bool isHostRegistered() const { return true; }
    [[nodiscard]] int protocolVersion() const { return 0; }
    [[nodiscard]] QStringList items() const { return m_items; }

public Q_SLOTS:
    void RegisterStatusNotifierItem(const QString& service)
    {
        m_items.append(service);
        std::printf("tray host: item %s\n", qPrintable(service));
        std::fflush(stdout);
    }
    void RegisterStatusNotifierHost(const QString&) {}

private:
    QStringList m_items;
};

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    Watcher watcher;
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

#include "tray_host.moc"
