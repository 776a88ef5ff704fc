#pragma once

#include "platform/foundation/Export.h"

#include <QString>
#include <QStringList>
#include <memory>

/// The environment variable that names this process's program to the tasks it launches.
inline constexpr char hostExecutableVariable[] = "LUMAROO_HOST_EXECUTABLE";

/// A pipe. Once a task has been launched with it, its write end stays with this process, and with no other, until this
/// process ends, also after the object is gone: whoever reads from the other end sees the end of file when this
/// process's life ends, however it ends.
class LM_FOUNDATION NSPipe
{
public:
    /// A new pipe. Throws an NSException ("NSFileHandleOperationException") when the system gives none.
    static std::shared_ptr<NSPipe> pipe();
    ~NSPipe();
    NSPipe(const NSPipe &) = delete;
    NSPipe &operator=(const NSPipe &) = delete;

    int fileDescriptorForReading() const { return readEnd_; }
    /// From now on the write end outlives the object.
    void keepWriteEndOpen() { writeEnd_ = -1; }

private:
    NSPipe(int readEnd, int writeEnd) : readEnd_(readEnd), writeEnd_(writeEnd) { }
    int readEnd_, writeEnd_;
};

/// A program run as a process of its own, which outlives this one. The object may go at any time.
class LM_FOUNDATION NSTask
{
public:
    void setLaunchPath(const QString &path) { launchPath_ = path; }
    void setArguments(const QStringList &arguments) { arguments_ = arguments; }
    /// Without one, the program's standard input is empty.
    void setStandardInput(std::shared_ptr<NSPipe> pipe) { standardInput_ = std::move(pipe); }

    /// Starts the program, with this process's executable in its environment as LUMAROO_HOST_EXECUTABLE. Throws an
    /// NSException ("NSInvalidArgumentException") when it cannot be run.
    void launch();

private:
    QString launchPath_;
    QStringList arguments_;
    std::shared_ptr<NSPipe> standardInput_;
};
