#include "pane/KTXLumarooPreferencePane.h"

#include "KTXConstants.h"
#include "pane/HelpBook.h"
#include "platform/appkit/controls/Controls.h"
#include "platform/appkit/help/AHRegisterHelpBook.h"
#include "platform/appkit/help/NSHelpManager.h"
#include "platform/foundation/NSException.h"
#include "platform/foundation/bundles/CFBundle.h"
#include "platform/foundation/bundles/NSBundle.h"
#include "platform/foundation/preferences/CFPreferences.h"
#include "platform/foundation/processes/LaunchServices.h"

namespace {

const QString helpDomain = QStringLiteral("com.apple.help");
const QString registeredBooks = QStringLiteral("RegisteredBooks");

/// The first one alone counts; an entry of any other kind has none.
QVariant nameOfFirstBook(const QVariant &entry)
{
    const QVariantList books = entry.toList();
    return books.isEmpty() ? QVariant() : books.constFirst().toMap().value(QStringLiteral("id"));
}

bool isCurrent(const QVariant &entry, const QVariant &bookName)
{
    const QVariant registered = nameOfFirstBook(entry);
    return registered.typeId() == QMetaType::QString && registered == bookName;
}

void registerBookUnlessListed(const QVariant &bookName)
{
    QVariantMap books = CFPreferencesCopyAppValue(registeredBooks, helpDomain).toMap();
    if (books.contains(KTXLMAppID)) {
        if (isCurrent(books.value(KTXLMAppID), bookName))
            return;
        books.remove(KTXLMAppID);
        CFPreferencesSetAppValue(registeredBooks, books, helpDomain);
    }
    RegisterMyHelpBook();
}

const QString &anchorAtIndex(const QStringList &anchors, int index)
{
    if (index >= 0 && index < anchors.size())
        return anchors[index];
    throw NSException(QStringLiteral("NSRangeException"),
        QStringLiteral("index %1 beyond bounds [0 .. %2]").arg(index).arg(anchors.size() - 1));
}

} // namespace

void KTXLumarooPreferencePane::buildHelpAnchors()
{
    // A help button's tag is the index; no button has tag 11.
    helpAnchors_ = {
        QStringLiteral("activate"),
        QStringLiteral("movement"),
        QStringLiteral("action"),
        QStringLiteral("updates"),
        QStringLiteral("ordering"),
        QStringLiteral("alerts"),
        QStringLiteral("alerts"),
        QStringLiteral("alerts"),
        QStringLiteral("alerts"),
        QStringLiteral("alerts"),
        QStringLiteral("other"),
        QStringLiteral("other"),
        QStringLiteral("access"),
    };
}

void KTXLumarooPreferencePane::displayHelp(QObject *sender)
{
    const QVariant bookName = bundle()->infoDictionary().value(QStringLiteral("CFBundleHelpBookName"));
    registerBookUnlessListed(bookName);
    NSHelpManager::sharedHelpManager()->openHelpAnchorInBook(
        anchorAtIndex(helpAnchors_, tag(sender)), bookName.toString());
}

OSStatus RegisterMyHelpBook()
{
    const CFBundleRef bundle = CFBundleGetBundleWithIdentifier(KTXLMAppID);
    FSRef folder;
    if (!bundle || !CFURLGetFSRef(CFBundleCopyBundleURL(bundle), &folder))
        return fnfErr;
    return AHRegisterHelpBook(&folder);
}
