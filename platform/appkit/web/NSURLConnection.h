#pragma once

#include "platform/appkit/Export.h"
#include "platform/appkit/web/NSURLRequest.h"
#include "platform/foundation/NSError.h"

#include <QString>
#include <memory>

class NSURLConnection;

/// What a web server has answered.
class NSHTTPURLResponse
{
public:
    explicit NSHTTPURLResponse(int statusCode = 0) : statusCode_(statusCode) { }
    int statusCode() const { return statusCode_; }

private:
    int statusCode_;
};

/// Whose codes the errors of connections have, and the codes.
inline const QString NSURLErrorDomain = QStringLiteral("NSURLErrorDomain");
enum NSURLErrorCode {
    NSURLErrorUnknown = -1,
    NSURLErrorTimedOut = -1001,
    NSURLErrorUnsupportedURL = -1002,
    NSURLErrorCannotFindHost = -1003,
    NSURLErrorCannotConnectToHost = -1004,
    NSURLErrorNetworkConnectionLost = -1005,
    NSURLErrorHTTPTooManyRedirects = -1007,
    NSURLErrorSecureConnectionFailed = -1200
};

/// Who is told what came of a connection: one of these, once. It may destroy the connection meanwhile.
class NSURLConnectionDelegate
{
public:
    virtual ~NSURLConnectionDelegate() = default;
    virtual void connectionDidFinishLoading(NSURLConnection *connection) = 0;
    virtual void connectionDidFailWithError(NSURLConnection *connection, const NSError &error) = 0;
};

/// Sends requests to web servers: through the system's proxy, with redirections followed, 20 at most and none from
/// https to http. A certificate that is not in order is no answer.
class LM_APPKIT NSURLConnection
{
public:
    /// Sends a request and tells the delegate of its end, in this thread's event loop; destroying the connection ends
    /// it without a word.
    ///
    /// Any status is an answer, of which nothing else is told; the redirections 301 to 303 are followed by a GET. No
    /// more than 1 MiB of a body is received. What nothing happens with for the request's time fails. A server that
    /// hangs up without a word may be sent the same once more. The log has the cause of a failure in the toolkit's
    /// words.
    static std::unique_ptr<NSURLConnection> connectionWithRequestDelegate(
        const NSMutableURLRequest &request, NSURLConnectionDelegate *delegate);
    ~NSURLConnection();
    NSURLConnection(const NSURLConnection &) = delete;
    NSURLConnection &operator=(const NSURLConnection &) = delete;

    /// Sends a request with the method "HEAD", the only one there is, and waits for its answer. The event loop does not
    /// run meanwhile: nothing else happens in the calling thread.
    ///
    /// The answer is the last redirection's. A half answer or none within the request's time are no answer. Returns
    /// whether there was one, and stores it; otherwise stores the cause, one phrase in English. Both places may be
    /// null.
    static bool sendSynchronousRequestReturningResponseError(
        const NSMutableURLRequest &request, NSHTTPURLResponse *response, QString *error);

private:
    NSURLConnection();
    class Private;
    std::unique_ptr<Private> d;
};
