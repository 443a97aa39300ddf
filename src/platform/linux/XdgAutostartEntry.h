#pragma once

#include "settings/LoginItemRegistering.h"

namespace velto {

// Launch at login the freedesktop way: a desktop entry named after the application's id in the user's autostart
// folder ($XDG_CONFIG_HOME/autostart) that starts the given executable, and is skipped once that executable is
// gone (TryExec). An entry the user disabled in the desktop's startup settings (Hidden, or GNOME's
// X-GNOME-Autostart-enabled) is theirs: it is reported, and only rewritten when they turn the start on again.
class XdgAutostartEntry final : public LoginItemRegistering {
public:
    explicit XdgAutostartEntry(QString executablePath, QString autostartDirectory = defaultDirectory());

    [[nodiscard]] static QString defaultDirectory();
    [[nodiscard]] QString entryPath() const;
    // Where earlier versions wrote the entry; moved to entryPath() at the next registration.
    [[nodiscard]] QString legacyEntryPath() const;
    // The entry's text; the Exec line quotes the path as the Desktop Entry rules ask.
    [[nodiscard]] QByteArray entryContents() const;

    // Registering writes the entry atomically; unregistering an entry that is not there is an error.
    [[nodiscard]] std::optional<QString> setRegistered(bool registered) override;
    [[nodiscard]] bool isDisabledByUser() const override;

private:
    QString m_executablePath;
    QString m_autostartDirectory;
};

} // namespace velto
