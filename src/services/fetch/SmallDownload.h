#pragma once

#include <QByteArray>
#include <QObject>
#include <QPointer>
#include <QProcess>
#include <QString>
#include <QUrl>

#include <chrono>

namespace velto {

// One small document (the update feed, release notes) fetched over HTTP(S) by velto-fetch, a program of its own.
// Velto fetches a few kilobytes once a day; in its own process the network stack (Qt Network, TLS, proxy and
// Kerberos libraries, some megabytes) is loaded for that moment and gone after, instead of staying mapped in a
// process that runs all day. Redirects are followed only to addresses isAllowedFeedUrl() accepts. Main thread.
class SmallDownload final : public QObject {
    Q_OBJECT
public:
    struct Request {
        QUrl url;
        qint64 maxBytes = 1024 * 1024;
        std::chrono::milliseconds timeout = std::chrono::seconds(30);
        QString userAgent;
    };
    enum class Outcome {
        Fetched,
        Insecure, // redirected to an address that is not allowed
        TooLarge,
        Unreachable, // no answer, or an HTTP status other than 2xx
        TimedOut,
    };
    struct Result {
        Outcome outcome = Outcome::Unreachable;
        QByteArray body;
        int httpStatus = 0;  // the status of a server that answered with one other than 2xx, else 0
        QString failureText; // why an unreachable address was, as the network stack says it
    };

    // The program runs from `program`; empty: the one installed with this Velto.
    explicit SmallDownload(QString program = {}, QObject* parent = nullptr);
    ~SmallDownload() override;

    // The installed velto-fetch, found from this executable's folder.
    [[nodiscard]] static QString installedProgram();

    // Starts a fetch; one at a time, a running one is abandoned.
    void start(const Request& request);
    // Abandons the running fetch; finished() is not emitted for it.
    void abort();
    [[nodiscard]] bool isRunning() const { return m_process != nullptr; }

Q_SIGNALS:
    void finished(const velto::SmallDownload::Result& result);

private:
    void onFinished(QProcess* process);

    QString m_program;
    QPointer<QProcess> m_process;
    qint64 m_maxBytes = 0;
    bool m_timedOut = false;
};

} // namespace velto
