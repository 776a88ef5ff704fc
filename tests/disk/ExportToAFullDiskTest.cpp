#include "DefaultsProgram.h"
#include "platform/foundation/preferences/CFPreferences.h"

// An export that does not fit is no success.

TEST(ExportToAFullDisk, saysThatItIsFull)
{
    CFPreferencesSetAppValue("large", QByteArray(300 * 1024, 'x'), "com.quorvane.Lumaroo");
    ASSERT_TRUE(CFPreferencesAppSynchronize("com.quorvane.Lumaroo"));
    const ProgramResult result = runDefaults({"export", qEnvironmentVariable("LUMAROO_SMALL_DISK") + "/exported"});
    EXPECT_EQ(result.status, 1);
    EXPECT_NE(result.errors.find("No space left on device"), std::string::npos) << result.errors;
}
