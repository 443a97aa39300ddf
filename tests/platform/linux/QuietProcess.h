#pragma once

// Servers and clients the media tests start: quiet, in an environment of their own, and stopped however
// they end up.
#include <QDeadlineTimer>
#include <QFile>
#include <QProcess>
#include <QTest>

#include <memory>

inline std::unique_ptr<QProcess> startQuietly(const QString& program, const QStringList& arguments,
                                              const QProcessEnvironment& environment)
{
    auto process = std::make_unique<QProcess>();
    process->setProcessEnvironment(environment);
    process->setStandardOutputFile(QProcess::nullDevice());
    process->setStandardErrorFile(QProcess::nullDevice());
    process->start(program, arguments);
    return process->waitForStarted(3000) ? std::move(process) : nullptr;
}

// Until the server has made its socket, or has died.
inline bool waitForSocket(const QString& path, const QProcess& server)
{
    const QDeadlineTimer deadline(10000);
    while (!QFile::exists(path) && !deadline.hasExpired() && server.state() == QProcess::Running)
        QTest::qWait(20);
    return QFile::exists(path);
}

inline void stopProcess(QProcess& process)
{
    process.terminate();
    if (!process.waitForFinished(3000))
        process.kill();
    process.waitForFinished();
}
