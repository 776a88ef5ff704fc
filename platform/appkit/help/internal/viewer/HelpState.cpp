#include "platform/appkit/help/internal/viewer/HelpState.h"

#include "platform/foundation/bundles/NSBundle.h"
#include "platform/foundation/preferences/CFPreferences.h"

namespace {

const QString widthKey = QStringLiteral("HelpWindowWidth");
const QString heightKey = QStringLiteral("HelpWindowHeight");
const QString zoomKey = QStringLiteral("HelpZoom");

QString domain()
{
    return NSBundle::mainBundle()->bundleIdentifier();
}

int remembered(const QString &key)
{
    return domain().isEmpty() ? 0 : CFPreferencesGetAppIntegerValue(key, domain());
}

} // namespace

QSize HelpState::windowSize()
{
    const QSize size(remembered(widthKey), remembered(heightKey));
    return size.width() > 0 && size.height() > 0 ? size : QSize();
}

int HelpState::zoom()
{
    const int percent = remembered(zoomKey);
    return percent > 0 ? percent : 100;
}

void HelpState::remember(QSize windowSize, int zoom)
{
    if (domain().isEmpty())
        return;
    CFPreferencesSetAppValue(widthKey, qlonglong(windowSize.width()), domain());
    CFPreferencesSetAppValue(heightKey, qlonglong(windowSize.height()), domain());
    CFPreferencesSetAppValue(zoomKey, qlonglong(zoom), domain());
    CFPreferencesAppSynchronize(domain());
}
