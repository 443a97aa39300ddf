#pragma once

#include <QDeadlineTimer>
#include <QProcess>

#include <memory>

// Starts a test window program (the X11 or the Wayland one) in that environment and waits for the line it prints
// once its window is up; null when it does not start or say so in time, and then it is gone.
inline std::unique_ptr<QProcess> startTestWindow(const QString& program, const QStringList& arguments,
                                                 const QProcessEnvironment& environment, QByteArray* line)
{
    auto process = std::make_unique<QProcess>();
    process->setProcessEnvironment(environment);
    process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process->start(program, arguments);
    if (!process->waitForStarted(3000))
        return nullptr;
    const QDeadlineTimer deadline(5000);
    while (!process->canReadLine() && process->state() == QProcess::Running && !deadline.hasExpired())
        process->waitForReadyRead(100);
    if (!process->canReadLine()) {
        process->kill();
        process->waitForFinished();
        return nullptr;
    }
    *line = process->readLine().trimmed();
    return process;
}

// A test window closes when its standard input does.
inline void closeTestWindow(QProcess& window)
{
    window.closeWriteChannel();
    if (!window.waitForFinished(2000))
        window.kill();
    window.waitForFinished();
}
