// What the updater costs a start: its own library, and nothing of what checks need.

#include "LoadedLibraries.h"
#include "TestBundle.h"
#include "Wait.h"

#include "platform/foundation/bundles/NSBundle.h"
#include "updater/SUUpdater.h"

#include <QApplication>
#include <QDialog>
#include <gmock/gmock.h>

using testing::IsEmpty;
using testing::SizeIs;

namespace {

QStringList loaded(const QString &library)
{
    return filesInMemoryOf(QCoreApplication::applicationPid()).filter(library);
}

QDialog *updateWindow()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (widget->objectName() == "updateWindow")
            return qobject_cast<QDialog *>(widget);
    }
    return nullptr;
}

} // namespace

TEST(LibrariesOfUpdater, areLoadedAtTheFirstCheck)
{
    // Without a key nothing is checked by schedule.
    const TestBundle bundle("Sample.prefPane");
    bundle.writeInfo({{"CFBundleVersion", "100"}, {"SUFeedURL", "https://updates.example/appcast.xml"}});
    SUUpdater *updater = SUUpdater::updaterForBundle(NSBundle::bundleWithPath(bundle.path()));
    updater->setAutomaticallyChecksForUpdates(true);
    updater->setUpdateCheckInterval(86400);
    updater->resetUpdateCycle();
    runPendingEvents();
    EXPECT_THAT(loaded("liblumaroo-updater.so"), SizeIs(1));
    for (const char *library : {"liblumaroo-updater-windows", "libQt6Network", "libsodium", "libarchive"})
        EXPECT_THAT(loaded(library), IsEmpty());

    updater->checkForUpdates(nullptr);
    for (const char *library : {"liblumaroo-updater-windows", "libQt6Network", "libsodium", "libarchive"})
        EXPECT_THAT(loaded(library), SizeIs(1));
    EXPECT_THAT(loaded("liblumaroo-foundation"), SizeIs(1));
    ASSERT_NE(updateWindow(), nullptr);
    updateWindow()->reject();
}

TEST(Updater, isOneForEachBundleAndStartsWithTheAddressOfItsInfo)
{
    const TestBundle bundle("Sample.prefPane");
    const TestBundle other("Other.prefPane");
    bundle.writeInfo({{"SUFeedURL", "https://updates.example/appcast.xml"}});
    SUUpdater *updater = SUUpdater::updaterForBundle(NSBundle::bundleWithPath(bundle.path()));
    EXPECT_EQ(SUUpdater::updaterForBundle(NSBundle::bundleWithPath(bundle.path())), updater);
    EXPECT_NE(SUUpdater::updaterForBundle(NSBundle::bundleWithPath(other.path())), updater);
    EXPECT_EQ(updater->feedURL(), "https://updates.example/appcast.xml");
    updater->setFeedURL("https://updates.example/other.xml");
    EXPECT_EQ(updater->feedURL(), "https://updates.example/other.xml");
}
