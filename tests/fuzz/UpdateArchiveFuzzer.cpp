#include "updater/core/UpdateArchive.h"

#include <cstdlib>

// Whatever an archive holds: each entry of one that is taken lies in its one folder, and together they are no more than
// was allowed.

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t size)
{
    const QByteArray data(reinterpret_cast<const char *>(bytes), qsizetype(size));
    const ArchiveLimits limits{.entries = 100, .bytes = qint64(1024) * 1024};
    const ArchiveListing listing = listUpdateArchive(data, limits);
    qint64 whole = 0;
    for (const ArchiveEntry &entry : listing.entries) {
        const bool isInside = entry.path == listing.bundle || entry.path.startsWith(listing.bundle + u'/');
        if (!isInside || entry.path.split(u'/').contains(QStringLiteral("..")))
            std::abort();
        whole += entry.size;
    }
    if (whole > limits.bytes || listing.entries.size() > limits.entries)
        std::abort();
    return 0;
}
