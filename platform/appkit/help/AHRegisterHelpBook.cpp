#include "platform/appkit/help/AHRegisterHelpBook.h"

#include "platform/appkit/help/internal/RegisteredBooks.h"
#include "platform/foundation/bundles/NSBundle.h"
#include "platform/foundation/processes/LaunchServices.h"
#include "platform/foundation/processes/Processes.h"

OSStatus AHRegisterHelpBook(const FSRef *bundle)
{
    if (!bundle)
        return paramErr;
    const QVariantMap info = NSBundle::infoDictionaryOnDisk(bundle->path);
    const QString name = textIn(info, QStringLiteral("CFBundleHelpBookName"));
    const QString identifier = textIn(info, kCFBundleIdentifierKey);
    if (name.isEmpty() || identifier.isEmpty())
        return kAHInternalConfigErr;
    return recordBook(name, identifier, bundle->path) ? noErr : kAHInternalErr;
}
