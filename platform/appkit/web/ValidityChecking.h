#pragma once

#include "platform/appkit/Export.h"

class QUrl;

// ValidityChecking, a category of the address class.

/// Whether a web page answers: a HEAD request, with redirections followed, ends in status 200 and no other.
///
/// Blocks, without running the event loop, until the answer is there, 60 s at most. An address that is not http or
/// https has no web page; it is asked nothing.
LM_APPKIT bool httpIsValid(const QUrl &address);
