#include "platform/appkit/help/internal/HelpViewer.h"

#include "platform/appkit/help/internal/viewer/HelpWindow.h"

#include <QCoreApplication>
#include <QSqlDatabase>
#include <utility>

namespace {

HelpWindow *&window()
{
    static HelpWindow *instance = nullptr;
    return instance;
}

} // namespace

extern "C" Q_DECL_EXPORT void lumarooShowHelp(const HelpRequest *request)
{
    if (!window()) {
        window() = new HelpWindow;
        // A window must go before the application object does. So do the database's connections, at their library's
        // own wish, and the last wish is the first to be done: the window's threads must have ended by then.
        QSqlDatabase::drivers();
        qAddPostRoutine([] { delete std::exchange(window(), nullptr); });
    }
    window()->open(*request);
}
