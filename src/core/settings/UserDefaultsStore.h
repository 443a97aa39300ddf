#pragma once

#include <QObject>
#include <QString>
#include <QVariant>

namespace velto {

// Whether the store's last write to lasting storage failed. The settings window shows it; nothing else reacts.
class StoreWriteState final : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool writeFailed READ writeFailed NOTIFY writeFailedChanged)

public:
    using QObject::QObject;
    [[nodiscard]] bool writeFailed() const { return m_writeFailed; }
    // Announced only when it flips.
    void setWriteFailed(bool failed)
    {
        if (failed == m_writeFailed)
            return;
        m_writeFailed = failed;
        Q_EMIT writeFailedChanged(failed);
    }

Q_SIGNALS:
    void writeFailedChanged(bool writeFailed);

private:
    bool m_writeFailed = false;
};

// The persistent key-value store behind the settings and the daily break count.
// Values keep their kind: a bool reads back as a bool, a string as a string, data (QByteArray) as data,
// numbers as numbers. A missing key reads as an invalid QVariant. Main thread only. Writes report nothing to
// the writer; a store that writes to disk by itself publishes how its last write went in writeState().
class UserDefaultsStore {
public:
    virtual ~UserDefaultsStore() = default;

    [[nodiscard]] virtual QVariant read(const QString& key) const = 0;
    virtual void write(const QString& key, const QVariant& value) = 0;
    virtual void remove(const QString& key) = 0;
    // Makes the writes so far last beyond this process. False when they could not be kept: the values stay
    // readable here until the process ends, and the store has said why on standard error.
    virtual bool sync() { return true; }
    [[nodiscard]] const StoreWriteState& writeState() const { return m_writeState; }

protected:
    StoreWriteState m_writeState;
};

} // namespace velto
