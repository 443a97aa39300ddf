#pragma once

#include "AppIdentityResolver.h"
#include "LogOnce.h"
#include "X11Session.h"
#include "detection/IdleTimeProviding.h"
#include "detection/ScreenProviding.h"
#include "detection/ScreenRecordingRule.h"
#include "detection/WindowListProviding.h"
#include "detection/WorkspaceProviding.h"

#include <QDBusConnection>
#include <QDeadlineTimer>
#include <QHash>
#include <QMutex>

#include <memory>

namespace velto {

// The window classes seen for each process in the latest client list, so a later question about one
// process (its category) can name its application without asking the server again.
class WindowClassMemo final {
public:
    struct Classes {
        QString instance;
        QString windowClass;
    };
    void replace(QHash<qint32, Classes> classes)
    {
        QMutexLocker lock(&m_mutex);
        m_classes = std::move(classes);
    }
    // Adds the classes of another window list (a Wayland session's app_ids) to the latest X11 one.
    void merge(const QHash<qint32, Classes>& classes)
    {
        QMutexLocker lock(&m_mutex);
        m_classes.insert(classes);
    }
    [[nodiscard]] Classes classes(qint32 pid) const
    {
        QMutexLocker lock(&m_mutex);
        return m_classes.value(pid);
    }

private:
    mutable QMutex m_mutex;
    QHash<qint32, Classes> m_classes;
};

// The applications with windows in the X session (EWMH client list), one per process in the window
// manager's order; the one owning the active window is active. Windows that name no process are left out.
// Without an X server, and in Wayland sessions after the X clients, the installed applications running as
// the user's processes follow, none of them active (Wayland tells no one which window is in front).
class SystemWorkspace final : public WorkspaceProviding {
public:
    // Windows: processes only without an X server. WindowsOnly: never processes (a Wayland session whose
    // compositor lists the windows; Xwayland's are what this adds).
    enum class Scope { Windows, WindowsAndProcesses, WindowsOnly };
    SystemWorkspace(std::shared_ptr<X11Link> x11, std::shared_ptr<AppIdentityResolver> identities,
                    std::shared_ptr<WindowClassMemo> memo = std::make_shared<WindowClassMemo>(),
                    Scope scope = Scope::Windows);

    [[nodiscard]] QList<AppSnapshot> runningApplications() const override;

    // How often, in milliseconds, the installed applications are looked at again (a few stat calls).
    static constexpr int desktopEntryRefreshInterval = 10000;

private:
    void appendInstalledApplications(QList<AppSnapshot>& applications) const;

    std::shared_ptr<X11Link> m_x11;
    std::shared_ptr<AppIdentityResolver> m_identities;
    std::shared_ptr<WindowClassMemo> m_memo;
    Scope m_scope = Scope::Windows;
    // Applications installed while we run get their names at the next look, a few seconds later.
    mutable QMutex m_refreshMutex;
    mutable QDeadlineTimer m_nextRefresh{desktopEntryRefreshInterval};
    // Each window's application, worked out once: a window keeps its process, and a process its sandbox and
    // program, for as long as the window lives. Only current windows are kept; emptied when the installed
    // applications change.
    mutable QHash<QPair<quint32, qint32>, std::optional<QString>> m_identityOfWindow;
    LogOnce m_log;
};

// The managed top-level windows on the current desktop, frontmost first, as frames in root coordinates.
class SystemWindowList final : public WindowListProviding {
public:
    explicit SystemWindowList(std::shared_ptr<X11Link> x11);

    [[nodiscard]] QList<WindowDescriptor> onScreenWindows() const override;
    // The same windows with their titles, for the recording test.
    [[nodiscard]] QList<TitledWindow> titledWindows() const;

private:
    std::shared_ptr<X11Link> m_x11;
    LogOnce m_log;
};

// The primary monitor's geometry from RandR, in the same root coordinates as the window list.
class SystemScreen final : public ScreenProviding {
public:
    explicit SystemScreen(std::shared_ptr<X11Link> x11);

    [[nodiscard]] QRectF mainScreenFrame() const override;

private:
    std::shared_ptr<X11Link> m_x11;
    LogOnce m_log;
};

// Idle time from the X server's screen-saver extension; without X, from the desktop's D-Bus idle monitor
// (GNOME's Mutter IdleMonitor, else org.freedesktop.ScreenSaver's GetSessionIdleTime). 0 when nothing answers.
// In a Wayland session only the bus is asked: Xwayland sees only the input that goes to X clients, and would
// call a user idle who types into a Wayland window.
class SystemIdleTime final : public IdleTimeProviding {
public:
    enum class Source { X11First, BusOnly };
    SystemIdleTime(std::shared_ptr<X11Link> x11, QDBusConnection sessionBus, Source order = Source::X11First);

    [[nodiscard]] double secondsSinceLastInput() const override;

    static constexpr int callTimeout = 250;

private:
    [[nodiscard]] std::optional<double> busIdleSeconds() const;
    // Whether the screen saver at this unique bus name gives its idle time in milliseconds.
    [[nodiscard]] bool countsMilliseconds(const QString& screenSaver) const;

    [[nodiscard]] std::optional<double> x11IdleSeconds() const;

    std::shared_ptr<X11Link> m_x11;
    QDBusConnection m_bus;
    Source m_order = Source::X11First;
    LogOnce m_log;
    mutable QString m_screenSaverPeer;
    mutable bool m_screenSaverCountsMilliseconds = false;
};

} // namespace velto
