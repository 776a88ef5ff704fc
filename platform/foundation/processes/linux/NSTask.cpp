#include "platform/foundation/processes/NSTask.h"

#include "platform/foundation/NSException.h"
#include "platform/foundation/processes/linux/ProgramStart.h"
#include "platform/foundation/system/RunningExecutable.h"

#include <QFile>
#include <array>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

std::shared_ptr<NSPipe> NSPipe::pipe()
{
    std::array<int, 2> ends;
    if (::pipe2(ends.data(), O_CLOEXEC) != 0) {
        throw NSException(QStringLiteral("NSFileHandleOperationException"),
            QStringLiteral("no pipe: %1").arg(QString::fromLocal8Bit(std::strerror(errno))));
    }
    return std::shared_ptr<NSPipe>(new NSPipe(ends[0], ends[1]));
}

NSPipe::~NSPipe()
{
    ::close(readEnd_);
    if (writeEnd_ >= 0)
        ::close(writeEnd_);
}

void NSTask::launch()
{
    ProgramStart start{QFile::encodeName(launchPath_), {}, {}, -1};
    for (const QString &argument : arguments_)
        start.arguments += QFile::encodeName(argument);
    start.environment = {QByteArray(hostExecutableVariable) + '=' + QFile::encodeName(runningExecutablePath())};
    if (standardInput_)
        start.standardInput = standardInput_->fileDescriptorForReading();
    const int error = startProgram(start).error;
    if (error != 0) {
        throw NSException(QStringLiteral("NSInvalidArgumentException"),
            QStringLiteral("%1 cannot be run: %2").arg(launchPath_, QString::fromLocal8Bit(std::strerror(error))));
    }
    if (standardInput_)
        standardInput_->keepWriteEndOpen(); // on purpose: the system closes it when this process ends
}
