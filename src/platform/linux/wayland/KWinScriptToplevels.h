#pragma once

#include "WaylandProviders.h"

#include <QDBusConnection>
#include <QDBusContext>
#include <QObject>
#include <QTemporaryFile>

#include <memory>

namespace velto {

// KWin offers its window list over Wayland only to programs a desktop file grants it, which a build run from
// its folder has not. Then a small KWin script of ours reports the windows back over D-Bus whenever they
// change; the outputs still come from our Wayland connection. Only KWin itself may report. Main thread, except
// isAvailable() and facts(), which answer from memory on any thread.
class KWinScriptToplevels final : public QObject, public ToplevelSource, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.velto.app.KWinWindows")

public:
    static constexpr QLatin1StringView objectPath{"/com/velto/app/KWinWindows"};
    static constexpr QLatin1StringView pluginName{"velto-windows"};

    // `bus` is where KWin is (the session bus); `outputs` gives the screens' layout.
    KWinScriptToplevels(QDBusConnection bus, std::shared_ptr<WaylandLink> outputs, QObject* parent = nullptr);
    ~KWinScriptToplevels() override;

    // Loads and runs the script when KWin is on the bus; asks without waiting, so the windows come a moment
    // later. Returns false when the script could not even be written.
    bool start();

    [[nodiscard]] bool isAvailable() const override;
    [[nodiscard]] QString name() const override;
    [[nodiscard]] WaylandFacts facts() const override;

public Q_SLOTS:
    // The script's report: a JSON array of windows.
    Q_NOREPLY void update(const QString& windows);

private:
    void run(int scriptId);

    QDBusConnection m_bus;
    QTemporaryFile m_script;
    QString m_kwinPeer;
    bool m_loaded = false;
    LogOnce m_log;
    ReportedToplevels m_reported;
};

} // namespace velto
