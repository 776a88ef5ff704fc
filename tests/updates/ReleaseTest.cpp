#include "CertificateAuthority.h"
#include "ProgramResult.h"
#include "PublishedUpdates.h"
#include "TrustedAuthority.h"
#include "updater/core/UpdateArchive.h"

#include <QDir>
#include <QFile>

// A release as docs/RELEASING.md walks through it, from the maker's folder to the user's: packed by tar, signed, told
// of in a feed, served by https, checked, downloaded and installed.

namespace {

class Release : public PublishedUpdates
{
protected:
    static QString tool(const QString &name) { return qEnvironmentVariable("LUMAROO_BUILD") + "/bin/" + name; }
    static void run(const QString &program, const QStringList &arguments)
    {
        const ProgramResult result = runProgram(program, arguments);
        ASSERT_EQ(result.status, 0) << result.errors;
    }
    /// A build of a version in a folder of its own.
    QString buildOf(int version) const
    {
        const QString build = path("build-" + QString::number(version));
        QDir().mkpath(build);
        EXPECT_EQ(unpackUpdateArchive(archiveOf(version), build), QString());
        return build;
    }
    void pack(int version) const
    {
        run("tar",
            {"-C", buildOf(version), "-cJf", served(QString("Sample-%1.tar.xz").arg(version)), "Sample.prefPane"});
    }
    void makeFeed(const QUrl &address) const
    {
        write(path("key"), key.seed());
        ASSERT_TRUE(QFile::setPermissions(path("key"), QFile::ReadOwner | QFile::WriteOwner));
        run(tool("make-appcast"),
            {"--key", path("key"), "--address", address.toString(), QFileInfo(served("x")).path()});
    }
};

} // namespace

TEST_F(Release, comesFromTheMakersFolderToTheUsers)
{
    CertificateAuthority authority;
    const TrustedAuthority trusted(authority);
    const WebServer safe(authority.certificateForLoopback(), QFileInfo(served("x")).path());
    for (const int version : {101, 102}) {
        pack(version);
        makeFeed(safe.url("/"));
        const QUrl address = safe.url("/appcast.xml");
        const UpdateCheckResult found = check(address);
        ASSERT_TRUE(found.choice.item) << found.problem.detail.toStdString();
        EXPECT_EQ(found.choice.item->version, QString::number(version));
        const UpdateProblem problem = download(*found.choice.item, address);
        ASSERT_TRUE(problem.isNone()) << problem.detail.toStdString();
        run(qEnvironmentVariable("LUMAROO_BUILD") + "/Lumaroo.prefPane/Contents/Resources/installer", {bundle()});
        EXPECT_EQ(wholeVersion(), version);
        EXPECT_FALSE(check(address).choice.item) << "nothing newer";
    }
    EXPECT_EQ(beside(), QStringList());
}
