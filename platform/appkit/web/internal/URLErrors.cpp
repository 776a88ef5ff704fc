#include "platform/appkit/web/internal/URLErrors.h"

#include "platform/appkit/web/NSURLConnection.h"
#include "platform/foundation/bundles/NSBundle.h"

#include <QHash>

NSError urlError(int code)
{
    static const QHash<int, QString> descriptions{
        {NSURLErrorTimedOut, QStringLiteral("The server does not answer. Please try again later.")},
        {NSURLErrorUnsupportedURL, QStringLiteral("The address of the server cannot be used.")},
        {NSURLErrorCannotFindHost,
            QStringLiteral("The server cannot be found. Please make sure you are connected to the Internet.")},
        {NSURLErrorCannotConnectToHost, QStringLiteral("The server takes no connection. Please try again later.")},
        {NSURLErrorNetworkConnectionLost, QStringLiteral("The connection to the server was lost. Please try again.")},
        {NSURLErrorHTTPTooManyRedirects,
            QStringLiteral("The server leads from one address to the next without end. Please try again later.")},
        {NSURLErrorSecureConnectionFailed,
            QStringLiteral("No secure connection to the server could be made, so nothing was sent.")},
    };
    const QString unknown = QStringLiteral("The network does not work as it should. Please try again later.");
    const QString description = descriptions.value(code, unknown);
    return {NSURLErrorDomain, code, NSBundle::mainBundle()->localizedStringForKeyValueTable(description)};
}
