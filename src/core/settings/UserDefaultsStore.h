#pragma once

#include <QString>
#include <QVariant>

namespace velto {

// The persistent key-value store behind the settings and the daily break count.
// Values keep their kind: a bool reads back as a bool, a string as a string, data (QByteArray) as data,
// numbers as numbers. A missing key reads as an invalid QVariant. Main thread only.
class UserDefaultsStore {
public:
    virtual ~UserDefaultsStore() = default;

    [[nodiscard]] virtual QVariant read(const QString& key) const = 0;
    virtual void write(const QString& key, const QVariant& value) = 0;
    virtual void remove(const QString& key) = 0;
    // Makes the writes so far last beyond this process. False when they could not be kept: the values stay
    // readable here until the process ends, and the store has said why on standard error.
    virtual bool sync() { return true; }
};

} // namespace velto
