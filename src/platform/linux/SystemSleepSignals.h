#pragma once

#include "scheduling/SchedulingTypes.h"

#include <QObject>

#include <memory>

class QAbstractNativeEventFilter;

namespace velto {

// Tells when the machine or the displays go to sleep and wake again:
// - system: logind's PrepareForSleep on the system bus (true before suspend, false after resume);
// - display: the session's screen saver turning on or off (org.freedesktop.ScreenSaver and GNOME's
//   org.gnome.ScreenSaver ActiveChanged), which is when desktops blank the screens; on X11 also the X
//   server's own screen saver (MIT-SCREEN-SAVER notify events), which blanks sessions without a desktop.
// Without a bus the signals simply never come. Main thread.
class SystemSleepSignals final : public QObject {
    Q_OBJECT

public:
    explicit SystemSleepSignals(QObject* parent = nullptr);
    ~SystemSleepSignals() override;

    // Whether each source could be listened to; for diagnostics and tests.
    [[nodiscard]] bool listensForSystemSleep() const { return m_system; }
    [[nodiscard]] bool listensForDisplaySleep() const { return m_display; }

Q_SIGNALS:
    void willSleep(velto::Scheduling::SleepSource source);
    void didWake(velto::Scheduling::SleepSource source);

private Q_SLOTS:
    void prepareForSleep(bool start);
    void screenSaverActiveChanged(bool active);

private:
    void watchX11ScreenSaver();
    void displaySleepChanged(bool asleep);

    bool m_system = false;
    bool m_display = false;
    bool m_displayAsleep = false;
    std::unique_ptr<QAbstractNativeEventFilter> m_x11Filter;
};

} // namespace velto
