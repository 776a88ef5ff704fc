#pragma once

#include "platform/appkit/help/internal/HelpBook.h"

#include <functional>

class QUrl;
class QWidget;

/// What the help viewer is asked for.
struct HelpRequest
{
    HelpBook book;
    QString anchor;
    QWidget *alert = nullptr; ///< the application-modal window that is up, in front of which the viewer has to work
    std::function<bool(const QUrl &)> openURL; ///< shows a web page; false when it cannot
};

// The toolkit's help library, with its database, costs time and memory at every start, and most starts ask for no help.
// So the viewer stands in a library of its own, which is loaded at the first request.

inline constexpr char helpLibraryFunction[] = "lumarooShowHelp";
extern "C" {
/// Shows the viewer's window, the one and only, with the book at the anchor. Main thread only.
using HelpLibraryFunction = void (*)(const HelpRequest *request);
}
