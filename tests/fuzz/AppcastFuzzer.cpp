#include "updater/core/Appcast.h"
#include "updater/core/Signature.h"
#include "updater/core/UpdateChoice.h"
#include "updater/core/Versions.h"

#include <cstdlib>

// Whatever a feed says: an item that is taken has all that an installation needs, and only newer ones are offered.

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t size)
{
    const QByteArray data(reinterpret_cast<const char *>(bytes), qsizetype(size));
    const AppcastReading reading = readAppcast(data, QUrl(QStringLiteral("https://updates.example/appcast.xml")));
    if (!reading && !reading.items.isEmpty())
        std::abort();
    for (const AppcastItem &item : reading.items) {
        const bool isInstallable = item.length > 0 && item.signature.size() == signatureSize;
        if (!isBundleVersion(item.version) || (!isInstallable && !isInformationalFor(item, QStringLiteral("5"))))
            std::abort();
    }
    UpdateCircumstances circumstances;
    circumstances.installedVersion = QStringLiteral("5");
    const UpdateChoice choice = chooseUpdate(reading.items, circumstances);
    if (choice.item && !isNewer(choice.item->version, QStringLiteral("5")))
        std::abort();
    return 0;
}
