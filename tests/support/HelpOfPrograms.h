#pragma once

#include "ProgramResult.h"

#include <QMap>
#include <QRegularExpression>

/// The programs of this build that people may type, by name.
inline QString pathOfProgram(const QString &name)
{
    static const QMap<QString, QString> places{{"lumaroo-settings", "/Settings.app/Contents/Linux/"},
        {"lumaroo-defaults", "/bin/"},
        {"LumarooAgent", "/Lumaroo.prefPane/Contents/Resources/LumarooAgent.app/Contents/Linux/"}};
    return qEnvironmentVariable("LUMAROO_BUILD") + places.value(name) + name;
}

/// Each long option that a text names, once.
inline QStringList optionsIn(const QString &text)
{
    static const QRegularExpression option("--[a-z]+(-[a-z]+)*");
    QStringList options;
    for (auto match = option.globalMatch(text); match.hasNext();)
        options += match.next().captured();
    options.removeDuplicates();
    return options;
}

/// Those of the program's --help.
inline QStringList optionsInHelp(const QString &name)
{
    const ProgramResult help = runProgram(pathOfProgram(name), {"--help"});
    EXPECT_EQ(help.status, 0) << help.errors;
    const QStringList options = optionsIn(QString::fromStdString(help.output));
    EXPECT_TRUE(options.contains("--help"));
    return options;
}
