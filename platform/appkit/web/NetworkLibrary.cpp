#include "platform/appkit/LibraryBeside.h"
#include "platform/appkit/web/internal/NetworkAnswer.h"

NetworkAnswer networkAnswer(const NSMutableURLRequest &request)
{
    static const LoadedFunction loaded = functionOfLibraryBeside(LUMAROO_NETWORK_LIBRARY, networkLibraryFunction);
    if (!loaded.address)
        return {0, loaded.error};
    NetworkAnswer answer;
    reinterpret_cast<NetworkLibraryFunction>(loaded.address)(&request, &answer);
    return answer;
}
