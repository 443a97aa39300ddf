#pragma once

#include "UserDefaultsStore.h"

#include <QIODevice>
#include <QSet>
#include <QTimer>
#include <QVariantMap>

namespace velto {

// The user-defaults store as an INI-like text file in a typed form: every value is one JSON value on its line
// (`isEnabled=true`, `breakPresetSelection="balanced"`, `schedule={...}`), so a stored boolean stays
// distinguishable from a stored string. JSON objects read back as data (the compact text of a record), arrays
// as lists, moments are written as ISO 8601 text. A line that is not JSON reads as a plain string, as a hand
// edit would mean; bytes that are not UTF-8 read as U+FFFD, so the rest of their line still counts.
//
// Values live in memory and are written to the file by sync(), or on the next turn of the event loop after a
// change. An unreadable or corrupt file reads as empty. An unwritable one keeps the values in memory, is tried
// again at each sync, and is reported on standard error once for each distinct reason.
class SettingsFileStore final : public UserDefaultsStore {
public:
    explicit SettingsFileStore(const QString& filePath);
    // Writes what is still pending.
    ~SettingsFileStore() override;

    // $XDG_CONFIG_HOME/velto/velto.ini
    [[nodiscard]] static QString defaultFilePath();

    [[nodiscard]] QVariant read(const QString& key) const override;
    void write(const QString& key, const QVariant& value) override;
    void remove(const QString& key) override;
    bool sync() override;

    [[nodiscard]] QString filePath() const { return m_filePath; }

    // The format's text codec, exposed for tests of odd files.
    static bool readTypedIni(QIODevice& device, QVariantMap& map);
    static bool writeTypedIni(QIODevice& device, const QVariantMap& map);

private:
    void changed();
    // Nothing when the file now holds every value, else why it could not be written.
    [[nodiscard]] std::optional<QString> writeFile() const;

    QString m_filePath;
    QVariantMap m_values;
    bool m_pending = false;
    QTimer m_deferredSync;
    QSet<QString> m_reportedProblems;
};

} // namespace velto
