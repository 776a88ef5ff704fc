#include "StringTables.h"
#include "platform/appkit/richtext/NSAttributedString.h"
#include "platform/foundation/bundles/NSBundle.h"

#include <QDir>
#include <QIcon>
#include <QImageReader>
#include <QTextBlock>
#include <QTextDocument>
#include <QUrl>
#include <gtest/gtest.h>

// The pane bundle as it is built, without its code.

namespace {

QString builtPath()
{
    return qEnvironmentVariable("LUMAROO_BUILD") + "/Lumaroo.prefPane";
}

QVariantMap info()
{
    return NSBundle::infoDictionaryOnDisk(builtPath());
}

/// The folders with what every language has of its own; that of English is the bundle's resources themselves.
std::vector<std::string> folders()
{
    std::vector<std::string> all{""};
    for (const std::string &language : translations())
        all.push_back(language + ".lproj/");
    return all;
}

class CreditsOfALanguage : public testing::TestWithParam<std::string>
{
protected:
    const NSAttributedString credits = NSAttributedString::fromRTFDDocument(
        builtPath() + "/Contents/Resources/" + QString::fromStdString(GetParam()) + "Credits.rtfd");
};

INSTANTIATE_TEST_SUITE_P(PaneResources, CreditsOfALanguage, testing::ValuesIn(folders()));

class PagesOfALanguage : public testing::TestWithParam<std::string>
{
protected:
    QStringList names() const { return folder.entryList({"*.html"}, QDir::Files); }
    QString page(const QString &name) const
    {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return QString::fromUtf8(file.readAll());
    }
    QList<QUrl> links(const QString &name) const
    {
        static const QRegularExpression link("(?:href|src)=\"([^\"]*)\"");
        QList<QUrl> found;
        for (const QRegularExpressionMatch &match : link.globalMatch(page(name)))
            found += QUrl(match.captured(1));
        return found;
    }

    const QDir folder{builtPath() + "/Contents/Resources/" + QString::fromStdString(GetParam()) + "Pages"};
};

INSTANTIATE_TEST_SUITE_P(PaneResources, PagesOfALanguage, testing::ValuesIn(folders()));

} // namespace

TEST(PaneResources, theInfoDictionaryNamesWhatTheHostAndThePaneAskFor)
{
    EXPECT_EQ(info().value("CFBundleIdentifier"), "com.quorvane.Lumaroo");
    EXPECT_EQ(info().value("CFBundleExecutable"), "Lumaroo");
    EXPECT_EQ(info().value("NSPrincipalClass"), "KTXLumarooPreferencePane");
    EXPECT_EQ(info().value("NSMainNibFile"), "LumarooPref");
    EXPECT_EQ(info().value("CFBundleHelpBookName"), "Lumaroo Help");
    EXPECT_EQ(info().value("LMPlatformVersion").toInt(), LUMAROO_PLATFORM_VERSION);
    EXPECT_GT(info().value("CFBundleVersion").toString().toInt(), 0);
    EXPECT_FALSE(info().value("CFBundleShortVersionString").toString().isEmpty());
    EXPECT_FALSE(info().value("NSPrefPaneSearchKeywords").toStringList().isEmpty());
}

TEST(PaneResources, theAddressesAreOfTheRightKind)
{
    EXPECT_EQ(QUrl(info().value("SUFeedURL").toString()).scheme(), "https");
    EXPECT_EQ(QUrl(info().value("KTXProductPage").toString()).scheme(), "http");
    EXPECT_EQ(QUrl(info().value("KTXFeedbackPage").toString()).scheme(), "http");
}

TEST(PaneResources, theCopyrightReadsWellUpToItsFirstComma)
{
    const NSBundle *bundle = NSBundle::bundleWithPath(builtPath());
    ASSERT_TRUE(bundle);
    EXPECT_EQ(info().value("NSHumanReadableCopyright").toString().section(',', 0, 0),
        QString("Copyright © 2026 The Lumaroo developers"));
}

TEST(PaneResources, areThereInEveryLanguage)
{
    const QStringList languages = NSBundle::bundleWithPath(builtPath())->localizations();
    for (const std::string &language : languagesOfTheProgram())
        EXPECT_TRUE(languages.contains(QString::fromStdString(language))) << language;
    for (const std::string &language : translations()) {
        const QString name = QString::fromStdString(language);
        for (const QString &table : stringTableNames("pane", name))
            EXPECT_TRUE(QFile::exists(builtPath() + "/Contents/Resources/" + name + ".lproj/" + table + ".qm"))
                << language << ": " << qPrintable(table);
    }
}

TEST_P(CreditsOfALanguage, holdTheMarkerOfTheCopyrightOnce)
{
    EXPECT_EQ(credits.string().count("<<copyright>>"), 1);
}

TEST_P(CreditsOfALanguage, haveNoImageBesideThePagesIconAndLeadToTheLibraries)
{
    const auto document = credits.document();
    EXPECT_EQ(credits.string().count(QChar::ObjectReplacementCharacter), 0);
    EXPECT_EQ(document->begin().blockFormat().alignment(), Qt::AlignHCenter);
    EXPECT_FALSE(credits.string().contains(QChar(0x00AC)));
    EXPECT_FALSE(credits.string().contains(QChar::ReplacementCharacter));
    EXPECT_TRUE(document->toHtml().contains("href=\"https://www.qt.io/\""));
}

TEST(PaneResources, theIconHasAPictureForEachCommonSize)
{
    QImageReader reader(builtPath() + "/Contents/Resources/Lumaroo.icns");
    ASSERT_TRUE(reader.canRead());
    QList<int> widths;
    for (int index = 0; index < reader.imageCount(); ++index) {
        ASSERT_TRUE(reader.jumpToImage(index));
        const QImage image = reader.read();
        EXPECT_GT(image.pixelColor(image.rect().center()).alpha(), 0);
        EXPECT_EQ(image.pixelColor(0, 0).alpha(), 0);
        widths += image.width();
    }
    std::sort(widths.begin(), widths.end());
    EXPECT_EQ(widths, QList<int>({16, 32, 64, 128, 256, 512}));
}

TEST(PaneResources, theInterfaceFileNamesHeadersThatExist)
{
    const QDir resources(builtPath() + "/Contents/Resources");
    static const QRegularExpression header("<header>([^<]*)</header>");
    int headers = 0;
    for (const QString &name : resources.entryList({"*.ui"}, QDir::Files)) {
        QFile file(resources.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        for (const QRegularExpressionMatch &match : header.globalMatch(QString::fromUtf8(file.readAll()))) {
            EXPECT_TRUE(QFile::exists(qEnvironmentVariable("LUMAROO_SOURCE") + '/' + match.captured(1)))
                << name.toStdString() << ": " << match.captured(1).toStdString();
            ++headers;
        }
    }
    EXPECT_GT(headers, 0);
}

TEST_P(PagesOfALanguage, areThereInEachLanguage)
{
    EXPECT_EQ(names(), QStringList({"AtAGlance.html", "FirstSteps.html", "ReleaseNotes.html"}));
}

TEST_P(PagesOfALanguage, leadToEachOtherAndToTheProductPageOnly)
{
    const QUrl productPage(info().value("KTXProductPage").toString());
    for (const QString &name : names()) {
        EXPECT_FALSE(links(name).isEmpty());
        for (const QUrl &link : links(name))
            EXPECT_TRUE(link == productPage || folder.exists(link.toString())) << link.toString().toStdString();
    }
    EXPECT_TRUE(links("AtAGlance.html").contains(productPage));
}

TEST_P(PagesOfALanguage, sayInWhichEncodingTheyAreAndLeaveNoPlaceholder)
{
    for (const QString &name : names()) {
        EXPECT_TRUE(page(name).contains("<meta charset=\"utf-8\">"));
        EXPECT_FALSE(page(name).contains('@'));
        EXPECT_FALSE(page(name).contains(QChar::ReplacementCharacter));
    }
}
