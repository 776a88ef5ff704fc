#include "updater/core/DownloadAddress.h"

#include <QHostAddress>

namespace {

bool isThisMachine(const QString &host)
{
    return host == u"localhost" || QHostAddress(host).isLoopback();
}

} // namespace

bool isAllowedFeedAddress(const QUrl &address)
{
    const bool isComplete = address.isValid() && !address.host().isEmpty() && address.userInfo().isEmpty();
    return isComplete
        && (address.scheme() == u"https" || (address.scheme() == u"http" && isThisMachine(address.host())));
}

bool isAllowedAddress(const QUrl &address, const QUrl &feed)
{
    const bool isFromPlainToSafe = feed.scheme() == u"http" && address.scheme() == u"https";
    return isAllowedFeedAddress(address) && address.host() == feed.host()
        && (address.scheme() == feed.scheme() || isFromPlainToSafe);
}
