#include "DefaultsProgram.h"
#include "platform/foundation/propertylists/PropertyList.h"

#include <QDateTime>
#include <QDir>
#include <QTemporaryDir>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

// The command with which people see and change what is stored.

class LumarooDefaults : public testing::Test
{
protected:
    QString path(const QString &domain = "com.quorvane.Lumaroo") const
    {
        return temporary_.filePath("lumaroo/" + domain + ".plist");
    }
    QVariantMap stored(const QString &domain = "com.quorvane.Lumaroo") const
    {
        return readPropertyList(contentOf(path(domain))).value.toMap();
    }
    static QByteArray contentOf(const QString &name)
    {
        QFile file(name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    QString fileWith(const QByteArray &content) const
    {
        QFile file(temporary_.filePath("file"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return file.fileName();
    }

    void expectDone(const QStringList &arguments, const QByteArray &input = {})
    {
        const ProgramResult result = runDefaults(arguments, input);
        EXPECT_EQ(result.status, 0) << result.errors;
        EXPECT_EQ(result.errors, "");
    }
    void expectStored(const QStringList &typeAndValue, const QVariant &value)
    {
        expectDone(QStringList{"write", "key"} + typeAndValue);
        EXPECT_TRUE(isEqualPropertyList(stored().value("key"), value)) << typeAndValue.join(' ').toStdString();
    }
    void expectMisunderstood(const QStringList &arguments)
    {
        const ProgramResult result = runDefaults(arguments);
        EXPECT_EQ(result.status, 2) << arguments.join(' ').toStdString();
        EXPECT_NE(result.errors, "");
        EXPECT_EQ(result.output, "");
        EXPECT_FALSE(QFile::exists(path()));
    }
    void expectNotDone(const QStringList &arguments, const std::string &reason, const QByteArray &input = {})
    {
        const ProgramResult result = runDefaults(arguments, input);
        EXPECT_EQ(result.status, 1) << arguments.join(' ').toStdString();
        EXPECT_NE(result.errors.find(reason), std::string::npos) << result.errors;
    }

    void SetUp() override { qputenv("XDG_CONFIG_HOME", QFile::encodeName(temporary_.path())); }

    QTemporaryDir temporary_;
};

TEST_F(LumarooDefaults, writesEachTypeOfValue)
{
    expectStored({"-bool", "true"}, true);
    expectStored({"-bool", "NO"}, false);
    expectStored({"-bool", "1"}, true);
    expectStored({"-int", "6144"}, 6144);
    expectStored({"-int", "-9223372036854775808"}, std::numeric_limits<qlonglong>::min());
    expectStored({"-float", "0.1"}, 0.1f);
    expectStored({"-float", "-3"}, -3.0f);
    expectStored({"-string", "-int"}, "-int");
    expectStored({"-string", ""}, "");
    expectStored({"plain text"}, "plain text");
    expectStored({"-date", "2001-02-03T04:05:06Z"}, QDateTime(QDate(2001, 2, 3), QTime(4, 5, 6), Qt::UTC));
    expectStored({"-date", "2001-02-03T04:05:06+02:00"}, QDateTime(QDate(2001, 2, 3), QTime(2, 5, 6), Qt::UTC));
    expectStored({"-date", "2001-02-03"}, QDateTime(QDate(2001, 2, 3), QTime(0, 0), Qt::UTC));
    expectStored({"-data", "00 ff7F"}, QByteArray("\x00\xff\x7f", 3));
    expectStored({"-data", ""}, QByteArray());
    expectStored({"-dict", "keycode", "126", "unichar", "x"}, QVariantMap{{"keycode", "126"}, {"unichar", "x"}});
    expectStored({"-dict"}, QVariantMap());
    expectStored({"-array", "Terminal", "-5"}, QVariantList{"Terminal", "-5"});
    expectStored({"-array"}, QVariantList());
    expectStored({"-dict", "<plist><dict><key>a</key><integer>1</integer></dict></plist>"}, QVariantMap{{"a", 1}});
}

TEST_F(LumarooDefaults, refusesWhatIsNoValueOfTheType)
{
    for (const QStringList &value : {QStringList{"-bool", "maybe"}, {"-bool", "2"}, {"-bool"}, {"-int", "1.5"},
             {"-int", "9223372036854775808"}, {"-int", ""}, {"-float", "x"}, {"-float", "1e99"}, {"-float", "nan"},
             {"-date", "yesterday"}, {"-data", "f"}, {"-data", "xy"}, {"-dict", "key"},
             {"-dict", "<plist><true/></plist>"}, {"-dict", "<nonsense"}, {"-list", "a"}, {"-5"}, {}})
        expectMisunderstood(QStringList{"write", "key"} + value);
}

TEST_F(LumarooDefaults, refusesACommandLineThatMakesNoSense)
{
    for (const QStringList &arguments :
        {QStringList{}, {"change"}, {"write"}, {"delete"}, {"read", "a", "b"}, {"--domain"}, {"--unknown", "read"},
            {"read", "--replace"}, {"import", "--binary"}, {"read", "--notify"}, {"write", "key", "a", "b"}})
        expectMisunderstood(arguments);
}

TEST_F(LumarooDefaults, helpGoesToStandardOutput)
{
    const ProgramResult result = runDefaults({"--help"});
    EXPECT_EQ(result.status, 0);
    EXPECT_NE(result.output.find("usage: lumaroo-defaults"), std::string::npos);
    EXPECT_EQ(result.errors, "");
}

TEST_F(LumarooDefaults, readsOneValueOrEverything)
{
    expectDone({"write", "Debug", "-bool", "yes"});
    expectDone({"write", "text", "two words"});
    EXPECT_EQ(runDefaults({"read", "Debug"}).output, "1\n");
    EXPECT_EQ(runDefaults({"read", "text"}).output, "two words\n");
    EXPECT_EQ(runDefaults({"read"}).output, "{\n    Debug = 1;\n    text = \"two words\";\n}\n");
}

TEST_F(LumarooDefaults, readingCreatesNothing)
{
    expectDone({"read"});
    expectDone({"export"});
    EXPECT_TRUE(QDir(temporary_.path()).isEmpty());
}

TEST_F(LumarooDefaults, anAbsentKeyIsNeitherReadNorDeleted)
{
    expectNotDone({"read", "absent"}, "no key \"absent\"");
    expectNotDone({"delete", "absent"}, "no key \"absent\"");
}

TEST_F(LumarooDefaults, deletesOneKey)
{
    expectDone({"write", "a", "1"});
    expectDone({"write", "b", "2"});
    expectDone({"delete", "a"});
    EXPECT_EQ(stored(), (QVariantMap{{"b", "2"}}));
}

TEST_F(LumarooDefaults, anotherDomainIsAnotherFile)
{
    expectDone({"--domain", "com.example.one", "write", "key", "1"});
    expectDone({"write", "key", "2", "--domain=com.example.two"});
    EXPECT_EQ(stored("com.example.one"), (QVariantMap{{"key", "1"}}));
    EXPECT_EQ(stored("com.example.two"), (QVariantMap{{"key", "2"}}));
    EXPECT_FALSE(QFile::exists(path()));
}

TEST_F(LumarooDefaults, aDomainThatWouldLeaveTheFolderIsRefused)
{
    expectNotDone({"--domain", "../escape", "write", "key", "1"}, "cannot name a domain");
    expectNotDone({"--domain", "../escape", "read"}, "cannot name a domain");
}

TEST_F(LumarooDefaults, whatIsExportedAndImportedIsTheSameAsBefore)
{
    expectDone({"write", "float", "-float", "0.1"});
    expectDone({"write", "data", "-data", "00ff"});
    expectDone({"write", "map", "-dict", "a", "b"});
    const QVariantMap before = stored();
    const ProgramResult xml = runDefaults({"export"});
    EXPECT_EQ(xml.output.find("<?xml"), 0u);
    expectDone({"import", "--replace"}, QByteArray::fromStdString(xml.output));
    EXPECT_TRUE(isEqualPropertyList(stored(), before));
    const QString file = temporary_.filePath("exported");
    expectDone({"export", "--binary", file});
    EXPECT_TRUE(contentOf(file).startsWith("bplist00"));
    expectDone({"--domain", "com.example.other", "import", file});
    EXPECT_TRUE(isEqualPropertyList(stored("com.example.other"), before));
}

TEST_F(LumarooDefaults, anImportKeepsOtherKeysUnlessToldToReplaceThem)
{
    expectDone({"write", "kept", "1"});
    expectDone({"write", "changed", "1"});
    const QByteArray imported = writeXMLPropertyList(QVariantMap{{"changed", "2"}, {"added", "3"}});
    expectDone({"import", "-"}, imported);
    EXPECT_EQ(stored(), (QVariantMap{{"kept", "1"}, {"changed", "2"}, {"added", "3"}}));
    expectDone({"import", "--replace"}, imported);
    EXPECT_EQ(stored(), (QVariantMap{{"changed", "2"}, {"added", "3"}}));
}

TEST_F(LumarooDefaults, whatIsNoDictionaryIsNotImported)
{
    expectDone({"write", "key", "1"});
    expectNotDone({"import"}, "standard input does not parse", "garbage");
    expectNotDone({"import", "--replace"}, "standard input does not parse", "");
    expectNotDone({"import", fileWith("<plist><true/></plist>")}, "holds no dictionary");
    expectNotDone({"import", temporary_.filePath("absent")}, "absent");
    EXPECT_EQ(stored(), (QVariantMap{{"key", "1"}}));
}

TEST_F(LumarooDefaults, anExportThatCannotBeWrittenSaysSo)
{
    expectDone({"write", "key", "1"});
    expectNotDone({"export", temporary_.filePath("no/such/folder")}, "no/such/folder");
}

TEST_F(LumarooDefaults, anExportIntoAPipeLeavesThePipe)
{
    expectDone({"write", "key", "1"});
    const QByteArray name = QFile::encodeName(temporary_.filePath("pipe"));
    ASSERT_EQ(mkfifo(name.constData(), 0600), 0);
    const int pipe = open(name.constData(), O_RDWR | O_NONBLOCK | O_CLOEXEC);
    expectDone({"export", QFile::decodeName(name)});
    QByteArray bytes(1000, '\0');
    bytes.truncate(read(pipe, bytes.data(), size_t(bytes.size())));
    EXPECT_EQ(readPropertyList(bytes).value.toMap(), stored());
    close(pipe);
}

TEST_F(LumarooDefaults, textThatXMLCannotHoldIsExportedInBinaryOnly)
{
    expectDone({"write", "key", "-string", "\x01"});
    expectNotDone({"export"}, "--binary");
    expectDone({"export", "--binary"});
}

TEST_F(LumarooDefaults, settingsThatCannotBeWrittenAreReported)
{
    expectDone({"write", "key", "1"});
    ASSERT_TRUE(QFile::setPermissions(temporary_.filePath("lumaroo"), QFile::ReadOwner | QFile::ExeOwner));
    expectNotDone({"write", "key", "2"}, "cannot be written");
    EXPECT_EQ(runDefaults({"read", "key"}).output, "1\n");
    ASSERT_TRUE(
        QFile::setPermissions(temporary_.filePath("lumaroo"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
}

TEST_F(LumarooDefaults, settingsThatCannotBeReadAreReported)
{
    expectDone({"write", "key", "1"});
    ASSERT_TRUE(QFile::setPermissions(path(), QFile::Permissions()));
    expectNotDone({"read"}, "cannot be read");
    expectNotDone({"export"}, "cannot be read");
    expectNotDone({"write", "key", "2"}, "cannot be read");
    ASSERT_TRUE(QFile::setPermissions(path(), QFile::ReadOwner));
    EXPECT_EQ(stored(), (QVariantMap{{"key", "1"}}));
}

TEST_F(LumarooDefaults, withoutASessionBusTheChangeIsStoredAndTheMissingAnnouncementReported)
{
    expectNotDone({"write", "key", "1", "--notify"}, "no session bus");
    EXPECT_EQ(stored(), (QVariantMap{{"key", "1"}}));
}
