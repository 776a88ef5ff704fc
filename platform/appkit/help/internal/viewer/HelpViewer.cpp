#include "platform/appkit/help/internal/HelpViewer.h"

#include "platform/appkit/help/internal/viewer/HelpWindow.h"

#include <QCoreApplication>
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
        // A window must go before the application object does.
        qAddPostRoutine([] { delete std::exchange(window(), nullptr); });
    }
    window()->open(*request);
}
