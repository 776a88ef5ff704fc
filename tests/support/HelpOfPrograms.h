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

/// Each long option that the program's --help names.
inline QStringList optionsInHelp(const QString &name)
{
    const ProgramResult help = runProgram(pathOfProgram(name), {"--help"});
    EXPECT_EQ(help.status, 0) << help.errors;
    static const QRegularExpression option("--[a-z]+(-[a-z]+)*");
    QStringList options;
    for (auto match = option.globalMatch(QString::fromStdString(help.output)); match.hasNext();)
        options += match.next().captured();
    options.removeDuplicates();
    EXPECT_TRUE(options.contains("--help"));
    return options;
}
