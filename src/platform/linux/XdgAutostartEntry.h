#pragma once

#include "settings/LoginItemRegistering.h"

namespace velto {

// Launch at login the freedesktop way: a desktop entry named velto.desktop in the user's autostart folder
// ($XDG_CONFIG_HOME/autostart) that starts the given executable.
class XdgAutostartEntry final : public LoginItemRegistering {
public:
    explicit XdgAutostartEntry(QString executablePath, QString autostartDirectory = defaultDirectory());

    [[nodiscard]] static QString defaultDirectory();
    [[nodiscard]] QString entryPath() const;
    // The entry's text; the Exec line quotes the path as the Desktop Entry rules ask.
    [[nodiscard]] QByteArray entryContents() const;

    // Registering writes the entry atomically; unregistering an entry that is not there is an error.
    [[nodiscard]] std::optional<QString> setRegistered(bool registered) override;

private:
    QString m_executablePath;
    QString m_autostartDirectory;
};

} // namespace velto
