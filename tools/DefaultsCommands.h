#pragma once

#include "DefaultsArguments.h"

/// What could not be done; what() tells the user why.
class CommandFailure : public std::runtime_error
{
public:
    explicit CommandFailure(const QString &reason) : std::runtime_error(reason.toStdString()) { }
};

/// Does what was asked for. Throws CommandFailure.
void perform(const DefaultsRequest &request);
