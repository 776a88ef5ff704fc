#include "platform/appkit/web/NSURLConnection.h"
#include "platform/appkit/web/internal/NetworkLibrary.h"
#include "platform/appkit/web/internal/WebAddress.h"
#include "platform/appkit/web/internal/network/Redirections.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTimer>

namespace {

constexpr qint64 mostOfABody = qint64(1024) * 1024;

NSURLErrorCode codeOf(QNetworkReply::NetworkError error)
{
    switch (error) {
    case QNetworkReply::HostNotFoundError:
        return NSURLErrorCannotFindHost;
    case QNetworkReply::ConnectionRefusedError:
        return NSURLErrorCannotConnectToHost;
    case QNetworkReply::RemoteHostClosedError:
        return NSURLErrorNetworkConnectionLost;
    case QNetworkReply::SslHandshakeFailedError:
        return NSURLErrorSecureConnectionFailed;
    case QNetworkReply::TimeoutError:
        return NSURLErrorTimedOut;
    default:
        return NSURLErrorUnknown;
    }
}

/// One request with its redirections. It has a manager of its own: it knows no cookie, connection or password of an
/// earlier one.
class Transfer : public QObject
{
public:
    Transfer(const NSMutableURLRequest &request, NetworkTransferEnd end);
    ~Transfer() override;

private:
    QNetworkRequest networkRequest() const;
    void send();
    void takeHead();
    void takePart();
    void takeAnswer();
    void follow(const QUrl &address, int status);
    void takeSilence();
    void finish(const NetworkAnswer &answer);
    void drop();
    int status() const { return reply_->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt(); }

    NSMutableURLRequest request_;
    QUrl address_;
    bool hasBody_;
    NetworkTransferEnd end_;
    QTimer silence_;
    QNetworkAccessManager manager_;
    QNetworkReply *reply_ = nullptr; // the manager's
    int redirections_ = 0;
    qint64 received_ = 0;
};

Transfer::Transfer(const NSMutableURLRequest &request, NetworkTransferEnd end)
    : request_(request), address_(request.url()), hasBody_(request.httpMethod() == "POST"), end_(std::move(end))
{
    silence_.setSingleShot(true);
    silence_.setInterval(int(request.timeoutInterval() * 1000));
    silence_.callOnTimeout(this, &Transfer::takeSilence);
    if (isWebAddress(address_))
        send();
    else
        finish({0, QStringLiteral("no web address"), NSURLErrorUnsupportedURL});
}

Transfer::~Transfer()
{
    drop();
}

QNetworkRequest Transfer::networkRequest() const
{
    QNetworkRequest request(address_);
    // Where it follows by itself, the toolkit now and then asks the same twice.
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
    const QMap<QByteArray, QByteArray> fields = request_.allHTTPHeaderFields();
    for (auto field = fields.cbegin(); field != fields.cend(); ++field) {
        // What tells of the body goes with it.
        if (hasBody_ || !field.key().startsWith("Content-"))
            request.setRawHeader(field.key(), field.value());
    }
    return request;
}

void Transfer::send()
{
    reply_ = hasBody_ ? manager_.post(networkRequest(), request_.httpBody()) : manager_.get(networkRequest());
    const auto goOn = [this] { silence_.start(); };
    connect(reply_, &QNetworkReply::uploadProgress, this, goOn);
    connect(reply_, &QNetworkReply::metaDataChanged, this, &Transfer::takeHead);
    connect(reply_, &QNetworkReply::encrypted, this, goOn);
    connect(reply_, &QNetworkReply::readyRead, this, &Transfer::takePart);
    connect(reply_, &QNetworkReply::finished, this, &Transfer::takeAnswer);
    silence_.start();
}

void Transfer::takeHead()
{
    silence_.start();
    // Where it leads is told: what more there is of it may be long, or never come.
    if (!redirectionOf(*reply_).isEmpty())
        takeAnswer();
}

void Transfer::takePart()
{
    silence_.start();
    received_ += reply_->readAll().size();
    // Nobody reads it: the answer is there.
    if (received_ > mostOfABody)
        finish({status(), {}, 0});
}

void Transfer::takeAnswer()
{
    const QUrl next = redirectionOf(*reply_);
    // An error that a server tells is an answer, too.
    if (next.isEmpty())
        finish({status(), reply_->errorString(), codeOf(reply_->error())});
    else if (++redirections_ > mostRedirections)
        finish({0, QStringLiteral("more than %1 redirections").arg(mostRedirections), NSURLErrorHTTPTooManyRedirects});
    else
        follow(next, status());
}

void Transfer::follow(const QUrl &address, int status)
{
    constexpr int temporaryRedirect = 307;
    drop();
    address_ = address;
    hasBody_ = hasBody_ && status >= temporaryRedirect;
    send();
}

void Transfer::takeSilence()
{
    finish({status(), QStringLiteral("nothing for %1 s").arg(request_.timeoutInterval()), NSURLErrorTimedOut});
}

void Transfer::finish(const NetworkAnswer &answer)
{
    drop();
    // Whoever is told may destroy this: nothing of it may be at work.
    QMetaObject::invokeMethod(
        this,
        [this, answer] {
            const NetworkTransferEnd end = end_;
            end(answer);
        },
        Qt::QueuedConnection);
}

void Transfer::drop()
{
    silence_.stop();
    if (!reply_)
        return;
    reply_->disconnect(this);
    reply_->abort();
    reply_->deleteLater();
    reply_ = nullptr;
}

} // namespace

extern "C" Q_DECL_EXPORT QObject *lumarooNetworkTransfer(
    const NSMutableURLRequest *request, const NetworkTransferEnd *end)
{
    return new Transfer(*request, *end);
}
