#include "ProgramResult.h"
#include "UpdatableBundle.h"
#include "updater/core/Appcast.h"

#include <QDir>
#include <QFile>

// The two programs of whoever publishes versions.

namespace {

ProgramResult runTool(const QString &name, const QStringList &arguments, const QByteArray &input = {})
{
    return runProgram(qEnvironmentVariable("LUMAROO_BUILD") + "/bin/" + name, arguments, input);
}

class MakersTools : public UpdatableBundle
{
protected:
    MakersTools()
    {
        QDir().mkpath(published);
        write(keyFile, key.seed() + '\n');
        QFile::setPermissions(keyFile, QFile::ReadOwner | QFile::WriteOwner);
    }

    void publish(const QString &name, const QByteArray &tar) const
    {
        write(published + '/' + name, compressed(tar, name.endsWith(".xz") ? "xz" : "gzip"));
    }
    QStringList orderWith(const QStringList &more = {}) const
    {
        return QStringList{"--key", keyFile, "--address", "https://updates.example/lumaroo"} + more
            + QStringList(published);
    }
    QList<AppcastItem> itemsOfFeed() const
    {
        const AppcastReading reading =
            readAppcast(contentOf(published + "/appcast.xml"), QUrl("https://updates.example/lumaroo/appcast.xml"));
        EXPECT_EQ(reading.error, QString());
        EXPECT_EQ(reading.problems, QStringList());
        return reading.items;
    }
    void expectRefused(const ProgramResult &result, const std::string &reason) const
    {
        EXPECT_EQ(result.status, 1);
        EXPECT_NE(result.errors.find(reason), std::string::npos) << result.errors;
        EXPECT_EQ(result.output, "");
        EXPECT_FALSE(QFile::exists(published + "/appcast.xml"));
    }

    const QString published = path("published");
    const QString keyFile = path("key");
};

} // namespace

TEST_F(MakersTools, signAnArchiveAsTheUpdaterVerifiesIt)
{
    write(path("archive"), "content");
    const ProgramResult result = runTool("sign-update", {"--key", keyFile, path("archive")});
    EXPECT_EQ(result.status, 0) << result.errors;
    const QByteArray signature = QByteArray::fromStdString(result.output).split('"').value(1);
    EXPECT_TRUE(
        isSignedBy(QByteArray::fromBase64(key.publicKey()), "content", bytesOfBase64(signature, signatureSize)));
    EXPECT_EQ(QByteArray::fromStdString(result.output), "sparkle:edSignature=\"" + signature + "\" length=\"7\"\n");
}

TEST_F(MakersTools, takeTheKeyFromStandardInputToo)
{
    write(path("archive"), "content");
    const ProgramResult fromFile = runTool("sign-update", {"--key", keyFile, path("archive")});
    EXPECT_EQ(runTool("sign-update", {"--key", "-", path("archive")}, key.seed()).output, fromFile.output);
    EXPECT_EQ(runTool("sign-update", {"--key", "-", "--public-key"}, key.seed() + '\n').output,
        key.publicKey().toStdString() + '\n');
}

TEST_F(MakersTools, makeAKeyThatOnlyItsOwnerMayRead)
{
    const ProgramResult result = runTool("sign-update", {"--generate", path("new-key")});
    ASSERT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(QFile(path("new-key")).permissions() & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
    EXPECT_EQ(result.output, SigningKey::ofSeed(contentOf(path("new-key"))).publicKey().toStdString() + '\n');
    const QByteArray before = contentOf(path("new-key"));
    EXPECT_EQ(runTool("sign-update", {"--generate", path("new-key")}).status, 1) << "none is overwritten";
    EXPECT_EQ(contentOf(path("new-key")), before);
}

TEST_F(MakersTools, refuseAKeyThatOthersMayRead)
{
    for (const auto right : {QFile::ReadGroup, QFile::WriteGroup, QFile::ReadOther, QFile::WriteOther}) {
        QFile::setPermissions(keyFile, QFile::ReadOwner | QFile::WriteOwner | right);
        expectRefused(runTool("make-appcast", orderWith()), "make it yours alone");
        expectRefused(runTool("sign-update", {"--key", keyFile, "--public-key"}), "make it yours alone");
    }
}

TEST_F(MakersTools, refuseWhatIsNoKey)
{
    expectRefused(runTool("sign-update", {"--key", "-", "--public-key"}, "no key"), "standard input holds no key");
    expectRefused(runTool("sign-update", {"--key", path("absent"), "--public-key"}), "absent");
}

TEST_F(MakersTools, saySoWhenTheCommandLineMakesNoSense)
{
    for (const QStringList &arguments : {QStringList(), QStringList{"--key", keyFile}, QStringList{"archive"},
             QStringList{"--generate", "a", "archive"}, QStringList{"--key", keyFile, "--public-key", "archive"}})
        EXPECT_EQ(runTool("sign-update", arguments).status, 2) << arguments.join(' ').toStdString();
    EXPECT_EQ(runTool("make-appcast", {published}).status, 2);
}

TEST_F(MakersTools, writeAFeedOfAFolder)
{
    publish("Sample-101.tar.xz", archiveOf(101));
    publish("Sample-102.tar.gz", archiveOf(102));
    write(published + "/Sample-102.html", "<p>New</p>");
    const ProgramResult result = runTool(
        "make-appcast", orderWith({"--channel", "102=beta", "--critical", "101=99", "--minimum-system", "6.1"}));
    ASSERT_EQ(result.status, 0) << result.errors;
    const QList<AppcastItem> items = itemsOfFeed();
    ASSERT_EQ(items.size(), 2);
    EXPECT_EQ(items[0].version, "102");
    EXPECT_EQ(items[0].displayVersion, "1.2");
    EXPECT_EQ(items[0].title, "Sample 1.2");
    EXPECT_EQ(items[0].channel, "beta");
    EXPECT_FALSE(items[0].isCritical);
    EXPECT_EQ(items[0].releaseNotes, QUrl("https://updates.example/lumaroo/Sample-102.html"));
    EXPECT_EQ(items[1].version, "101");
    EXPECT_EQ(items[1].channel, QString());
    EXPECT_TRUE(items[1].isCritical);
    EXPECT_EQ(items[1].criticalBelow, "99");
    EXPECT_TRUE(items[1].releaseNotes.isEmpty());
    for (const AppcastItem &item : items) {
        EXPECT_EQ(item.minimumSystemVersion, "6.1");
        EXPECT_EQ(item.minimumPlatformVersion, LUMAROO_PLATFORM_VERSION);
        EXPECT_EQ(item.operatingSystem, "linux");
        EXPECT_TRUE(item.published.isValid());
        const QByteArray archive = contentOf(published + '/' + item.archive.fileName());
        EXPECT_EQ(item.length, archive.size());
        EXPECT_TRUE(isSignedBy(QByteArray::fromBase64(key.publicKey()), archive, item.signature));
    }
}

TEST_F(MakersTools, refuseAnArchiveThatNobodyCouldInstall)
{
    publish("Sample-101.tar.xz", tarFile({{"../out", TarEntry::File, "x"}}));
    expectRefused(runTool("make-appcast", orderWith()), "Sample-101.tar.xz could not be installed");
    publish("Sample-101.tar.xz", tarFile({{"Sample.prefPane/a", TarEntry::File, "x"}}));
    expectRefused(runTool("make-appcast", orderWith()), "holds no bundle with a version");
}

TEST_F(MakersTools, refuseTwoArchivesOfOneVersion)
{
    publish("a.tar.xz", archiveOf(101));
    publish("b.tar.gz", archiveOf(101));
    expectRefused(runTool("make-appcast", orderWith()), "there are two archives of version 101");
}

TEST_F(MakersTools, refuseAnEmptyFolderAndVersionsThatAreNotThere)
{
    expectRefused(runTool("make-appcast", orderWith()), "holds no archive");
    publish("a.tar.xz", archiveOf(101));
    expectRefused(runTool("make-appcast", orderWith({"--critical", "102"})), "there is no archive of version 102");
    expectRefused(runTool("make-appcast", orderWith({"--channel", "=beta"})), "is no version");
}

TEST_F(MakersTools, refuseAnAddressThatUpdatesDoNotComeFrom)
{
    publish("a.tar.xz", archiveOf(101));
    expectRefused(runTool("make-appcast", {"--key", keyFile, "--address", "http://updates.example/", published}),
        "is no address that updates come from");
}
