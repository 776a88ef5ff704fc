#pragma once

#include "platform/foundation/Export.h"

#include <QStringList>
#include <QVariant>
#include <functional>
#include <stdexcept>

// Property-list values on a command line: -bool true, -int 7, -dict keycode 126 ...

/// A command line that makes no sense; what() tells the user why.
class LM_FOUNDATION UsageError : public std::runtime_error
{
public:
    explicit UsageError(const QString &reason) : std::runtime_error(reason.toStdString()) { }
};

using ArgumentTest = std::function<bool(const QString &argument)>;

/// Whether an argument names a type: -bool, -int, -float, -string, -date, -data, -dict or -array.
LM_FOUNDATION bool isTypeFlag(const QString &argument);

/// Takes a value of the type that `flag` names from the front of the arguments. A dictionary of pairs and a list
/// end at the first argument that `isOption`. Throws UsageError.
LM_FOUNDATION QVariant takeValue(const QString &flag, QStringList &arguments, const ArgumentTest &isOption);
