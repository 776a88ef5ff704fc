#include "platform/appkit/interface/internal/InterfaceText.h"

#include "platform/foundation/bundles/NSBundle.h"

#include <QIODevice>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>
#include <optional>

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
    Translator(QIODevice *file, const NSBundle *bundle, const QString &nibName)
        : bundle_(bundle), nibName_(nibName), reader_(result_.xml = file->readAll())
    {
        // Most readers' language is the one that the file is written in; then it stays as it is.
        if (!bundle->pathForResourceOfType(nibName, QStringLiteral("qm")).isEmpty())
            writer_.emplace(&translated_);
    }

    InterfaceText run()
    {
        while (!reader_.atEnd() && result_.error.isEmpty()) {
            reader_.readNext();
            if (reader_.isStartElement())
                startElement();
            else if (!reader_.hasError())
                copyToken();
        }
        if (reader_.hasError())
            result_.error = QStringLiteral("line %1: %2").arg(reader_.lineNumber()).arg(reader_.errorString());
        if (writer_)
            result_.xml = translated_;
        return result_;
    }

private:
    void startElement();
    void checkRoot();
    void translate();
    void copyClassName(QString *name);
    void copyToken();
    void replaceText(const QString &text);

    const NSBundle *bundle_;
    QString nibName_;
    InterfaceText result_;
    QXmlStreamReader reader_;
    QByteArray translated_;
    std::optional<QXmlStreamWriter> writer_; ///< where there may be something to translate
    QString property_;
    QString customClass_;
    bool sawRoot_ = false;
    bool listIsOfNames_ = false;
    bool inCustomWidget_ = false;
};

void Translator::checkRoot()
{
    if (!sawRoot_ && reader_.name() != QLatin1StringView("ui"))
        result_.error = QStringLiteral("is no interface file");
    sawRoot_ = true;
}

void Translator::startElement()
{
    checkRoot();
    const QStringView element = reader_.name();
    if (element == QLatin1StringView("property") || element == QLatin1StringView("attribute")) {
        property_ = reader_.attributes().value(QLatin1StringView("name")).toString();
        listIsOfNames_ = false;
    } else if (element == QLatin1StringView("stringlist")) {
        listIsOfNames_ = isMarkedAsName(reader_);
    } else if (element == QLatin1StringView("customwidget")) {
        inCustomWidget_ = true;
    }
    if (element == QLatin1StringView("string")) {
        translate();
    } else if (inCustomWidget_ && element == QLatin1StringView("class")) {
        copyClassName(&customClass_);
    } else if (inCustomWidget_ && element == QLatin1StringView("extends")) {
        copyClassName(&result_.baseClasses[customClass_]);
        inCustomWidget_ = false;
    } else {
        copyToken();
    }
}

void Translator::translate()
{
    const bool isText = !isMarkedAsName(reader_) && !listIsOfNames_ && !isName(property_);
    copyToken();
    const QString text = reader_.readElementText();
    if (writer_)
        replaceText(isText && !text.isEmpty() ? bundle_->localizedStringForKeyValueTable(text, text, nibName_) : text);
}

void Translator::copyClassName(QString *name)
{
    copyToken();
    *name = reader_.readElementText();
    if (writer_)
        replaceText(*name);
}

void Translator::copyToken()
{
    if (writer_)
        writer_->writeCurrentToken(reader_);
}

void Translator::replaceText(const QString &text)
{
    writer_->writeCharacters(text);
    writer_->writeEndElement();
}

} // namespace

InterfaceText readInterfaceText(QIODevice *file, const NSBundle *bundle, const QString &nibName)
{
    return Translator(file, bundle, nibName).run();
}
