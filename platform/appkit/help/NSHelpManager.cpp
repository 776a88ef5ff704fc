#include "platform/appkit/help/NSHelpManager.h"

#include "platform/appkit/NSBeep.h"
#include "platform/appkit/help/internal/HelpViewer.h"
#include "platform/appkit/web/NSWorkspace.h"
#include "platform/foundation/system/LibraryBeside.h"
#include "platform/foundation/system/NSLog.h"

#include <QApplication>

namespace {

QWidget *alertOfWholeApplication()
{
    QWidget *modal = QApplication::activeModalWidget();
    return modal && modal->windowModality() == Qt::ApplicationModal ? modal : nullptr;
}

} // namespace

NSHelpManager *NSHelpManager::sharedHelpManager()
{
    static NSHelpManager manager;
    return &manager;
}

void NSHelpManager::openHelpAnchorInBook(const QString &anchor, const QString &book)
{
    static const LoadedFunction viewer = functionOfLibraryBeside(LUMAROO_HELP_LIBRARY, helpLibraryFunction);
    if (!viewer.address) {
        NSLog(QStringLiteral("lumaroo: help: there is no viewer: %1").arg(viewer.error));
        NSBeep();
        return;
    }
    const HelpRequest request{helpBookNamed(book), anchor, alertOfWholeApplication(),
        [](const QUrl &address) { return NSWorkspace::sharedWorkspace()->openURL(address); }};
    reinterpret_cast<HelpLibraryFunction>(viewer.address)(&request);
}
