#pragma once

#include "platform/appkit/Export.h"

class QUrl;

/// The user's desktop, as the place where addresses are opened.
class LM_APPKIT NSWorkspace
{
public:
    static NSWorkspace *sharedWorkspace();

    /// Opens a web page in the user's browser and returns at once. Returns false, with one logged line, for an address
    /// that is not http or https, which is given to nobody, and when nobody takes it.
    bool openURL(const QUrl &address);
};
