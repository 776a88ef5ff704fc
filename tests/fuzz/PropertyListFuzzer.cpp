#include "platform/foundation/propertylists/PropertyList.h"

#include <cstdlib>

// Whatever can be read can be written again, and reads back as the same.

namespace {

void expectTheSameAgain(const QVariant &value, const QByteArray &file)
{
    const PropertyListReading again = readPropertyList(file);
    if (!again || !isEqualPropertyList(again.value, value))
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t size)
{
    const QByteArray data(reinterpret_cast<const char *>(bytes), qsizetype(size));
    const PropertyListReading reading = readPropertyList(data);
    if (reading.errorOffset > data.size())
        std::abort();
    if (!reading)
        return 0;
    // Small input can stand for much output; the bounds of writing are stricter by the size of the tables alone.
    const QByteArray file = writeBinaryPropertyList(reading.value);
    if (!file.isEmpty())
        expectTheSameAgain(reading.value, file);
    writeXMLPropertyList(reading.value);
    return 0;
}
