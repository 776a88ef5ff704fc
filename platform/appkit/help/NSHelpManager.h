#pragma once

#include "platform/appkit/Export.h"

#include <QString>

/// Opens help books.
class LM_APPKIT NSHelpManager
{
public:
    static NSHelpManager *sharedHelpManager();

    /// Opens the help viewer on a named anchor of a registered book (AHRegisterHelpBook), in the user's language.
    ///
    /// There is one viewer, which comes to the front. It works also in front of an application-modal alert that is up.
    /// An unknown anchor opens the book at its start; a book that is not registered, missing or torn is a page that
    /// says so. Where the viewer itself cannot be loaded, the alert sounds and the log tells why. Returns at once.
    void openHelpAnchorInBook(const QString &anchor, const QString &book);
};
