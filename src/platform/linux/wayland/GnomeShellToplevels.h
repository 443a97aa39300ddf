#pragma once

#include "WaylandProviders.h"

#include <QDBusConnection>
#include <QObject>

#include <memory>

class QDBusServiceWatcher;

namespace velto {

// GNOME Shell tells ordinary programs nothing of its windows; Velto's own Shell extension does, to the owner
// of Velto's bus name alone. This source asks it for the window list whenever the extension says something
// changed (and when it appears), and answers from memory; the outputs come from our Wayland connection.
// Main thread, except isAvailable() and facts(), which answer from memory on any thread.
class GnomeShellToplevels final : public QObject, public ToplevelSource {
    Q_OBJECT

public:
    static constexpr QLatin1StringView service{"com.velto.app.Shell"};
    static constexpr QLatin1StringView path{"/com/velto/app/Shell"};
    static constexpr QLatin1StringView interface {
        "com.velto.app.Shell1"
    };

    // `bus` is the session bus, where this process owns Velto's name; `outputs` gives the screens' layout.
    GnomeShellToplevels(QDBusConnection bus, std::shared_ptr<WaylandLink> outputs, QObject* parent = nullptr);
    ~GnomeShellToplevels() override;

    // Listens for the extension and asks it once; the windows come a moment later.
    void start();

    [[nodiscard]] bool isAvailable() const override;
    [[nodiscard]] QString name() const override;
    [[nodiscard]] WaylandFacts facts() const override;

private Q_SLOTS:
    void ask();

private:
    QDBusConnection m_bus;
    QDBusServiceWatcher* m_watcher = nullptr;
    bool m_asking = false;
    bool m_askAgain = false;
    ReportedToplevels m_reported;
};

} // namespace velto
