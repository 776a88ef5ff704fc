// The bundle was replaced while its code runs: what checks for updates is another version's, and is left alone.

#include "InstalledProduct.h"
#include "KTXConstants.h"
#include "KeyPress.h"
#include "RunningPrograms.h"
#include "ScreenReader.h"
#include "Wait.h"

#include <QDir>
#include <QFile>
#include <linux/input-event-codes.h>

namespace {

class UpdaterOfAnotherVersion : public InstalledProduct
{
protected:
    UpdaterOfAnotherVersion()
    {
        storeOutside(KTXFirstLaunch, true);
        // A copy without a key offers no checks.
        changeInfo(pane(), {{"SUPublicEDKey", QString::fromLatin1(QByteArray(32, 'k').toBase64())}});
        // What the settings inherit, and write their log to.
        testing::internal::CaptureStderr();
        settings = std::make_unique<SettingsProgram>(QStringList{pane()});
    }

    /// As the exchange of the bundles does: the new one has its own library in place of this one's.
    void replaceLibrary() const
    {
        const QDir libraries(pane() + "/Contents/Frameworks");
        const QString name = QString("liblumaroo-updater-windows.so.%1").arg(installedVersion());
        ASSERT_TRUE(QFile::rename(libraries.filePath(name),
            libraries.filePath(QString("liblumaroo-updater-windows.so.%1").arg(installedVersion() + 1))));
    }
    void turnToUpdates()
    {
        for (int page = 0; page < 3; ++page) {
            const QImage shown = settings->settledPicture();
            pressKey(KEY_TAB, {KEY_LEFTCTRL});
            ASSERT_FALSE(settings->pictureAfterChangeFrom(shown).isNull());
        }
    }
    void expectCheckToBeRefused()
    {
        pressKey(KEY_N, {KEY_LEFTALT});
        ASSERT_TRUE(settings->waitForWindows(2));
        EXPECT_TRUE(reader.waitForText(settings->processId(), "Lumaroo cannot look for updates now"));
        settings->settledPicture();
        pressKey(KEY_ENTER);
        ASSERT_TRUE(settings->waitForWindows(1));
        settings->settledPicture();
    }

    ScreenReader reader;
    std::unique_ptr<SettingsProgram> settings;
};

} // namespace

TEST_F(UpdaterOfAnotherVersion, isNotLoadedAndTheUserIsToldWhatToDo)
{
    ASSERT_TRUE(settings->waitForWindows(1));
    replaceLibrary();
    turnToUpdates();
    expectCheckToBeRefused();
    expectCheckToBeRefused();
    pressKey(KEY_Q, {KEY_LEFTCTRL});
    EXPECT_EQ(settings->exitStatus(), 0);
    const QByteArray log = QByteArray::fromStdString(testing::internal::GetCapturedStderr());
    EXPECT_EQ(log.count("lumaroo: updates: cannot check: "), 1) << log.toStdString();
}
