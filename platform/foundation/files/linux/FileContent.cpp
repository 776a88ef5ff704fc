#include "platform/foundation/files/FileContent.h"

#include "platform/foundation/system/SystemCalls.h"

#include <cerrno>
#include <fcntl.h>

std::optional<QByteArray> lastBytesOfFile(const QByteArray &path, qint64 most)
{
    const FileDescriptor file = FileDescriptor::opened(path, O_RDONLY | O_NONBLOCK | O_NOCTTY);
    struct stat status = {};
    if (!file || systemCalls().fstat(file.get(), &status) != 0 || !S_ISREG(status.st_mode))
        return std::nullopt;
    const off_t begin = qMax(off_t(0), status.st_size - off_t(most));
    QByteArray content(qsizetype(status.st_size - begin), Qt::Uninitialized);
    qsizetype length = 0;
    while (length < content.size()) {
        const ssize_t count = uninterrupted([&] {
            return systemCalls().pread(
                file.get(), content.data() + length, size_t(content.size() - length), begin + length);
        });
        if (count < 0)
            return std::nullopt;
        if (count == 0)
            break; // somebody has cut it off
        length += count;
    }
    content.truncate(length);
    return content;
}
