#include "SystemSleepSignals.h"

#include <QDBusConnection>

using namespace Qt::Literals::StringLiterals;

namespace velto {

SystemSleepSignals::SystemSleepSignals(QObject* parent)
    : QObject(parent)
{
    QDBusConnection system = QDBusConnection::systemBus();
    if (system.isConnected())
        m_system = system.connect(u"org.freedesktop.login1"_s, u"/org/freedesktop/login1"_s,
                                  u"org.freedesktop.login1.Manager"_s, u"PrepareForSleep"_s, this,
                                  SLOT(prepareForSleep(bool)));

    QDBusConnection session = QDBusConnection::sessionBus();
    if (session.isConnected()) {
        // Desktops publish the same signal under different paths and interfaces; any sender counts.
        const struct {
            QString path;
            QString interface;
        } sources[] = {
            {u"/org/freedesktop/ScreenSaver"_s, u"org.freedesktop.ScreenSaver"_s},
            {u"/ScreenSaver"_s, u"org.freedesktop.ScreenSaver"_s},
            {u"/org/gnome/ScreenSaver"_s, u"org.gnome.ScreenSaver"_s},
        };
        for (const auto& source : sources)
            m_display |= session.connect({}, source.path, source.interface, u"ActiveChanged"_s, this,
                                         SLOT(screenSaverActiveChanged(bool)));
    }
}

void SystemSleepSignals::prepareForSleep(bool start)
{
    if (start)
        Q_EMIT willSleep(SleepSource::System);
    else
        Q_EMIT didWake(SleepSource::System);
}

void SystemSleepSignals::screenSaverActiveChanged(bool active)
{
    // Two desktops' paths may both report one change; only transitions count.
    if (active == m_displayAsleep)
        return;
    m_displayAsleep = active;
    if (active)
        Q_EMIT willSleep(SleepSource::Display);
    else
        Q_EMIT didWake(SleepSource::Display);
}

} // namespace velto
