// What the machine and the system say of themselves, and what becomes of it where they do not.

#include "crashreporter/QBSystemInformation.h"
#include "platform/foundation/machine/Gestalt.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <cerrno>
#include <gtest/gtest.h>

namespace {

/// A machine whose files a test writes; nothing stands in them at first.
class SystemInformation : public testing::Test
{
protected:
    SystemInformation() { qputenv("LUMAROO_SYSTEM_ROOT", QFile::encodeName(root_.path())); }
    ~SystemInformation() override { qunsetenv("LUMAROO_SYSTEM_ROOT"); }

    void put(const QString &path, const QByteArray &content) const
    {
        QFile file(root_.path() + path);
        ASSERT_TRUE(QDir().mkpath(QFileInfo(file).path()));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    void putVersion(const QByteArray &version) const { put("/etc/os-release", "VERSION_ID=\"" + version + "\"\n"); }
    void putModel(const QByteArray &model) const { put("/sys/class/dmi/id/product_name", model + '\n'); }
    void putClock(const QByteArray &kilohertz) const
    {
        put("/sys/devices/system/cpu/cpu0/cpufreq/cpuinfo_max_freq", kilohertz + '\n');
    }
    void putProcessors(const QByteArray &list) const { put("/sys/devices/system/cpu/online", list + '\n'); }

private:
    QTemporaryDir root_;
};

struct Components
{
    quint32 major = 7;
    quint32 minor = 7;
    quint32 bugFix = 7;
    bool operator==(const Components &) const = default;
};

Components components()
{
    Components parts;
    QBGetSystemVersionComponents(&parts.major, &parts.minor, &parts.bugFix);
    return parts;
}

} // namespace

TEST_F(SystemInformation, isNeutralWhereTheMachineSaysNothing)
{
    EXPECT_EQ(QBClockSpeed(), 0U);
    EXPECT_EQ(QBCountCores(), 1U);
    EXPECT_EQ(QBPhysicalRAMSize(), 0U);
    EXPECT_EQ(QBSystemVersion(), 0U);
    EXPECT_EQ(components(), (Components{0, 0, 0}));
    EXPECT_EQ(QBSystemVersionString(), "0.0.0");
}

TEST_F(SystemInformation, namesTheMachineAndKeepsTheNameOnceFound)
{
    EXPECT_TRUE(QBMachineName().isNull());
    put("/sys/firmware/devicetree/base/model", QByteArray("PowerMac3,1\0", 12));
    EXPECT_EQ(QBMachineName(), "PowerMac G4 AGP Graphics") << "what was not found is asked for again";
    putModel("Zorro9,9");
    EXPECT_EQ(QBMachineName(), "PowerMac G4 AGP Graphics");
}

TEST_F(SystemInformation, keepsTheProcessorsNameUntilItIsHandedOver)
{
    const QString name = QBCPUName();
    EXPECT_FALSE(name.isEmpty());
    EXPECT_EQ(QBAutoreleasedCPUName(true), name);
    EXPECT_EQ(QBCPUName(), name) << "it is asked for again";
}

TEST_F(SystemInformation, tellsTheClockInMegahertz)
{
    putClock("2147483");
    EXPECT_EQ(QBClockSpeed(), 2147U);
    putClock("2400000");
    EXPECT_EQ(QBClockSpeed(), quint32(-1894)) << "beyond a signed number";
    putClock("1999999");
    EXPECT_EQ(QBClockSpeed(), 1999U);
    putClock("5000000");
    EXPECT_EQ(QBClockSpeed(), 705U) << "the low 32 bits";
    putClock("none");
    EXPECT_EQ(QBClockSpeed(), 0U);
    put("/proc/cpuinfo", "processor\t: 0\ncpu MHz\t\t: 2000.999\ncpu MHz\t\t: 800\n");
    EXPECT_EQ(QBClockSpeed(), 2000U);
}

TEST_F(SystemInformation, countsTheProcessorsInUse)
{
    putProcessors("0-1,4,8-11");
    EXPECT_EQ(QBCountCores(), 7U);
    for (const char *list : {"", "some", "1-", "3-1", "0-1-2"}) {
        putProcessors(list);
        EXPECT_EQ(QBCountCores(), 1U) << list;
    }
}

TEST_F(SystemInformation, tellsTheMemoryInMebibytes)
{
    put("/proc/meminfo", "MemFree:  5 kB\nMemTotal:       24605123 kB\n");
    EXPECT_EQ(QBPhysicalRAMSize(), 24028U);
}

TEST_F(SystemInformation, asksForTheVersionsPartsAboveTheHighestPackedOne)
{
    putVersion("10.3.9");
    EXPECT_EQ(QBSystemVersion(), 0x1039U);
    EXPECT_EQ(components(), (Components{10, 3, 9}));
    putVersion("22.16.400");
    EXPECT_EQ(components(), (Components{22, 16, 400}));
    EXPECT_EQ(QBSystemVersionString(), "22.16.400");
    putVersion("4.1");
    EXPECT_EQ(components(), (Components{4, 1, 0}));
    putVersion("4.1.400");
    EXPECT_EQ(components(), (Components{4, 1, 400})) << "just above the threshold";
}

TEST_F(SystemInformation, decodesThePackedVersionUpToTheHighest)
{
    putVersion("4.0.15");
    EXPECT_EQ(QBSystemVersion(), 1039U);
    EXPECT_EQ(components(), (Components{4, 0, 15}));
    putVersion("4.0.400");
    EXPECT_EQ(components(), (Components{4, 0, 15})) << "the packed one has no room for more";
}

TEST_F(SystemInformation, isThatOfThisMachineOtherwise)
{
    qunsetenv("LUMAROO_SYSTEM_ROOT");
    EXPECT_GT(QBCountCores(), 0U);
    EXPECT_GT(QBPhysicalRAMSize(), 100U);
}

TEST_F(SystemInformation, isRefusedForWhatNobodyKnows)
{
    qintptr response = 4711;
    EXPECT_EQ(Gestalt(fourCharCode("????"), &response), gestaltUndefSelectorErr);
    EXPECT_EQ(Gestalt(gestaltProcClkSpeed, &response), gestaltUnknownErr);
    EXPECT_EQ(response, 4711);
    quint32 number = 0;
    size_t size = sizeof(number);
    EXPECT_EQ(sysctlbyname("hw.model", &number, &size), -1);
    EXPECT_EQ(errno, ENOENT);
    EXPECT_EQ(sysctlbyname("hw.ncpu", &number, &size), -1);
    EXPECT_EQ(errno, EIO);
    putProcessors("0");
    size = 2;
    EXPECT_EQ(sysctlbyname("hw.ncpu", &number, &size), -1);
    EXPECT_EQ(errno, ENOMEM);
}

TEST_F(SystemInformation, givesALongModelUpToWhatItsLengthCanTell)
{
    putModel(QByteArray(300, 'x'));
    qintptr response = 0;
    ASSERT_EQ(Gestalt(gestaltUserVisibleMachineName, &response), noErr);
    const auto *text = reinterpret_cast<const char *>(response);
    EXPECT_EQ(quint8(*text), 255);
    EXPECT_EQ(qstrlen(text + 1), 255U);
}

TEST_F(SystemInformation, cutsALongModelBetweenTwoCharacters)
{
    putModel("x" + QByteArray("\xc3\xa4").repeated(200));
    qintptr response = 0;
    ASSERT_EQ(Gestalt(gestaltUserVisibleMachineName, &response), noErr);
    const auto *text = reinterpret_cast<const char *>(response);
    EXPECT_EQ(quint8(*text), 255);
    putModel("xy" + QByteArray("\xc3\xa4").repeated(200));
    ASSERT_EQ(Gestalt(gestaltUserVisibleMachineName, &response), noErr);
    text = reinterpret_cast<const char *>(response);
    EXPECT_EQ(quint8(*text), 254);
    EXPECT_EQ(QByteArray(text + 1), "xy" + QByteArray("\xc3\xa4").repeated(126));
}
