#include "TarFile.h"
#include "updater/core/UpdateArchive.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <sys/stat.h>

// What an archive could do besides being unpacked into its folder: nothing of such a one is written at all.

namespace {

const TarEntry top{"Sample.prefPane/", TarEntry::Folder};

TarEntry linkTo(const QByteArray &path, const QByteArray &target)
{
    return {path, TarEntry::SymbolicLink, {}, target};
}

class ArchiveAttack : public testing::Test
{
protected:
    ArchiveAttack() { QDir().mkpath(folder); }

    /// Everything below the test's own folder.
    QStringList written() const
    {
        QStringList found;
        QDirIterator entries(temporary.path(), QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
            QDirIterator::Subdirectories);
        while (entries.hasNext())
            found += entries.next().mid(temporary.path().size() + 1);
        found.sort();
        return found;
    }
    QString refusal(const QList<TarEntry> &entries, const ArchiveLimits &limits = {}) const
    {
        return refusalOf(tarFile(entries), limits);
    }
    QString refusalOf(const QByteArray &archive, const ArchiveLimits &limits = {}) const
    {
        const QString problem = unpackUpdateArchive(archive, folder, limits);
        EXPECT_EQ(written(), QStringList("unpacked"));
        EXPECT_EQ(listUpdateArchive(archive, limits).error, problem);
        return problem;
    }
    QString unpacked(const QList<TarEntry> &entries) const { return unpackUpdateArchive(tarFile(entries), folder); }
    mode_t modeOf(const QString &name) const
    {
        struct stat status = {};
        EXPECT_EQ(::lstat(QFile::encodeName(folder + '/' + name).constData(), &status), 0) << name.toStdString();
        return status.st_mode & 07777;
    }
    QByteArray contentOf(const QString &name) const
    {
        QFile file(folder + '/' + name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir temporary;
    const QString folder = temporary.filePath("unpacked");
};

} // namespace

TEST_F(ArchiveAttack, aGoodOneIsUnpacked)
{
    EXPECT_EQ(unpacked({top, {"Sample.prefPane/a/", TarEntry::Folder}, {"Sample.prefPane/a/b", TarEntry::File, "b"},
                  linkTo("Sample.prefPane/l", "a/b"), linkTo("Sample.prefPane/a/up", "../a/b")}),
        QString());
    EXPECT_EQ(contentOf("Sample.prefPane/a/b"), "b");
    EXPECT_EQ(contentOf("Sample.prefPane/l"), "b");
    EXPECT_EQ(contentOf("Sample.prefPane/a/up"), "b");
}

TEST_F(ArchiveAttack, aCompressedOneIsUnpacked)
{
    for (const char *program : {"gzip", "xz"}) {
        const QByteArray archive = compressed(tarFile({top, {"Sample.prefPane/a", TarEntry::File, "b"}}), program);
        EXPECT_EQ(unpackUpdateArchive(archive, folder), QString()) << program;
        EXPECT_EQ(contentOf("Sample.prefPane/a"), "b");
        QDir(folder + "/Sample.prefPane").removeRecursively();
    }
}

TEST_F(ArchiveAttack, modesOwnersAndSpecialBitsDoNotCount)
{
    EXPECT_EQ(unpacked({{"S/", TarEntry::Folder, {}, {}, 01777}, {"S/run", TarEntry::File, "x", {}, 06777},
                  {"S/text", TarEntry::File, "x", {}, 0666}, {"S/none", TarEntry::File, "x", {}, 0}}),
        QString());
    EXPECT_EQ(modeOf("S"), 0755u);
    EXPECT_EQ(modeOf("S/run"), 0755u);
    EXPECT_EQ(modeOf("S/text"), 0644u);
    EXPECT_EQ(modeOf("S/none"), 0644u);
}

TEST_F(ArchiveAttack, theProcessStaysInItsFolder)
{
    const QString before = QDir::currentPath();
    EXPECT_EQ(unpacked({top}), QString());
    EXPECT_EQ(QDir::currentPath(), before);
}

TEST_F(ArchiveAttack, pathsThatGoUpAreRefused)
{
    for (const char *path : {"../out", "Sample.prefPane/../../out", "Sample.prefPane/..", "..", "Sample.prefPane/./a",
             "./Sample.prefPane", "Sample.prefPane//a"})
        EXPECT_NE(refusal({top, {path, TarEntry::File, "x"}}), QString()) << path;
}

TEST_F(ArchiveAttack, anAbsolutePathIsRefused)
{
    EXPECT_EQ(refusal({top, {temporary.filePath("out").toUtf8(), TarEntry::File, "x"}}),
        '"' + temporary.filePath("out") + "\": its path is absolute");
    EXPECT_NE(refusal({{"/", TarEntry::Folder}}), QString());
}

TEST_F(ArchiveAttack, whatLiesOutsideTheOneFolderIsRefused)
{
    EXPECT_EQ(refusal({top, {"Other.prefPane/a", TarEntry::File, "x"}}),
        "\"Other.prefPane/a\": it lies outside \"Sample.prefPane\"");
}

TEST_F(ArchiveAttack, aLinkOutOfTheBundleIsRefusedAtEachLevel)
{
    for (const char *path : {"Sample.prefPane", "Sample.prefPane/a", "Sample.prefPane/a/b", "Sample.prefPane/a/b/c"}) {
        const QByteArray up = QByteArray("../").repeated(QByteArray(path).count('/'));
        for (const QByteArray &target : {QByteArray("/etc"), QByteArray(), QByteArray("/"), up + "out", up + "..",
                 QByteArray("x/../") + up + "../out", QByteArray("./a")})
            EXPECT_NE(refusal({linkTo(path, target)}), QString()) << path << " -> " << target.constData();
    }
}

TEST_F(ArchiveAttack, aLinkThatGoesDownBeforeItGoesUpIsRefused)
{
    // Its text stays in the bundle, but "loop" leads to the top, and from there it would go out.
    EXPECT_EQ(refusal({top, linkTo("Sample.prefPane/x/y/loop", "../.."),
                  linkTo("Sample.prefPane/x/y/out", "loop/../../out")}),
        "\"Sample.prefPane/x/y/out\": it leads out of the bundle, to \"loop/../../out\"");
}

TEST_F(ArchiveAttack, whatLiesBehindALinkIsRefused)
{
    for (const char *path : {"Sample.prefPane/l/x", "Sample.prefPane/l/x/y"})
        EXPECT_NE(refusal({top, {"Sample.prefPane/a/", TarEntry::Folder}, linkTo("Sample.prefPane/l", "a"),
                      {path, TarEntry::File, "x"}}),
            QString());
    EXPECT_NE(refusal({top, linkTo("Sample.prefPane/l", "a"), {"Sample.prefPane/l/", TarEntry::Folder}}), QString());
}

TEST_F(ArchiveAttack, whatIsThereTwiceIsRefused)
{
    const TarEntry file{"Sample.prefPane/a", TarEntry::File, "x"};
    EXPECT_EQ(refusal({top, file, file}), "\"Sample.prefPane/a\": it is there twice");
    EXPECT_NE(refusal({top, file, linkTo("Sample.prefPane/a", "b")}), QString());
    EXPECT_NE(refusal({top, linkTo("Sample.prefPane/a", "b"), file}), QString());
    EXPECT_NE(refusal({top, {"Sample.prefPane/a/b", TarEntry::File, "x"}, file}), QString());
    EXPECT_NE(refusal({top, linkTo("Sample.prefPane", "a")}), QString());
}

TEST_F(ArchiveAttack, aHardLinkIsRefused)
{
    const TarEntry file{"Sample.prefPane/a", TarEntry::File, "x"};
    for (const char *target : {"Sample.prefPane/a", "../out", "/etc/passwd"})
        EXPECT_NE(refusal({top, file, {"Sample.prefPane/h", TarEntry::HardLink, {}, target}}), QString()) << target;
}

TEST_F(ArchiveAttack, aDeviceIsRefused)
{
    for (const TarEntry::Kind kind : {TarEntry::CharacterDevice, TarEntry::BlockDevice, TarEntry::Pipe})
        EXPECT_EQ(refusal({top, {"Sample.prefPane/d", kind}}),
            "\"Sample.prefPane/d\": it is neither file nor folder nor symbolic link");
}

TEST_F(ArchiveAttack, aNameThatIsNoTextIsRefused)
{
    EXPECT_NE(refusal({top, {"Sample.prefPane/\xff\xfe", TarEntry::File, "x"}}), QString());
    EXPECT_NE(refusal({top, linkTo("Sample.prefPane/l", "\xff")}), QString());
}

TEST_F(ArchiveAttack, aPathThatIsTooDeepIsRefused)
{
    EXPECT_NE(refusal({{QByteArray("d/").repeated(32) + "f", TarEntry::File, "x"}}), QString());
}

TEST_F(ArchiveAttack, moreEntriesThanTheLimitAreRefused)
{
    QList<TarEntry> entries{top};
    for (int i = 0; i < 10; ++i)
        entries += {"Sample.prefPane/" + QByteArray::number(i), TarEntry::File};
    EXPECT_EQ(refusal(entries, {.entries = 10}), "it has more than 10 entries");
    EXPECT_EQ(unpackUpdateArchive(tarFile(entries), folder, {.entries = 11}), QString());
}

TEST_F(ArchiveAttack, moreBytesThanTheLimitAreRefused)
{
    const QList<TarEntry> entries{
        {"S/a", TarEntry::File, QByteArray(600, 'x')}, {"S/b", TarEntry::File, QByteArray(600, 'x')}};
    EXPECT_EQ(refusal(entries, {.bytes = 1199}), "it holds more than 1199 bytes");
    EXPECT_EQ(unpackUpdateArchive(tarFile(entries), folder, {.bytes = 1200}), QString());
}

TEST_F(ArchiveAttack, aBombIsRefused)
{
    const QByteArray bomb = compressed(tarFile({{"S/zeros", TarEntry::File, QByteArray(64 << 20, '\0')}}), "gzip");
    ASSERT_LT(bomb.size(), 100000);
    EXPECT_TRUE(refusalOf(bomb).startsWith("it holds more than "));
}

TEST_F(ArchiveAttack, aBombOfNothingButPaddingIsRefused)
{
    // An extended header may be as long as it likes, and no entry ever comes of it.
    TarEntry header{"S/h", TarEntry::File, QByteArray(64 << 20, '\0')};
    header.kind = TarEntry::Kind('x');
    EXPECT_NE(refusalOf(compressed(tarFile({header, {"S/a", TarEntry::File, "x"}}), "gzip")), QString());
}

TEST_F(ArchiveAttack, aBombOfManyExtendedHeadersIsRefused)
{
    TarEntry header{"S/h", TarEntry::Kind('x'), "262144 comment=" + QByteArray(262144 - 16, 'c') + '\n'};
    QList<TarEntry> entries;
    for (int i = 0; i < 200; ++i)
        entries += {header, {"S/" + QByteArray::number(i), TarEntry::File, "x"}};
    EXPECT_TRUE(refusalOf(compressed(tarFile(entries), "gzip")).startsWith("it holds more than "));
}

TEST_F(ArchiveAttack, aBrokenOneIsRefusedWhereverItBreaks)
{
    const QByteArray archive =
        compressed(tarFile({top, {"Sample.prefPane/a", TarEntry::File, QByteArray(3000, 'x')}}), "xz");
    for (qsizetype size = 0; size < archive.size(); size += 7)
        EXPECT_NE(refusalOf(archive.left(size)), QString()) << size;
    EXPECT_NE(refusalOf("this is no archive at all"), QString());
    EXPECT_EQ(refusalOf(tarFile({})), "it is empty");
}

TEST_F(ArchiveAttack, anotherKindOfArchiveIsRefused)
{
    EXPECT_NE(refusalOf(QByteArray::fromHex("504b0506000000000000000000000000000000000000")), QString()); // zip
    EXPECT_NE(refusalOf("!<arch>\n"), QString());
}

TEST_F(ArchiveAttack, aFileIsReadOutOfOneByItsPathAlone)
{
    const QByteArray archive = tarFile({top, {"Sample.prefPane/a", TarEntry::File, "content"},
        {"Sample.prefPane/large", TarEntry::File, QByteArray((1 << 20) + 1, 'x')}});
    EXPECT_EQ(fileOfUpdateArchive(archive, "Sample.prefPane/a"), "content");
    EXPECT_EQ(fileOfUpdateArchive(archive, "Sample.prefPane/b"), QByteArray());
    EXPECT_EQ(fileOfUpdateArchive(archive, "Sample.prefPane/large"), QByteArray());
}
