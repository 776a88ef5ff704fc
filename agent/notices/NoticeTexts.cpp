#include "agent/notices/NoticeTexts.h"

#include "platform/foundation/bundles/NSBundle.h"

QString noticeText(const char *text)
{
    const QString key = QString::fromUtf8(text);
    return NSBundle::mainBundle()->localizedStringForKeyValueTable(key, {}, QStringLiteral("Notices"));
}
