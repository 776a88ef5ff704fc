#pragma once

#include "platform/appkit/Export.h"

#include <QString>
#include <functional>

/// Opens help books.
class LM_APPKIT NSHelpManager
{
public:
    static NSHelpManager *sharedHelpManager();

    /// Asks for an anchor of a help book by the book's name.
    void openHelpAnchorInBook(const QString &anchor, const QString &book);

    /// Told of each request, for tests.
    using RequestObserver = std::function<void(const QString &anchor, const QString &book)>;
    void setRequestObserver(RequestObserver observer);

private:
    RequestObserver observer_;
};
