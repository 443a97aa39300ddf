// velto-fetch URL MAX-BYTES TIMEOUT-MS USER-AGENT: fetches one small document for Velto and writes it to
// standard output; how it ended is its exit code (FetchExitCodes.h). Velto runs it so that the network stack
// is never loaded into the process that runs all day.
#include "FeedAddress.h"
#include "FetchExitCodes.h"

#include <QCoreApplication>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTimer>

#include <cstdio>

using namespace velto;

namespace {

void say(const QString& text)
{
    std::fputs(text.toLocal8Bit().constData(), stderr);
    std::fputc('\n', stderr);
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    bool sizeOk = false;
    bool timeoutOk = false;
    const QUrl url(arguments.value(1), QUrl::StrictMode);
    const qint64 maxBytes = arguments.value(2).toLongLong(&sizeOk);
    const int timeout = arguments.value(3).toInt(&timeoutOk);
    if (arguments.size() != 5 || !sizeOk || maxBytes < 0 || !timeoutOk || timeout <= 0) {
        say(QStringLiteral("usage: velto-fetch URL MAX-BYTES TIMEOUT-MS USER-AGENT"));
        return fetch::Usage;
    }
    if (!isAllowedFeedUrl(url))
        return fetch::Insecure;

    QNetworkAccessManager network;
    QNetworkRequest request(url);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::UserVerifiedRedirectPolicy);
    request.setMaximumRedirectsAllowed(5);
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    request.setHeader(QNetworkRequest::UserAgentHeader, arguments.value(4));
    QNetworkReply* reply = network.get(request);

    int exitCode = fetch::Fetched;
    QByteArray body;
    const auto stop = [&](int code) {
        exitCode = code;
        reply->abort();
    };
    QObject::connect(reply, &QNetworkReply::redirected, reply, [&](const QUrl& target) {
        if (isAllowedFeedUrl(target))
            Q_EMIT reply->redirectAllowed();
        else
            stop(fetch::Insecure);
    });
    QObject::connect(reply, &QNetworkReply::metaDataChanged, reply, [&] {
        const QVariant length = reply->header(QNetworkRequest::ContentLengthHeader);
        if (length.isValid() && length.toLongLong() > maxBytes)
            stop(fetch::TooLarge);
    });
    QObject::connect(reply, &QNetworkReply::readyRead, reply, [&] {
        body += reply->readAll();
        if (body.size() > maxBytes)
            stop(fetch::TooLarge);
    });
    QObject::connect(reply, &QNetworkReply::finished, &application, [&] {
        if (exitCode != fetch::Fetched) {
            QCoreApplication::exit(exitCode);
            return;
        }
        body += reply->readAll();
        const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
        if (body.size() > maxBytes) {
            QCoreApplication::exit(fetch::TooLarge);
        } else if (reply->error() != QNetworkReply::NoError) {
            say(reply->errorString());
            QCoreApplication::exit(fetch::Unreachable);
        } else if (status < 200 || status > 299) {
            say(QString::number(status));
            QCoreApplication::exit(fetch::HttpStatus);
        } else {
            std::fwrite(body.constData(), 1, size_t(body.size()), stdout);
            QCoreApplication::exit(std::fflush(stdout) == 0 ? fetch::Fetched : fetch::Unreachable);
        }
    });
    // Velto ends the helper when its time is up and reports the time-out itself; this is for a helper whose Velto
    // has gone, so that it never lingers.
    QTimer::singleShot(std::chrono::milliseconds(timeout) * 2, &application,
                       [] { QCoreApplication::exit(fetch::Unreachable); });
    return QCoreApplication::exec();
}
