#pragma once

#include <QString>

class NSMutableURLRequest;

/// What came of a request.
struct NetworkAnswer
{
    int statusCode = 0; ///< 0 when nothing came
    QString error; ///< why nothing came: one phrase in English
};

// The toolkit's network library costs time and memory at every start, and most starts ask for no web page. So what
// needs it stands in a library of its own, which is loaded at the first request.

inline constexpr char networkLibraryFunction[] = "lumarooNetworkAnswer";
extern "C" {
/// Blocks the calling thread, in which it runs an event loop of its own, until there is an answer.
using NetworkLibraryFunction = void (*)(const NSMutableURLRequest *request, NetworkAnswer *answer);
}

/// Loads the library at the first call; an answer with an error when it cannot be loaded. For any thread.
NetworkAnswer networkAnswer(const NSMutableURLRequest &request);
