#pragma once

#include "updater/core/Signature.h"

#include <QString>
#include <functional>
#include <stdexcept>

// What the two programs of whoever publishes versions share.

/// What could not be done; what() tells the user why.
class MakerFailure : public std::runtime_error
{
public:
    explicit MakerFailure(const QString &reason) : std::runtime_error(reason.toStdString()) { }
};

/// The key in a file that nobody else may read, or, for "-", on standard input. It never stands on a command line,
/// where everybody on the machine could read it. Throws MakerFailure.
SigningKey readSigningKey(const QString &file);

/// The content of a file; throws MakerFailure where it cannot be read, is empty or larger than an update may be.
QByteArray readArchive(const QString &file);

/// Runs a program's work and turns what it throws into a line on standard error and the exit status 1.
int runMakerCommand(const char *program, const std::function<void()> &work);
