#include "SmallDownload.h"

#include "FetchExitCodes.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

namespace velto {

SmallDownload::SmallDownload(QString program, QObject* parent)
    : QObject(parent)
    , m_program(program.isEmpty() ? installedProgram() : std::move(program))
{}

SmallDownload::~SmallDownload()
{
    abort();
}

QString SmallDownload::installedProgram()
{
    return QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral(VELTO_FETCH_PROGRAM_FROM_BINDIR));
}

void SmallDownload::start(const Request& request)
{
    abort();
    m_maxBytes = request.maxBytes;
    m_timedOut = false;
    auto* process = new QProcess(this);
    m_process = process;
    // Its words on standard error are read, not passed on.
    process->setProcessChannelMode(QProcess::SeparateChannels);
    connect(process, &QProcess::finished, this, [this, process] { onFinished(process); });
    connect(process, &QProcess::errorOccurred, this, [this, process](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            onFinished(process);
    });
    // More than the limit is never kept: the program stops at it, this side too.
    connect(process, &QProcess::readyReadStandardOutput, this, [this, process] {
        if (process->bytesAvailable() > m_maxBytes + 1)
            process->kill();
    });
    auto* timer = new QTimer(process);
    timer->setSingleShot(true);
    connect(timer, &QTimer::timeout, process, [this, process] {
        m_timedOut = true;
        process->kill();
    });
    timer->start(request.timeout);
    process->start(m_program, {request.url.toString(QUrl::FullyEncoded), QString::number(request.maxBytes),
                               QString::number(request.timeout.count()), request.userAgent});
}

void SmallDownload::abort()
{
    QProcess* process = m_process;
    m_process = nullptr;
    if (!process)
        return;
    process->disconnect(this);
    process->kill();
    process->waitForFinished(1000);
    process->deleteLater();
}

void SmallDownload::onFinished(QProcess* process)
{
    if (process != m_process)
        return;
    m_process = nullptr;
    process->disconnect(this);
    process->deleteLater();

    Result result;
    const QString said = QString::fromUtf8(process->readAllStandardError()).trimmed();
    if (m_timedOut) {
        result.outcome = Outcome::TimedOut;
    } else if (process->error() == QProcess::FailedToStart) {
        result.failureText = tr("Velto's download helper could not be started (%1).").arg(m_program);
    } else if (process->exitStatus() != QProcess::NormalExit) {
        // Killed for sending more than the limit, or crashed.
        result.outcome = process->bytesAvailable() > m_maxBytes ? Outcome::TooLarge : Outcome::Unreachable;
        result.failureText = said;
    } else {
        switch (process->exitCode()) {
        case fetch::Fetched:
            result.body = process->read(m_maxBytes + 1);
            result.outcome = result.body.size() > m_maxBytes ? Outcome::TooLarge : Outcome::Fetched;
            if (result.outcome == Outcome::TooLarge)
                result.body.clear();
            break;
        case fetch::Insecure:
            result.outcome = Outcome::Insecure;
            break;
        case fetch::TooLarge:
            result.outcome = Outcome::TooLarge;
            break;
        case fetch::HttpStatus:
            result.httpStatus = said.toInt();
            break;
        default:
            result.failureText = said;
            break;
        }
    }
    Q_EMIT finished(result);
}

} // namespace velto
