#pragma once

#include <QString>
#include <stdexcept>

/// What a command could not do; what() tells its user why. Thrown by what carries the command out, caught by its main
/// program, which says it on standard error and ends with a status that tells of it.
class CommandFailure : public std::runtime_error
{
public:
    explicit CommandFailure(const QString &reason) : std::runtime_error(reason.toStdString()) { }
};
