#include "platform/appkit/web/NSURLConnection.h"

#include "platform/appkit/web/internal/NetworkLibrary.h"
#include "platform/appkit/web/internal/URLErrors.h"
#include "platform/foundation/Boundary.h"
#include "platform/foundation/system/NSLog.h"

#include <QSemaphore>
#include <QThread>
#include <QTimer>

namespace {

/// Shared by the two threads: the asking one may go on before the other is through.
struct Exchange
{
    NetworkAnswer answer;
    QSemaphore isThere;
};

NetworkAnswer answerFromAnotherThread(const NSMutableURLRequest &request)
{
    const auto exchange = std::make_shared<Exchange>();
    QThread *thread = QThread::create([exchange, request] {
        exchange->answer = networkAnswer(request);
        exchange->isThere.release();
    });
    QObject::connect(thread, &QThread::finished, thread, &QObject::deleteLater);
    thread->start();
    if (exchange->isThere.tryAcquire(1, int(request.timeoutInterval() * 1000)))
        return exchange->answer;
    return {0, QStringLiteral("no answer within %1 s").arg(request.timeoutInterval()), NSURLErrorTimedOut};
}

} // namespace

class NSURLConnection::Private : public QObject
{
public:
    void start(const NSMutableURLRequest &request);
    void tell(const NetworkAnswer &answer);

    NSURLConnection *connection = nullptr;
    NSURLConnectionDelegate *delegate = nullptr;
    QString address;
    std::unique_ptr<QObject> transfer;
};

void NSURLConnection::Private::start(const NSMutableURLRequest &request)
{
    address = request.url().toDisplayString();
    QString error;
    transfer = networkTransfer(
        request, [this](const NetworkAnswer &answer) { tell(answer); }, &error);
    // Whoever asks has not got the connection yet.
    if (!transfer)
        QTimer::singleShot(0, this, [this, error] { tell({0, error, NSURLErrorUnknown}); });
}

void NSURLConnection::Private::tell(const NetworkAnswer &answer)
{
    if (answer.statusCode != 0) {
        runAtBoundary("connectionDidFinishLoading:", [this] { delegate->connectionDidFinishLoading(connection); });
        return;
    }
    NSLog(QStringLiteral("lumaroo: %1: %2").arg(address, answer.error));
    const NSError error = urlError(answer.errorCode);
    runAtBoundary("connection:didFailWithError:", [&] { delegate->connectionDidFailWithError(connection, error); });
}

NSURLConnection::NSURLConnection() : d(std::make_unique<Private>()) { }

NSURLConnection::~NSURLConnection() = default;

std::unique_ptr<NSURLConnection> NSURLConnection::connectionWithRequestDelegate(
    const NSMutableURLRequest &request, NSURLConnectionDelegate *delegate)
{
    std::unique_ptr<NSURLConnection> connection(new NSURLConnection);
    connection->d->connection = connection.get();
    connection->d->delegate = delegate;
    connection->d->start(request);
    return connection;
}

bool NSURLConnection::sendSynchronousRequestReturningResponseError(
    const NSMutableURLRequest &request, NSHTTPURLResponse *response, QString *error)
{
    NetworkAnswer answer{0, QStringLiteral("no method %1 here").arg(QLatin1StringView(request.httpMethod())), 0};
    if (request.httpMethod() == "HEAD")
        answer = answerFromAnotherThread(request);
    const bool hasCome = answer.statusCode != 0;
    if (hasCome && response)
        *response = NSHTTPURLResponse(answer.statusCode);
    if (!hasCome && error)
        *error = answer.error;
    return hasCome;
}
