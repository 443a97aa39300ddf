#pragma once

#include "settings/UserDefaultsStore.h"

#include <QHash>
#include <QStringList>

// A user-defaults store in memory that records every write, so tests can tell what was saved and when.
class InMemoryUserDefaults final : public velto::UserDefaultsStore {
public:
    [[nodiscard]] QVariant read(const QString& key) const override { return values.value(key); }
    void write(const QString& key, const QVariant& value) override
    {
        values.insert(key, value);
        writtenKeys.append(key);
        m_writeState.setWriteFailed(!writesSucceed);
    }
    void remove(const QString& key) override { values.remove(key); }

    QHash<QString, QVariant> values;
    QStringList writtenKeys;
    // False plays a store whose writes cannot be kept.
    bool writesSucceed = true;
};
