// What becomes of questions that a machine answers in part. No real one can be made to, so this program brings the
// answers along: its own function stands before the library's.

#include "TestBundle.h"
#include "crashreporter/QBSystemInformation.h"
#include "crashreporter/ReportParts.h"
#include "platform/foundation/bundles/NSBundle.h"
#include "platform/foundation/machine/Gestalt.h"

#include <gtest/gtest.h>
#include <map>

namespace {

std::map<OSType, qintptr> &answers()
{
    static std::map<OSType, qintptr> known;
    return known;
}

class SystemInformationFailures : public testing::Test
{
protected:
    SystemInformationFailures() { answers().clear(); }
    ~SystemInformationFailures() override
    {
        answers().clear();
        QBAutoreleasedCPUName(true);
    }
};

} // namespace

OSStatus Gestalt(OSType selector, qintptr *response)
{
    const auto known = answers().find(selector);
    if (known == answers().end())
        return gestaltUnknownErr;
    *response = known->second;
    return noErr;
}

TEST_F(SystemInformationFailures, aProcessorThatIsNotToldHasNoName)
{
    EXPECT_TRUE(QBCPUName().isNull());
    EXPECT_TRUE(QBAutoreleasedCPUName(true).isNull());
    answers()[gestaltNativeCPUtype] = 264;
    EXPECT_EQ(QBCPUName(), "PowerPC G3") << "it is asked for again";
}

TEST_F(SystemInformationFailures, theProcessorsNameStaysUntilItIsHandedOver)
{
    answers()[gestaltNativeCPUtype] = 264;
    EXPECT_EQ(QBCPUName(), "PowerPC G3");
    answers()[gestaltNativeCPUtype] = 268;
    EXPECT_EQ(QBCPUName(), "PowerPC G3") << "kept";
    answers().clear();
    EXPECT_EQ(QBCPUName(), "PowerPC G3") << "also where the machine does not say any more";
    EXPECT_EQ(QBAutoreleasedCPUName(true), "PowerPC G3");
    EXPECT_TRUE(QBCPUName().isNull()) << "handed over";
    answers()[gestaltNativeCPUtype] = 268;
    EXPECT_EQ(QBAutoreleasedCPUName(true), "PowerPC G4");
    answers()[gestaltNativeCPUtype] = 4;
    EXPECT_EQ(QBCPUName(), "Motorola 68040");
}

TEST_F(SystemInformationFailures, aPartOfTheVersionThatIsNotToldStaysAsItWas)
{
    answers()[gestaltSystemVersion] = 0x1068;
    EXPECT_EQ(QBSystemVersionString(), "10.0.0");
    answers()[gestaltSystemVersionMajor] = 11;
    answers()[gestaltSystemVersionBugFix] = 3;
    quint32 major = 7;
    quint32 minor = 7;
    quint32 bugFix = 7;
    QBGetSystemVersionComponents(&major, &minor, &bugFix);
    EXPECT_EQ(major, 11U);
    EXPECT_EQ(minor, 7U);
    EXPECT_EQ(bugFix, 3U);
    answers()[gestaltSystemVersionMinor] = 6;
    answers().erase(gestaltSystemVersion);
    EXPECT_EQ(QBSystemVersionString(), "0.0.0") << "without the whole the parts are not asked for";
}

TEST_F(SystemInformationFailures, aMachineThatIsNotToldIsReportedAsNull)
{
    EXPECT_TRUE(QBMachineName().isNull());
    EXPECT_EQ(reportedMachine(), "(null)");
    static const char model[] = "\x08Zorro9,9";
    answers()[gestaltUserVisibleMachineName] = qintptr(model);
    EXPECT_EQ(reportedMachine(), "Unknown (Zorro9,9)") << "it is asked for again";
}

TEST_F(SystemInformationFailures, preferencesWithoutADomainAreReportedAsNull)
{
    EXPECT_EQ(reportedPreferences(nullptr), "(null)");
    const TestBundle bare("Bare.app");
    EXPECT_EQ(reportedPreferences(NSBundle::bundleWithPath(bare.path())), "(null)");
}
