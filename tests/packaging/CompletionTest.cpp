// What bash offers after the programs' names, asked of a real bash that has read the file which is installed.

#include "HelpOfPrograms.h"
#include "KTXSettings.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gmock/gmock.h>

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAreArray;

namespace {

using Words = std::vector<std::string>;

/// What is offered for the last of the words, the first of which is the program.
Words offered(const QStringList &words)
{
    const char *const script =
        "source \"$LUMAROO_SOURCE/packaging/completions/lumaroo\"\n"
        "function=$(complete -p \"$1\") && function=${function#*-F } && function=${function%% *}\n"
        "COMP_WORDS=(\"$@\") COMP_CWORD=$(($# - 1))\n"
        "\"$function\"\n"
        "[ ${#COMPREPLY[@]} -eq 0 ] || printf '%s\\n' \"${COMPREPLY[@]}\"\n";
    const ProgramResult result = runProgram("bash", QStringList{"-c", script, "bash"} + words);
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errors, "");
    Words lines;
    for (const QString &line : QString::fromStdString(result.output).split('\n', Qt::SkipEmptyParts))
        lines.push_back(line.toStdString());
    return lines;
}

Words textsOf(const QStringList &list)
{
    Words texts;
    for (const QString &text : list)
        texts.push_back(text.toStdString());
    return texts;
}

Words everySetting()
{
    QStringList keys;
    for (const KTXSetting &setting : KTXSettings())
        keys += setting.key;
    return textsOf(keys);
}

} // namespace

TEST(Completion, offersTheOptionsOfTheProgramsHelp)
{
    for (const char *program : {"lumaroo-settings", "lumaroo-defaults", "LumarooAgent"})
        EXPECT_THAT(offered({program, "--"}), UnorderedElementsAreArray(textsOf(optionsInHelp(program)))) << program;
}

TEST(Completion, offersEverySettingToReadWriteAndDelete)
{
    for (const char *verb : {"read", "write", "delete"}) {
        EXPECT_THAT(offered({"lumaroo-defaults", "--notify", verb, ""}), UnorderedElementsAreArray(everySetting()))
            << verb;
    }
    EXPECT_THAT(offered({"LumarooAgent", "--set", ""}), UnorderedElementsAreArray(everySetting()));
}

TEST(Completion, goesOnFromWhatIsTyped)
{
    EXPECT_THAT(offered({"lumaroo-defaults", "ex"}), ElementsAre("export"));
    EXPECT_THAT(
        offered({"lumaroo-defaults", "read", "Enable"}), ElementsAre("EnableHorizontalWrap", "EnableVerticalWrap"));
    EXPECT_THAT(offered({"LumarooAgent", "--move", "u"}), ElementsAre("up", "under"));
    EXPECT_THAT(offered({"LumarooAgent", "--start-at-login", ""}), ElementsAre("on", "off"));
    EXPECT_THAT(offered({"lumaroo-settings", "--theme", ""}), ElementsAre("light", "dark"));
}

TEST(Completion, offersATypeAfterTheKeyAndValuesAfterIt)
{
    EXPECT_THAT(offered({"lumaroo-defaults", "write", "Beep", "-d"}), ElementsAre("-date", "-data", "-dict"));
    EXPECT_THAT(offered({"lumaroo-defaults", "write", "Beep", "-bool", ""}), ElementsAre("true", "false"));
    EXPECT_THAT(offered({"lumaroo-defaults", "write", "excludedApplications", "-array", "one", ""}), IsEmpty());
    EXPECT_THAT(offered({"LumarooAgent", "--set", "Beep", "-bool", "f"}), ElementsAre("false"));
}

TEST(Completion, offersAnOptionWhereItsVerbTakesIt)
{
    EXPECT_THAT(offered({"lumaroo-defaults", "export", "--b"}), ElementsAre("--binary"));
    EXPECT_THAT(offered({"lumaroo-defaults", "import", "--b"}), IsEmpty());
    EXPECT_THAT(offered({"lumaroo-defaults", "read", "--n"}), IsEmpty());
}

TEST(Completion, offersTheDomainsThatAreStoredAndNoKeysOfOthers)
{
    const QTemporaryDir folder;
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder.path()));
    EXPECT_THAT(offered({"lumaroo-defaults", "--domain", ""}), IsEmpty());
    ASSERT_TRUE(QDir(folder.path()).mkpath("lumaroo"));
    QFile file(folder.filePath("lumaroo/com.example.stored.plist"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_THAT(offered({"lumaroo-defaults", "--domain", "com"}), ElementsAre("com.example.stored"));
    EXPECT_THAT(offered({"lumaroo-defaults", "--domain", "=", "com"}), ElementsAre("com.example.stored"));
    EXPECT_THAT(offered({"lumaroo-defaults", "--domain", "com.example.stored", "read", ""}), IsEmpty());
    EXPECT_THAT(offered({"lumaroo-defaults", "--domain", "=", "com.example.stored", "re"}), ElementsAre("read"));
}

TEST(Completion, offersFilesToReadAndFoldersForPanes)
{
    const QTemporaryDir folder;
    ASSERT_TRUE(QDir(folder.path()).mkpath("a pane"));
    QFile file(folder.filePath("a file"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_THAT(offered({"lumaroo-defaults", "import", folder.filePath("a f")}),
        ElementsAre(folder.filePath("a file").toStdString()));
    EXPECT_THAT(
        offered({"lumaroo-settings", folder.filePath("a")}), ElementsAre(folder.filePath("a pane").toStdString()));
    EXPECT_THAT(offered({"lumaroo-settings", ""}), Contains("com.quorvane.Lumaroo"));
}
