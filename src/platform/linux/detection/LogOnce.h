#pragma once

#include <QLoggingCategory>
#include <QMutex>
#include <QMutexLocker>
#include <QSet>
#include <QString>

namespace velto {

Q_DECLARE_LOGGING_CATEGORY(lcSystemProbes)

// Platform queries repeat every pass; a failure that repeats must not flood the log, so each kind of failure
// is written once for the life of the owner. Safe from any thread.
class LogOnce final {
public:
    // Writes the message under the given kind unless that kind was written before; returns whether it wrote.
    bool warn(const QString& kind, const QString& message) const
    {
        {
            QMutexLocker lock(&m_mutex);
            if (m_reported.contains(kind))
                return false;
            m_reported.insert(kind);
        }
        qCWarning(lcSystemProbes).noquote() << message;
        return true;
    }

    [[nodiscard]] bool hasReported(const QString& kind) const
    {
        QMutexLocker lock(&m_mutex);
        return m_reported.contains(kind);
    }

private:
    mutable QMutex m_mutex;
    mutable QSet<QString> m_reported;
};

} // namespace velto
