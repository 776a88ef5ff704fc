#include "updater/core/ReleaseNotes.h"

#include <QRegularExpression>
#include <cstdlib>

// Whatever release notes hold: only known elements are left, without attributes but for links to web pages, and all of
// them end.

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t size)
{
    static const QRegularExpression element(
        QStringLiteral("</?(h3|h4|p|ul|ol|li|b|i|code|pre|br|a)>|<a href=\"https?://[^\"<>]+\">"));
    const QByteArray data(reinterpret_cast<const char *>(bytes), qsizetype(size));
    QString left = safeReleaseNotes(QString::fromUtf8(data));
    for (const char *name : {"h3", "h4", "p", "ul", "ol", "li", "b", "i", "code", "pre", "a"}) {
        const QRegularExpression start(QStringLiteral("<%1[ >]").arg(QLatin1StringView(name)));
        if (left.count(start) != left.count(QStringLiteral("</%1>").arg(QLatin1StringView(name))))
            std::abort();
    }
    left.remove(element);
    if (left.contains(u'<'))
        std::abort();
    return 0;
}
