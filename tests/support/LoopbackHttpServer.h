#pragma once

#include <QHash>
#include <QHostAddress>
#include <QTcpServer>
#include <QTcpSocket>
#include <QUrl>

// A tiny HTTP/1.1 server on 127.0.0.1 for update-feed tests. Each path answers with a scripted status and body;
// a path can also be told never to answer. Unknown paths get 404. Counts the requests it receives.
class LoopbackHttpServer final : public QObject {
public:
    struct Response {
        Response(int status_ = 200, QByteArray body_ = {}, bool hang_ = false, QByteArray location_ = {})
            : status(status_)
            , body(std::move(body_))
            , hang(hang_)
            , location(std::move(location_))
        {}

        int status = 200;
        QByteArray body;
        bool hang = false;   // accept the request and never answer
        QByteArray location; // for redirects
    };

    LoopbackHttpServer()
    {
        connect(&m_server, &QTcpServer::newConnection, this, [this] {
            while (QTcpSocket* socket = m_server.nextPendingConnection()) {
                socket->setParent(this);
                connect(socket, &QTcpSocket::readyRead, this, [this, socket] { onReadyRead(socket); });
            }
        });
    }

    bool listen() { return m_server.listen(QHostAddress::LocalHost, 0); }
    [[nodiscard]] QUrl url(const QString& path) const
    {
        QUrl url;
        url.setScheme(QStringLiteral("http"));
        url.setHost(QStringLiteral("127.0.0.1"));
        url.setPort(m_server.serverPort());
        url.setPath(path);
        return url;
    }
    void route(const QString& path, Response response) { m_routes.insert(path, std::move(response)); }

    int requestCount = 0;

private:
    void onReadyRead(QTcpSocket* socket)
    {
        QByteArray& buffer = m_buffers[socket];
        buffer += socket->readAll();
        if (!buffer.contains("\r\n\r\n"))
            return;
        const QList<QByteArray> requestLine = buffer.left(buffer.indexOf("\r\n")).split(' ');
        buffer.clear();
        ++requestCount;
        const QString path = requestLine.size() > 1 ? QString::fromLatin1(requestLine.at(1)) : QString();
        const Response response = m_routes.value(path, Response{404, QByteArrayLiteral("not found")});
        if (response.hang)
            return;
        QByteArray reply = "HTTP/1.1 " + QByteArray::number(response.status) + " Status\r\n" +
                           "Content-Type: application/xml\r\nConnection: close\r\n";
        if (!response.location.isEmpty())
            reply += "Location: " + response.location + "\r\n";
        reply += "Content-Length: " + QByteArray::number(response.body.size()) + "\r\n\r\n" + response.body;
        socket->write(reply);
        socket->disconnectFromHost();
    }

    QTcpServer m_server;
    QHash<QString, Response> m_routes;
    QHash<QTcpSocket*, QByteArray> m_buffers;
};
