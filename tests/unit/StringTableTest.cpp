#include "CapturedLog.h"
#include "TestBundle.h"
#include "platform/foundation/bundles/NSBundle.h"

#include <QFile>
#include <QLocale>
#include <gtest/gtest.h>

namespace {

/// A bundle with the string tables of tests/data, asked by a user with the given languages.
class StringTable : public testing::Test
{
protected:
    ~StringTable() override { QLocale::setDefault(QLocale::system()); }

    void userSpeaks(const QString &locale) { QLocale::setDefault(QLocale(locale)); }

    void install(const QString &language, const QString &table, const QString &data)
    {
        QFile file(qEnvironmentVariable("LUMAROO_BUILD") + "/tests/data/string-tables/Contents/Resources/" + data);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
        sample.writeFile("Contents/Resources/" + language + ".lproj/" + table + ".qm", file.readAll());
    }

    NSBundle *bundle() const { return NSBundle::bundleWithPath(sample.path()); }
    QString text(const QString &key, const QString &value = {}, const QString &table = {}) const
    {
        return bundle()->localizedStringForKeyValueTable(key, value, table);
    }

    TestBundle sample{"Sample.prefPane"};
    CapturedLog log;
};

class GermanAndEnglishTables : public StringTable
{
protected:
    GermanAndEnglishTables()
    {
        for (const QString &language : {QString("de"), QString("en")}) {
            for (const QString &table : {QString("Localizable"), QString("InfoPlist"), QString("Pages")})
                install(language, table, language + ".lproj/" + table + ".qm");
        }
    }
};

} // namespace

TEST_F(GermanAndEnglishTables, areUsedInTheUsersLanguage)
{
    userSpeaks("de_DE");
    EXPECT_EQ(bundle()->preferredLocalizations(), QStringList({"de", "en"}));
    EXPECT_EQ(text("Quit"), "Beenden");
    EXPECT_EQ(text("Quit", "a value"), "Beenden");
}

TEST_F(GermanAndEnglishTables, areEnglishForAnEnglishUser)
{
    userSpeaks("en_GB");
    EXPECT_EQ(bundle()->preferredLocalizations(), QStringList("en"));
    EXPECT_EQ(text("Quit"), "Quit it");
    EXPECT_EQ(text("Only in German"), "Only in German");
}

TEST_F(GermanAndEnglishTables, areEnglishForEveryoneElse)
{
    userSpeaks("fr_FR");
    EXPECT_EQ(bundle()->preferredLocalizations(), QStringList("en"));
    EXPECT_EQ(text("Quit"), "Quit it");
}

TEST_F(GermanAndEnglishTables, areEnglishInTheLocaleOfNobody)
{
    userSpeaks("C");
    EXPECT_EQ(text("Quit"), "Quit it");
}

TEST_F(GermanAndEnglishTables, fallBackToEnglishForSingleTexts)
{
    userSpeaks("de_AT");
    EXPECT_EQ(text("Only in English"), "English only");
}

TEST_F(GermanAndEnglishTables, giveTheValueForAMissingTextAndTheKeyWithoutOne)
{
    userSpeaks("de_DE");
    EXPECT_EQ(text("Missing", "a value"), "a value");
    EXPECT_EQ(text("Missing", ""), "Missing");
    EXPECT_EQ(text("", "a value"), "a value");
    EXPECT_EQ(text("", ""), "");
}

TEST_F(GermanAndEnglishTables, takeAnEmptyTranslationForAMissingOne)
{
    userSpeaks("de_DE");
    EXPECT_EQ(text("Empty", "a value"), "a value");
}

TEST_F(GermanAndEnglishTables, areChosenByName)
{
    userSpeaks("de_DE");
    EXPECT_EQ(text("Quit", {}, "Pages"), "Seiten beenden");
    EXPECT_EQ(text("Quit", {}, "Localizable"), "Beenden");
    EXPECT_EQ(text("Quit", "a value", "No such table"), "a value");
}

TEST_F(GermanAndEnglishTables, localizeTheInfoDictionary)
{
    userSpeaks("de_DE");
    sample.writeInfo({{"CFBundleName", "Lumaroo"}, {"NSHumanReadableCopyright", "Copyright, the developers"},
        {"CFBundleVersion", 7}});
    EXPECT_EQ(bundle()->localizedInfoDictionary().value("NSHumanReadableCopyright"),
        QVariant("Urheberrecht, die Entwickler"));
    EXPECT_EQ(bundle()->localizedInfoDictionary().value("CFBundleName"), QVariant("Lumaroo"));
    EXPECT_EQ(
        bundle()->objectForInfoDictionaryKey("NSHumanReadableCopyright"), QVariant("Urheberrecht, die Entwickler"));
    EXPECT_EQ(bundle()->objectForInfoDictionaryKey("CFBundleVersion"), QVariant(7));
    EXPECT_EQ(bundle()->infoDictionary().value("NSHumanReadableCopyright"), QVariant("Copyright, the developers"));
}

TEST_F(GermanAndEnglishTables, keepTheirTextsWhenTheBundleIsExchangedOnDisk)
{
    userSpeaks("de_DE");
    EXPECT_EQ(text("Quit"), "Beenden");
    sample.writeFile("Contents/Resources/de.lproj/Localizable.qm", {});
    EXPECT_EQ(text("Cancel"), "Abbrechen");
}

TEST_F(StringTable, ofARegionComesBeforeThatOfItsLanguage)
{
    install("de", "Localizable", "de.lproj/Localizable.qm");
    install("de_AT", "Localizable", "en.lproj/Localizable.qm");
    userSpeaks("de_AT");
    EXPECT_EQ(bundle()->preferredLocalizations(), QStringList({"de_AT", "de"}));
    EXPECT_EQ(text("Quit"), "Quit it");
    EXPECT_EQ(text("Only in German"), "Nur Deutsch");
}

TEST_F(StringTable, thatCannotBeReadCountsAsMissing)
{
    install("en", "Localizable", "en.lproj/Localizable.qm");
    sample.writeFile("Contents/Resources/de.lproj/Localizable.qm", "no string table");
    userSpeaks("de_DE");
    EXPECT_EQ(text("Quit"), "Quit it");
    EXPECT_EQ(text("Cancel", "a value"), "a value");
    EXPECT_EQ(log.linesContaining("is no string table").size(), 1);
}

TEST_F(StringTable, ofABundleWithoutAnyGivesTheKey)
{
    EXPECT_TRUE(bundle()->localizations().isEmpty());
    EXPECT_TRUE(bundle()->preferredLocalizations().isEmpty());
    EXPECT_EQ(text("Quit"), "Quit");
    EXPECT_TRUE(log.lines().isEmpty());
}

TEST_F(StringTable, languagesAreThoseWithAFolder)
{
    for (const QString &language : {QString("fr"), QString("de"), QString("en")})
        sample.writeFile("Contents/Resources/" + language + ".lproj/Credits.rtfd/TXT.rtf", {});
    EXPECT_EQ(bundle()->localizations(), QStringList({"de", "en", "fr"}));
}

TEST_F(StringTable, resourcesOfTheUsersLanguageComeFirst)
{
    sample.writeFile("Contents/Resources/Credits.txt", {});
    sample.writeFile("Contents/Resources/de.lproj/Credits.txt", {});
    sample.writeFile("Contents/Resources/fr.lproj/Other.txt", {});
    userSpeaks("de_DE");
    EXPECT_EQ(bundle()->pathForResourceOfType("Credits", "txt"), bundle()->resourcePath() + "/de.lproj/Credits.txt");
    EXPECT_EQ(bundle()->pathForResourceOfType("Other", "txt"), "");
}
