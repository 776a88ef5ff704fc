#include "platform/appkit/web/internal/NetworkLibrary.h"

#include "platform/appkit/web/NSURLConnectionAvailability.h"
#include "platform/foundation/system/LibraryBeside.h"

NetworkAnswer networkAnswer(const NSMutableURLRequest &request)
{
    static const LoadedFunction loaded = functionOfLibraryBeside(LUMAROO_NETWORK_LIBRARY, networkAnswerFunction);
    if (!loaded.address)
        return {0, loaded.error, 0};
    NetworkAnswer answer;
    reinterpret_cast<NetworkAnswerFunction>(loaded.address)(&request, &answer);
    return answer;
}

std::unique_ptr<QObject> networkTransfer(
    const NSMutableURLRequest &request, const NetworkTransferEnd &end, QString *error)
{
    static const LoadedFunction loaded = functionOfLibraryBeside(LUMAROO_NETWORK_LIBRARY, networkTransferFunction);
    *error = loaded.error;
    if (!loaded.address)
        return nullptr;
    return std::unique_ptr<QObject>(reinterpret_cast<NetworkTransferFunction>(loaded.address)(&request, &end));
}

bool webRequestsCanBeSent()
{
    return isLibraryBeside(LUMAROO_NETWORK_LIBRARY);
}
