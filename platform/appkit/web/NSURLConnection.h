#pragma once

#include "platform/appkit/Export.h"
#include "platform/appkit/web/NSURLRequest.h"

#include <QString>

/// What a web server has answered.
class NSHTTPURLResponse
{
public:
    explicit NSHTTPURLResponse(int statusCode = 0) : statusCode_(statusCode) { }
    int statusCode() const { return statusCode_; }

private:
    int statusCode_;
};

/// Sends requests to web servers.
class LM_APPKIT NSURLConnection
{
public:
    /// Sends a request with the method "HEAD", the only one there is, and waits for its answer. The event loop does not
    /// run meanwhile: nothing else happens in the calling thread.
    ///
    /// Redirections are followed, 20 at most and none from https to http; the answer is the last one's. Requests go
    /// through the system's proxy. A certificate that is not in order, a half answer or none within the request's time
    /// are no answer. Returns whether there was one, and stores it; otherwise stores the cause, one phrase in English.
    /// Both places may be null.
    static bool sendSynchronousRequestReturningResponseError(
        const NSMutableURLRequest &request, NSHTTPURLResponse *response, QString *error);
};
