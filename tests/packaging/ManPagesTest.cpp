// The manual pages as they are installed: two formatters understand them, and they tell what the programs do.

#include "HelpOfPrograms.h"

#include <QProcess>
#include <gmock/gmock.h>

using testing::HasSubstr;
using testing::Values;

namespace {

class TheManPage : public testing::TestWithParam<std::tuple<const char *, const char *>>
{
protected:
    TheManPage()
    {
        const ProgramResult unpacked = runProgram("gzip", {"-dc", path});
        EXPECT_EQ(unpacked.status, 0) << unpacked.errors;
        text = QString::fromStdString(unpacked.output);
    }

    const QString language = std::get<0>(GetParam());
    const QString program = std::get<1>(GetParam());
    const QString path =
        qEnvironmentVariable("LUMAROO_BUILD") + "/packaging/man/" + language + "man1/" + program + ".1.gz";
    QString text;
};

} // namespace

TEST_P(TheManPage, isUnderstoodByEachFormatter)
{
    const ProgramResult groff = runProgram("man", {"--warnings", "-E", "UTF-8", "-l", "-Tutf8", "-Z", path});
    EXPECT_EQ(groff.status, 0);
    EXPECT_EQ(groff.errors, "");
    EXPECT_EQ(runProgram("mandoc", {"-T", "lint", path}).output, "");
}

TEST_P(TheManPage, isFoundByItsName)
{
    EXPECT_THAT(runProgram("lexgrog", {path}).output, HasSubstr(QString("\"%1 - ").arg(program).toStdString()));
}

TEST_P(TheManPage, saysOfWhichVersionItIs)
{
    EXPECT_TRUE(text.contains(QRegularExpression("\"Lumaroo [0-9.]+\"")));
    EXPECT_FALSE(text.contains('@'));
}

TEST_P(TheManPage, tellsEachOptionOfTheProgramsHelp)
{
    const QString plain = QString(text).replace("\\-", "-");
    for (const QString &option : optionsInHelp(program))
        EXPECT_TRUE(plain.contains(QRegularExpression(option + "\\b(?!-)"))) << qPrintable(option);
}

TEST_P(TheManPage, promisesNoOptionThatIsNotThere)
{
    const QStringList known =
        optionsInHelp("lumaroo-settings") + optionsInHelp("lumaroo-defaults") + optionsInHelp("LumarooAgent");
    for (const QString &option : optionsIn(QString(text).replace("\\-", "-")))
        EXPECT_TRUE(known.contains(option)) << qPrintable(option);
}

INSTANTIATE_TEST_SUITE_P(OfEachProgram, TheManPage,
    testing::Combine(Values("", "de/"), Values("lumaroo-settings", "lumaroo-defaults", "LumarooAgent")));
