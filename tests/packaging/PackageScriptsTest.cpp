// What is done to a Debian package once cpack has made it.

#include "ProgramResult.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gmock/gmock.h>

using testing::HasSubstr;
using testing::Not;

namespace {

class APackageWithScripts : public testing::Test
{
protected:
    void SetUp() override
    {
        const QString control =
            "Package: sample\nVersion: 1\nArchitecture: all\nMaintainer: Sample <sample@example.com>\n"
            "Description: sample\n";
        write("DEBIAN/control", control, false);
        write("DEBIAN/postinst", "#!/bin/sh\nldconfig\n", true);
        write("DEBIAN/postrm", "#!/bin/sh\nldconfig\n", true);
        write("usr/bin/sample", "#!/bin/sh\n", true);
        write("usr/share/sample", "text", false);
        ASSERT_TRUE(QFile::link("sample", folder.filePath("content/usr/bin/other")));
        expectDone("dpkg-deb", {"--root-owner-group", "--build", folder.filePath("content"), package});
        before = contents();
    }

    void write(const QString &name, const QString &text, bool isProgram)
    {
        const QString path = folder.filePath("content/" + name);
        ASSERT_TRUE(QDir().mkpath(QFileInfo(path).path()));
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text.toUtf8());
        const auto readable = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther;
        const auto executable = QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther;
        file.setPermissions(isProgram ? readable | executable : readable);
    }
    static std::string expectDone(const QString &program, const QStringList &arguments)
    {
        const ProgramResult result = runProgram(program, arguments);
        EXPECT_EQ(result.status, 0) << result.errors;
        return result.output;
    }
    /// Each file with its mode, its owner and where it leads.
    std::string contents() const { return expectDone("dpkg-deb", {"--contents", package}); }

    QTemporaryDir folder;
    const QString package = folder.filePath("a package.deb");
    std::string before;
};

} // namespace

TEST_F(APackageWithScripts, losesThemAndNothingElse)
{
    ASSERT_THAT(expectDone("dpkg-deb", {"--info", package}), HasSubstr("postinst"));
    expectDone("cmake",
        {"-DCPACK_PACKAGE_FILES=" + package, "-P",
            qEnvironmentVariable("LUMAROO_SOURCE") + "/packaging/RemoveScripts.cmake"});
    const std::string information = expectDone("dpkg-deb", {"--info", package});
    EXPECT_THAT(information, Not(HasSubstr("postinst")));
    EXPECT_THAT(information, Not(HasSubstr("postrm")));
    EXPECT_THAT(information, HasSubstr("Package: sample"));
    EXPECT_EQ(contents(), before);
    const QStringList left = QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot, QDir::Name);
    EXPECT_EQ(left, (QStringList{"a package.deb", "content"}));
}
