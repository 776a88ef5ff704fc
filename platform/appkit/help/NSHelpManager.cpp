#include "platform/appkit/help/NSHelpManager.h"

NSHelpManager *NSHelpManager::sharedHelpManager()
{
    static NSHelpManager manager;
    return &manager;
}

void NSHelpManager::openHelpAnchorInBook(const QString &anchor, const QString &book)
{
    if (observer_)
        observer_(anchor, book);
}

void NSHelpManager::setRequestObserver(RequestObserver observer)
{
    observer_ = std::move(observer);
}
