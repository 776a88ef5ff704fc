// What a processor is called by its native code.

#include "crashreporter/ProcessorNames.h"
#include "platform/foundation/machine/Gestalt.h"

#include <QtEndian>
#include <gtest/gtest.h>
#include <map>

namespace {

std::string name(quint32 code)
{
    return processorNameOf(code).toStdString();
}

} // namespace

TEST(ProcessorNames, areThoseOfTheNativeCodes)
{
    const std::map<quint32, const char *> names{{0, "Motorola 68000"}, {1, "Motorola 68010"}, {2, "Motorola 68020"},
        {3, "Motorola 68030"}, {4, "Motorola 68040"}, {257, "PowerPC 601"}, {259, "PowerPC 603"}, {260, "PowerPC 604"},
        {262, "PowerPC 603e"}, {263, "PowerPC 603ev"}, {264, "PowerPC G3"}, {265, "PowerPC 604e"},
        {266, "PowerPC 604ev"}, {268, "PowerPC G4"}, {272, "PowerPC G4"}};
    for (quint32 code = 0; code < 300; ++code) {
        const auto known = names.find(code);
        EXPECT_EQ(name(code), known != names.end() ? known->second : "Unknown (" + std::to_string(code) + ")");
    }
}

TEST(ProcessorNames, ofCodesThatReadAsCharactersShowThemInTheMachinesOrder)
{
    EXPECT_EQ(name(fourCharCode("ixxx")),
        Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? "Unknown (1769502840/xxxi)" : "Unknown (1769502840/ixxx)");
    EXPECT_EQ(name(0x20202020), "Unknown (538976288/    )");
    EXPECT_EQ(name(0x20201F20), "Unknown (538976032)") << "one byte is below a blank";
}

TEST(ProcessorNames, tellACodeAsASignedNumber)
{
    EXPECT_EQ(name(0xFFFFFF00), "Unknown (-256)");
    EXPECT_EQ(processorNameOf(0xFFFFFFFF), QString::fromUtf8("Unknown (-1/ÿÿÿÿ)"));
}
