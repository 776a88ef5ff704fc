#include "platform/appkit/web/NSURLRequest.h"
#include "platform/appkit/web/internal/NetworkLibrary.h"
#include "platform/appkit/web/internal/network/Redirections.h"

#include <QDeadlineTimer>
#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTimer>
#include <memory>

namespace {

/// One request with its redirections. It has a manager of its own: it knows no cookie, connection or password of an
/// earlier one.
class HeadRequest
{
public:
    explicit HeadRequest(double seconds) : deadline_(qint64(seconds * 1000)) { }
    NetworkAnswer answerTo(QUrl address);

private:
    std::unique_ptr<QNetworkReply> ask(const QUrl &address);

    QNetworkAccessManager manager_;
    QDeadlineTimer deadline_;
};

std::unique_ptr<QNetworkReply> HeadRequest::ask(const QUrl &address)
{
    QNetworkRequest request(address);
    // Where it follows by itself, the toolkit now and then asks the same twice.
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    std::unique_ptr<QNetworkReply> reply(manager_.head(request));
    QEventLoop loop;
    QObject::connect(reply.get(), &QNetworkReply::finished, &loop, &QEventLoop::quit);
    QTimer::singleShot(deadline_.remainingTime(), reply.get(), &QNetworkReply::abort);
    if (!reply->isFinished())
        loop.exec();
    return reply;
}

NetworkAnswer HeadRequest::answerTo(QUrl address)
{
    for (int asked = 0; asked <= mostRedirections; ++asked) {
        const std::unique_ptr<QNetworkReply> reply = ask(address);
        const QUrl next = redirectionOf(*reply);
        // An error that a server tells is an answer, too.
        if (next.isEmpty())
            return {reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt(), reply->errorString(), 0};
        address = next;
    }
    return {0, QStringLiteral("more than %1 redirections").arg(mostRedirections), 0};
}

} // namespace

extern "C" Q_DECL_EXPORT void lumarooNetworkAnswer(const NSMutableURLRequest *request, NetworkAnswer *answer)
{
    *answer = HeadRequest(request->timeoutInterval()).answerTo(request->url());
}
