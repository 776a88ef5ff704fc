#pragma once

#include <QStringList>
#include <QVariant>
#include <stdexcept>

/// A command line that makes no sense; what() tells the user why.
class UsageError : public std::runtime_error
{
public:
    explicit UsageError(const QString &reason) : std::runtime_error(reason.toStdString()) { }
};

/// What the user asks of lumaroo-defaults.
struct DefaultsRequest
{
    QString verb; ///< read, write, delete, export, import, or help
    QString domain = QStringLiteral("com.quorvane.Lumaroo");
    QString operand; ///< a key, or the file of export and import; empty where none was given
    QVariant value; ///< what to write
    bool notify = false;
    bool replace = false;
    bool binary = false;
};

/// Throws UsageError.
DefaultsRequest parseDefaultsArguments(const QStringList &arguments);

/// Takes a value of the type that `flag` names ("-bool" ...) from the front of the arguments. Throws UsageError.
QVariant takeValue(const QString &flag, QStringList &arguments);
bool isTypeFlag(const QString &argument);
bool isOption(const QString &argument);

extern const char *const DefaultsHelp;
