#include "updater/core/linux/SealedFile.h"

#include "updater/core/linux/SystemProblem.h"

#include <QFile>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace {

constexpr int seals = F_SEAL_SEAL | F_SEAL_SHRINK | F_SEAL_GROW | F_SEAL_WRITE;

bool copyAll(int from, int to, qint64 size)
{
    std::array<char, 65536> part;
    for (qint64 copied = 0; copied < size;) {
        const ssize_t count = uninterrupted([&] { return ::read(from, part.data(), part.size()); });
        if (count <= 0)
            return false;
        for (ssize_t written = 0; written < count;) {
            const ssize_t result = uninterrupted([&] { return ::write(to, part.data() + written, count - written); });
            if (result < 0)
                return false;
            written += result;
        }
        copied += count;
    }
    return true;
}

/// As large as the file was when it was opened; what is added meanwhile would be no part of it.
bool isCut(int copy, qint64 size)
{
    return uninterrupted([&] { return ::ftruncate(copy, size); }) == 0;
}

} // namespace

SealedFile SealedFile::refused(const QString &problem)
{
    SealedFile none;
    none.problem_ = problem;
    return none;
}

SealedFile SealedFile::copyOf(const QString &path, qint64 largest)
{
    const FileDescriptor file = FileDescriptor::opened(QFile::encodeName(path), O_RDONLY | O_NOFOLLOW | O_NONBLOCK);
    if (!file)
        return refused(systemProblem("open"));
    struct stat status;
    if (::fstat(file.get(), &status) != 0)
        return refused(systemProblem("fstat"));
    if (!S_ISREG(status.st_mode) || status.st_size <= 0 || status.st_size > largest)
        return refused(QStringLiteral("it is no file of 1 to %1 bytes").arg(largest));
    const FileDescriptor copy(::memfd_create("lumaroo-update", MFD_CLOEXEC | MFD_ALLOW_SEALING));
    if (!copy)
        return refused(systemProblem("memfd_create"));
    if (!copyAll(file.get(), copy.get(), status.st_size) || !isCut(copy.get(), status.st_size)
        || ::fcntl(copy.get(), F_ADD_SEALS, seals) != 0)
        return refused(systemProblem("copy"));
    void *bytes = ::mmap(nullptr, size_t(status.st_size), PROT_READ, MAP_PRIVATE, copy.get(), 0);
    if (bytes == MAP_FAILED)
        return refused(systemProblem("mmap"));
    SealedFile sealed;
    sealed.bytes_ = bytes;
    sealed.size_ = status.st_size;
    return sealed;
}

SealedFile::SealedFile(SealedFile &&other) noexcept
    : bytes_(std::exchange(other.bytes_, nullptr)), size_(std::exchange(other.size_, 0)),
      problem_(std::move(other.problem_))
{
}

SealedFile::~SealedFile()
{
    if (bytes_)
        ::munmap(bytes_, size_t(size_));
}
