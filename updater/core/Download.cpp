#include "updater/core/Download.h"

#include "updater/core/DownloadAddress.h"

#include <QCoreApplication>
#include <QNetworkAccessManager>
#include <QNetworkRequest>

namespace {

constexpr int mostRedirections = 5;
constexpr qint64 readBuffer = qint64(256) * 1024;

QNetworkRequest networkRequest(const QUrl &address)
{
    QNetworkRequest request(address);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::UserVerifiedRedirectPolicy);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
    request.setMaximumRedirectsAllowed(mostRedirections);
    // Asked for by ourselves, a coding would not be undone by the network: what counts are the bytes that were signed.
    request.setRawHeader("Accept-Encoding", "identity");
    request.setHeader(QNetworkRequest::UserAgentHeader, QStringLiteral("Lumaroo"));
    return request;
}

} // namespace

Download::Download(const DownloadRequest &request, Sink sink) : request_(request), sink_(std::move(sink))
{
    silence_.setSingleShot(true);
    silence_.callOnTimeout(this, [this] { end(QStringLiteral("the server says nothing any more")); });
    time_.setSingleShot(true);
    time_.callOnTimeout(this, [this] { end(QStringLiteral("it takes too long")); });
}

Download::~Download()
{
    cancel();
}

void Download::start()
{
    QTimer::singleShot(0, this, &Download::request);
}

void Download::cancel()
{
    silence_.stop();
    time_.stop();
    if (!reply_)
        return;
    reply_->disconnect(this);
    reply_->abort();
    reply_->deleteLater();
    reply_ = nullptr;
}

void Download::request()
{
    if (!isAllowedAddress(request_.address, request_.feed)) {
        end(QStringLiteral("%1 is no address to fetch updates from").arg(request_.address.toDisplayString()));
        return;
    }
    network_ = std::make_unique<QNetworkAccessManager>();
    reply_ = network_->get(networkRequest(request_.address));
    reply_->setReadBufferSize(readBuffer);
    connect(reply_, &QNetworkReply::redirected, this, &Download::takeRedirection);
    connect(reply_, &QNetworkReply::metaDataChanged, this, &Download::takeHeaders);
    connect(reply_, &QNetworkReply::readyRead, this, &Download::takePart);
    connect(reply_, &QNetworkReply::finished, this, &Download::takeEnd);
    silence_.start(request_.longestSilence);
    time_.start(request_.longestTime);
}

void Download::takeRedirection(const QUrl &address)
{
    const QUrl target = reply_->url().resolved(address);
    if (isAllowedAddress(target, request_.feed))
        Q_EMIT reply_->redirectAllowed();
    else
        end(QStringLiteral("the server redirects to %1").arg(target.toDisplayString()));
}

void Download::takeHeaders()
{
    const QVariant length = reply_->header(QNetworkRequest::ContentLengthHeader);
    const bool isPlainAnswer = reply_->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt() == 200;
    if (isPlainAnswer && length.isValid() && length.toLongLong() > request_.largestSize)
        end(QStringLiteral("it would be larger than %1 bytes").arg(request_.largestSize));
}

void Download::takePart()
{
    silence_.start(request_.longestSilence);
    if (reply_->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt() != 200)
        return;
    const QByteArray part = reply_->readAll();
    received_ += part.size();
    if (received_ > request_.largestSize) {
        end(QStringLiteral("it is larger than %1 bytes").arg(request_.largestSize));
        return;
    }
    const QString problem = sink_(part);
    if (!problem.isEmpty()) {
        end(problem);
        return;
    }
    Q_EMIT progressed(received_, request_.exactSize);
}

void Download::takeEnd()
{
    if (reply_->error() == QNetworkReply::NoError && reply_->bytesAvailable() > 0)
        takePart();
    if (reply_)
        end(problemOfAnswer());
}

QString Download::problemOfAnswer() const
{
    const int status = reply_->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (reply_->error() != QNetworkReply::NoError)
        return reply_->errorString();
    if (status != 200)
        return QStringLiteral("the server answers %1").arg(status);
    const QVariant announced = reply_->header(QNetworkRequest::ContentLengthHeader);
    const qint64 exactSize = request_.exactSize >= 0 ? request_.exactSize
        : announced.isValid()                        ? announced.toLongLong()
                                                     : received_;
    if (received_ == exactSize)
        return {};
    return QStringLiteral("it has %1 bytes instead of %2").arg(received_).arg(exactSize);
}

void Download::end(const QString &problem)
{
    cancel();
    Q_EMIT finished(problem);
}
