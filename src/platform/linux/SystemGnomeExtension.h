#pragma once

#include "detection/GnomeExtension.h"

#include <QDBusConnection>
#include <QVariantMap>

#include <memory>

namespace velto {

class ShellSettings;

// Velto's GNOME Shell extension in this session: GNOME Shell's own answers over the session bus, the copies in the
// data folders, and the user's GNOME Shell settings through GSettings. Gathers again when the extension or the
// shell comes or goes, the shell says the extension's state changed, or the settings change. Nothing is asked
// before the first refresh(), and GIO is loaded only once GNOME Shell turns out to be there. Main thread.
class SystemGnomeExtension final : public GnomeExtensionControlling {
    Q_OBJECT

public:
    static constexpr QLatin1StringView uuid{"velto@velto.app"};

    explicit SystemGnomeExtension(QDBusConnection bus, QObject* parent = nullptr);
    // Waits for settings still being written, so a command that enabled the extension and exits keeps its change.
    ~SystemGnomeExtension() override;

    [[nodiscard]] std::optional<GnomeExtensionFacts> facts() const override { return m_facts; }
    void refresh() override;
    void enable(std::function<void(const QString& error)> done) override;

private Q_SLOTS:
    void extensionStateChanged(const QString& changed, const QVariantMap& state);

private:
    struct Gathering;

    void watch();
    ShellSettings& settings();
    void refreshSoon();
    void gathered(quint64 round, GnomeExtensionFacts facts);
    void askShell(const GnomeExtensionEnabling& enabling, std::function<void(const QString&)> done);
    // Writes the user's settings as enabling says; the error, or an empty string.
    QString writeSettings(const GnomeExtensionEnabling& enabling);
    void refreshThen(std::function<void(const QString&)> done, const QString& error);

    QDBusConnection m_bus;
    bool m_watching = false;
    quint64 m_round = 0;
    std::optional<GnomeExtensionFacts> m_facts;
    // Enabling calls waiting for the gathering that follows their change.
    QList<std::pair<quint64, std::function<void()>>> m_afterRound;
    std::unique_ptr<ShellSettings> m_settings;
    bool m_wroteSettings = false;
    bool m_refreshQueued = false;
};

} // namespace velto
