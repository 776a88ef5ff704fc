#pragma once

#include <QList>
#include <QUrl>
#include <QtNetwork/QTcpServer>
#include <QtNetwork/QTcpSocket>

/// A server on loopback, in the test's own event loop, that keeps every byte of each request and answers with bytes
/// that the test chooses. Tests that use it link Qt6::Network.
class ReportServer
{
public:
    static inline const QByteArray ok = QByteArrayLiteral("HTTP/1.1 200 OK\r\nContent-Length: 0\r\n\r\n");
    /// Says nothing, and leaves the connection open.
    static inline const QByteArray silence;

    /// Ends the connection without a word.
    static inline const QByteArray hangUp = QByteArrayLiteral("hang up");

    /// `answers` go to one request each, the last one to all that follow; the connection ends with each.
    explicit ReportServer(const QList<QByteArray> &answers = {ok}) : answers_(answers)
    {
        if (!server_.listen(QHostAddress::LocalHost))
            qFatal("no server: %s", qPrintable(server_.errorString()));
        QObject::connect(
            &server_, &QTcpServer::newConnection, &server_, [this] { take(server_.nextPendingConnection()); });
    }

    QUrl url(const QString &path = QStringLiteral("/report")) const
    {
        return QUrl(QStringLiteral("http://127.0.0.1:%1%2").arg(server_.serverPort()).arg(path));
    }
    static QByteArray status(int code, const QByteArray &fields = {})
    {
        return "HTTP/1.1 " + QByteArray::number(code) + " Status\r\nContent-Length: 0\r\n" + fields + "\r\n";
    }
    static QByteArray redirection(int code, const QUrl &to)
    {
        return status(code, "Location: " + to.toEncoded() + "\r\n");
    }

    /// Leaves each connection open after its answer.
    bool keepsConnections = false;
    /// The requests that have come whole, byte for byte.
    QList<QByteArray> requests;
    /// The connections whose other end has gone.
    int connectionsGone = 0;

private:
    void take(QTcpSocket *socket)
    {
        QObject::connect(socket, &QTcpSocket::disconnected, &server_, [this] { ++connectionsGone; });
        QObject::connect(socket, &QTcpSocket::readyRead, &server_, [this, socket] {
            const QByteArray request = socket->property("request").toByteArray() + socket->readAll();
            socket->setProperty("request", request);
            if (isWhole(request))
                answer(socket, request);
        });
    }
    static bool isWhole(const QByteArray &request)
    {
        const qsizetype end = request.indexOf("\r\n\r\n");
        const qsizetype length = request.indexOf("Content-Length: ");
        const qsizetype number =
            length < 0 ? 0 : request.mid(length + 16, request.indexOf("\r\n", length) - length - 16).toLongLong();
        return end >= 0 && request.size() >= end + 4 + number;
    }
    void answer(QTcpSocket *socket, const QByteArray &request)
    {
        const QByteArray answer = answers_.at(qMin(requests.size(), answers_.size() - 1));
        requests += request;
        if (answer.isEmpty())
            return;
        if (answer != hangUp)
            socket->write(answer);
        if (!keepsConnections)
            socket->disconnectFromHost();
    }

    QList<QByteArray> answers_;
    QTcpServer server_;
};
