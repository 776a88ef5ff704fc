#include "WebServer.h"

#include <QFile>
#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

constexpr int longestWait = 60000;

QString program()
{
    return qEnvironmentVariable("LUMAROO_SOURCE") + QStringLiteral("/tests/support/web-server");
}

} // namespace

WebServer::WebServer(const std::optional<ServerCertificate> &certificate, const QString &folder)
    : scheme_(certificate ? QStringLiteral("https") : QStringLiteral("http"))
{
    QStringList arguments{record_.filePath(QStringLiteral("requests"))};
    if (!folder.isEmpty())
        arguments += {QStringLiteral("--folder"), folder};
    if (certificate)
        arguments +=
            {QStringLiteral("--certificate"), certificate->certificate, QStringLiteral("--key"), certificate->key};
    process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process_.start(program(), arguments);
    while (!process_.canReadLine() && process_.waitForReadyRead(longestWait)) { }
    port_ = process_.readLine().trimmed().toInt();
    if (port_ == 0)
        qFatal("the web server does not start: %s", qPrintable(process_.errorString()));
}

WebServer::~WebServer()
{
    process_.closeWriteChannel();
    process_.waitForFinished(longestWait);
}

QUrl WebServer::url(const QString &path) const
{
    return QUrl(QStringLiteral("%1://127.0.0.1:%2%3").arg(scheme_).arg(port_).arg(path));
}

QUrl WebServer::redirection(int status, const QUrl &to) const
{
    const QByteArray place = QUrl::toPercentEncoding(QString::fromLatin1(to.toEncoded()));
    return url(QStringLiteral("/%1?to=").arg(status) + QString::fromLatin1(place));
}

QStringList WebServer::requests() const
{
    QFile record(record_.filePath(QStringLiteral("requests")));
    // Nothing asked, no file.
    return record.open(QIODevice::ReadOnly) ? QString::fromUtf8(record.readAll()).split(u'\n', Qt::SkipEmptyParts)
                                            : QStringList();
}

QUrl addressWithoutServer()
{
    // Bound, so that nobody else gets it meanwhile, and never listened at; it stays so until this process ends.
    static const int socket = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    [[maybe_unused]] static const int bound =
        ::bind(socket, reinterpret_cast<const sockaddr *>(&address), sizeof address);
    socklen_t length = sizeof address;
    ::getsockname(socket, reinterpret_cast<sockaddr *>(&address), &length);
    return QUrl(QStringLiteral("http://127.0.0.1:%1/").arg(ntohs(address.sin_port)));
}
