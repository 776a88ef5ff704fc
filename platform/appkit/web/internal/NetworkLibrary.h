#pragma once

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

/// A request under way in the thread that has sent it; destroying it ends it without a word.
class NetworkTransfer
{
public:
    virtual ~NetworkTransfer() = default;
};

/// Told of a transfer's end, from the event loop; it may destroy the transfer.
using NetworkTransferEnd = std::function<void(const NetworkAnswer &answer)>;

// The toolkit's network library costs time and memory at every start, and most starts ask for no web page. So what
// needs it stands in a library of its own, which is loaded at the first request.

inline constexpr char networkAnswerFunction[] = "lumarooNetworkAnswer";
inline constexpr char networkTransferFunction[] = "lumarooNetworkTransfer";
extern "C" {
/// Blocks the calling thread, in which it runs an event loop of its own, until there is an answer.
using NetworkAnswerFunction = void (*)(const NSMutableURLRequest *request, NetworkAnswer *answer);
/// The caller owns what it returns.
using NetworkTransferFunction = NetworkTransfer *(*)(const NSMutableURLRequest *request, const NetworkTransferEnd *end);
}

/// Loads the library at the first call; an answer with an error when it cannot be loaded. For any thread.
NetworkAnswer networkAnswer(const NSMutableURLRequest &request);
/// The same; null, with the error, when it cannot be loaded.
std::unique_ptr<NetworkTransfer> networkTransfer(
    const NSMutableURLRequest &request, const NetworkTransferEnd &end, QString *error);
