#pragma once

#include "UserDefaultsStore.h"

#include <QSettings>

#include <memory>

namespace velto {

// The user-defaults store as an INI file read and written through QSettings, in a typed form: every value is
// one JSON value on its line (`isEnabled=true`, `breakPresetSelection="balanced"`, `schedule={...}`), so a
// stored boolean stays distinguishable from a stored string. JSON objects read back as data (the compact text
// of a record), arrays as lists, moments are written as ISO 8601 text. A line that is not JSON reads as a
// plain string, as a hand edit would mean.
// An unreadable or corrupt file reads as empty; an unwritable one keeps the values in memory.
class SettingsFileStore final : public UserDefaultsStore {
public:
    explicit SettingsFileStore(const QString& filePath);
    ~SettingsFileStore() override;

    // $XDG_CONFIG_HOME/velto/velto.ini
    [[nodiscard]] static QString defaultFilePath();

    [[nodiscard]] QVariant read(const QString& key) const override;
    void write(const QString& key, const QVariant& value) override;
    void remove(const QString& key) override;

    // Writes pending changes now; QSettings otherwise does so on its own from the event loop.
    void sync();
    [[nodiscard]] QString filePath() const;

    // The format's text codec, exposed for tests of odd files.
    static bool readTypedIni(QIODevice& device, QSettings::SettingsMap& map);
    static bool writeTypedIni(QIODevice& device, const QSettings::SettingsMap& map);

private:
    std::unique_ptr<QSettings> m_settings;
};

} // namespace velto
