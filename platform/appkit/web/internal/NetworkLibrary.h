#pragma once

#include <QObject>
#include <QString>
#include <functional>
#include <memory>

class NSMutableURLRequest;

/// What came of a request.
struct NetworkAnswer
{
    int statusCode = 0; ///< 0 when nothing came
    QString error; ///< why nothing came: one phrase in English
    int errorCode = 0; ///< the same, as an NSURLErrorCode
};

/// Told of the end of a request that is under way, from the event loop; it may destroy the request.
using NetworkTransferEnd = std::function<void(const NetworkAnswer &answer)>;

// The toolkit's network library costs time and memory at every start, and most starts ask for no web page. So what
// needs it stands in a library of its own, which is loaded at the first request.

inline constexpr char networkAnswerFunction[] = "lumarooNetworkAnswer";
inline constexpr char networkTransferFunction[] = "lumarooNetworkTransfer";
extern "C" {
/// Blocks the calling thread, in which it runs an event loop of its own, until there is an answer.
using NetworkAnswerFunction = void (*)(const NSMutableURLRequest *request, NetworkAnswer *answer);
/// Sends the request in the thread that calls, which owns what is returned: destroying it ends the request without a
/// word.
using NetworkTransferFunction = QObject *(*)(const NSMutableURLRequest *request, const NetworkTransferEnd *end);
}

/// Loads the library at the first call; an answer with an error when it cannot be loaded. For any thread.
NetworkAnswer networkAnswer(const NSMutableURLRequest &request);
/// The same; null, with the error, when it cannot be loaded.
std::unique_ptr<QObject> networkTransfer(
    const NSMutableURLRequest &request, const NetworkTransferEnd &end, QString *error);
