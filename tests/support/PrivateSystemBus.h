#pragma once

#include <QDBusConnection>
#include <QProcess>

// A system bus of the test's own: build machines have none. Start it before anything in the process touches
// D-Bus, since libdbus reads the bus addresses once, on its first connection.
class PrivateSystemBus final {
public:
    // Needs VELTO_DBUS_DAEMON and VELTO_TEST_BUS_CONFIG, which velto_add_dbus_test defines.
    bool start()
    {
        m_daemon.start(QStringLiteral(VELTO_DBUS_DAEMON),
                       {QStringLiteral("--config-file=" VELTO_TEST_BUS_CONFIG), QStringLiteral("--print-address"),
                        QStringLiteral("--nofork")});
        if (!m_daemon.waitForStarted())
            return false;
        if (!m_daemon.canReadLine() && !m_daemon.waitForReadyRead(5000))
            return false;
        m_address = m_daemon.readLine().trimmed();
        if (m_address.isEmpty())
            return false;
        qputenv("DBUS_SYSTEM_BUS_ADDRESS", m_address);
        return QDBusConnection::systemBus().isConnected();
    }

    ~PrivateSystemBus()
    {
        m_daemon.terminate();
        m_daemon.waitForFinished();
    }

    [[nodiscard]] QString address() const { return QString::fromUtf8(m_address); }

private:
    QProcess m_daemon;
    QByteArray m_address;
};
