// Which file of which bundle the help viewer shows, and what it keeps of it.

#include "CapturedLog.h"
#include "HelpViewerOnDisplay.h"

#include "platform/foundation/bundles/NSBundle.h"

#include <QDir>
#include <QDirIterator>
#include <QLineEdit>
#include <QListWidget>
#include <linux/input-event-codes.h>
#include <sys/stat.h>

namespace {

const QString english = QStringLiteral("Lower the wheel");
const QString german = QStringLiteral("Fahren Sie vor der Piste");
const QString unavailable = QStringLiteral("This help is not available");

class ABookOfHelp : public TheHelpViewer
{
protected:
    ABookOfHelp() { QDir(cache).removeRecursively(); }
    ~ABookOfHelp() override { QLocale::setDefault(QLocale::c()); }

    /// What the viewer shows when it is asked for the book's landing.
    static QString shown()
    {
        ask(QStringLiteral("landing"));
        EXPECT_TRUE(helpComesUp());
        const QString text = helpPage()->toPlainText();
        for (const QString &known : {english, german, unavailable}) {
            if (text.contains(known))
                return known;
        }
        return text;
    }
    /// The viewer gives its book up for another one.
    static void forgetBook()
    {
        NSHelpManager::sharedHelpManager()->openHelpAnchorInBook(QStringLiteral("landing"), QStringLiteral("None"));
        closeHelp();
    }
    static bool searchFinds(const QString &word)
    {
        partOfHelp<QLineEdit>("helpSearch")->setText(word);
        return waitUntil([] { return partOfHelp<QListWidget>("helpResults")->count() == 1; });
    }
    QStringList filesOfCache() const
    {
        QStringList files;
        QDirIterator all(cache, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (all.hasNext())
            files += all.next();
        return files;
    }
    QStringList versionsInCache() const
    {
        return QDir(cache + QStringLiteral("/Test Help")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    }
    /// Makes the second half of a file zeros.
    static void tear(const QString &path)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        const qint64 half = file.size() / 2;
        file.seek(half);
        file.write(QByteArray(file.size() - half, 0));
    }

    const QString cache = qEnvironmentVariable("XDG_CACHE_HOME") + QStringLiteral("/lumaroo/help");
};

} // namespace

TEST_F(ABookOfHelp, isFoundInTheUsersLanguage)
{
    for (const auto &[language, text] : {std::pair{"de_AT", german}, {"en_GB", english}, {"fr_FR", english}}) {
        QLocale::setDefault(QLocale(language));
        EXPECT_EQ(shown(), text) << language;
    }
}

TEST_F(ABookOfHelp, isFoundInAnyLanguageThatItHasWhereItHasNoneOfTheUsers)
{
    ASSERT_TRUE(QDir(bundle.resourcePath() + "/Test.help/en.lproj").removeRecursively());
    QLocale::setDefault(QLocale("fr_FR"));
    EXPECT_EQ(shown(), german);
}

TEST_F(ABookOfHelp, isFoundWhereItsBundleIsLoadedFromWhenItIsNotWhereItWas)
{
    NSBundle::bundleWithPath(bundle.path())->setLoaded();
    for (const QVariantMap &place : {QVariantMap{}, QVariantMap{{"path", "/gone"}}, QVariantMap{{"path", 7LL}}}) {
        QVariantMap book = place;
        book.insert("id", "Test Help");
        setRegisteredBooks(QVariantMap{{bundle.identifier(), QVariantList{"text", book}}, {"odd", "text"}});
        EXPECT_EQ(shown(), english);
        forgetBook();
    }
}

TEST_F(ABookOfHelp, thatLiesOutsideItsBundleOrIsMissingIsNotAvailable)
{
    for (const QVariant &folder :
        {QVariant(), QVariant("../Resources/Test.help"), QVariant("Gone.help"), QVariant(7LL)}) {
        const HelpBundle odd({{"CFBundleHelpBookFolder", folder}});
        setRegisteredBooks({});
        odd.registerBook();
        EXPECT_EQ(shown(), unavailable) << qPrintable(folder.toString());
    }
}

TEST_F(ABookOfHelp, thatIsTornIsNotAvailable)
{
    const CapturedLog log;
    tear(bundle.bookFile());
    EXPECT_EQ(shown(), unavailable);
    EXPECT_EQ(log.linesContaining("is damaged").size(), 1);
    bundle.writeFile("Contents/Resources/Test.help/en.lproj/Help.qch", "no help file");
    EXPECT_EQ(shown(), unavailable);
    bundle.writeFile("Contents/Resources/Test.help/en.lproj/Help.qch", "");
    EXPECT_EQ(shown(), unavailable);
}

TEST_F(ABookOfHelp, keepsItsCollectionAndSearchIndexInTheCacheByNameAndVersion)
{
    ASSERT_EQ(shown(), english);
    ASSERT_TRUE(searchFinds("runway"));
    ASSERT_EQ(versionsInCache().size(), 1);
    EXPECT_TRUE(versionsInCache().constFirst().startsWith("7-en-"));
    EXPECT_GE(filesOfCache().size(), 2) << qPrintable(filesOfCache().join(' '));
}

TEST_F(ABookOfHelp, ofANewVersionTakesThePlaceOfTheOldOneInTheCache)
{
    ASSERT_EQ(shown(), english);
    forgetBook();
    const HelpBundle next({{"CFBundleVersion", "8"}});
    ASSERT_EQ(next.registerBook(), 0);
    ASSERT_EQ(shown(), english);
    ASSERT_EQ(versionsInCache().size(), 1);
    EXPECT_TRUE(versionsInCache().constFirst().startsWith("8-en-"));
}

TEST_F(ABookOfHelp, isOpenedAndSearchedAllTheSameWhereItsCacheIsTorn)
{
    ASSERT_EQ(shown(), english);
    ASSERT_TRUE(searchFinds("runway"));
    const QStringList files = filesOfCache();
    for (const QString &file : files) {
        forgetBook();
        tear(file);
        EXPECT_EQ(shown(), english) << qPrintable(file);
        EXPECT_TRUE(searchFinds("runway")) << qPrintable(file);
    }
    forgetBook();
    for (const QString &file : files)
        ASSERT_TRUE(QFile(file).open(QIODevice::WriteOnly | QIODevice::Truncate));
    EXPECT_EQ(shown(), english);
    EXPECT_TRUE(searchFinds("runway"));
}

TEST_F(ABookOfHelp, isOpenedAndSearchedAllTheSameWhereTheCacheCannotBeWritten)
{
    ASSERT_TRUE(QDir().mkpath(cache));
    ASSERT_EQ(::chmod(QFile::encodeName(cache).constData(), 0500), 0);
    EXPECT_EQ(shown(), english);
    EXPECT_TRUE(searchFinds("runway"));
    EXPECT_EQ(filesOfCache(), QStringList());
    EXPECT_EQ(QDir(QDir::tempPath()).entryList({"lumaroo-help-*"}).size(), 1);
    forgetBook();
    EXPECT_EQ(QDir(QDir::tempPath()).entryList({"lumaroo-help-*"}), QStringList()) << "nothing is left behind";
    ASSERT_EQ(::chmod(QFile::encodeName(cache).constData(), 0700), 0);
}

TEST_F(ABookOfHelp, whoseNameIsAPathStaysInTheCache)
{
    const HelpBundle odd({{"CFBundleHelpBookName", "../../../Odd/Help"}});
    ASSERT_EQ(odd.registerBook(), 0);
    NSHelpManager::sharedHelpManager()->openHelpAnchorInBook("landing", "../../../Odd/Help");
    ASSERT_TRUE(helpShows("gliding.html#landing"));
    EXPECT_EQ(QDir(cache).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(), 1);
}
