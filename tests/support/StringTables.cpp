#include "StringTables.h"

#include <QDir>
#include <QFile>
#include <QXmlStreamReader>

namespace {

QDir resources()
{
    return {qEnvironmentVariable("LUMAROO_SOURCE") + QStringLiteral("/resources")};
}

QString folderOf(const QString &part, const QString &language)
{
    return resources().filePath(part + u'/' + language + QStringLiteral(".lproj"));
}

QStringList languagesOf(const QString &part)
{
    QStringList languages;
    const QDir folder(resources().filePath(part));
    for (const QString &name : folder.entryList({QStringLiteral("*.lproj")}, QDir::Dirs)) {
        const QString language = name.section(u'.', 0, 0);
        if (!stringTableNames(part, language).isEmpty())
            languages += language;
    }
    return languages;
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(path));
    return file.readAll();
}

void readMessage(QXmlStreamReader &reader, StringTable &table)
{
    table.hasFormsOfNumbers |= reader.attributes().hasAttribute(QStringLiteral("numerus"));
    QString text;
    while (reader.readNextStartElement()) {
        if (reader.name() == u"source") {
            text = reader.readElementText();
        } else if (reader.name() == u"translation") {
            if (reader.attributes().hasAttribute(QStringLiteral("type")))
                table.unfinished += text;
            table.texts[text] = reader.readElementText(QXmlStreamReader::IncludeChildElements);
        } else {
            reader.skipCurrentElement();
        }
    }
}

} // namespace

std::vector<std::string> translations()
{
    QStringList languages;
    for (const QString &part : partsWithStringTables())
        languages += languagesOf(part);
    languages.removeDuplicates();
    languages.removeAll(QStringLiteral("en"));
    std::vector<std::string> names;
    for (const QString &language : languages)
        names.push_back(language.toStdString());
    return names;
}

std::vector<std::string> languagesOfTheProgram()
{
    std::vector<std::string> languages = translations();
    languages.insert(languages.begin(), "en");
    return languages;
}

QStringList partsWithStringTables()
{
    QStringList parts;
    for (const QString &part : resources().entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        if (!languagesOf(part).isEmpty())
            parts += part;
    }
    return parts;
}

QStringList stringTableNames(const QString &part, const QString &language)
{
    QStringList names;
    for (const QString &file : QDir(folderOf(part, language)).entryList({QStringLiteral("*.ts")}, QDir::Files))
        names += file.chopped(3);
    return names;
}

StringTable stringTable(const QString &part, const QString &language, const QString &name)
{
    QXmlStreamReader reader(contentOf(folderOf(part, language) + u'/' + name + QStringLiteral(".ts")));
    StringTable table;
    while (!reader.atEnd()) {
        reader.readNext();
        if (!reader.isStartElement())
            continue;
        if (reader.name() == u"TS")
            table.language = reader.attributes().value(QStringLiteral("language")).toString();
        else if (reader.name() == u"name")
            table.name = reader.readElementText();
        else if (reader.name() == u"message")
            readMessage(reader, table);
    }
    return table;
}

QStringList textsOfInterfaceFile(const QString &name)
{
    QXmlStreamReader reader(contentOf(resources().filePath(QStringLiteral("pane/") + name + QStringLiteral(".ui"))));
    QStringList texts;
    bool inNames = false;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.name() == u"stringlist")
            inNames = reader.isStartElement();
        const bool isText = reader.isStartElement() && reader.name() == u"string" && !inNames
            && !reader.attributes().hasAttribute(QStringLiteral("notr"));
        if (isText)
            texts += reader.readElementText();
    }
    texts.removeDuplicates();
    return texts;
}
