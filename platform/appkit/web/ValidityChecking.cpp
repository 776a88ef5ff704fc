#include "platform/appkit/web/ValidityChecking.h"

#include "platform/appkit/web/NSURLConnection.h"
#include "platform/appkit/web/internal/WebAddress.h"

namespace {

constexpr int statusOK = 200;

} // namespace

bool httpIsValid(const QUrl &address)
{
    if (!isWebAddress(address))
        return false;
    NSMutableURLRequest request = NSMutableURLRequest::requestWithURL(address);
    request.setHTTPMethod("HEAD");
    NSHTTPURLResponse response;
    return NSURLConnection::sendSynchronousRequestReturningResponseError(request, &response, nullptr)
        && response.statusCode() == statusOK;
}
