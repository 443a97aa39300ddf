#pragma once

#include "scheduling/SchedulingTypes.h"

#include <QObject>

#include <functional>
#include <memory>
#include <optional>

class QDBusMessage;

namespace velto {

class QtX11EventFilter;

// Tells when the machine or the displays go to sleep and wake again:
// - system: logind's PrepareForSleep on the system bus (true before suspend, false after resume);
// - display: the displays actually powering down, not a lock or a blank screen (the user may still be
//   reading a locked break screen's countdown, and Velto's own lock must not freeze its own break):
//   GNOME's org.gnome.Mutter.DisplayConfig PowerSaveMode, and on X11 the server's DPMS level.
// Without a bus or an X server the signals simply never come. Main thread.
class SystemSleepSignals final : public QObject {
    Q_OBJECT

public:
    // Whether the X server has the displays powered down; nullopt when it cannot tell.
    using DisplayPowerProbe = std::function<std::optional<bool>()>;

    // With no probe given, the X server's DPMS extension is asked, where there is one.
    explicit SystemSleepSignals(DisplayPowerProbe x11DisplaysOff = {}, QObject* parent = nullptr);
    ~SystemSleepSignals() override;

    // Whether each source could be listened to; for diagnostics and tests.
    [[nodiscard]] bool listensForSystemSleep() const { return m_system; }
    [[nodiscard]] bool listensForDisplaySleep() const { return m_mutter || m_x11DisplaysOff; }

public Q_SLOTS:
    // X has no event for a DPMS change, but every power-down passes through the X screen saver turning
    // on. So while it is on, the level is read again on ticks the countdown already makes; otherwise
    // this does nothing.
    void recheckDisplayPower();

Q_SIGNALS:
    void willSleep(velto::Scheduling::SleepSource source);
    void didWake(velto::Scheduling::SleepSource source);

private Q_SLOTS:
    void prepareForSleep(bool start);
    void displayConfigChanged(const QDBusMessage& message);

private:
    void watchMutter();
    void watchX11ScreenSaver();
    void x11ScreenSaverChanged(bool on);
    void setMutterDisplaysOff(int powerSaveMode);
    void updateDisplaySleep();

    bool m_system = false;
    bool m_mutter = false;
    bool m_mutterOff = false;
    bool m_x11SaverOn = false;
    bool m_x11Off = false;
    bool m_displayAsleep = false;
    DisplayPowerProbe m_x11DisplaysOff;
    std::unique_ptr<QtX11EventFilter> m_x11Filter;
};

} // namespace velto
