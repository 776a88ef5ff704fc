#pragma once

#include "platform/foundation/Export.h"

#include <QString>
#include <exception>

/// The platform's exception: thrown for programming errors, caught at the boundaries to the run loop (Boundary.h).
class LM_FOUNDATION NSException : public std::exception
{
public:
    NSException(QString name, QString reason);
    ~NSException() override;

    const QString &name() const { return name_; }
    const QString &reason() const { return reason_; }
    /// The reason in UTF-8.
    const char *what() const noexcept override;

private:
    QString name_;
    QString reason_;
    QByteArray reasonBytes_;
};

/// A failed assertion: "NSInternalInconsistencyException", with where it failed.
class LM_FOUNDATION AssertionFailure : public NSException
{
public:
    AssertionFailure(QString method, const void *object, QString file, int line, QString description);
    ~AssertionFailure() override;

    const QString &method() const { return method_; }
    const void *object() const { return object_; }
    const QString &file() const { return file_; }
    int line() const { return line_; }
    const QString &description() const { return description_; }

private:
    QString method_;
    const void *object_;
    QString file_;
    int line_;
    QString description_;
};

/// Logs "*** Assertion failure in <method>, <file>:<line>" and throws the AssertionFailure.
[[noreturn]] LM_FOUNDATION void handleFailureInMethodObjectFileLineNumberDescription(
    const QString &method, const void *object, const QString &file, int line, const QString &description);
