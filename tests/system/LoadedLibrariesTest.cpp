// What the settings have in their memory while they show the pane.

#include "LoadedLibraries.h"
#include "InstalledProduct.h"
#include "KTXConstants.h"

#include <gmock/gmock.h>

using testing::Each;
using testing::IsEmpty;
using testing::SizeIs;

class LoadedLibraries : public InstalledProduct
{
protected:
    LoadedLibraries()
    {
        storeOutside(KTXFirstLaunch, true);
        storeOutside(SUEnableAutomaticChecks, false);
        settings = std::make_unique<SettingsProgram>(QStringList{pane()});
    }

    QStringList loaded(const QString &library) const { return filesInMemoryOf(settings->processId()).filter(library); }

    std::unique_ptr<SettingsProgram> settings;
};

TEST_F(LoadedLibraries, ofThePlatformAreThereOnceAndNotTheAgentsCopy)
{
    ASSERT_TRUE(settings->waitForWindows(1));
    EXPECT_THAT(loaded(pane() + "/Contents/Linux/Lumaroo"), SizeIs(1));
    EXPECT_THAT(loaded("liblumaroo-foundation"), SizeIs(1));
    EXPECT_THAT(loaded("liblumaroo-appkit"), SizeIs(1));
    EXPECT_THAT(loaded(pane() + "/Contents/Frameworks/liblumaroo-foundation"), IsEmpty());
    EXPECT_THAT(
        loaded("liblumaroo-updater"), Each(testing::Eq(pane() + "/Contents/Frameworks/liblumaroo-updater.so.1.0")));
}

TEST_F(LoadedLibraries, areNotThoseThatOnlyChecksNeed)
{
    ASSERT_TRUE(settings->waitForWindows(1));
    EXPECT_THAT(loaded(pane() + "/Contents/Linux/Lumaroo"), SizeIs(1));
    for (const char *library : {"libQt6Network", "libsodium", "libarchive", "liblumaroo-updater-windows"})
        EXPECT_THAT(loaded(library), IsEmpty());
}
