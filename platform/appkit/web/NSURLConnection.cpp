#include "platform/appkit/web/NSURLConnection.h"

#include "platform/appkit/web/internal/NetworkAnswer.h"

#include <QSemaphore>
#include <QThread>
#include <memory>

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
    return {0, QStringLiteral("no answer within %1 s").arg(request.timeoutInterval())};
}

} // namespace

bool NSURLConnection::sendSynchronousRequestReturningResponseError(
    const NSMutableURLRequest &request, NSHTTPURLResponse *response, QString *error)
{
    NetworkAnswer answer{0, QStringLiteral("no method %1 here").arg(QLatin1StringView(request.httpMethod()))};
    if (request.httpMethod() == "HEAD")
        answer = answerFromAnotherThread(request);
    const bool hasCome = answer.statusCode != 0;
    if (hasCome && response)
        *response = NSHTTPURLResponse(answer.statusCode);
    if (!hasCome && error)
        *error = answer.error;
    return hasCome;
}
