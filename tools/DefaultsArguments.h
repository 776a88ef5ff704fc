#pragma once

#include "KTXConstants.h"
#include "platform/foundation/propertylists/ValueArguments.h"

/// What the user asks of lumaroo-defaults.
struct DefaultsRequest
{
    QString verb; ///< read, write, delete, export, import, or help
    QString domain = KTXLMAppID;
    QString operand; ///< a key, or the file of export and import; empty where none was given
    QVariant value; ///< what to write
    bool notify = false;
    bool replace = false;
    bool binary = false;
};

/// Throws UsageError.
DefaultsRequest parseDefaultsArguments(const QStringList &arguments);

bool isOption(const QString &argument);

/// What --help shows.
QString defaultsHelp();
