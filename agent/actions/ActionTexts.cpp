#include "agent/actions/ActionTexts.h"

#include "agent/gestures/GestureView.h"
#include "platform/foundation/bundles/NSBundle.h"

QString actionText(const char *text)
{
    const QString key = QString::fromUtf8(text);
    return NSBundle::mainBundle()->localizedStringForKeyValueTable(key, {}, QStringLiteral("Actions"));
}

QString shownTitle(const WindowDescription &window)
{
    const QString title = titleOf(window);
    return title.isEmpty() ? actionText("Untitled window") : title;
}
