// The entry by which the desktop starts the agent at login.

#include "KTXLoginEntry.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

class TheLoginEntry : public testing::Test
{
protected:
    TheLoginEntry() { qputenv("XDG_CONFIG_HOME", QFile::encodeName(config())); }
    ~TheLoginEntry() override { qputenv("XDG_CONFIG_HOME", previous_); }

    QString config() const { return folder_.filePath("config"); }
    QString path() const { return config() + "/autostart/com.quorvane.LumarooAgent.desktop"; }
    QByteArray content() const
    {
        QFile file(path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    QByteArray line(const QByteArray &key) const
    {
        for (const QByteArray &line : content().split('\n')) {
            if (line.startsWith(key + '='))
                return line.mid(key.size() + 1);
        }
        return {};
    }
    /// What the validator of desktop entries says; nothing at all where they are clean.
    QByteArray complaints() const
    {
        QProcess validator;
        validator.setProcessChannelMode(QProcess::MergedChannels);
        validator.start("desktop-file-validate", {"--warn-kde", path()});
        EXPECT_TRUE(validator.waitForFinished());
        return validator.readAll() + (validator.exitCode() == 0 ? "" : "failed");
    }

private:
    QTemporaryDir folder_;
    QByteArray previous_ = qgetenv("XDG_CONFIG_HOME");
};

} // namespace

TEST_F(TheLoginEntry, startsTheProgramFromTheFolderThatDesktopsReadAtLogin)
{
    EXPECT_EQ(setStartAtLogin(true, "/opt/Lumaroo/LumarooAgent"), "");
    EXPECT_EQ(loginEntryPath(), path());
    EXPECT_EQ(line("Type"), "Application");
    EXPECT_EQ(line("Exec"), "\"/opt/Lumaroo/LumarooAgent\"");
    EXPECT_EQ(line("TryExec"), "/opt/Lumaroo/LumarooAgent");
    EXPECT_EQ(complaints(), "");
}

TEST_F(TheLoginEntry, namesAProgramWithAnyPath)
{
    EXPECT_EQ(setStartAtLogin(true, R"(/a b/100%/"$HOME"/`x`/back\slash/ü/LumarooAgent)"), "");
    EXPECT_EQ(line("Exec"), R"("/a b/100%%/\\"\\$HOME\\"/\\`x\\`/back\\\\slash/ü/LumarooAgent")");
    EXPECT_EQ(line("TryExec"), R"(/a b/100%/"$HOME"/`x`/back\\slash/ü/LumarooAgent)");
    EXPECT_EQ(complaints(), "");
}

TEST_F(TheLoginEntry, doesNotLetAPathAddLines)
{
    EXPECT_EQ(setStartAtLogin(true, "/a\nExec=evil\n/LumarooAgent"), "");
    EXPECT_EQ(line("Exec"), R"("/a\nExec=evil\n/LumarooAgent")");
    EXPECT_EQ(content().count("\nExec="), 1);
}

TEST_F(TheLoginEntry, isReplacedAsAWhole)
{
    EXPECT_EQ(setStartAtLogin(true, "/first/" + QString(500, 'x')), "");
    EXPECT_EQ(setStartAtLogin(true, "/second"), "");
    EXPECT_EQ(line("TryExec"), "/second");
    EXPECT_FALSE(content().contains("first"));
    EXPECT_EQ(QDir(config() + "/autostart").entryList(QDir::Files | QDir::Hidden).size(), 1);
}

TEST_F(TheLoginEntry, goesWhenSwitchedOffAsOftenAsOneLikes)
{
    EXPECT_EQ(setStartAtLogin(false, "/program"), "");
    EXPECT_EQ(setStartAtLogin(true, "/program"), "");
    EXPECT_EQ(setStartAtLogin(false, "/program"), "");
    EXPECT_FALSE(QFile::exists(path()));
    EXPECT_EQ(setStartAtLogin(false, "/program"), "");
}

TEST_F(TheLoginEntry, thatCannotBeWrittenStaysAsItWas)
{
    EXPECT_EQ(setStartAtLogin(true, "/first"), "");
    const QString folder = config() + "/autostart";
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner);
    EXPECT_TRUE(setStartAtLogin(true, "/second").startsWith("cannot write " + path() + ": "));
    EXPECT_TRUE(setStartAtLogin(false, "/second").startsWith("cannot remove " + path() + ": "));
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    EXPECT_EQ(line("TryExec"), "/first");
    EXPECT_EQ(QDir(folder).entryList(QDir::Files | QDir::Hidden).size(), 1);
}

TEST_F(TheLoginEntry, needsAFolder)
{
    QFile file(config());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_EQ(setStartAtLogin(true, "/program"), "cannot make the folder " + config() + "/autostart");
    EXPECT_EQ(setStartAtLogin(false, "/program"), "");
}

TEST_F(TheLoginEntry, standsInTheHomeWhereTheVariableNamesNoWholePath)
{
    for (const char *value : {"", "relative/folder"}) {
        qputenv("XDG_CONFIG_HOME", value);
        EXPECT_EQ(loginEntryPath(), QDir::homePath() + "/.config/autostart/com.quorvane.LumarooAgent.desktop");
    }
}

TEST_F(TheLoginEntry, holdsWhereADesktopWouldStartIt)
{
    EXPECT_FALSE(startsAtLogin());
    const QString folder = config() + R"(/a b\n "$HOME")";
    const QString program = folder + "/ü";
    ASSERT_TRUE(QDir().mkpath(folder));
    ASSERT_TRUE(QFile::copy("/bin/true", program));
    ASSERT_EQ(setStartAtLogin(true, program), "");
    EXPECT_TRUE(startsAtLogin());
    QFile::setPermissions(program, QFile::ReadOwner);
    EXPECT_FALSE(startsAtLogin()) << "its program cannot be started";
    QFile::remove(program);
    EXPECT_FALSE(startsAtLogin()) << "nor one that has gone";
}

TEST_F(TheLoginEntry, doesNotHoldWhereItIsSwitchedOff)
{
    for (const char *off : {"Hidden=true\n", "X-GNOME-Autostart-enabled=false\n", "Hidden = true\n"}) {
        ASSERT_EQ(setStartAtLogin(true, "/bin/true"), "");
        ASSERT_TRUE(startsAtLogin());
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::Append));
        file.write(off);
        file.close();
        EXPECT_FALSE(startsAtLogin()) << off;
    }
}
