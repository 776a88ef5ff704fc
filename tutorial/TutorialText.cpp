#include "tutorial/TutorialText.h"

#include "platform/foundation/bundles/NSBundle.h"

QString tutorialText(const char *english)
{
    return NSBundle::mainBundle()->localizedStringForKeyValueTable(
        QString::fromUtf8(english), {}, QStringLiteral("Tutorial"));
}
