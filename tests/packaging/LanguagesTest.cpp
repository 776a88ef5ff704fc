// What is told of the program outside of it, in every language that the program speaks; and that each of its built
// parts has all of them.

#include "StringTables.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QXmlStreamReader>
#include <gtest/gtest.h>

namespace {

const QString sourceFolder = qEnvironmentVariable("LUMAROO_SOURCE");
const QString buildFolder = qEnvironmentVariable("LUMAROO_BUILD");

QString contentOf(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    return QString::fromUtf8(file.readAll());
}

/// An entry's value for a key in a language, "" for English; null where it has none.
QString entryValue(const QString &entry, const QString &key, const QString &language)
{
    const QString name = language.isEmpty() ? key : key + '[' + language + ']';
    const QRegularExpression line(
        '^' + QRegularExpression::escape(name) + "=([^\n\"\\\\]+)", QRegularExpression::MultilineOption);
    return line.match(entry).captured(1);
}

/// The texts of a description for software centres that a user reads, each with the languages that follow its English.
struct DescribedText
{
    QString element;
    QString english;
    QMap<QString, QString> translated;
};

QList<DescribedText> describedTexts()
{
    static const QSet<QString> shown{"name", "summary", "p", "li", "developer_name", "caption"};
    QXmlStreamReader reader(contentOf(sourceFolder + "/packaging/com.quorvane.LumarooSettings.metainfo.xml"));
    QList<DescribedText> texts;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement || !shown.contains(reader.name().toString()))
            continue;
        const QString element = reader.name().toString();
        const QString language = reader.attributes().value("xml:lang").toString();
        const QString text = reader.readElementText().simplified();
        if (language.isEmpty())
            texts += {element, text, {}};
        else if (!texts.isEmpty() && texts.last().element == element)
            texts.last().translated[language] = text;
    }
    EXPECT_FALSE(reader.hasError()) << qPrintable(reader.errorString());
    return texts;
}

/// Where a part's tables are in the build tree.
QString builtPart(const QString &part)
{
    static const QMap<QString, QString> places{{"host", "/Settings.app"}, {"pane", "/Lumaroo.prefPane"},
        {"agent", "/Lumaroo.prefPane/Contents/Resources/LumarooAgent.app"},
        {"tutorial", "/Lumaroo.prefPane/Contents/Resources/LumarooTutorial.app"}};
    return buildFolder + places.value(part) + "/Contents/Resources/";
}

class ALanguage : public testing::TestWithParam<std::string>
{
protected:
    const QString language = QString::fromStdString(GetParam());
};

INSTANTIATE_TEST_SUITE_P(OfTheProgram, ALanguage, testing::ValuesIn(translations()));

} // namespace

TEST_P(ALanguage, isInTheMenuEntry)
{
    const QString entry = contentOf(sourceFolder + "/packaging/com.quorvane.LumarooSettings.desktop");
    for (const QString key : {"Name", "GenericName", "Comment", "Keywords"}) {
        ASSERT_FALSE(entryValue(entry, key, {}).isEmpty());
        EXPECT_FALSE(entryValue(entry, key, language).isEmpty()) << qPrintable(key);
        EXPECT_NE(entryValue(entry, key, language), entryValue(entry, key, {})) << qPrintable(key);
    }
    EXPECT_TRUE(entryValue(entry, "Name", language).contains("Lumaroo"));
    EXPECT_TRUE(entryValue(entry, "Keywords", language).endsWith(';'));
}

TEST_P(ALanguage, isInTheEntryThatStartsTheAgentAtLogin)
{
    const QString code = contentOf(sourceFolder + "/KTX classes/KTXLoginEntry.cpp")
                             .remove(QRegularExpression("^ *\"", QRegularExpression::MultilineOption));
    ASSERT_FALSE(entryValue(code, "Comment", {}).isEmpty());
    EXPECT_FALSE(entryValue(code, "Comment", language).isEmpty());
    EXPECT_NE(entryValue(code, "Comment", language), entryValue(code, "Comment", {}));
}

TEST_P(ALanguage, isInTheDescriptionForSoftwareCentres)
{
    ASSERT_GT(describedTexts().size(), 10);
    for (const DescribedText &text : describedTexts()) {
        EXPECT_FALSE(text.translated.value(language).isEmpty()) << qPrintable(text.english);
        EXPECT_NE(text.translated.value(language), text.english);
    }
}

TEST_P(ALanguage, isInEachPartOfTheBuiltProgram)
{
    for (const QString &part : partsWithStringTables()) {
        for (const QString &table : stringTableNames(part, language)) {
            const QString built = builtPart(part) + language + ".lproj/" + table + ".qm";
            EXPECT_GT(QFileInfo(built).size(), 0) << qPrintable(built);
        }
    }
}
