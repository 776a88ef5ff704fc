#pragma once

#include "TestBundle.h"

#include "platform/foundation/processes/ProcessSerialNumber.h"

#include <sys/types.h>

/// An application made for a test ("Name.app") whose program runs until it is ended; what was started through it is
/// killed with the object.
class TestApplication
{
public:
    explicit TestApplication(const QString &identifier = QStringLiteral("test.application"));
    ~TestApplication();
    TestApplication(const TestApplication &) = delete;
    TestApplication &operator=(const TestApplication &) = delete;

    const TestBundle &bundle() const { return bundle_; }
    QString path() const { return bundle_.path(); }
    QString program() const { return path() + QStringLiteral("/Contents/Linux/idle"); }
    /// A program that does nothing until it is ended.
    static QString idleProgram();

    /// Launches it as the platform does.
    ProcessSerialNumber launch();

private:
    TestBundle bundle_;
    QList<pid_t> launched_;
};
