#include "platform/appkit/interface/internal/InterfaceText.h"

#include "platform/foundation/bundles/NSBundle.h"

#include <QXmlStreamReader>
#include <QXmlStreamWriter>

namespace {

/// Properties that hold names, which no language changes.
bool isName(const QString &property)
{
    static const QStringList names{QStringLiteral("action"), QStringLiteral("delegate"), QStringLiteral("identifier"),
        QStringLiteral("tags"), QStringLiteral("binding"), QStringLiteral("bindingValues"),
        QStringLiteral("enabledBinding"), QStringLiteral("styleSheet")};
    return names.contains(property);
}

bool isMarkedAsName(const QXmlStreamReader &reader)
{
    return reader.attributes().value(QLatin1StringView("notr")) == QLatin1StringView("true");
}

class Translator
{
public:
    Translator(const QByteArray &xml, const NSBundle *bundle, const QString &nibName)
        : bundle_(bundle), nibName_(nibName), reader_(xml), writer_(&translated_)
    {
    }

    QByteArray run()
    {
        while (!reader_.atEnd()) {
            reader_.readNext();
            if (reader_.isStartElement())
                startElement();
            else if (!reader_.hasError())
                writer_.writeCurrentToken(reader_);
        }
        return translated_;
    }

private:
    void startElement();
    void translate();

    const NSBundle *bundle_;
    QString nibName_;
    QXmlStreamReader reader_;
    QByteArray translated_;
    QXmlStreamWriter writer_;
    QString property_;
    bool listIsOfNames_ = false;
};

void Translator::startElement()
{
    const QStringView element = reader_.name();
    if (element == QLatin1StringView("property") || element == QLatin1StringView("attribute")) {
        property_ = reader_.attributes().value(QLatin1StringView("name")).toString();
        listIsOfNames_ = false;
    } else if (element == QLatin1StringView("stringlist")) {
        listIsOfNames_ = isMarkedAsName(reader_);
    }
    writer_.writeCurrentToken(reader_);
    if (element == QLatin1StringView("string"))
        translate();
}

void Translator::translate()
{
    const bool isText = !isMarkedAsName(reader_) && !listIsOfNames_ && !isName(property_);
    const QString text = reader_.readElementText();
    writer_.writeCharacters(
        isText && !text.isEmpty() ? bundle_->localizedStringForKeyValueTable(text, text, nibName_) : text);
    writer_.writeEndElement();
}

} // namespace

QByteArray translatedInterface(const QByteArray &xml, const NSBundle *bundle, const QString &nibName)
{
    // Most readers' language is the one that the file is written in.
    const bool isWrittenInIt = bundle->pathForResourceOfType(nibName, QStringLiteral("qm")).isEmpty();
    return isWrittenInIt ? xml : Translator(xml, bundle, nibName).run();
}

QHash<QString, QString> baseClassesIn(const QByteArray &xml)
{
    QHash<QString, QString> baseClasses;
    QString className;
    bool inCustomWidget = false;
    QXmlStreamReader reader(xml);
    while (!reader.atEnd()) {
        reader.readNext();
        if (!reader.isStartElement())
            continue;
        if (reader.name() == QLatin1StringView("customwidget"))
            inCustomWidget = true;
        else if (inCustomWidget && reader.name() == QLatin1StringView("class"))
            className = reader.readElementText();
        else if (inCustomWidget && reader.name() == QLatin1StringView("extends"))
            baseClasses[className] = reader.readElementText();
    }
    return baseClasses;
}

QString problemIn(const QByteArray &xml)
{
    QXmlStreamReader reader(xml);
    if (reader.readNextStartElement() && reader.name() != QLatin1StringView("ui"))
        return QStringLiteral("is no interface file");
    while (!reader.atEnd())
        reader.readNext();
    return reader.hasError() ? QStringLiteral("line %1: %2").arg(reader.lineNumber()).arg(reader.errorString())
                             : QString();
}
