#include "platform/foundation/NSException.h"

#include "platform/foundation/system/NSLog.h"

NSException::NSException(QString name, QString reason)
    : name_(std::move(name)), reason_(std::move(reason)), reasonBytes_(reason_.toUtf8())
{
}

NSException::~NSException() = default;

const char *NSException::what() const noexcept
{
    return reasonBytes_.constData();
}

AssertionFailure::AssertionFailure(QString method, const void *object, QString file, int line, QString description)
    : NSException(QStringLiteral("NSInternalInconsistencyException"), description), method_(std::move(method)),
      object_(object), file_(std::move(file)), line_(line), description_(std::move(description))
{
}

AssertionFailure::~AssertionFailure() = default;

void handleFailureInMethodObjectFileLineNumberDescription(
    const QString &method, const void *object, const QString &file, int line, const QString &description)
{
    NSLog(QStringLiteral("*** Assertion failure in %1, %2:%3").arg(method, file).arg(line));
    throw AssertionFailure(method, object, file, line, description);
}
