#include "AppcastWriter.h"

#include "updater/core/Appcast.h"
#include "updater/core/Versions.h"

#include <QXmlStreamWriter>

namespace {

class Writer
{
public:
    explicit Writer(QByteArray *bytes) : xml_(bytes) { xml_.setAutoFormatting(true); }

    void write(const AppcastToWrite &appcast)
    {
        xml_.writeStartDocument();
        xml_.writeNamespace(appcastNamespace, QStringLiteral("sparkle"));
        xml_.writeNamespace(ownAppcastNamespace, QStringLiteral("lumaroo"));
        xml_.writeStartElement(QStringLiteral("rss"));
        xml_.writeAttribute(QStringLiteral("version"), QStringLiteral("2.0"));
        xml_.writeStartElement(QStringLiteral("channel"));
        writePlain("title", appcast.title);
        writePlain("link", address(appcast.link));
        for (const AppcastItem &item : appcast.items)
            writeItem(item);
        xml_.writeEndDocument();
    }

private:
    static QString address(const QUrl &url) { return QString::fromLatin1(url.toEncoded()); }

    /// Nothing is written for an empty text.
    void writePlain(const char *name, const QString &text)
    {
        if (!text.isEmpty())
            xml_.writeTextElement(QLatin1StringView(name), text);
    }

    void writeSparkle(const char *name, const QString &text)
    {
        if (!text.isEmpty())
            xml_.writeTextElement(appcastNamespace, QLatin1StringView(name), text);
    }

    void writeItem(const AppcastItem &item)
    {
        xml_.writeStartElement(QStringLiteral("item"));
        writePlain("title", item.title);
        writePlain("pubDate", item.published.toUTC().toString(Qt::RFC2822Date));
        writePlain("link", address(item.link));
        writeSparkle("version", item.version);
        writeSparkle("shortVersionString", item.displayVersion);
        writeSparkle("minimumSystemVersion", item.minimumSystemVersion);
        writeSparkle("channel", item.channel);
        if (item.isCritical)
            writeCritical(item);
        if (item.minimumPlatformVersion > 0)
            xml_.writeTextElement(ownAppcastNamespace, QStringLiteral("minimumPlatformVersion"),
                QString::number(item.minimumPlatformVersion));
        writeSparkle("releaseNotesLink", address(item.releaseNotes));
        writeEnclosure(item);
        xml_.writeEndElement();
    }

    void writeCritical(const AppcastItem &item)
    {
        xml_.writeEmptyElement(appcastNamespace, QStringLiteral("criticalUpdate"));
        if (!item.criticalBelow.isEmpty())
            xml_.writeAttribute(appcastNamespace, QStringLiteral("version"), item.criticalBelow);
    }

    void writeEnclosure(const AppcastItem &item)
    {
        xml_.writeEmptyElement(QStringLiteral("enclosure"));
        xml_.writeAttribute(QStringLiteral("url"), address(item.archive));
        xml_.writeAttribute(QStringLiteral("length"), QString::number(item.length));
        xml_.writeAttribute(QStringLiteral("type"), QStringLiteral("application/octet-stream"));
        xml_.writeAttribute(appcastNamespace, QStringLiteral("os"), QStringLiteral("linux"));
        xml_.writeAttribute(
            appcastNamespace, QStringLiteral("edSignature"), QString::fromLatin1(item.signature.toBase64()));
    }

    QXmlStreamWriter xml_;
};

} // namespace

QByteArray writeAppcast(const AppcastToWrite &appcast)
{
    AppcastToWrite sorted = appcast;
    std::stable_sort(sorted.items.begin(), sorted.items.end(),
        [](const AppcastItem &left, const AppcastItem &right) { return isNewer(left.version, right.version); });
    QByteArray bytes;
    Writer(&bytes).write(sorted);
    return bytes;
}
