#include "CapturedLog.h"
#include "TestBundle.h"
#include "platform/foundation/bundles/NSBundle.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <cstdio>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

const char *const questionVariable = "LUMAROO_TEST_ASKS_FOR_MAIN_BUNDLE";

/// Started a second time inside a bundle, this program tells its main bundle, before there is an application object.
[[maybe_unused]] const bool isAsked = [] {
    if (!qEnvironmentVariableIsSet(questionVariable))
        return false;
    const NSBundle *bundle = NSBundle::mainBundle();
    const bool isFound = NSBundle::bundleWithIdentifier(bundle->bundleIdentifier()) == bundle;
    std::puts(
        qPrintable(bundle->bundlePath() + u'|' + bundle->bundleIdentifier() + (isFound ? "|found" : "|not found")));
    std::exit(0);
}();

QString mainBundleOf(const QString &executable)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(questionVariable, "1");
    process.setProcessEnvironment(environment);
    process.start(executable, {});
    EXPECT_TRUE(process.waitForFinished()) << process.errorString().toStdString();
    return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
}

class Bundle : public testing::Test
{
protected:
    NSBundle *bundle() const { return NSBundle::bundleWithPath(sample.path()); }

    TestBundle sample{"Sample.prefPane"};
    CapturedLog log;
};

} // namespace

TEST_F(Bundle, isOneObjectForOnePath)
{
    const QString link = QFileInfo(sample.path()).path() + "/Link.prefPane";
    ASSERT_TRUE(QFile::link(sample.path(), link));
    EXPECT_EQ(NSBundle::bundleWithPath(sample.path() + "/"), bundle());
    EXPECT_EQ(NSBundle::bundleWithPath(sample.path() + "/Contents/.."), bundle());
    EXPECT_EQ(NSBundle::bundleWithPath(link), bundle());
    EXPECT_EQ(bundle()->bundlePath(), QFileInfo(sample.path()).canonicalFilePath());
}

TEST_F(Bundle, thatDoesNotExistIsNone)
{
    EXPECT_EQ(NSBundle::bundleWithPath(sample.path() + "/nowhere"), nullptr);
    EXPECT_EQ(NSBundle::bundleWithPath(""), nullptr);
    sample.writeFile("a file", {});
    EXPECT_EQ(NSBundle::bundleWithPath(sample.path() + "/a file"), nullptr);
}

TEST_F(Bundle, isFoundByItsIdentifierOnceItIsUsed)
{
    sample.writeInfo({{"CFBundleIdentifier", "com.quorvane.Sample"}});
    EXPECT_EQ(NSBundle::bundleWithIdentifier("com.quorvane.Sample"), nullptr);
    NSBundle *used = bundle();
    EXPECT_EQ(NSBundle::bundleWithIdentifier("com.quorvane.Sample"), used);
    EXPECT_EQ(NSBundle::bundleWithIdentifier(""), nullptr);
}

TEST_F(Bundle, thatIsLoadedIsFoundBeforeOneThatWasMerelyLookedAt)
{
    const QVariantMap info{{"CFBundleIdentifier", "com.quorvane.Loaded"}};
    const TestBundle other("Other.prefPane"), another("Another.prefPane");
    for (const TestBundle *each : std::initializer_list<const TestBundle *>{&sample, &other, &another})
        each->writeInfo(info);
    ASSERT_EQ(NSBundle::bundleWithPath(sample.path())->bundleIdentifier(), "com.quorvane.Loaded");
    NSBundle *later = NSBundle::bundleWithPath(other.path());
    NSBundle *last = NSBundle::bundleWithPath(another.path());
    last->setLoaded();
    EXPECT_EQ(NSBundle::bundleWithIdentifier("com.quorvane.Loaded"), last);
    later->setLoaded();
    EXPECT_EQ(NSBundle::bundleWithIdentifier("com.quorvane.Loaded"), later) << "it is the one that comes up";
    last->setLoaded();
    EXPECT_EQ(NSBundle::bundleWithIdentifier("com.quorvane.Loaded"), last);
}

TEST_F(Bundle, knowsItsPlacesAndNames)
{
    sample.writeInfo(
        {{"CFBundleIdentifier", "com.quorvane.Places"}, {"CFBundleExecutable", "Sample"}, {"CFBundleVersion", "120"}});
    EXPECT_EQ(bundle()->resourcePath(), bundle()->bundlePath() + "/Contents/Resources");
    EXPECT_EQ(bundle()->executablePath(), bundle()->bundlePath() + "/Contents/Linux/Sample");
    EXPECT_EQ(bundle()->bundleIdentifier(), "com.quorvane.Places");
    EXPECT_EQ(bundle()->objectForInfoDictionaryKey("CFBundleVersion"), QVariant("120"));
    EXPECT_FALSE(bundle()->objectForInfoDictionaryKey("nothing").isValid());
}

TEST_F(Bundle, withoutInfoPlistHasAnEmptyDictionary)
{
    EXPECT_TRUE(bundle()->infoDictionary().isEmpty());
    EXPECT_EQ(bundle()->bundleIdentifier(), "");
    EXPECT_EQ(bundle()->executablePath(), "");
    EXPECT_TRUE(log.lines().isEmpty());
}

TEST_F(Bundle, withAnUnreadableInfoPlistHasAnEmptyDictionaryAndOneLoggedLine)
{
    sample.writeFile("Contents/Info.plist", "no property list");
    EXPECT_TRUE(bundle()->infoDictionary().isEmpty());
    EXPECT_TRUE(bundle()->localizedInfoDictionary().isEmpty());
    ASSERT_EQ(log.lines().size(), 1);
    EXPECT_TRUE(log.lines().constFirst().contains(bundle()->bundlePath()));
}

TEST_F(Bundle, whoseInfoPlistIsAListHasAnEmptyDictionary)
{
    sample.writeFile("Contents/Info.plist", "<plist version=\"1.0\"><array/></plist>");
    EXPECT_TRUE(bundle()->infoDictionary().isEmpty());
    EXPECT_EQ(log.linesContaining("holds no dictionary").size(), 1);
}

TEST_F(Bundle, whoseInfoPlistMayNotBeReadHasAnEmptyDictionary)
{
    sample.writeInfo({{"CFBundleVersion", "120"}});
    ASSERT_EQ(chmod(qPrintable(sample.path() + "/Contents/Info.plist"), 0), 0);
    EXPECT_TRUE(bundle()->infoDictionary().isEmpty());
    EXPECT_EQ(log.lines().size(), 1);
}

TEST_F(Bundle, whoseInfoPlistIsAPipeHasAnEmptyDictionary)
{
    ASSERT_EQ(mkfifo(qPrintable(sample.path() + "/Contents/Info.plist"), 0600), 0);
    EXPECT_TRUE(bundle()->infoDictionary().isEmpty());
    EXPECT_EQ(log.lines().size(), 1);
}

TEST_F(Bundle, whoseInfoPlistIsHugeHasAnEmptyDictionary)
{
    sample.writeInfo({{"CFBundleVersion", "120"}});
    ASSERT_TRUE(QFile::resize(sample.path() + "/Contents/Info.plist", qint64(8) << 30));
    EXPECT_TRUE(bundle()->infoDictionary().isEmpty());
    EXPECT_EQ(log.lines().size(), 1);
}

TEST_F(Bundle, whoseNamesAreNoTextsHasNone)
{
    sample.writeInfo({{"CFBundleIdentifier", 7}, {"CFBundleExecutable", QVariantList{"Sample"}}});
    EXPECT_EQ(bundle()->bundleIdentifier(), "");
    EXPECT_EQ(bundle()->executablePath(), "");
}

TEST_F(Bundle, exchangedOnDiskKeepsAnsweringWithWhatWasLoaded)
{
    sample.writeInfo({{"CFBundleVersion", "120"}});
    EXPECT_EQ(bundle()->infoDictionary().value("CFBundleVersion"), QVariant("120"));
    ASSERT_TRUE(QDir(sample.path()).removeRecursively());
    sample.writeInfo({{"CFBundleVersion", "121"}});
    EXPECT_EQ(bundle()->infoDictionary().value("CFBundleVersion"), QVariant("120"));
    EXPECT_EQ(NSBundle::infoDictionaryOnDisk(sample.path()).value("CFBundleVersion"), QVariant("121"));
}

TEST_F(Bundle, onDiskIsEmptyWhenItIsMissingOrUnreadable)
{
    EXPECT_TRUE(NSBundle::infoDictionaryOnDisk(sample.path() + "/nowhere").isEmpty());
    sample.writeFile("Contents/Info.plist", "no property list");
    EXPECT_TRUE(NSBundle::infoDictionaryOnDisk(sample.path()).isEmpty());
}

TEST_F(Bundle, findsResourcesByNameAndType)
{
    sample.writeFile("Contents/Resources/Credits.rtfd/TXT.rtf", "text");
    sample.writeFile("Contents/Resources/launcher", "code");
    EXPECT_EQ(bundle()->pathForResourceOfType("Credits", "rtfd"), bundle()->resourcePath() + "/Credits.rtfd");
    EXPECT_EQ(bundle()->pathForResourceOfType("launcher", ""), bundle()->resourcePath() + "/launcher");
    EXPECT_EQ(bundle()->pathForResourceOfType("Credits", "txt"), "");
    EXPECT_EQ(bundle()->pathForResourceOfType("", ""), "");
    EXPECT_EQ(bundle()->pathForResourceOfType("", "rtfd"), "");
}

TEST(MainBundle, ofABareExecutableIsItsFolder)
{
    EXPECT_EQ(NSBundle::mainBundle()->bundlePath(), QCoreApplication::applicationDirPath());
    EXPECT_EQ(NSBundle::mainBundle(), NSBundle::mainBundle());
    EXPECT_EQ(NSBundle::mainBundle(), NSBundle::bundleWithPath(QCoreApplication::applicationDirPath()));
}

TEST(MainBundle, isTheOneAroundTheExecutable)
{
    const TestBundle application("Settings.app");
    application.writeInfo({{"CFBundleIdentifier", "com.apple.systempreferences"}});
    const QString executable = application.path() + "/Contents/Linux/settings";
    ASSERT_TRUE(QDir().mkpath(QFileInfo(executable).path()));
    ASSERT_TRUE(QFile::copy(QCoreApplication::applicationFilePath(), executable));
    const QString expected = QFileInfo(application.path()).canonicalFilePath() + "|com.apple.systempreferences|found";
    EXPECT_EQ(mainBundleOf(executable), expected);

    const QString link = QFileInfo(application.path()).path() + "/lumaroo-settings";
    ASSERT_TRUE(QFile::link(executable, link));
    EXPECT_EQ(mainBundleOf(link), expected);
}
