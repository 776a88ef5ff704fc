#include "platform/appkit/web/internal/network/Redirections.h"

#include "platform/appkit/web/internal/WebAddress.h"

#include <QNetworkReply>

namespace {

bool mayLeadTo(const QUrl &from, const QUrl &to)
{
    const bool wasSecure = from.scheme() == QLatin1StringView("https");
    return isWebAddress(to) && (!wasSecure || to.scheme() == from.scheme());
}

} // namespace

QUrl redirectionOf(const QNetworkReply &reply)
{
    const QUrl target = reply.attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl();
    const QUrl next = reply.url().resolved(target);
    return target.isEmpty() || !mayLeadTo(reply.url(), next) ? QUrl() : next;
}
