#include "updater/core/Appcast.h"

#include "updater/core/OperatingSystem.h"
#include "updater/core/Signature.h"
#include "updater/core/Versions.h"

#include <QXmlStreamReader>

namespace {

constexpr qsizetype mostItems = 1000;

struct Enclosure
{
    QUrl address;
    QString length, signature, version, displayVersion, operatingSystem;
};

class AppcastReader
{
public:
    AppcastReader(const QByteArray &bytes, const QUrl &address) : xml_(bytes), address_(address) { }

    AppcastReading read()
    {
        while (nextElement()) {
            if (xml_.name() != u"rss")
                xml_.raiseError(QStringLiteral("it is no RSS feed"));
            else
                readRss();
        }
        if (!hasChannel_ && !xml_.hasError())
            xml_.raiseError(QStringLiteral("it has no channel"));
        if (!xml_.hasError())
            return reading_;
        return {{}, {}, QStringLiteral("line %1: %2").arg(xml_.lineNumber()).arg(xml_.errorString())};
    }

private:
    /// The next element within the present one; false at its end. A document type would bring entities along.
    bool nextElement()
    {
        while (!xml_.atEnd()) {
            const QXmlStreamReader::TokenType token = xml_.readNext();
            if (token == QXmlStreamReader::StartElement)
                return true;
            if (token == QXmlStreamReader::EndElement)
                return false;
            if (token == QXmlStreamReader::DTD)
                xml_.raiseError(QStringLiteral("it has a document type"));
        }
        return false;
    }

    bool isPlain(QStringView name) const { return xml_.namespaceUri().isEmpty() && xml_.name() == name; }
    bool isSparkle(QStringView name) const { return xml_.namespaceUri() == appcastNamespace && xml_.name() == name; }
    bool isOwn(QStringView name) const { return xml_.namespaceUri() == ownAppcastNamespace && xml_.name() == name; }

    QString text() { return xml_.readElementText(QXmlStreamReader::SkipChildElements).trimmed(); }
    QUrl resolvedAddress(const QString &written) const
    {
        return written.isEmpty() ? QUrl() : address_.resolved(QUrl(written, QUrl::StrictMode));
    }

    void readRss()
    {
        while (nextElement()) {
            if (isPlain(u"channel"))
                readChannel();
            else
                xml_.skipCurrentElement();
        }
    }

    void readChannel()
    {
        hasChannel_ = true;
        while (nextElement()) {
            if (isPlain(u"item"))
                readItem();
            else
                xml_.skipCurrentElement();
        }
    }

    void readItem()
    {
        item_ = {};
        enclosures_.clear();
        elementVersion_.clear();
        while (nextElement())
            readItemsElement();
        const QString problem = completeItem();
        if (!problem.isEmpty())
            reading_.problems += QStringLiteral("the item \"%1\" is left out: %2").arg(item_.title, problem);
        else
            reading_.items += item_;
        if (reading_.items.size() + reading_.problems.size() > mostItems)
            xml_.raiseError(QStringLiteral("it has more than %1 items").arg(mostItems));
    }

    void readItemsElement()
    {
        if (isPlain(u"title"))
            item_.title = text();
        else if (isPlain(u"description"))
            item_.description = text();
        else if (isPlain(u"link"))
            item_.link = resolvedAddress(text());
        else if (isPlain(u"pubDate"))
            item_.published = QDateTime::fromString(text(), Qt::RFC2822Date);
        else if (isPlain(u"enclosure"))
            readEnclosure();
        else if (isOwn(u"minimumPlatformVersion"))
            item_.minimumPlatformVersion = platformVersion(text());
        else if (xml_.namespaceUri() == appcastNamespace)
            readSparkleElement();
        else
            xml_.skipCurrentElement();
    }

    void readSparkleElement()
    {
        if (isSparkle(u"version"))
            elementVersion_ = text();
        else if (isSparkle(u"shortVersionString"))
            item_.displayVersion = text();
        else if (isSparkle(u"minimumSystemVersion"))
            item_.minimumSystemVersion = text();
        else if (isSparkle(u"channel"))
            item_.channel = text();
        else if (isSparkle(u"releaseNotesLink"))
            item_.releaseNotes = resolvedAddress(text());
        else if (isSparkle(u"criticalUpdate"))
            readCritical();
        else if (isSparkle(u"informationalUpdate"))
            readInformational();
        else if (isSparkle(u"tags"))
            readTags();
        else
            xml_.skipCurrentElement();
    }

    /// What is no number asks for a platform that nobody has.
    static int platformVersion(const QString &text)
    {
        bool isNumber = false;
        const int version = text.toInt(&isNumber);
        return isNumber ? version : std::numeric_limits<int>::max();
    }

    void readCritical()
    {
        item_.isCritical = true;
        item_.criticalBelow = xml_.attributes().value(appcastNamespace, QStringLiteral("version")).toString();
        xml_.skipCurrentElement();
    }

    void readTags()
    {
        while (nextElement()) {
            item_.isCritical = item_.isCritical || isSparkle(u"criticalUpdate");
            xml_.skipCurrentElement();
        }
    }

    void readInformational()
    {
        item_.isInformational = true;
        while (nextElement()) {
            if (isSparkle(u"version"))
                item_.informationalFor += text();
            else if (isSparkle(u"belowVersion"))
                item_.informationalBelow = text();
            else
                xml_.skipCurrentElement();
        }
    }

    void readEnclosure()
    {
        const QXmlStreamAttributes attributes = xml_.attributes();
        const auto sparkle = [&](const char *name) {
            return attributes.value(appcastNamespace, QLatin1StringView(name)).toString();
        };
        enclosures_ += {resolvedAddress(attributes.value(QStringLiteral("url")).toString()),
            attributes.value(QStringLiteral("length")).toString(), sparkle("edSignature"), sparkle("version"),
            sparkle("shortVersionString"), sparkle("os")};
        xml_.skipCurrentElement();
    }

    /// Puts the item together of what was read; empty, or why it cannot be used.
    QString completeItem()
    {
        const QList<Enclosure> ours = enclosuresForThisSystem();
        if (ours.size() > 1)
            return QStringLiteral("it has more than one enclosure");
        const Enclosure enclosure = ours.value(0);
        if (differ(elementVersion_, enclosure.version))
            return QStringLiteral("it has two versions");
        if (differ(item_.displayVersion, enclosure.displayVersion))
            return QStringLiteral("it has two versions for people");
        item_.version = elementVersion_.isEmpty() ? enclosure.version : elementVersion_;
        if (!isBundleVersion(item_.version))
            return QStringLiteral("\"%1\" is no bundle version").arg(item_.version);
        item_.operatingSystem = enclosure.operatingSystem;
        if (item_.displayVersion.isEmpty())
            item_.displayVersion = enclosure.displayVersion.isEmpty() ? item_.version : enclosure.displayVersion;
        return enclosures_.isEmpty() && item_.isInformational ? QString() : completeArchive(enclosure);
    }

    /// Those that name this system before those that name none. Where all are for others, the first is as good as any.
    QList<Enclosure> enclosuresForThisSystem() const
    {
        QList<Enclosure> named, unnamed;
        for (const Enclosure &enclosure : enclosures_) {
            if (isForThisSystem(enclosure.operatingSystem))
                (enclosure.operatingSystem.isEmpty() ? unnamed : named) += enclosure;
        }
        const QList<Enclosure> &ours = named.isEmpty() ? unnamed : named;
        return ours.isEmpty() ? enclosures_.first(std::min(enclosures_.size(), qsizetype(1))) : ours;
    }

    static bool differ(const QString &element, const QString &attribute)
    {
        return !element.isEmpty() && !attribute.isEmpty() && element != attribute;
    }

    QString completeArchive(const Enclosure &enclosure)
    {
        item_.archive = enclosure.address;
        if (!item_.archive.isValid() || item_.archive.isEmpty())
            return QStringLiteral("it has no archive");
        bool isNumber = false;
        item_.length = enclosure.length.toLongLong(&isNumber);
        if (!isNumber || item_.length <= 0 || item_.length > largestUpdateArchive)
            return QStringLiteral("its archive's length is \"%1\"").arg(enclosure.length);
        item_.signature = bytesOfBase64(enclosure.signature.toLatin1(), signatureSize);
        return item_.signature.isEmpty() ? QStringLiteral("its signature is no 64 bytes in base 64") : QString();
    }

    QXmlStreamReader xml_;
    QUrl address_;
    AppcastReading reading_;
    bool hasChannel_ = false;
    AppcastItem item_; ///< that is being read, as are the next two
    QString elementVersion_;
    QList<Enclosure> enclosures_;
};

} // namespace

AppcastReading readAppcast(const QByteArray &bytes, const QUrl &address)
{
    if (bytes.size() > largestAppcast)
        return {{}, {}, QStringLiteral("it is larger than 1 MiB")};
    return AppcastReader(bytes, address).read();
}
